#include <qt3/DoubleText.h>

#include <qt3/Text.h>

namespace qt3 {
namespace {

ushort code(const QString& text, int index) {
    return index < length(text) ? text.at(index).unicode() : ushort(0);
}

bool startsWithMinus(const QString& text) {
    return code(stripWhiteSpace(text), 0) == '-';
}

int skip(const QString& text, int index, char c) {
    return code(text, index) == static_cast<unsigned char>(c) ? index + 1 : index;
}

int skipBlanks(const QString& text, int index) {
    while (code(text, index) == ' ')
        ++index;
    return index;
}

int skipDigits(const QString& text, int index) {
    while (index < length(text) && text.at(index).isDigit())
        ++index;
    return index;
}

/// Blanks around at most a minus sign and a point.
bool isNothingYet(const QString& text) {
    int index = skip(text, skip(text, skipBlanks(text, 0), '-'), '.');
    index = skipBlanks(text, index);
    return index == length(text);
}

bool isExponentSign(const QString& text, int index) {
    return code(text, index) == 'e' || code(text, index) == 'E';
}

/// The index of the first letter e, or the length of the text.
int exponentSign(const QString& text) {
    int index = 0;
    while (index < length(text) && !isExponentSign(text, index))
        ++index;
    return index;
}

/// Whether digits go on to the end behind a letter e at \a index and a sign. Not at the end of the text.
bool isExponent(const QString& text, int index) {
    ++index;
    const int afterSign = code(text, index) == '-' ? index + 1 : skip(text, index, '+');
    return skipDigits(text, afterSign) == length(text);
}

int decimalsOf(const QString& text) {
    int point = 0;
    while (point < length(text) && code(text, point) != '.')
        ++point;
    return point == length(text) ? 0 : skipDigits(text, point + 1) - point - 1;
}

QValidator::State stateInLimits(const QString& text, double value, double bottom, double top,
                                int decimals) {
    const bool bHasExponent = exponentSign(text) < length(text);
    const bool bTooLong = !bHasExponent && decimalsOf(text) > decimals;
    // written so that a not-a-number passes
    const bool bOutside = value < bottom || value > top;
    return bTooLong || bOutside ? QValidator::Intermediate : QValidator::Acceptable;
}

} // namespace

QValidator::State doubleTextState(const QString& text, double bottom, double top, int decimals) {
    if (bottom >= 0 && startsWithMinus(text))
        return QValidator::Invalid;
    if (isNothingYet(text))
        return QValidator::Intermediate;
    bool bNumber = false;
    double value = toDouble(text, &bNumber);
    if (!bNumber) {
        const int exponent = exponentSign(text);
        if (!isExponent(text, exponent))
            return QValidator::Invalid;
        if (exponent == 0)
            return QValidator::Intermediate;
        value = toDouble(text.left(exponent), &bNumber);
    }
    return bNumber ? stateInLimits(text, value, bottom, top, decimals) : QValidator::Invalid;
}

} // namespace qt3
