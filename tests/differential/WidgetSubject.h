#ifndef RUQGUI_TESTS_DIFFERENTIAL_WIDGETSUBJECT_H
#define RUQGUI_TESTS_DIFFERENTIAL_WIDGETSUBJECT_H

#include "Subject.h"

#include <Events.h>
#include <qlineedit.h>
#include <qpoint.h>

namespace differential {

/// A widget, with what a user and a program do to any widget.
class WidgetSubject : public Subject {
public:
    using Subject::Subject;

protected:
    /// Enabling, showing, resizing, the place around it, the focus, copies of texts.
    void addWidgetActions();
    void addMouseActions();
    /// Keys go to the widget that has the focus, as a user's do, and nowhere if it is outside.
    void addKeyActions(const std::vector<std::string>& keys);
    void addWheelActions();
    void addTypingActions();

    /// Names a widget, and makes it one that events can go to.
    void target(QWidget* widget, const std::string& label);
    void forgetTargets() { m_vTargets.clear(); }

    /// The main widget; null after its death.
    virtual QWidget* widget() = 0;

    /// Not through a plain pointer where the class has an override.
    virtual void setEnabled(bool enabled) { widget()->setEnabled(enabled); }

    /// Geometry, enabled, visible, and who has the focus.
    std::string widgetState();
    static std::string fieldState(const QLineEdit* field);
    static std::string rectText(const QRect& rect);

    QWidget* targetOf(const Operation& operation, std::size_t index = 0);
    /// Arguments 1 and 2 are thousandths of the target's width and height.
    QPoint pointOf(const Operation& operation, const QWidget* target) const;

private:
    void typeKey(const std::string& name, support::Modifier modifier);

    std::vector<qt3::Pointer<QWidget>> m_vTargets;
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
