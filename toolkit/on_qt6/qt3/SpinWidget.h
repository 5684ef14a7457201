#ifndef RUQGUI_QT3_SPINWIDGET_H
#define RUQGUI_QT3_SPINWIDGET_H

#include <qt3/Pointer.h>
#include <qt3/Widget.h>

#include <qbasictimer.h>
#include <qstyle.h>

class QStyleOptionSpinBox;

namespace qt3 {

/// Qt 3.3's QSpinWidget, which Qt 6 has no more: an up and a down button in a frame, with room for
/// an editor. The style paints it as a spin box.
/// \code
/// qt3::SpinWidget* spin = new qt3::SpinWidget(this, "SpinWidget");
/// spin->setEditWidget(new qt3::LineEdit(this));
/// connect(spin, SIGNAL(stepUpPressed()), this, SLOT(stepUp()));
/// \endcode
///
/// It holds no number: it says that a step is wanted. A left press on an enabled button steps at
/// once, after 300 ms again and then about every 100 ms. The repeat pauses while the mouse is off
/// the button and goes on 500 ms after its return. It ends with the release, with a press of
/// another mouse button, when the button is disabled and when the window is no longer the active
/// one. A wheel steps once a notch.
///
/// The two enabled flags stop the mouse only, not the slots and the wheel.
class RUQGUI_EXPORT SpinWidget : public Widget {
    Q_OBJECT

public:
    enum ButtonSymbols { UpDownArrows, PlusMinus };

    explicit SpinWidget(QWidget* parent = nullptr, const char* name = nullptr);
    SpinWidget(const SpinWidget&) = delete;
    SpinWidget& operator=(const SpinWidget&) = delete;
    ~SpinWidget() override;

    /// Makes \a widget a child and the focus proxy, and gives it its place. Null: no editor.
    void setEditWidget(QWidget* widget);
    QWidget* editWidget() const;

    QRect upRect() const;
    QRect downRect() const;

    /// A change while the widget is disabled clears both flags.
    void setUpEnabled(bool on);
    void setDownEnabled(bool on);
    bool isUpEnabled() const;
    bool isDownEnabled() const;

    /// Stores only; the next painting shows them.
    virtual void setButtonSymbols(ButtonSymbols symbols);
    ButtonSymbols buttonSymbols() const;

    /// Asks the style where the buttons and the editor are. Resizing and a new style do so too.
    void arrange();

signals:
    void stepUpPressed();
    void stepDownPressed();

public slots:
    void stepUp();
    void stepDown();

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void styleChange(QStyle& style) override;
    void timerEvent(QTimerEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    friend QSize sizeAround(const SpinWidget* widget, const QSize& contents);

    enum Button { None, Up, Down };

    Button buttonAt(const QPoint& pos) const;
    QRect rectOf(Button button) const;

    void setButtonEnabled(bool* flag, bool on);
    void setHovered(Button button);
    void letGo();
    void pauseRepeat();
    void stepAndRepeat(int delay);

    QStyleOptionSpinBox styleOption() const;

    Pointer<QWidget> m_pEditor;
    QRect m_hUpRect;
    QRect m_hDownRect;
    ButtonSymbols m_eSymbols = UpDownArrows;
    Button m_eHeld = None;    ///< The button that the mouse went down on, until the release.
    Button m_eHovered = None; ///< The button under the mouse, for the style only.
    bool m_bOnHeld = false;   ///< The mouse is on the held button.
    bool m_bUpEnabled = true;
    bool m_bDownEnabled = true;
    QBasicTimer m_repeat;
};

/// The size that \a widget needs around an editor whose contents take \a contents.
RUQGUI_EXPORT QSize sizeAround(const SpinWidget* widget, const QSize& contents);

} // namespace qt3

#endif
