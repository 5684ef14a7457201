#ifndef RUQLIB2CORE_CSTRING_H
#define RUQLIB2CORE_CSTRING_H

#include <ruqlib2core/Export.h>

#include <cstddef>
#include <string>

namespace TEVU {

/// A std::string that fills numbered markers:
/// \code
/// CString("ChangeSpacing(%1->%2)").Arg("1 mm").Arg("2 mm") // "ChangeSpacing(1 mm->2 mm)"
/// \endcode
///
/// A marker is '%' and a number from 1 to 99 without leading zero; two digits are taken where there
/// are two, so "%12" is marker 12 and "%123" is marker 12 before a 3. All else is plain text: "%0",
/// "%01", a '%' before anything but a digit. There is no escape: "%%1" is a '%' before marker 1.
class RUQLIB2CORE_EXPORT CString : public std::string {
public:
    /// A length that means "up to the end".
    static const std::size_t NPOS;

    CString();
    CString(const char* text); ///< Null is the empty string.
    CString(const std::string& text);

    /// This text with every occurrence of the lowest-numbered marker replaced by \a value;
    /// unchanged when there is no marker.
    ///
    /// What one call inserts it does not look at again, but to the next call it is text as any
    /// other: CString("%1->%2").Arg("%2").Arg("x") is "x->x".
    CString Arg(const std::string& value) const;
};

} // namespace TEVU

#endif
