#ifndef RUQGUI_QT3_TEXT_H
#define RUQGUI_QT3_TEXT_H

#include <qt3/Export.h>

#include <qstring.h>

#include <string>

namespace qt3 {

/// The Latin-1 bytes of \a text; characters above 255 become '?'. Empty for a null text.
RUQGUI_EXPORT std::string ascii(const QString& text);

/// One character for each byte (Latin-1), bytes of value 0 included.
RUQGUI_EXPORT QString fromAscii(const std::string& bytes);

/// True when every character code is below 128; so also for an empty text.
RUQGUI_EXPORT bool isAscii(const QString& text);

/// True when ascii() loses nothing: every character code is below 256.
RUQGUI_EXPORT bool isLatin1(const QString& text);

RUQGUI_EXPORT int length(const QString& text);

/// Without Unicode white space at both ends.
RUQGUI_EXPORT QString stripWhiteSpace(const QString& text);

/// Each character in lower case, one for one: the length stays.
RUQGUI_EXPORT QString lower(const QString& text);

/// Markup that shows \a text and its line breaks; what looks like markup in it shows as it stands.
RUQGUI_EXPORT QString plainMarkup(const QString& text);

/// The number that \a text spells with a decimal point, whatever the locale.
///
/// Leading white space is skipped. "inf" and "nan" are numbers in any case of letters; only "inf"
/// takes a sign. A number outside the range of double, on the large or the small side, is none.
/// What is no number gives 0 and false in \a ok. White space after the number gives false too, but
/// the number is returned.
RUQGUI_EXPORT double toDouble(const QString& text, bool* ok = nullptr);

/// \a value as the C library's printf writes it in the C locale: an exact tie goes to the even
/// digit. Two exceptions: no minus sign before a zero, and any not-a-number is "nan". \param format
/// 'e', 'E', 'f', 'g' or 'G' \param precision digits after the point ('e', 'f') or significant
/// digits ('g'); negative means 6, and more than 32767, which no field could hold, means 32767
RUQGUI_EXPORT QString number(double value, char format, int precision);

} // namespace qt3

#endif
