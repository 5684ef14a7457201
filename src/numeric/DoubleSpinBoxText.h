#ifndef RUQGUI_NUMERIC_DOUBLESPINBOXTEXT_H
#define RUQGUI_NUMERIC_DOUBLESPINBOXTEXT_H

#include <qstring.h>
#include <qvalidator.h>

namespace TEVU {

/// What stands around the number in a double spin box.
struct StAffixes {
    QString sPrefix;
    QString sSuffix;

    bool isEmpty() const;
};

/// A part of a text; absent when nStart is negative.
struct StTextPart {
    int nStart;
    int nLength;

    bool isPresent() const;
};

/// \a value with at most six significant digits, with an exponent when it is very large or small.
QString numberText(double value);

/// \a text without the affixes and without white space around it and around the number. The affixes
/// count without the white space at their ends, and each may be missing.
QString numberWithoutAffixes(const QString& text, const StAffixes& affixes);

/// The number that the whole \a text spells; 0 and false in \a ok if it is none.
double numberOrZero(const QString& text, bool* ok);

/// Whether \a text is \a special, but for white space at their ends. Never with an empty special.
bool isSpecialText(const QString& text, const QString& special);

/// Where the number stands in \a text: between the whole prefix and the whole suffix, or the suffix
/// without the white space at its ends. Absent if the affixes are not there, and in a text that is
/// shorter than both together.
StTextPart numberPart(const QString& text, const StAffixes& affixes);

/// How far \a text is \a special, but for white space at their ends: Acceptable for the whole,
/// Intermediate for the beginning of it, else Invalid.
QValidator::State specialTextState(const QString& text, const QString& special);

/// Stands for zero: a value of at most the double epsilon becomes 0, every other one stays.
double withoutRoundingDust(double value);

} // namespace TEVU

#endif
