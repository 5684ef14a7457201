#ifndef RUQGUI_TESTS_DIFFERENTIAL_SUBJECT_H
#define RUQGUI_TESTS_DIFFERENTIAL_SUBJECT_H

#include "Operation.h"
#include "Random.h"
#include "Stage.h"
#include "Taste.h"

#include <Recorder.h>
#include <functional>
#include <string>
#include <vector>

namespace differential {

/// One class under random operations: what can be done to it, and what can be seen of it.
///
/// A case is a sequence of operations on fresh objects, the first of which says how they are made.
/// Cases know nothing of each other.
class Subject {
public:
    Subject(Stage& stage, const Taste& taste);
    Subject(const Subject&) = delete;
    Subject& operator=(const Subject&) = delete;
    virtual ~Subject();

    /// As data: nothing of it depends on what the operations do.
    Operations randomCase(Random& random, int length) const;

    /// The log of a case: each operation, what was announced during it, and the state after it. A
    /// line that begins with c_broken tells of a broken promise. Unknown operations are left out.
    support::Lines run(const Operations& operations);

    static constexpr const char* c_broken = "BROKEN: ";

protected:
    using Performance = std::function<void(const Operation&)>;

    /// The operation that a case begins with.
    void beginning(const std::vector<Source>& arguments);
    /// \a weight is how often it comes, in relation to the others.
    void action(const std::string& name, int weight, const std::vector<Source>& arguments,
                Performance performance);

    virtual void make(const Operation& beginning) = 0;
    virtual void unmake() = 0;
    /// Comes after each operation: makes anew what it has destroyed.
    virtual void revive() {}
    virtual std::string state() = 0;
    /// What must hold after each operation and does not; empty if all is well.
    virtual std::string brokenPromise() { return ""; }
    /// How many lines an operation may cause: the bound of its work.
    virtual std::size_t mostLines(const Operation&) const { return 200; }

    void tell(const std::string& line) { m_stage.recorder().add(line); }

    Stage& m_stage;
    const Taste m_taste;

private:
    struct Action {
        std::string name;
        int weight;
        std::vector<Source> arguments;
        Performance performance;
    };

    const Action& randomAction(Random& random) const;
    const Action* find(const std::string& name) const;
    void perform(const Operation& operation, support::Lines& log);

    std::vector<Source> m_vBeginning;
    std::vector<Action> m_vActions;
    int m_nWeights = 0;
};

} // namespace differential

#endif
