#include "Subjects.h"

#include "../WidgetSubject.h"

#include <CRangeControl.h>
#include <Warnings.h>
#include <memory>

namespace differential {

namespace {

/// Tells its hooks, and opens what is protected.
class TalkingRange : public TEVU::CRangeControl {
public:
    using CRangeControl::CRangeControl;
    using CRangeControl::directSetValue;
    using CRangeControl::prevValue;

    std::function<void(const std::string&)> m_tell = [](const std::string&) {};

protected:
    void valueChange() override { m_tell("valueChange at " + shown(value())); }
    void rangeChange() override {
        m_tell("rangeChange to " + shown(minValue()) + ".." + shown(maxValue()) + " at " +
               shown(value()));
    }
    void stepChange() override { m_tell("stepChange"); }
};

class RangeControlSubject : public Subject {
public:
    RangeControlSubject(Stage& stage, const Taste& taste) : Subject(stage, taste) {
        const Source real = m_taste.real();
        beginning({Taste::flag(80), real, real, real, real, real});
        number("setValue", 6, [](TalkingRange& range, double v) { range.setValue(v); });
        number("directSetValue", 2, [](TalkingRange& range, double v) { range.directSetValue(v); });
        number("setMinValue", 3, [](TalkingRange& range, double v) { range.setMinValue(v); });
        number("setMaxValue", 3, [](TalkingRange& range, double v) { range.setMaxValue(v); });
        plain("addLine", &TalkingRange::addLine);
        plain("subtractLine", &TalkingRange::subtractLine);
        plain("addPage", &TalkingRange::addPage);
        plain("subtractPage", &TalkingRange::subtractPage);
        action("setRange", 4, {real, real}, [this](const Operation& operation) {
            m_pRange->setRange(operation.real(0), operation.real(1));
        });
        action("setSteps", 3, {real, real}, [this](const Operation& operation) {
            m_pRange->setSteps(operation.real(0), operation.real(1));
        });
        action("bound", 2, {real}, [this](const Operation& operation) {
            tell("bound is " + shown(m_pRange->bound(operation.real(0))));
        });
        action("copy", 1, {},
               [this](const Operation&) { m_pRange = std::make_unique<TalkingRange>(*m_pRange); });
        action("assign", 1, {real, real}, [this](const Operation& operation) {
            TalkingRange other(operation.real(0), operation.real(1), 1.0, 2.0, 3.0);
            other = *m_pRange;
            *m_pRange = other;
        });
    }

protected:
    void make(const Operation& beginning) override {
        m_pWarnings = std::make_unique<support::Warnings>();
        m_pRange = beginning.flag(0)
                       ? std::make_unique<TalkingRange>(beginning.real(1), beginning.real(2),
                                                        beginning.real(3), beginning.real(4),
                                                        beginning.real(5))
                       : std::make_unique<TalkingRange>();
        m_pRange->m_tell = [this](const std::string& line) { tell(line); };
    }

    void unmake() override {
        m_pRange.reset();
        m_pWarnings.reset();
    }

    std::string state() override {
        const std::string warnings =
            std::to_string(m_pWarnings->lines().size()) + " warnings" +
            (m_pWarnings->lines().empty() ? "" : ", the last: ") +
            (m_pWarnings->lines().empty() ? "" : m_pWarnings->lines().back());
        return shown(m_pRange->value()) + " before " + shown(m_pRange->prevValue()) + " in " +
               shown(m_pRange->minValue()) + ".." + shown(m_pRange->maxValue()) + " by " +
               shown(m_pRange->lineStep()) + ", " + shown(m_pRange->pageStep()) + "; " + warnings;
    }

    std::string brokenPromise() override {
        if (m_pRange->lineStep() < 0.0 || m_pRange->pageStep() < 0.0)
            return "a negative step";
        // A reversed range, which a constructor takes as it is, has no inside.
        const double value = m_pRange->value();
        const bool inside = value == m_pRange->bound(value) || value != value;
        return inside || m_pRange->minValue() > m_pRange->maxValue() ? "" : "the value is outside";
    }

    std::size_t mostLines(const Operation&) const override { return 3; }

private:
    void number(const std::string& name, int weight,
                const std::function<void(TalkingRange&, double)>& set) {
        action(name, weight, {m_taste.real()},
               [this, set](const Operation& operation) { set(*m_pRange, operation.real(0)); });
    }

    void plain(const std::string& name, void (TEVU::CRangeControl::*step)()) {
        action(name, 2, {}, [this, step](const Operation&) { (*m_pRange.*step)(); });
    }

    std::unique_ptr<support::Warnings> m_pWarnings;
    std::unique_ptr<TalkingRange> m_pRange;
};

} // namespace

std::unique_ptr<Subject> rangeControl(Stage& stage, const Taste& taste) {
    return std::make_unique<RangeControlSubject>(stage, taste);
}

} // namespace differential
