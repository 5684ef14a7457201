#include "Subjects.h"

#include "../CopyingSubject.h"

#include <CDoubleSpinBox.h>
#include <algorithm>
#include <cstdlib>
#include <qt3/LineEdit.h>
#include <qt3/SpinWidget.h>
#include <qvalidator.h>

namespace differential {

namespace {

/// Tells its hooks, and opens what is protected.
class TalkingBox : public TEVU::CDoubleSpinBox {
public:
    using CDoubleSpinBox::CDoubleSpinBox;
    using CDoubleSpinBox::currentValueText;
    using CDoubleSpinBox::mapTextToValue;
    using CDoubleSpinBox::mapValueToText;

    void giveNullEvents() {
        eventFilter(nullptr, nullptr);
        eventFilter(support::child<qt3::LineEdit>(this), nullptr);
        wheelEvent(nullptr);
        resizeEvent(nullptr);
        leaveEvent(nullptr);
    }

    std::function<void(const std::string&)> m_tell = [](const std::string&) {};

protected:
    void valueChange() override {
        m_tell("valueChange at " + shown(CRangeControl::value()));
        CDoubleSpinBox::valueChange();
    }
    void rangeChange() override {
        m_tell("rangeChange");
        CDoubleSpinBox::rangeChange();
    }
    void stepChange() override { m_tell("stepChange"); }
    void updateDisplay() override {
        m_tell("updateDisplay");
        CDoubleSpinBox::updateDisplay();
    }

public:
    void interpretText() override {
        m_tell("interpretText");
        CDoubleSpinBox::interpretText();
    }
};

const QRect c_place(10, 10, 100, 24);

class DoubleSpinBoxSubject : public CopyingSubject<TalkingBox> {
public:
    DoubleSpinBoxSubject(Stage& stage, const Taste& taste) : CopyingSubject(stage, taste) {
        const Source real = m_taste.real();
        beginning({Taste::flag(), real, real, real, Taste::flag(30), Taste::flag(30)});
        addWidgetActions();
        addRubbishActions();
        addMouseActions();
        addWheelActions();
        std::vector<std::string> keys = commonKeys();
        for (const char* typed :
             {"1", "2", "5", "0", "9", "9", ".", "-", "+", "e", " ", "a", ",", "m", "\xe9"})
            keys.emplace_back(typed);
        addKeyActions(keys);
        addValueActions();
        addTextActions();
        addCopyActions();
    }

protected:
    void make(const Operation& beginning) override;
    void setEnabled(bool enabled) override { first()->setEnabled(enabled); }
    std::string state() override;
    std::string brokenPromise() override;
    // An affix that looks like a part of a number is read again and again: a digit more each time.
    std::size_t mostLines(const Operation& operation) const override {
        const std::string& name = operation.name();
        const int delta = operation.integer(name == "wheelFar" ? 0 : 1);
        const int notches = name.find("wheel") == 0 ? std::abs(delta / 120) : 0;
        return 300U * (1U + static_cast<unsigned>(notches));
    }

private:
    void addValueActions();
    void addTextActions();
    qt3::SpinWidget* spinWidget() const {
        return first() ? support::child<qt3::SpinWidget>(first(), "SpinWidget") : nullptr;
    }
    static std::string stateOf(const TalkingBox& box);
    bool areButtonsRight() const;
};

void DoubleSpinBoxSubject::make(const Operation& beginning) {
    auto* const box = beginning.flag(0) ? new TalkingBox(beginning.real(1), beginning.real(2),
                                                         beginning.real(3), m_stage.place(), "box")
                                        : new TalkingBox(m_stage.place(), "box");
    box->setGeometry(c_place);
    adopt(box, "box");
    target(spinWidget(), "spin");
    target(box, "box");
    if (beginning.flag(4))
        box->setSuffix(" mm");
    if (beginning.flag(5))
        box->setSpecialValueText("auto");
    box->show();
    m_stage.recorder().take();
    m_stage.addNeighbourBehind();
}

void DoubleSpinBoxSubject::addValueActions() {
    using Box = TalkingBox;
    const Source real = m_taste.real();
    onOne("setValue", 6, {real}, [](Box& b, const Operation& o) { b.setValue(o.real(0)); });
    onOne("setMinValue", 2, {real}, [](Box& b, const Operation& o) { b.setMinValue(o.real(0)); });
    onOne("setMaxValue", 2, {real}, [](Box& b, const Operation& o) { b.setMaxValue(o.real(0)); });
    onOne("setRange", 2, {real, real}, [](Box& b, const Operation& o) {
        b.setRange(std::min(o.real(0), o.real(1)), std::max(o.real(0), o.real(1)));
    });
    onOne("setLineStep", 2, {real}, [](Box& b, const Operation& o) { b.setLineStep(o.real(0)); });
    onOne("setWrapping", 2, {Taste::flag()},
          [](Box& b, const Operation& o) { b.setWrapping(o.flag(0)); });
    onOne("stepUp", 4, {}, [](Box& b, const Operation&) { b.stepUp(); });
    onOne("stepDown", 4, {}, [](Box& b, const Operation&) { b.stepDown(); });
    onOne("addPage", 1, {}, [](Box& b, const Operation&) { b.addPage(); });
    if (m_taste.isRubbish())
        onOne("nullEvents", 1, {}, [](Box& b, const Operation&) { b.giveNullEvents(); });
    onOne("value", 2, {}, [this](Box& b, const Operation&) { tell("value " + shown(b.value())); });
    const auto button = [this](bool up, bool release) {
        return [=](const Operation&) {
            auto* const spin = spinWidget();
            if (!spin)
                return;
            const QPoint at = (up ? spin->upRect() : spin->downRect()).center();
            support::mousePress(spin, at);
            if (release)
                support::mouseRelease(spin, at);
        };
    };
    action("clickUp", 3, {}, button(true, true));
    action("clickDown", 3, {}, button(false, true));
    action("pressUp", 1, {}, button(true, false));
    action("pressDown", 1, {}, button(false, false));
}

void DoubleSpinBoxSubject::addTextActions() {
    using Box = TalkingBox;
    const auto text = [](const Operation& o) { return QString::fromUtf8(o.text(0).c_str()); };
    const Source affix = m_taste.isRubbish()
                             ? m_taste.text()
                             : Taste::amongTexts({"", "", "x ", "x", "-", "1", " a b "});
    const Source any = m_taste.text();
    onOne("setPrefix", 2, {affix}, [=](Box& b, const Operation& o) { b.setPrefix(text(o)); });
    onOne("setSuffix", 2, {affix}, [=](Box& b, const Operation& o) { b.setSuffix(text(o)); });
    onOne("setSpecialValueText", 2, {any},
          [=](Box& b, const Operation& o) { b.setSpecialValueText(text(o)); });
    onOne("setText", 4, {any}, [=](Box& b, const Operation& o) {
        if (auto* const editor = support::child<qt3::LineEdit>(&b, "LineEdit_DoubleSpinbox"))
            editor->setText(text(o));
    });
    onOne("interpretText", 1, {}, [](Box& b, const Operation&) { b.interpretText(); });
    onOne("selectAll", 1, {}, [](Box& b, const Operation&) { b.selectAll(); });
    onOne("mapTextToValue", 1, {}, [this](Box& b, const Operation&) {
        bool ok = false;
        const double number = b.mapTextToValue(&ok);
        tell("the text is " + shown(number) + ", " + shown(ok));
    });
    onOne("mapValueToText", 1, {m_taste.real()}, [this](Box& b, const Operation& o) {
        tell("the text of it is " + shown(b.mapValueToText(o.real(0))));
    });
    onOne("setButtonSymbols", 1, {Taste::flag()}, [](Box& b, const Operation& o) {
        b.setButtonSymbols(o.flag(0) ? Box::PlusMinus : Box::UpDownArrows);
    });
    onOne("validate", 2, {any, Taste::index(0, 8)}, [=](Box& b, const Operation& o) {
        QString candidate = text(o);
        int position = o.integer(1);
        if (const QValidator* const validator = b.validator())
            tell("validates " + shown(static_cast<int>(validator->validate(candidate, position))) +
                 ' ' + shown(candidate) + '@' + shown(position));
    });
}

std::string DoubleSpinBoxSubject::stateOf(const TalkingBox& box) {
    const TEVU::CRangeControl& range = box;
    return shown(range.value()) + " in " + shown(box.minValue()) + ".." + shown(box.maxValue()) +
           " by " + shown(box.lineStep()) + ", " + shown(box.prefix()) + shown(box.suffix()) +
           shown(box.specialValueText()) + (box.wrapping() ? ", wrapping" : "") +
           (box.buttonSymbols() == TalkingBox::PlusMinus ? ", +-" : "") + ", clean " +
           shown(box.cleanText());
}

std::string DoubleSpinBoxSubject::state() {
    std::string state = widgetState();
    state += statesOfAll(stateOf);
    if (!first())
        return state;
    state += "; " + fieldState(support::child<qt3::LineEdit>(first(), "LineEdit_DoubleSpinbox"));
    if (const auto* const spin = spinWidget())
        state += "; up " + rectText(spin->upRect()) + (spin->isUpEnabled() ? " on" : " off") +
                 ", down " + rectText(spin->downRect()) + (spin->isDownEnabled() ? " on" : " off");
    return state;
}

std::string DoubleSpinBoxSubject::brokenPromise() {
    for (const auto& each : m_vAll) {
        if (!each)
            continue;
        const TEVU::CRangeControl& range = *each;
        const double value = range.value();
        const bool reversed = range.minValue() > range.maxValue();
        if (value == value && !reversed && value != range.bound(value))
            return "the value is outside";
        if (range.lineStep() < 0.0 || range.pageStep() < 0.0)
            return "a negative step";
    }
    return areButtonsRight() ? "" : "a button is enabled that should not be, or the reverse";
}

// Copies share the buttons: what they show then is that of the last one that wrote there.
bool DoubleSpinBoxSubject::areButtonsRight() const {
    if (!first() || !spinWidget() || m_vAll.size() > 1)
        return true;
    const TEVU::CRangeControl& range = *first();
    const bool enabled = first()->isEnabled();
    const bool up = enabled && (first()->wrapping() || range.value() < range.maxValue());
    const bool down = enabled && (first()->wrapping() || range.value() > range.minValue());
    return spinWidget()->isUpEnabled() == up && spinWidget()->isDownEnabled() == down;
}

} // namespace

std::unique_ptr<Subject> doubleSpinBox(Stage& stage, const Taste& taste) {
    return std::make_unique<DoubleSpinBoxSubject>(stage, taste);
}

} // namespace differential
