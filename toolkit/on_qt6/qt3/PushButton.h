#ifndef RUQGUI_QT3_PUSHBUTTON_H
#define RUQGUI_QT3_PUSHBUTTON_H

#include <qt3/Bridged.h>
#include <qt3/Painter.h>

#include <qpushbutton.h>

namespace qt3 {

/// QPushButton, with the Qt 3.3 members and with copying: besides what takeOver() lists, the text
/// and autoDefault and flatness.
class RUQGUI_EXPORT PushButton : public Bridged<QPushButton> {
public:
    explicit PushButton(QWidget* parent, const char* name = nullptr);
    PushButton(const QString& text, QWidget* parent, const char* name = nullptr);
    PushButton(const PushButton& other);
    PushButton& operator=(const PushButton& other);
    ~PushButton() override;

protected:
    /// Paints the whole button: frame, drawButtonLabel(), focus.
    virtual void drawButton(Painter* painter);

    /// Paints what stands on the button.
    virtual void drawButtonLabel(Painter* painter);

    void paintEvent(QPaintEvent* event) override;
};

} // namespace qt3

#endif
