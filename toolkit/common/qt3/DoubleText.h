#ifndef RUQGUI_QT3_DOUBLETEXT_H
#define RUQGUI_QT3_DOUBLETEXT_H

#include <qt3/Export.h>

#include <qvalidator.h>

namespace qt3 {

/// How far \a text is a number of [\a bottom, \a top] with at most \a decimals digits after the
/// point, whatever the locale.
///
/// Acceptable: toDouble() reads it and the limits hold. A missing or unfinished exponent after a
/// number is let through, and then the number before it counts. Intermediate: nothing but blanks, a
/// minus sign and a point; an exponent without a number before it; a number outside the limits; too
/// many decimals, which are counted only without an exponent. Invalid: anything else, and a leading
/// minus sign when \a bottom is not negative.
RUQGUI_EXPORT QValidator::State doubleTextState(const QString& text, double bottom, double top,
                                                int decimals);

} // namespace qt3

#endif
