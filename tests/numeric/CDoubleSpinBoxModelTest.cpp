#include "CDoubleSpinBox.h"

#include "Events.h"
#include "NumberModel.h"
#include "Recorder.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <iterator>
#include <ostream>
#include <qapplication.h>
#include <qevent.h>
#include <qlineedit.h>
#include <qt3/DoubleValidator.h>
#include <qt3/SpinWidget.h>
#include <qvalidator.h>
#include <qwidget.h>
#include <set>

using model::same;
using support::Lines;

namespace {

// All that can be seen of a box without touching it.
struct State {
    double value;
    double previous;
    double minimum;
    double maximum;
    double lineStep;
    double pageStep;
    std::string text;
    std::string cleanText;
    std::string prefix;
    std::string suffix;
    std::string special;
    std::string selected;
    int cursor;
    bool wrapping;
    bool canStepUp;
    bool canStepDown;
};

bool operator==(const State& a, const State& b) {
    return same(a.value, b.value) && same(a.previous, b.previous) && same(a.minimum, b.minimum) &&
           same(a.maximum, b.maximum) && same(a.lineStep, b.lineStep) &&
           same(a.pageStep, b.pageStep) && a.text == b.text && a.cleanText == b.cleanText &&
           a.prefix == b.prefix && a.suffix == b.suffix && a.special == b.special &&
           a.selected == b.selected && a.cursor == b.cursor && a.wrapping == b.wrapping &&
           a.canStepUp == b.canStepUp && a.canStepDown == b.canStepDown;
}

std::ostream& operator<<(std::ostream& out, const State& state) {
    return out << "value " << model::logged(state.value) << " after "
               << model::logged(state.previous) << ", range [" << model::logged(state.minimum)
               << ", " << model::logged(state.maximum) << "], steps "
               << model::logged(state.lineStep) << " and " << model::logged(state.pageStep)
               << ", text '" << state.text << "' clean '" << state.cleanText << "' selected '"
               << state.selected << "' cursor " << state.cursor << ", affixes '" << state.prefix
               << "' '" << state.suffix << "', special '" << state.special << "', wrapping "
               << state.wrapping << ", up " << state.canStepUp << ", down " << state.canStepDown;
}

class Model;

// What the boxes of one window share.
struct Surroundings {
    Lines log;
    float wheel = 0.0f;
    const Model* wheelOwner = nullptr;
    Model* focus = nullptr;
    bool isShown = false;
    bool isEnabled = true;
};

// The rules of the box in the plainest form: every variable in the open, every rule a function.
class Model {
public:
    Model(const std::string& name, Surroundings& surroundings)
        : m_sName(name), m_surroundings(surroundings) {
        updateDisplay();
        edited = false; // nobody listened to the editor yet
    }

    Model(const std::string& name, Surroundings& surroundings, double low, double high, double step)
        : minimum(low), maximum(high), lineStep(std::fabs(step)), pageStep(std::fabs(step)),
          current(bound(low)), previous(low - 1.0), m_sName(name), m_surroundings(surroundings) {
        updateDisplay();
        edited = false;
    }

    double minimum = 0.0;
    double maximum = 99.0;
    double lineStep = 1.0;
    double pageStep = 10.0;
    double current = 0.0;
    double previous = -1.0;
    std::string prefix;
    std::string suffix;
    std::string special;
    std::string text; // with cursor and selected: the editor
    int cursor = 0;
    std::string selected;
    bool wrapping = false;
    bool edited = false;
    bool enabledItself = true;
    bool canStepUp = true;
    bool canStepDown = true;

    State state() const {
        return {current, previous, minimum, maximum,  lineStep, pageStep, text,      cleanText(),
                prefix,  suffix,   special, selected, cursor,   wrapping, canStepUp, canStepDown};
    }

    bool isEnabled() const { return enabledItself && m_surroundings.isEnabled; }

    void askValue() { log("value() = " + model::logged(value())); }

    void setValue(double v) {
        edited = false;
        assign(std::fabs(v) <= model::c_epsilon ? 0.0 : v);
        updateDisplay();
    }

    void setMinValue(double v) { setRange(v, v > maximum ? v : maximum); }
    void setMaxValue(double v) { setRange(minimum > v ? v : minimum, v); }

    void setLineStep(double step) {
        if (step == lineStep)
            return;
        lineStep = step < 0 ? -step : step;
        log("stepChange");
    }

    void setPrefix(const std::string& newText) {
        prefix = newText;
        updateDisplay();
    }

    void setSuffix(const std::string& newText) {
        suffix = newText;
        updateDisplay();
    }

    void setSpecialValueText(const std::string& newText) {
        special = newText;
        updateDisplay();
    }

    void setWrapping(bool on) {
        wrapping = on;
        updateDisplay();
    }

    void setEnabled(bool on) {
        enabledItself = on;
        updateDisplay();
    }

    void windowWasEnabled() {
        if (enabledItself)
            updateDisplay();
    }

    void stepUp() {
        interpretIfEdited();
        if (wrapping && value() + lineStep > maximum) {
            setValue(minimum);
            return;
        }
        assign(current + lineStep);
        setValue(value());
    }

    void stepDown() {
        interpretIfEdited();
        if (wrapping && value() - lineStep < minimum) {
            setValue(maximum);
            return;
        }
        assign(current - lineStep);
        setValue(value());
    }

    void selectAll() {
        if ((prefix.empty() && suffix.empty()) || currentValueText() == special) {
            selectWholeText();
            return;
        }
        const std::size_t length = text.size() - prefix.size() - suffix.size();
        selected = text.substr(prefix.size(), length);
        cursor = static_cast<int>(prefix.size() + length);
    }

    void type(const std::string& newText) {
        edited = edited || text != newText;
        text = newText;
        cursor = static_cast<int>(text.size());
        selected.clear();
    }

    void pressReturn() { interpretText(); }
    void pressEnter() { interpretText(); }
    void pressUp() { stepUp(); }
    void pressDown() { stepDown(); }
    void pressOtherKeys() {}

    void pressTab(bool) {
        takeFocus();
        interpretIfEdited();
    }

    void hideEditor() { interpretIfEdited(); }

    void loseFocus() {
        interpretIfEdited();
        selected.clear();
    }

    void takeFocus() {
        if (m_surroundings.isShown)
            moveFocus(m_surroundings, this);
    }

    void leave() {
        if (m_surroundings.isShown)
            moveFocus(m_surroundings, nullptr);
    }

    void turnWheel(int delta) {
        Surroundings& s = m_surroundings;
        if (s.wheelOwner != this)
            s.wheel = 0.0f;
        s.wheelOwner = this;
        s.wheel += static_cast<float>(-(delta / 120));
        const int notches = static_cast<int>(s.wheel);
        for (int i = 0; i < std::abs(notches); ++i)
            notches > 0 ? stepDown() : stepUp();
        s.wheel -= static_cast<float>(notches);
    }

    void selectWholeText() {
        selected = text;
        cursor = static_cast<int>(text.size());
    }

private:
    static void moveFocus(Surroundings& s, Model* to) {
        Model* const from = s.focus;
        s.focus = to;
        if (from && from != to)
            from->loseFocus();
    }

    void log(const std::string& line) { m_surroundings.log.push_back(m_sName + '.' + line); }

    bool hasFocus() const { return m_surroundings.focus == this; }

    double bound(double v) const {
        if (minimum > v)
            return minimum;
        return v > maximum ? maximum : v;
    }

    void assign(double v) {
        previous = current;
        current = bound(v);
        if (!(current == previous))
            valueChange();
    }

    void setRange(double low, double high) {
        if (low == minimum && high == maximum)
            return;
        minimum = low;
        maximum = high;
        const double clamped = bound(current);
        log("rangeChange");
        updateDisplay();
        if (clamped == current)
            return;
        previous = current;
        current = clamped;
        valueChange();
    }

    void valueChange() {
        log("valueChange");
        m_bSelectionRequested = hasFocus();
        updateDisplay();
        m_bSelectionRequested = false;
        log("valueChanged(" + model::logged(value()) + ')');
        log("valueChanged(\"" + currentValueText() + "\")");
    }

    double value() {
        if (edited) {
            edited = false;
            interpretText();
        }
        return current;
    }

    std::string currentValueText() {
        if (value() == minimum && !special.empty())
            return special;
        return prefix + model::show(value(), "%.*g", 6) + suffix;
    }

    std::string cleanText() const {
        std::string rest = model::stripped(text);
        const std::string front = model::stripped(prefix);
        if (model::startsWith(rest, front))
            rest.erase(0, front.size());
        const std::string back = model::stripped(suffix);
        if (model::endsWith(rest, back))
            rest.erase(rest.size() - back.size());
        return model::stripped(rest);
    }

    bool mapTextToValue(double* number) const {
        if (model::read(text, number))
            return true;
        return !(prefix.empty() && suffix.empty()) && model::read(cleanText(), number);
    }

    void interpretText() {
        log("interpretText");
        double number = minimum;
        const bool isSpecial =
            !special.empty() && model::stripped(text) == model::stripped(special);
        if (isSpecial || mapTextToValue(&number))
            setValue(number);
        updateDisplay();
    }

    void interpretIfEdited() {
        if (edited)
            interpretText();
    }

    void updateDisplay() {
        log("updateDisplay");
        type(currentValueText());
        if (m_bSelectionRequested && m_surroundings.isShown && hasFocus())
            selectAll();
        else if (!suffix.empty() && model::endsWith(text, suffix))
            cursor = static_cast<int>(text.size() - suffix.size());
        edited = false;
        canStepUp = isEnabled() && (wrapping || value() < maximum);
        canStepDown = isEnabled() && (wrapping || value() > minimum);
    }

    const std::string m_sName;
    Surroundings& m_surroundings;
    bool m_bSelectionRequested = false;
};

// An empty text is null: Qt 3 tells null from empty, and that is not the matter here.
QString toolkitText(const std::string& text) {
    return text.empty() ? QString() : QString::fromLatin1(text.c_str());
}

void send(QObject* receiver, QEvent&& event) {
    QApplication::sendEvent(receiver, &event);
}

// The class itself, in the vocabulary of the model.
class Box : public TEVU::CDoubleSpinBox {
public:
    using TEVU::CDoubleSpinBox::CDoubleSpinBox;

    support::Recorder* m_pRecorder = nullptr;
    std::string m_sName;
    QWidget* m_pOther = nullptr; // takes the focus; null in a hidden window

    QLineEdit* editor() { return m_pEditor; }

    State state() {
        return {TEVU::CRangeControl::value(),
                prevValue(),
                minValue(),
                maxValue(),
                lineStep(),
                pageStep(),
                support::text(text()),
                support::text(cleanText()),
                support::text(prefix()),
                support::text(suffix()),
                support::text(specialValueText()),
                support::text(m_pEditor->selectedText()),
                m_pEditor->cursorPosition(),
                wrapping(),
                m_pSpin->isUpEnabled(),
                m_pSpin->isDownEnabled()};
    }

    void askValue() {
        const double v = value();
        m_pRecorder->add(m_sName + ".value() = " + model::logged(v));
    }

    using TEVU::CDoubleSpinBox::setPrefix;
    using TEVU::CDoubleSpinBox::setSpecialValueText;
    using TEVU::CDoubleSpinBox::setSuffix;
    void setPrefix(const std::string& newText) { setPrefix(toolkitText(newText)); }
    void setSuffix(const std::string& newText) { setSuffix(toolkitText(newText)); }
    void setSpecialValueText(const std::string& newText) {
        setSpecialValueText(toolkitText(newText));
    }

    void type(const std::string& newText) { m_pEditor->setText(toolkitText(newText)); }
    void pressReturn() { support::keyClick(this, Qt::Key_Return, support::Modifier::None, "\r"); }
    void pressEnter() { support::keyClick(this, Qt::Key_Enter, support::Modifier::None, "\r"); }
    void pressUp() { support::keyClick(this, Qt::Key_Up); }
    void pressDown() { support::keyClick(this, Qt::Key_Down); }

    void pressOtherKeys() {
        support::keyClick(this, Qt::Key_PageUp);
        support::keyClick(this, Qt::Key_PageDown);
        support::keyClick(this, Qt::Key_Tab, support::Modifier::Control);
    }

    void pressTab(bool back) {
        takeFocus();
        support::keyPress(this, back ? Qt::Key_Backtab : Qt::Key_Tab,
                          back ? support::Modifier::Shift : support::Modifier::None, "\t");
    }

    void hideEditor() { send(m_pEditor, QHideEvent()); }
    void loseFocus() { send(m_pEditor, QFocusEvent(QEvent::FocusOut)); }

    void takeFocus() {
        if (m_pOther)
            setFocus();
    }

    void leave() {
        if (m_pOther)
            m_pOther->setFocus();
    }

    void turnWheel(int delta) { support::wheel(this, delta); }

protected:
    void valueChange() override {
        add("valueChange");
        TEVU::CDoubleSpinBox::valueChange();
    }

    void rangeChange() override {
        add("rangeChange");
        TEVU::CDoubleSpinBox::rangeChange();
    }

    void stepChange() override {
        add("stepChange");
        TEVU::CDoubleSpinBox::stepChange();
    }

    void updateDisplay() override {
        add("updateDisplay");
        TEVU::CDoubleSpinBox::updateDisplay();
    }

    void interpretText() override {
        add("interpretText");
        TEVU::CDoubleSpinBox::interpretText();
    }

private:
    void add(const char* hook) {
        if (m_pRecorder)
            m_pRecorder->add(m_sName + '.' + hook);
    }

    QLineEdit* m_pEditor = support::child<QLineEdit>(this, "LineEdit_DoubleSpinbox");
    qt3::SpinWidget* m_pSpin = support::child<qt3::SpinWidget>(this, "SpinWidget");
};

enum class Action {
    type,
    askValue,
    setValue,
    setMinValue,
    setMaxValue,
    setLineStep,
    setPrefix,
    setSuffix,
    setSpecialValueText,
    setWrapping,
    setEnabled,
    stepUp,
    stepDown,
    selectAll,
    hideEditor,
    loseFocus,
    takeFocus,
    leave,
    pressReturn,
    pressEnter,
    pressUp,
    pressDown,
    pressTab,
    pressOtherKeys,
    turnWheel,
    count
};

const char* const c_names[] = {
    "type",        "askValue",  "setValue",  "setMinValue",    "setMaxValue",
    "setLineStep", "setPrefix", "setSuffix", "setSpecial",     "setWrapping",
    "setEnabled",  "stepUp",    "stepDown",  "selectAll",      "hideEditor",
    "loseFocus",   "takeFocus", "leave",     "pressReturn",    "pressEnter",
    "pressUp",     "pressDown", "pressTab",  "pressOtherKeys", "turnWheel"};
static_assert(std::size(c_names) == static_cast<std::size_t>(Action::count), "one name each");

struct Operation {
    Action action;
    double number;
    std::string text;
    bool flag;
    int delta;
};

std::ostream& operator<<(std::ostream& out, const Operation& operation) {
    return out << c_names[static_cast<int>(operation.action)] << " (number "
               << model::logged(operation.number) << ", text '" << operation.text << "', flag "
               << operation.flag << ", delta " << operation.delta << ')';
}

// For the box and for the model.
template <class Target>
void apply(Target& target, const Operation& operation) {
    switch (operation.action) {
    case Action::type:
        return target.type(operation.text);
    case Action::askValue:
        return target.askValue();
    case Action::setValue:
        return target.setValue(operation.number);
    case Action::setMinValue:
        return target.setMinValue(operation.number);
    case Action::setMaxValue:
        return target.setMaxValue(operation.number);
    case Action::setLineStep:
        return target.setLineStep(operation.number);
    case Action::setPrefix:
        return target.setPrefix(operation.text);
    case Action::setSuffix:
        return target.setSuffix(operation.text);
    case Action::setSpecialValueText:
        return target.setSpecialValueText(operation.text);
    case Action::setWrapping:
        return target.setWrapping(operation.flag);
    case Action::setEnabled:
        return target.setEnabled(operation.flag);
    case Action::stepUp:
        return target.stepUp();
    case Action::stepDown:
        return target.stepDown();
    case Action::selectAll:
        return target.selectAll();
    case Action::hideEditor:
        return target.hideEditor();
    case Action::loseFocus:
        return target.loseFocus();
    case Action::takeFocus:
        return target.takeFocus();
    case Action::leave:
        return target.leave();
    case Action::pressReturn:
        return target.pressReturn();
    case Action::pressEnter:
        return target.pressEnter();
    case Action::pressUp:
        return target.pressUp();
    case Action::pressDown:
        return target.pressDown();
    case Action::pressTab:
        return target.pressTab(operation.flag);
    case Action::pressOtherKeys:
        return target.pressOtherKeys();
    default:
        return target.turnWheel(operation.delta);
    }
}

const std::vector<std::string> c_vPrefixes = {"", "", "x ", " x", "-", "1", "+", " ", "auto"};
const std::vector<std::string> c_vSuffixes = {"", "", " mm", "mm", "%", "0", "e1", " ", " m m "};
const std::vector<std::string> c_vSpecials = {"", "", "auto", " auto ", " ", "7", "mm", "nan"};
const std::vector<int> c_vDeltas = {120, -120, 60,  -60, 1,    -1,  0,    119, -119,
                                    121, -121, 239, 240, -240, 241, -359, 360, -481};

// In parts as they might be typed: with the whole affixes, parts of them, or others.
std::string anyTypedText(std::mt19937& random, const Model& box) {
    if (random() % 8 == 0)
        return (random() % 2 ? " " : "") + box.special + (random() % 2 ? "  " : "");
    const std::vector<std::string> fronts = {
        "", box.prefix, box.prefix, model::stripped(box.prefix), model::pick(random, c_vPrefixes)};
    const std::vector<std::string> backs = {"", box.suffix, box.suffix, model::stripped(box.suffix),
                                            model::pick(random, c_vSuffixes)};
    return model::pick(random, fronts) + model::anyNumberText(random) + model::pick(random, backs) +
           (random() % 8 ? "" : " ");
}

// Typing comes often: pending text is what the rules are about.
Operation anyOperation(std::mt19937& random, const Model& box) {
    const unsigned count = static_cast<unsigned>(Action::count);
    const unsigned choice = random() % (count + 10);
    Operation operation = {choice < count ? static_cast<Action>(choice) : Action::type,
                           model::anyNumber(random), "", random() % 3 != 0,
                           model::pick(random, c_vDeltas)};
    if (operation.action == Action::type)
        operation.text = anyTypedText(random, box);
    if (operation.action == Action::setPrefix)
        operation.text = model::pick(random, c_vPrefixes);
    if (operation.action == Action::setSuffix)
        operation.text = model::pick(random, c_vSuffixes);
    if (operation.action == Action::setSpecialValueText)
        operation.text = model::pick(random, c_vSpecials);
    return operation;
}

// The log of the class writes a sign of what is no number; it says nothing.
Lines withoutNaNSigns(Lines lines) {
    for (std::string& line : lines)
        if (model::endsWith(line, "(-nan)"))
            line.replace(line.size() - 6, 6, "(nan)");
    return lines;
}

class CDoubleSpinBoxModel : public testing::TestWithParam<unsigned> {
protected:
    CDoubleSpinBoxModel() {
        m_window.resize(300, 100);
        m_b.setGeometry(100, 0, 100, 24);
        m_other.setGeometry(200, 0, 90, 24);
        name(m_a, "a");
        name(m_b, "b");
        m_surroundings.log.clear(); // while they are made, no override is called
    }

    void name(Box& box, const char* label) {
        box.m_pRecorder = &m_recorder;
        box.m_sName = label;
        m_recorder.tapAll(&box, label);
    }

    void showAll() {
        m_surroundings.isShown = true;
        m_a.m_pOther = m_b.m_pOther = &m_other;
        support::show(&m_window);
        support::giveFocus(&m_other);
        ASSERT_TRUE(m_other.hasFocus());
    }

    void enableWindow(bool on) {
        const bool changes = m_surroundings.isEnabled != on;
        m_window.setEnabled(on);
        m_surroundings.isEnabled = on;
        if (changes) {
            m_modelA.windowWasEnabled();
            m_modelB.windowWasEnabled();
        }
    }

    // What a user cannot do to a disabled box, and what is not the box's own matter.
    bool isPossible(const Operation& operation, const Model& box) const {
        const bool hasFocus = m_surroundings.focus == &box;
        if (operation.action == Action::setEnabled)
            return !hasFocus; // where the focus goes then is the toolkit's affair
        if (operation.action == Action::loseFocus)
            return !m_surroundings.isShown; // leave does it
        return operation.action < Action::takeFocus || box.isEnabled();
    }

    // Where Tab leads to is the toolkit's affair. What it leaves is no longer selected, and what it
    // leads to is.
    void followTab(Model& left) {
        left.selected.clear();
        m_surroundings.focus = m_a.hasFocus() ? &m_modelA : m_b.hasFocus() ? &m_modelB : nullptr;
        if (m_surroundings.focus)
            m_surroundings.focus->selectWholeText();
    }

    void operate(Box& box, Model& model, const Operation& operation) {
        if (!isPossible(operation, model))
            return;
        apply(box, operation);
        apply(model, operation);
        if (m_surroundings.isShown && operation.action == Action::pressTab)
            followTab(model);
    }

    void compare() {
        EXPECT_EQ(withoutNaNSigns(m_recorder.take()), m_surroundings.log);
        m_surroundings.log.clear();
        EXPECT_EQ(m_a.state(), m_modelA.state());
        EXPECT_EQ(m_b.state(), m_modelB.state());
        EXPECT_EQ(m_a.hasFocus(), m_surroundings.focus == &m_modelA);
        EXPECT_EQ(m_b.hasFocus(), m_surroundings.focus == &m_modelB);
    }

    void run(int steps) {
        std::mt19937 random(GetParam());
        for (int i = 0; i < steps && !HasFailure(); ++i) {
            const bool first = random() % 2;
            Model& model = first ? m_modelA : m_modelB;
            const Operation operation = anyOperation(random, model);
            const bool forWindow = random() % 60 == 0 && !m_surroundings.isShown;
            if (forWindow)
                enableWindow(operation.flag);
            else
                operate(first ? m_a : m_b, model, operation);
            compare();
            if (HasFailure())
                ADD_FAILURE() << "seed " << GetParam() << ", step " << i << ", box "
                              << (first ? "a, " : "b, ")
                              << (forWindow ? "the window instead of " : "") << operation;
        }
    }

    QWidget m_window;
    Box m_a{&m_window, "a"};
    Box m_b{-2.5, 2.5, 0.3, &m_window, "b"};
    QLineEdit m_other{&m_window};
    support::Recorder m_recorder;
    Surroundings m_surroundings;
    Model m_modelA{"a", m_surroundings};
    Model m_modelB{"b", m_surroundings, -2.5, 2.5, 0.3};
};

// A box and its model that change their affixes together.
class CDoubleSpinBoxValidatorModel : public testing::Test {
protected:
    void changeAffixes(std::mt19937& random) {
        m_model.prefix = model::pick(random, c_vPrefixes);
        m_model.suffix = model::pick(random, c_vSuffixes);
        m_model.special = model::pick(random, c_vSpecials);
        m_box.setPrefix(m_model.prefix);
        m_box.setSuffix(m_model.suffix);
        m_box.setSpecialValueText(m_model.special);
    }

    Box m_box;
    Surroundings m_surroundings;
    Model m_model{"box", m_surroundings};
};

} // namespace

TEST_P(CDoubleSpinBoxModel, AnySequenceOfOperationsGoesAsInTheModel) {
    compare();

    run(30000);
}

// Fewer, because every change paints.
TEST_P(CDoubleSpinBoxModel, AnySequenceWithTheFocusInAWindowOnTheScreenGoesAsInTheModel) {
    showAll();

    run(5000);
}

namespace {

// What the validator has to say, on top of the answers of a plain one.
struct Verdict {
    QValidator::State state;
    std::string text;
    int position;
};

Verdict plainVerdict(const std::string& text, int position) {
    const qt3::DoubleValidator plain(nullptr);
    QString copy = toolkitText(text);
    const QValidator::State state = plain.validate(copy, position);
    return {state, support::text(copy), position};
}

Verdict verdictOnPart(const Model& box, const std::string& text, int position,
                      const std::string& suffix) {
    const int start = static_cast<int>(box.prefix.size());
    const std::size_t length = text.size() - box.prefix.size() - suffix.size();
    const std::string back = text.substr(text.size() - suffix.size());
    const Verdict part = plainVerdict(text.substr(box.prefix.size(), length), position - start);
    return {part.state, box.prefix + part.text + back, part.position + start};
}

Verdict verdict(const Model& box, const std::string& text, int position) {
    const std::string bareSuffix = model::stripped(box.suffix);
    const std::size_t overhead = box.prefix.size() + box.suffix.size();
    if (overhead == 0)
        return plainVerdict(text, position);
    if (text.size() >= overhead && model::startsWith(text, box.prefix)) {
        if (model::endsWith(text, box.suffix))
            return verdictOnPart(box, text, position, box.suffix);
        if (model::endsWith(text, bareSuffix))
            return verdictOnPart(box, text, position, bareSuffix);
    }
    Verdict whole = plainVerdict(text, position);
    const std::string special = model::stripped(box.special);
    const std::string typed = model::stripped(text);
    if (whole.state == QValidator::Invalid && model::startsWith(special, typed))
        whole.state = special == typed ? QValidator::Acceptable : QValidator::Intermediate;
    return whole;
}

} // namespace

TEST_F(CDoubleSpinBoxValidatorModel, JudgesAnyTextAsTheModelDoes) {
    std::mt19937 random(2718);
    std::set<QValidator::State> seen;
    for (int i = 0; i < 100000; ++i) {
        if (i % 50 == 0)
            changeAffixes(random);
        const std::string text = anyTypedText(random, m_model);
        const int start = static_cast<int>(random() % (text.size() + 1));
        const Verdict expected = verdict(m_model, text, start);
        QString shown = toolkitText(text);
        int position = start;
        const QValidator::State state = m_box.validator()->validate(shown, position);
        ASSERT_EQ(state, expected.state)
            << "step " << i << ", '" << text << "' with " << m_model.state();
        ASSERT_EQ(support::text(shown), expected.text);
        ASSERT_EQ(position, expected.position);
        seen.insert(state);
    }
    EXPECT_EQ(seen.size(), 3u);
}

INSTANTIATE_TEST_SUITE_P(Seeds, CDoubleSpinBoxModel, testing::Values(4711u, 815u, 1234u));
