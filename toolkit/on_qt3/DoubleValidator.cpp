#include <qt3/DoubleValidator.h>

#include <qt3/DoubleText.h>

namespace qt3 {

DoubleValidator::DoubleValidator(QObject* parent, const char* name)
    : QDoubleValidator(parent, name) {}

DoubleValidator::DoubleValidator(double bottom, double top, int decimals, QObject* parent,
                                 const char* name)
    : QDoubleValidator(bottom, top, decimals, parent, name) {}

DoubleValidator::~DoubleValidator() = default;

QValidator::State DoubleValidator::validate(QString& text, int&) const {
    return doubleTextState(text, bottom(), top(), decimals());
}

} // namespace qt3
