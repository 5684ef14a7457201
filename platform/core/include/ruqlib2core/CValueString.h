#ifndef RUQLIB2CORE_CVALUESTRING_H
#define RUQLIB2CORE_CVALUESTRING_H

#include <ruqlib2core/CString.h>
#include <ruqlib2core/CValue.h>

#include <cstddef>
#include <string>

namespace TEVU {

/// A string of bytes in any encoding; NUL is a byte like the others.
class RUQLIB2CORE_EXPORT CValueString : public CValue {
public:
    CValueString(const std::string& value);

    /// The first \a length bytes of \a text, or with CString::NPOS all up to the terminating NUL.
    /// Null is the empty string, whatever the length.
    CValueString(const char* text, std::size_t length = CString::NPOS);

    const std::string& String() const;
    EnGenericType GenericType() const override; ///< eString
    CValueString* Clone() const override;

private:
    std::string m_sValue;
};

} // namespace TEVU

#endif
