#ifndef RUQGUI_TESTS_DIFFERENTIAL_WIDGETSUBJECT_H
#define RUQGUI_TESTS_DIFFERENTIAL_WIDGETSUBJECT_H

#include "Subject.h"

#include <Events.h>
#include <memory>
#include <qlineedit.h>
#include <qpoint.h>
#include <qsize.h>
#include <qt3/SignalTap.h>

namespace differential {

/// A widget, with what a user and a program do to any widget.
class WidgetSubject : public Subject {
public:
    using Subject::Subject;

    static std::string fieldState(const QLineEdit* field);

protected:
    /// Enabling, showing, resizing, the place around it, the focus, copies of texts.
    void addWidgetActions();
    void addMouseActions();
    /// Whole gestures of the left button, for the toolkit's own controls: what else happens while one
    /// is held is their own affair.
    void addGestureActions();
    /// Keys go to the widget that has the focus, as a user's do, and nowhere if it is outside.
    void addKeyActions(const std::vector<std::string>& keys);
    void addWheelActions();
    /// Single notches without modifiers, for the toolkit's own controls.
    void addNotchActions();
    void addTypingActions();

    /// Deaths of all kinds and wheels beyond any; nothing unless rubbish is wanted.
    void addRubbishActions();

    /// Names a widget, and makes it one that wheel and focus, and by default the mouse, can go to.
    void target(QWidget* widget, const std::string& label, bool takesMouse = true);
    void forgetTargets();

    /// Presses and releases a button of the toolkit's spin box, which must be 70 by 24.
    static void clickSpinBox(QWidget* spinBox, bool up);

    /// The main widget; null after its death.
    virtual QWidget* widget() = 0;
    virtual bool isAllGone() { return !widget(); }
    void revive() override;

    /// Not through a plain pointer where the class has an override.
    virtual void setEnabled(bool enabled) { widget()->setEnabled(enabled); }

    /// Whether the widget that has the focus is tried with that key.
    virtual bool takesKey(const std::string& /*name*/) { return true; }
    /// Whether it is tried with that key while Shift is held.
    virtual bool takesShift(const std::string& /*name*/) { return true; }

    /// Between these sizes, where they are even, the styles and layouts of both toolkits agree.
    virtual QSize leastSize() { return QSize(120, 24); }
    virtual QSize greatestSize() { return QSize(300, 40); }

    /// Geometry, enabled, visible, and who has the focus.
    std::string widgetState();
    static std::string rectText(const QRect& rect);

    /// Two arguments are thousandths of the target's width and height.
    static QPoint pointOf(const Operation& operation, std::size_t index, const QWidget* target);

private:
    void addWheelAction(const std::vector<double>& deltas, const std::vector<double>& modifiers);
    QSize sizeOf(const Operation& operation);
    void typeKey(const std::string& name, support::Modifier modifier);

    using Targets = std::vector<qt3::Pointer<QWidget>>;
    static QWidget* targetOf(const Operation& operation, const Targets& targets);

    void addDeaths();

    std::unique_ptr<qt3::SignalTap> m_pDeathTap; ///< Until the next signal.
    Targets m_vTargets;
    Targets m_vMouseTargets;
};

/// The keys that all widgets of the library are tried with. \sa Exceptions.h
std::vector<std::string> commonKeys();

/// "3", "true": parts of a state.
std::string shown(bool flag);
std::string shown(int number);
std::string shown(double number);
std::string shown(const QString& text);

} // namespace differential

#endif
