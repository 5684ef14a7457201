#include "DoubleSpinBoxText.h"

#include <qt3/Text.h>

#include <cmath>
#include <limits>

namespace TEVU {

namespace {

const char c_cFormat = 'g';
const int c_nPrecision = 6;

QString withoutStart(const QString& text, const QString& start) {
    return !start.isEmpty() && text.startsWith(start) ? text.mid(qt3::length(start)) : text;
}

QString withoutEnd(const QString& text, const QString& end) {
    return !end.isEmpty() && text.endsWith(end) ? text.left(qt3::length(text) - qt3::length(end))
                                                : text;
}

} // namespace

bool StAffixes::isEmpty() const {
    return sPrefix.isEmpty() && sSuffix.isEmpty();
}

bool StTextPart::isPresent() const {
    return nStart >= 0;
}

QString numberText(double value) {
    return qt3::number(value, c_cFormat, c_nPrecision);
}

QString numberWithoutAffixes(const QString& text, const StAffixes& affixes) {
    const QString behindPrefix =
        withoutStart(qt3::stripWhiteSpace(text), qt3::stripWhiteSpace(affixes.sPrefix));
    return qt3::stripWhiteSpace(withoutEnd(behindPrefix, qt3::stripWhiteSpace(affixes.sSuffix)));
}

double numberOrZero(const QString& text, bool* ok) {
    const double value = qt3::toDouble(text, ok);
    return *ok ? value : 0.0; // the conversion has a number even for one with a blank behind it
}

bool isSpecialText(const QString& text, const QString& special) {
    return !special.isEmpty() && qt3::stripWhiteSpace(text) == qt3::stripWhiteSpace(special);
}

StTextPart numberPart(const QString& text, const StAffixes& affixes) {
    const QString& suffix = affixes.sSuffix;
    const QString bareSuffix = qt3::stripWhiteSpace(suffix);
    const int start = qt3::length(affixes.sPrefix);
    const bool bHasSuffix = text.endsWith(suffix);
    if (qt3::length(text) < start + qt3::length(suffix) || !text.startsWith(affixes.sPrefix) ||
        !(bHasSuffix || text.endsWith(bareSuffix)))
        return {-1, 0};
    const int behind = qt3::length(bHasSuffix ? suffix : bareSuffix);
    return {start, qt3::length(text) - start - behind};
}

QValidator::State specialTextState(const QString& text, const QString& special) {
    const QString wanted = qt3::stripWhiteSpace(special);
    const QString candidate = qt3::stripWhiteSpace(text);
    if (!wanted.startsWith(candidate))
        return QValidator::Invalid;
    return qt3::length(wanted) == qt3::length(candidate) ? QValidator::Acceptable
                                                         : QValidator::Intermediate;
}

double withoutRoundingDust(double value) {
    return std::abs(value) <= std::numeric_limits<double>::epsilon() ? 0.0 : value;
}

} // namespace TEVU
