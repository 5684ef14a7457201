#ifndef RUQLIB2IMAGE_HEADERTEXT_H
#define RUQLIB2IMAGE_HEADERTEXT_H

#include <ruqlib2core/CValueMap.h>

#include <optional>
#include <string>

namespace TEVU {

/// A header as text, exactly: the form in which it travels inside a file.
///
/// The text is made of letters, digits and "_.:/-%=,()" only, so that it needs no escaping in XML.
/// A map is m(key=value,…), a vector v(index=value,…), a bool b0 or b1, a long l and its decimal
/// form, a double d and the sixteen hexadecimal digits of its bits, a string s and its bytes, where
/// %FF stands for a byte that is none of A-Z a-z 0-9 _ . : / -. Pointers mean nothing in another
/// process and are left out, as are classes that are no part of ruqlib2core.
///
/// Maps nested deeper than c_nMaxHeaderDepth are a CException.
std::string headerText(const CValueMap& header);

/// The header that headerText() made \a text from; nothing when it did not.
std::optional<CValueMap> parseHeaderText(const std::string& text);

/// Keeps the recursion over what a file claims within the stack.
inline constexpr unsigned c_nMaxHeaderDepth = 100;

} // namespace TEVU

#endif
