#ifndef RUQGUI_TESTS_DIFFERENTIAL_COPYINGSUBJECT_H
#define RUQGUI_TESTS_DIFFERENTIAL_COPYINGSUBJECT_H

#include "WidgetSubject.h"

#include <algorithm>
#include <string>
#include <vector>

namespace differential {

/// A widget with copies of it. \a W is derived from the class under test, can be copied and
/// assigned, and tells its hooks by m_tell, a function that takes a line.
template <class W>
class CopyingSubject : public WidgetSubject {
public:
    using WidgetSubject::WidgetSubject;

protected:
    /// The original, which has the children; null after its death.
    W* first() const { return m_vAll.empty() ? nullptr : static_cast<W*>(m_vAll.front()); }
    QWidget* widget() override { return first(); }

    /// Whether a copy may be used when the original, with its children, is gone.
    virtual bool isUsableAlone() const { return true; }

    bool isAllGone() override {
        const auto isThere = [](const auto& each) { return !each.isNull(); };
        return std::none_of(m_vAll.begin(), m_vAll.end(), isThere);
    }

    /// Takes in the original or a copy.
    void adopt(W* one, const std::string& label) {
        m_vAll.emplace_back(one);
        one->m_tell = [this, label](const std::string& line) { tell(label + ' ' + line); };
        m_stage.recorder().tapAll(one, label);
    }

    void unmake() override {
        forgetTargets();
        m_vAll.clear();
    }

    /// An action of the original, or now and then of a copy.
    void onOne(const std::string& name, int weight, std::vector<Source> arguments,
               const std::function<void(W&, const Operation&)>& perform) {
        const std::size_t which = arguments.size();
        arguments.push_back(Taste::among({0, 0, 0, 0, 0, 0, 0, 1, 2}));
        action(name, weight, arguments, [this, which, perform](const Operation& operation) {
            const auto index = static_cast<unsigned>(operation.integer(which));
            W* const chosen = m_vAll.empty() ? nullptr : m_vAll[index % m_vAll.size()];
            if (chosen && (first() || isUsableAlone()))
                perform(*chosen, operation);
        });
    }

    // Copies come of the original and go to it: the others are hidden, also when their place is shown, and
    // learn of a size when the toolkit likes.
    void addCopyActions() {
        action("copy", 1, {}, [this](const Operation&) {
            if (!first() || m_vAll.size() > 2)
                return;
            W* const copy = new W(*first());
            copy->hide();
            adopt(copy, "copy" + std::to_string(m_vAll.size()));
        });
        onOne("assign", 1, {Taste::flag()}, [this](W& one, const Operation& operation) {
            W* const original = first();
            if (original && operation.flag(0) && original->isVisible())
                m_stage.withFocusRescued([&] { *original = one; }); // which may be disabled
            else if (original && !operation.flag(0))
                one = *original;
        });
        onOne("destroy", 1, {Taste::flag(20)}, [this](W& one, const Operation& operation) {
            if (&one == first() && !operation.flag(0))
                return;
            m_stage.withFocusRescued([&] { delete &one; });
            if (!isUsableAlone() && !first())
                deleteAll();
        });
    }

    template <class StateOf>
    std::string statesOfAll(StateOf stateOf) const {
        std::string state;
        for (const auto& each : m_vAll)
            state += "; " + (each ? stateOf(*each) : std::string("gone"));
        return state;
    }

    std::vector<qt3::Pointer<W>> m_vAll;

private:
    void deleteAll() {
        for (const auto& each : m_vAll)
            delete static_cast<W*>(each);
    }
};

} // namespace differential

#endif
