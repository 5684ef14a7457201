#ifndef RUQLIB2CORE_CVALUE_KEY_H
#define RUQLIB2CORE_CVALUE_KEY_H

#include <ruqlib2core/Export.h>

#include <string>

namespace TEVU {

/// The name of an entry in a container: a text or an index.
///
/// A key is its text. A text that is the plain decimal form of an int ("3", "-1", but not "03",
/// "+3" or "-0") is that index, so CValue_Key("3") == CValue_Key(3), and a key that went through a
/// file as text finds its entry again.
///
/// Order: indices first, by number (9 before 10), then the other texts, by their bytes. The order
/// is total, and two keys are equal exactly when their String() is.
class RUQLIB2CORE_EXPORT CValue_Key {
public:
    CValue_Key(const char* text); ///< Null is the empty text.
    CValue_Key(const std::string& text);
    CValue_Key(int index);

    std::string String() const; ///< "3" for the index 3.
    bool IsIndex() const;
    int Index() const; ///< 0 when this is no index.

    bool operator==(const CValue_Key& other) const;
    bool operator!=(const CValue_Key& other) const;
    bool operator<(const CValue_Key& other) const {
        if (m_bIndex != other.m_bIndex)
            return m_bIndex;
        return m_bIndex ? m_nIndex < other.m_nIndex : isBefore(m_sText, other.m_sText);
    }
    bool operator>(const CValue_Key& other) const;
    bool operator<=(const CValue_Key& other) const;
    bool operator>=(const CValue_Key& other) const;

private:
    // Every look-up in a container comes here several times, and mostly the first byte decides.
    static bool isBefore(const std::string& a, const std::string& b) {
        const auto first = static_cast<unsigned char>(a[0]); // of an empty text the NUL behind it
        const auto second = static_cast<unsigned char>(b[0]);
        return first != second ? first < second : a < b;
    }

    std::string m_sText; ///< Empty for an index.
    int m_nIndex;        ///< 0 for a text.
    bool m_bIndex;
};

} // namespace TEVU

#endif
