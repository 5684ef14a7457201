#ifndef RUQLIB2CORE_WIDETEXT_H
#define RUQLIB2CORE_WIDETEXT_H

#include <string>

namespace TEVU {

/// Between UTF-8 and the texts that Windows' own functions take. What is no text in the one becomes
/// replacement characters in the other.
std::wstring toWide(const std::string& utf8);
std::string toUtf8(const std::wstring& wide);

} // namespace TEVU

#endif
