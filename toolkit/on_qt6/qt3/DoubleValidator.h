#ifndef RUQGUI_QT3_DOUBLEVALIDATOR_H
#define RUQGUI_QT3_DOUBLEVALIDATOR_H

#include <qt3/Export.h>

#include <qvalidator.h>

namespace qt3 {

/// QDoubleValidator that judges by doubleTextState(), so that the locale does not matter, and that
/// repairs nothing.
class RUQGUI_EXPORT DoubleValidator : public QDoubleValidator {
public:
    /// No limits: all doubles, 1000 decimals.
    explicit DoubleValidator(QObject* parent, const char* name = nullptr);
    DoubleValidator(double bottom, double top, int decimals, QObject* parent,
                    const char* name = nullptr);
    ~DoubleValidator() override;

    virtual void setRange(double bottom, double top, int decimals = 0);

    QValidator::State validate(QString& text, int& position) const override;
    void fixup(QString&) const override {}
};

} // namespace qt3

#endif
