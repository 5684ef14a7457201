#ifndef RUQLIB2CORE_COUNTEDVALUE_H
#define RUQLIB2CORE_COUNTEDVALUE_H

#include <ruqlib2core/CValueLong.h>

/// A long that counts its living instances and its destructions.
class CountedValue : public TEVU::CValueLong {
public:
    explicit CountedValue(long value) : TEVU::CValueLong(value) { ++s_nAlive; }
    CountedValue(const CountedValue& other) : TEVU::CValueLong(other) { ++s_nAlive; }
    CountedValue& operator=(const CountedValue&) = default;
    ~CountedValue() override {
        --s_nAlive;
        ++s_nDeleted;
    }
    CountedValue* Clone() const override { return new CountedValue(*this); }

    static void StartCounting() { s_nAlive = s_nDeleted = 0; }

    static inline int s_nAlive = 0;
    static inline int s_nDeleted = 0;
};

#endif
