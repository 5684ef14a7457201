#ifndef RUQGUI_QT3_DOUBLEVALIDATOR_H
#define RUQGUI_QT3_DOUBLEVALIDATOR_H

#include <qt3/Export.h>

#include <qvalidator.h>

namespace qt3 {

/// QDoubleValidator that judges by doubleTextState(), so that the locale does not matter.
class RUQGUI_EXPORT DoubleValidator : public QDoubleValidator {
public:
    /// No limits: all doubles, 1000 decimals.
    explicit DoubleValidator(QObject* parent, const char* name = 0);
    DoubleValidator(double bottom, double top, int decimals, QObject* parent, const char* name = 0);
    ~DoubleValidator();

    QValidator::State validate(QString& text, int& position) const;
};

} // namespace qt3

#endif
