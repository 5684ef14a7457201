#include "Subjects.h"

#include "../WidgetSubject.h"

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

class DoubleSpinBoxSubject : public WidgetSubject {
public:
    DoubleSpinBoxSubject(Stage& stage, const Taste& taste) : WidgetSubject(stage, taste) {
        const Source real = m_taste.real();
        beginning({Taste::flag(), real, real, real, Taste::flag(30), Taste::flag(30)});
        addWidgetActions();
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
    void unmake() override {
        forgetTargets();
        m_vBoxes.clear();
    }
    QWidget* widget() override { return box(); }
    void setEnabled(bool enabled) override { box()->setEnabled(enabled); }
    std::string state() override;
    std::string brokenPromise() override;
    // An affix that looks like a part of a number is read again and again: a digit more each time.
    std::size_t mostLines(const Operation& operation) const override {
        const int delta = operation.name() == "wheel" ? operation.integer(1) : 0;
        return 300U * (1U + static_cast<unsigned>(std::abs(delta / 120)));
    }

private:
    void addValueActions();
    void addTextActions();
    void addCopyActions();
    void adopt(TalkingBox* newBox, const std::string& label);
    TalkingBox* box() const {
        return m_vBoxes.empty() ? nullptr : static_cast<TalkingBox*>(m_vBoxes.front());
    }
    qt3::SpinWidget* spinWidget() const {
        return box() ? support::child<qt3::SpinWidget>(box(), "SpinWidget") : nullptr;
    }
    /// An action of the one box, or of the copy that its last argument names.
    void onBox(const std::string& name, int weight, std::vector<Source> arguments,
               const std::function<void(TalkingBox&, const Operation&)>& perform);
    static std::string stateOf(const TalkingBox& box);

    std::vector<qt3::Pointer<TalkingBox>> m_vBoxes; ///< The first one has the children.
};

void DoubleSpinBoxSubject::make(const Operation& beginning) {
    auto* const first = beginning.flag(0)
                            ? new TalkingBox(beginning.real(1), beginning.real(2),
                                             beginning.real(3), m_stage.place(), "box")
                            : new TalkingBox(m_stage.place(), "box");
    first->setGeometry(c_place);
    adopt(first, "box");
    auto* const spinWidget = support::child<qt3::SpinWidget>(first, "SpinWidget");
    target(spinWidget, "spin");
    target(first, "box");
    if (beginning.flag(4))
        first->setSuffix(" mm");
    if (beginning.flag(5))
        first->setSpecialValueText("auto");
    first->show();
    m_stage.recorder().take();
    m_stage.addNeighbourBehind();
}

void DoubleSpinBoxSubject::adopt(TalkingBox* newBox, const std::string& label) {
    m_vBoxes.emplace_back(newBox);
    newBox->m_tell = [this, label](const std::string& line) { tell(label + ' ' + line); };
    m_stage.recorder().tapAll(newBox, label);
}

void DoubleSpinBoxSubject::onBox(
    const std::string& name, int weight, std::vector<Source> arguments,
    const std::function<void(TalkingBox&, const Operation&)>& perform) {
    const std::size_t which = arguments.size();
    arguments.push_back(Taste::among({0, 0, 0, 0, 0, 0, 0, 1, 2}));
    action(name, weight, arguments, [this, which, perform](const Operation& operation) {
        if (m_vBoxes.empty())
            return;
        const std::size_t index = static_cast<unsigned>(operation.integer(which)) % m_vBoxes.size();
        if (TalkingBox* const chosen = m_vBoxes[index])
            perform(*chosen, operation);
    });
}

void DoubleSpinBoxSubject::addValueActions() {
    using Box = TalkingBox;
    const Source real = m_taste.real();
    onBox("setValue", 6, {real}, [](Box& b, const Operation& o) { b.setValue(o.real(0)); });
    onBox("setMinValue", 2, {real}, [](Box& b, const Operation& o) { b.setMinValue(o.real(0)); });
    onBox("setMaxValue", 2, {real}, [](Box& b, const Operation& o) { b.setMaxValue(o.real(0)); });
    onBox("setRange", 2, {real, real}, [](Box& b, const Operation& o) {
        b.setRange(std::min(o.real(0), o.real(1)), std::max(o.real(0), o.real(1)));
    });
    onBox("setLineStep", 2, {real}, [](Box& b, const Operation& o) { b.setLineStep(o.real(0)); });
    onBox("setWrapping", 2, {Taste::flag()},
          [](Box& b, const Operation& o) { b.setWrapping(o.flag(0)); });
    onBox("stepUp", 4, {}, [](Box& b, const Operation&) { b.stepUp(); });
    onBox("stepDown", 4, {}, [](Box& b, const Operation&) { b.stepDown(); });
    onBox("addPage", 1, {}, [](Box& b, const Operation&) { b.addPage(); });
    onBox("value", 2, {}, [this](Box& b, const Operation&) { tell("value " + shown(b.value())); });
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
    onBox("setPrefix", 2, {affix}, [=](Box& b, const Operation& o) { b.setPrefix(text(o)); });
    onBox("setSuffix", 2, {affix}, [=](Box& b, const Operation& o) { b.setSuffix(text(o)); });
    onBox("setSpecialValueText", 2, {any},
          [=](Box& b, const Operation& o) { b.setSpecialValueText(text(o)); });
    onBox("setText", 4, {any}, [=](Box& b, const Operation& o) {
        if (auto* const editor = support::child<qt3::LineEdit>(&b, "LineEdit_DoubleSpinbox"))
            editor->setText(text(o));
    });
    onBox("interpretText", 1, {}, [](Box& b, const Operation&) { b.interpretText(); });
    onBox("selectAll", 1, {}, [](Box& b, const Operation&) { b.selectAll(); });
    onBox("mapTextToValue", 1, {}, [this](Box& b, const Operation&) {
        bool ok = false;
        const double number = b.mapTextToValue(&ok);
        tell("the text is " + shown(number) + ", " + shown(ok));
    });
    onBox("mapValueToText", 1, {m_taste.real()}, [this](Box& b, const Operation& o) {
        tell("the text of it is " + shown(b.mapValueToText(o.real(0))));
    });
    onBox("setButtonSymbols", 1, {Taste::flag()}, [](Box& b, const Operation& o) {
        b.setButtonSymbols(o.flag(0) ? Box::PlusMinus : Box::UpDownArrows);
    });
    onBox("validate", 2, {any, Taste::index(0, 8)}, [=](Box& b, const Operation& o) {
        QString candidate = text(o);
        int position = o.integer(1);
        if (const QValidator* const validator = b.validator())
            tell("validates " + shown(static_cast<int>(validator->validate(candidate, position))) +
                 ' ' + shown(candidate) + '@' + shown(position));
    });
}

void DoubleSpinBoxSubject::addCopyActions() {
    using Box = TalkingBox;
    // Only of the original or to it: the others are hidden, and learn of a size when the toolkit likes.
    action("copy", 1, {}, [this](const Operation&) {
        if (m_vBoxes.size() > 2 || !box())
            return;
        auto* const copy = new Box(*box());
        adopt(copy, "copy" + std::to_string(m_vBoxes.size()));
    });
    onBox("assign", 1, {Taste::flag()}, [this](Box& b, const Operation& o) {
        if (box() && o.flag(0) && box()->isVisible())
            *box() = b;
        else if (box() && !o.flag(0))
            b = *box();
    });
    onBox("destroy", 1, {Taste::flag(20)}, [this](Box& b, const Operation& o) {
        if (&b != box() || o.flag(0))
            m_stage.withFocusRescued([&] { delete &b; });
        const auto isThere = [](const auto& each) { return !each.isNull(); };
        if (std::none_of(m_vBoxes.begin(), m_vBoxes.end(), isThere)) {
            unmake();
            m_stage.place()->show();
            make(Operation("make"));
        }
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
    for (const auto& each : m_vBoxes)
        state += "; " + (each ? stateOf(*each) : std::string("gone"));
    if (!box())
        return state;
    state += "; " + fieldState(support::child<qt3::LineEdit>(box(), "LineEdit_DoubleSpinbox"));
    if (const auto* const spin = spinWidget())
        state += "; up " + rectText(spin->upRect()) + (spin->isUpEnabled() ? " on" : " off") +
                 ", down " + rectText(spin->downRect()) + (spin->isDownEnabled() ? " on" : " off");
    return state;
}

std::string DoubleSpinBoxSubject::brokenPromise() {
    for (const auto& each : m_vBoxes) {
        if (!each)
            continue;
        const TEVU::CRangeControl& range = *each;
        const double value = range.value();
        const bool reversed = range.minValue() > range.maxValue();
        if (value == value && !reversed && value != range.bound(value))
            return "the value is outside";
    }
    return "";
}

} // namespace

std::unique_ptr<Subject> doubleSpinBox(Stage& stage, const Taste& taste) {
    return std::make_unique<DoubleSpinBoxSubject>(stage, taste);
}

} // namespace differential
