#include <qt3/DoubleValidator.h>

#include <qt3/DoubleText.h>

namespace qt3 {

DoubleValidator::DoubleValidator(QObject* parent, const char* name) : QDoubleValidator(parent) {
    setDecimals(1000);
    setObjectName(QString::fromLatin1(name));
}

DoubleValidator::DoubleValidator(double bottom, double top, int decimals, QObject* parent,
                                 const char* name)
    : QDoubleValidator(bottom, top, decimals, parent) {
    setObjectName(QString::fromLatin1(name));
}

DoubleValidator::~DoubleValidator() = default;

void DoubleValidator::setRange(double bottom, double top, int decimals) {
    QDoubleValidator::setRange(bottom, top, decimals);
}

QValidator::State DoubleValidator::validate(QString& text, int&) const {
    return doubleTextState(text, bottom(), top(), decimals());
}

} // namespace qt3
