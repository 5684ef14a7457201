#include "WidgetSubject.h"

#include <cctype>
#include <map>

namespace differential {

namespace {

using support::Button;
using support::Modifier;

struct Key {
    int code;
    std::string text; ///< What it types without a modifier.
};

Key keyOf(const std::string& name) {
    static const std::map<std::string, Key> keys = {{"Up", {Qt::Key_Up, ""}},
                                                    {"Down", {Qt::Key_Down, ""}},
                                                    {"Left", {Qt::Key_Left, ""}},
                                                    {"Right", {Qt::Key_Right, ""}},
                                                    {"Home", {Qt::Key_Home, ""}},
                                                    {"End", {Qt::Key_End, ""}},
                                                    {"Page Up", {Qt::Key_PageUp, ""}},
                                                    {"Page Down", {Qt::Key_PageDown, ""}},
                                                    {"Return", {Qt::Key_Return, "\r"}},
                                                    {"Enter", {Qt::Key_Enter, "\r"}},
                                                    {"Escape", {Qt::Key_Escape, "\x1b"}},
                                                    {"Tab", {Qt::Key_Tab, "\t"}},
                                                    {"Backtab", {Qt::Key_Backtab, ""}},
                                                    {"Backspace", {Qt::Key_Backspace, "\b"}},
                                                    {"Delete", {Qt::Key_Delete, "\x7f"}},
                                                    {"Insert", {Qt::Key_Insert, ""}},
                                                    {"F1", {Qt::Key_F1, ""}},
                                                    {"Shift", {Qt::Key_Shift, ""}}};
    const auto found = keys.find(name);
    if (found != keys.end())
        return found->second;
    const unsigned char typed = name.empty() ? ' ' : static_cast<unsigned char>(name[0]);
    return {typed < 128 ? std::toupper(typed) : typed, std::string(1, static_cast<char>(typed))};
}

// Control turns a letter into a control character.
std::string typedText(const Key& key, Modifier modifier) {
    if (modifier == Modifier::Control && key.text.size() == 1 && std::isalpha(key.text[0]))
        return std::string(1, static_cast<char>(std::toupper(key.text[0]) - '@'));
    return key.text;
}

Modifier modifierOf(int number) {
    const Modifier modifiers[] = {Modifier::None, Modifier::Shift, Modifier::Control,
                                  Modifier::Alt};
    return modifiers[number & 3];
}

Button buttonOf(int number) {
    const Button buttons[] = {Button::None, Button::Left, Button::Middle, Button::Right};
    return buttons[number & 3];
}

const int c_nLeft = 1;

bool canHaveFocus(const QWidget* widget) {
    return widget->isVisible() && widget->isEnabled() &&
           static_cast<int>(widget->focusPolicy()) != 0;
}

void setShown(QWidget* widget, bool shown) {
    if (shown)
        widget->show();
    else if (widget->isVisible()) // hiding what is hidden tells Qt 6's widgets once more
        widget->hide();
}

} // namespace

std::string shown(bool flag) {
    return flag ? "true" : "false";
}

std::string shown(int number) {
    return std::to_string(number);
}

std::string shown(double number) {
    return exactText(number);
}

std::string shown(const QString& text) {
    return quoted(support::text(text));
}

void WidgetSubject::target(QWidget* widget, const std::string& label, bool takesMouse) {
    m_vTargets.emplace_back(widget);
    if (takesMouse)
        m_vMouseTargets.emplace_back(widget);
    m_stage.name(widget, label);
}

void WidgetSubject::forgetTargets() {
    m_vTargets.clear();
    m_vMouseTargets.clear();
}

QWidget* WidgetSubject::targetOf(const Operation& operation, const Targets& targets) {
    const auto which = static_cast<unsigned>(operation.integer(0));
    return targets.empty() ? nullptr : static_cast<QWidget*>(targets[which % targets.size()]);
}

// On Qt 3.3 the buttons belong to a child.
void WidgetSubject::clickSpinBox(QWidget* spinBox, bool up) {
    auto* const controls = support::child<QWidget>(spinBox, "controls");
    support::mouseClick(controls ? controls : spinBox, QPoint(60, up ? 6 : 18));
}

void WidgetSubject::revive() {
    if (!m_stage.place())
        m_stage.newPlace();
    if (!isAllGone())
        return;
    unmake();
    m_stage.place()->show();
    make(Operation("make"));
}

void WidgetSubject::addRubbishActions() {
    if (!m_taste.isRubbish())
        return;
    addDeaths();
    // Further than a wheel turns, and no further: a spin box makes each of the steps.
    action("wheelFar", 1, {Taste::among({12119, -12119, 12000, -12000})},
           [this](const Operation& operation) {
               if (widget())
                   support::wheel(widget(), operation.integer(0));
           });
}

// At once, by the parent, from the event loop, and on behalf of a slot.
void WidgetSubject::addDeaths() {
    action("deletePlace", 1, {}, [this](const Operation&) {
        m_stage.withFocusRescued([this] { delete m_stage.place(); });
    });
    action("deleteLater", 1, {Taste::flag(70)}, [this](const Operation& operation) {
        QWidget* const condemned = operation.flag(0) ? widget() : m_stage.place();
        if (condemned)
            condemned->deleteLater();
    });
    action("deleteInSlot", 1, {Taste::flag(70)}, [this](const Operation& operation) {
        const qt3::Pointer<QWidget> condemned = operation.flag(0) ? widget() : m_stage.place();
        m_pDeathTap = std::make_unique<qt3::SignalTap>();
        if (widget())
            m_pDeathTap->listenToAll(widget(), [condemned](const std::string&, const std::string&) {
                if (condemned)
                    condemned->deleteLater();
            });
    });
}

QPoint WidgetSubject::pointOf(const Operation& operation, std::size_t index,
                              const QWidget* target) {
    return QPoint(target->width() * operation.integer(index) / 1000,
                  target->height() * operation.integer(index + 1) / 1000);
}

void WidgetSubject::addWidgetActions() {
    const Source which = Taste::index(0, 5);
    const auto show = [this](QWidget* chosen, bool on) {
        if (chosen)
            m_stage.withFocusRescued([=] { setShown(chosen, on); });
    };
    action("enable", 2, {Taste::flag(70)}, [=](const Operation& operation) {
        if (widget())
            m_stage.withFocusRescued([&] { setEnabled(operation.flag(0)); });
    });
    action("enablePlace", 1, {Taste::flag(80)}, [=](const Operation& operation) {
        if (QWidget* const place = m_stage.place())
            m_stage.withFocusRescued([&] { place->setEnabled(operation.flag(0)); });
    });
    action("show", 1, {Taste::flag(75)},
           [=](const Operation& operation) { show(widget(), operation.flag(0)); });
    action("showPlace", 1, {Taste::flag(85)},
           [=](const Operation& operation) { show(m_stage.place(), operation.flag(0)); });
    action("resize", 1, {Taste::index(0, 1000), Taste::index(0, 1000)},
           [this](const Operation& operation) {
               if (widget() && (widget()->isVisible() || m_taste.isRubbish()))
                   widget()->resize(sizeOf(operation));
           });
    action("focus", 4, {which}, [this](const Operation& operation) {
        QWidget* const chosen = targetOf(operation, m_vTargets);
        if (chosen && canHaveFocus(chosen))
            chosen->setFocus();
    });
    action("focusBefore", 1, {}, [this](const Operation&) {
        if (m_stage.before())
            m_stage.before()->setFocus();
    });
}

QSize WidgetSubject::sizeOf(const Operation& operation) {
    const QSize least = m_taste.isRubbish() ? QSize(0, 0) : leastSize();
    const QSize more = greatestSize() - least;
    const auto part = [](int all, int thousandths) { return all * thousandths / 2000 * 2; };
    return QSize(least.width() + part(more.width(), operation.integer(0)),
                 least.height() + part(more.height(), operation.integer(1)));
}

void WidgetSubject::addMouseActions() {
    const Source which = Taste::index(0, 5);
    const Source along = Taste::index(-200, 1200);
    const Source button = Taste::among({c_nLeft, c_nLeft, c_nLeft, c_nLeft, 2, 3});
    const Source modifier = Taste::among({0, 0, 0, 0, 1, 2, 3});
    const std::vector<Source> all = {which, along, along, button, modifier};
    const auto mouse = [this](auto send) {
        return [this, send](const Operation& operation) {
            if (QWidget* const chosen = targetOf(operation, m_vMouseTargets))
                send(chosen, pointOf(operation, 1, chosen), buttonOf(operation.integer(3)),
                     modifierOf(operation.integer(4)));
        };
    };
    action("press", 4, all, mouse(support::mousePress));
    action("move", 8, all, mouse(support::mouseMove));
    action("release", 4, all, mouse(support::mouseRelease));
    action("doubleClick", 1, all, mouse(support::mouseDoubleClick));
}

void WidgetSubject::addGestureActions() {
    const Source along = Taste::index(-200, 1200);
    action("gesture", 6, {Taste::index(0, 5), along, along, along, along, along, along},
           [this](const Operation& operation) {
               QWidget* const chosen = targetOf(operation, m_vMouseTargets);
               if (!chosen)
                   return;
               support::mousePress(chosen, pointOf(operation, 1, chosen));
               support::mouseMove(chosen, pointOf(operation, 3, chosen));
               support::mouseMove(chosen, pointOf(operation, 5, chosen));
               support::mouseRelease(chosen, pointOf(operation, 5, chosen));
           });
}

void WidgetSubject::addKeyActions(const std::vector<std::string>& keys) {
    action("key", 10, {Taste::amongTexts(keys), Taste::among({0, 0, 0, 0, 0, 0, 1})},
           [this](const Operation& operation) {
               typeKey(operation.text(0), modifierOf(operation.integer(1)));
           });
}

void WidgetSubject::typeKey(const std::string& name, Modifier modifier) {
    if (name == "Delete" || name == "Insert" || (modifier == Modifier::Shift && !takesShift(name)))
        modifier = Modifier::None;
    QWidget* const focused = m_stage.focusWidget();
    const std::string who = m_stage.focus();
    if (!focused || who == "before" || who == "behind" || !takesKey(name))
        return;
    const Key key = keyOf(name);
    support::sendKey(focused, key.code, modifier, typedText(key, modifier).c_str());
}

// With all selected first: where the cursor stands in a toolkit's own control is that one's choice.
void WidgetSubject::addTypingActions() {
    const std::vector<std::string> typed = {"5",    "42", "7",   "-3", "100", "250", "0",    "99",
                                            "12\b", "a",  "1a2", "",   "007", "1.5", "5\b9", " 6"};
    const Source end = Taste::amongTexts({"", "", "", "Return", "Enter", "Tab", "Up", "Down"});
    action("type", 6, {Taste::amongTexts(typed), end}, [this](const Operation& operation) {
        QWidget* const focused = m_stage.focusWidget();
        auto* field = dynamic_cast<QLineEdit*>(focused);
        field = field || !focused ? field : support::child<QLineEdit>(focused);
        if (!field || m_stage.focus() == "before" || m_stage.focus() == "behind")
            return;
        field->selectAll();
        for (const char c : operation.text(0))
            typeKey(c == '\b' ? "Backspace" : std::string(1, c), Modifier::None);
        if (!operation.text(1).empty())
            typeKey(operation.text(1), Modifier::None);
    });
}

void WidgetSubject::addWheelActions() {
    addWheelAction({120, -120, 240, -240, 60, -60, 119, -119, 30, 0, 121, 360, -600},
                   {0, 0, 0, 1, 2});
}

void WidgetSubject::addNotchActions() {
    addWheelAction({120, -120}, {0});
}

void WidgetSubject::addWheelAction(const std::vector<double>& deltas,
                                   const std::vector<double>& modifiers) {
    action("wheel", 3, {Taste::index(0, 5), Taste::among(deltas), Taste::among(modifiers)},
           [this](const Operation& operation) {
               if (QWidget* const chosen = targetOf(operation, m_vTargets))
                   support::wheel(chosen, operation.integer(1), modifierOf(operation.integer(2)));
           });
}

std::string WidgetSubject::rectText(const QRect& rect) {
    return std::to_string(rect.x()) + ',' + std::to_string(rect.y()) + ' ' +
           std::to_string(rect.width()) + 'x' + std::to_string(rect.height());
}

std::string WidgetSubject::widgetState() {
    std::string state = "focus " + m_stage.focus();
    if (!widget())
        return state + ", gone";
    state += ", " + rectText(widget()->geometry());
    state += widget()->isEnabled() ? "" : ", disabled";
    return state + (widget()->isVisible() ? "" : ", hidden");
}

std::string WidgetSubject::fieldState(const QLineEdit* field) {
    if (!field)
        return "no field";
    std::string state = shown(field->text()) + '@' + shown(field->cursorPosition());
    if (field->hasSelectedText())
        state += " selected " + shown(field->selectionStart()) + ' ' + shown(field->selectedText());
    return state;
}

std::vector<std::string> commonKeys() {
    return {"Up",        "Up",        "Down",      "Down",   "Left",   "Right", "Home",   "End",
            "Tab",       "Tab",       "Backtab",   "Return", "Return", "Enter", "Escape", "Page Up",
            "Page Down", "Backspace", "Backspace", "Delete", "Insert", "F1",    "Shift"};
}

} // namespace differential
