#ifndef RUQGUI_QT3_BRIDGED_H
#define RUQGUI_QT3_BRIDGED_H

#include <qt3/Export.h>
#include <qt3/Global.h>
#include <qt3/WidgetFunctions.h>

#include <qcoreevent.h>
#include <qstyle.h>
#include <qwidget.h>

#include <utility>

namespace qt3 {

/// Runs the slot "languageChange()" of \a widget, of whatever access, if its class declares one.
RUQGUI_EXPORT void invokeLanguageChange(QWidget* widget);

RUQGUI_EXPORT void setRoleColor(QWidget* widget, QPalette::ColorRole role, const QColor& color);

/// A Qt 6 widget class with the members that every Qt 3.3 widget has.
///
/// It has no meta-object of its own: to the toolkit the widget is a \a Base.
template <class Base>
class Bridged : public Base {
public:
    /// The object name in Latin-1, "unnamed" when there is none. Valid until the next call.
    const char* name() const { return name("unnamed"); }

    const char* name(const char* defaultName) const {
        m_hName = this->objectName().toLatin1();
        return m_hName.isEmpty() ? defaultName : m_hName.constData();
    }

    void setName(const char* newName) { this->setObjectName(QString::fromLatin1(newName)); }

    QObject* qObject() { return this; }

    /// The widget takes over the focus policy of \a proxy too.
    void setFocusProxy(QWidget* proxy) {
        Base::setFocusProxy(proxy);
        if (proxy)
            this->setFocusPolicy(proxy->focusPolicy());
    }

    QWidget* topLevelWidget() const { return this->window(); }

    QString caption() const { return this->windowTitle(); }
    virtual void setCaption(const QString& text) { this->setWindowTitle(text); }

    /// Reached on every way that enables or disables the widget, also through its parent or through
    /// a plain QWidget pointer. An override calls it first and adds what has to follow.
    virtual void setEnabled(bool enabled) {
        if (m_bFollowing)
            return; // the toolkit has done it; the call is there for the overrides
        const bool bOuter = std::exchange(m_bSetting, true);
        Base::setEnabled(enabled);
        m_bSetting = bOuter;
    }

    const QColor& paletteBackgroundColor() const { return this->palette().color(visualRole()); }
    const QColor& paletteForegroundColor() const {
        return this->palette().color(this->foregroundRole());
    }

    /// Sets one role in all states: Button for a button, Base for a field, Window for a plain
    /// widget, or the visual role given to setBackgroundMode().
    virtual void setPaletteBackgroundColor(const QColor& color) {
        setRoleColor(this, visualRole(), color);
    }

    /// Sets one role in all states: ButtonText for a button, Text or WindowText for others.
    void setPaletteForegroundColor(const QColor& color) {
        setRoleColor(this, this->foregroundRole(), color);
    }

    /// \param mode the role that fills the widget's own background
    /// \param visual the role that setPaletteBackgroundColor() changes
    void setBackgroundMode(BackgroundMode mode, BackgroundMode visual) {
        this->setBackgroundRole(mode);
        m_eVisualRole = visual;
    }

    /// The colours of the present state; a hidden widget counts as active.
    ColorGroup colorGroup() const {
        const QPalette::ColorGroup state = this->palette().currentColorGroup();
        return ColorGroup(this->palette(), state);
    }

protected:
    /// \param objectName may be null
    /// \param arguments what the constructor of \a Base takes
    template <class... Arguments>
    explicit Bridged(const char* objectName, Arguments&&... arguments)
        : Base(std::forward<Arguments>(arguments)...) {
        setName(objectName);
    }

    Bridged(const Bridged& other) = delete;
    Bridged& operator=(const Bridged& other) = delete;

    virtual void enabledChange(bool /*oldEnabled*/) {}

    /// The style is another one now. \a style is the one in force: Qt 6 does not tell the old one.
    virtual void styleChange(QStyle& /*style*/) {}

    void changeEvent(QEvent* event) override {
        Base::changeEvent(event);
        if (event->type() == QEvent::EnabledChange)
            followEnabled();
        else if (event->type() == QEvent::StyleChange)
            styleChange(*this->style());
        else if (event->type() == QEvent::LanguageChange)
            invokeLanguageChange(this);
    }

private:
    QPalette::ColorRole visualRole() const {
        return m_eVisualRole == QPalette::NoRole ? this->backgroundRole() : m_eVisualRole;
    }

    void followEnabled() {
        enabledChange(!this->isEnabled());
        if (m_bSetting)
            return;
        const bool bOuter = std::exchange(m_bFollowing, true);
        setEnabled(this->isEnabled());
        m_bFollowing = bOuter;
    }

    mutable QByteArray m_hName; ///< Keeps what name() points to.
    QPalette::ColorRole m_eVisualRole = QPalette::NoRole;
    bool m_bSetting = false;   ///< Inside setEnabled().
    bool m_bFollowing = false; ///< Inside the change event, calling setEnabled() for its overrides.
};

} // namespace qt3

#endif
