#include "Random.h"

#include "KeyTable.h"
#include "Maps.h"

#include <DialogParameters.h>
#include <gtest/gtest.h>
#include <memory>
#include <optional>
#include <random>
#include <ruqlib2core/CException.h>

using namespace autodlg;
using namespace maps;
using random_maps::Dice;
using random_maps::Outcome;
using TEVU::CValueMap;

namespace {

const int c_nMapsASeed = 25000; // with four seeds 10^5

/// The same numbers on every machine.
Dice diceFrom(std::mt19937& engine) {
    return [&engine](unsigned limit) { return static_cast<unsigned>(engine() % limit); };
}

class RandomTest : public testing::TestWithParam<unsigned> {
protected:
    std::mt19937 m_engine{GetParam()};
    Dice m_dice = diceFrom(m_engine);
};

} // namespace

TEST_P(RandomTest, DescriptionsAndParametersAreRefusedOrSurviveStoring) {
    int counts[3] = {0, 0, 0};
    for (int i = 0; i < c_nMapsASeed; ++i) {
        try {
            ++counts[static_cast<int>(random_maps::check(m_dice))];
        } catch (const std::logic_error& violation) {
            FAIL() << "map " << i << ": " << violation.what();
        }
    }
    // Each way is gone often.
    EXPECT_GT(counts[static_cast<int>(Outcome::DescriptionRefused)], c_nMapsASeed / 10);
    EXPECT_GT(counts[static_cast<int>(Outcome::ParametersRefused)], c_nMapsASeed / 20);
    EXPECT_GT(counts[static_cast<int>(Outcome::Accepted)], c_nMapsASeed / 10);
}

// One thing wrong at a time, beside a model that knows what will be said

namespace {

/// A parameter as it was made, and where.
struct StMade {
    std::string kind;
    CValueMap entry;
    Texts groups;         ///< The keys of the groups around it.
    std::string location; ///< The same with the places of those that have none.
    int number;           ///< Its place in its vector.
};

/// Makes a valid description of a few parameters in groups, of which one then may be damaged.
class CMaker {
public:
    explicit CMaker(const Dice& dice) : m_dice(dice) {}

    CValueMap description() {
        m_made.clear();
        return dialogOf(entries({}, "", 0));
    }

    const std::vector<StMade>& made() const { return m_made; }

private:
    /// Damages none.
    std::vector<CValue*> entries(const Texts& groups, const std::string& location, int depth) {
        std::vector<CValue*> all;
        const int count = 1 + static_cast<int>(m_dice(2));
        for (int number = 0; number < count; ++number) {
            if (depth < 3 && m_dice(4) == 0)
                all.push_back(groupOf(groups, location, number, depth));
            else
                all.push_back(parameter(groups, location, number));
        }
        return all;
    }

    CValue* groupOf(Texts groups, const std::string& location, int number, int depth) {
        std::string name = "#" + std::to_string(number);
        Entries more;
        if (m_dice(2) == 0) {
            name = newKey();
            groups.push_back(name);
            more = {{"key", text(name.c_str())}};
        }
        return group("group", entries(groups, location + name + '/', depth + 1), more);
    }

    CValue* parameter(const Texts& groups, const std::string& location, int number) {
        StMade made = {parameterKinds()[m_dice(10)], {}, groups, location, number};
        for (const StKeyRow& row : keysOf(made.kind)) {
            if (row.needed || m_dice(2) == 0)
                made.entry.SetEntry(row.key, row.valid());
        }
        made.entry.SetEntry("key", text(newKey().c_str()));
        m_made.push_back(made);
        return made.entry.Clone();
    }

    std::string newKey() { return "key" + std::to_string(m_nKeys++); }

    const Dice& m_dice;
    std::vector<StMade> m_made;
    int m_nKeys = 0;
};

std::string nameOf(const StMade& made, bool byKey) {
    if (!byKey)
        return '"' + made.location + '#' + std::to_string(made.number) + '"';
    Texts path = made.groups;
    path.push_back(made.entry.EntryString("key"));
    return '"' + joined(path) + '"';
}

/// Finds the parameter again in the description, by its key.
CValueMap* find(TEVU::CValueContainerBase& around, const std::string& key) {
    for (const TEVU::CValue_Key& index : around.Keys()) {
        auto* const inner = dynamic_cast<TEVU::CValueContainerBase*>(around.Entry(index, true));
        auto* const map = dynamic_cast<CValueMap*>(inner);
        if (map && map->GetString("key", "") == key)
            return map;
        if (CValueMap* const found = inner ? find(*inner, key) : nullptr)
            return found;
    }
    return nullptr;
}

std::string refusal(const CValueMap& description) {
    try {
        parseDescription(&description);
    } catch (const TEVU::CException& refused) {
        return refused.Message();
    }
    return "";
}

Type otherType(Type type, const Dice& dice) {
    Type other = type;
    while (sameType(other, type))
        other = c_allTypes[dice(8)];
    return other;
}

/// Damages one key, and gives what will be said; nothing if it may be missing.
std::string damage(CValueMap& entry, const StMade& made, const Dice& dice) {
    const std::vector<StKeyRow>& rows = keysOf(made.kind);
    const StKeyRow& row = rows[dice(static_cast<unsigned>(rows.size()))];
    const std::string subject =
        "entry " + nameOf(made, row.key != std::string("key")) + ": \"" + row.key + '"';
    switch (dice(3)) {
    case 0:
        entry.RemoveEntry(row.key);
        return row.needed ? subject + " is missing" : "";
    case 1:
        entry.SetEntry("unknown", sample(c_allTypes[dice(8)]));
        return "entry " + nameOf(made, true) + ": \"unknown\" is no key of the kind \"" +
               made.kind + '"';
    default:
        const Type type = otherType(row.type, dice);
        entry.SetEntry(row.key, sample(type));
        return subject + " must be " + inWords(row.type) + ", not " + inWords(type);
    }
}

/// The value that a parameter has by default, as the key table makes them.
Value defaultOf(const StMade& made) {
    const bool given = made.entry.HasEntry("default");
    if (made.kind == "integer")
        return given ? 5L : 0L;
    if (made.kind == "number")
        return given ? 2.5 : 0.0;
    if (made.kind == "range")
        return given ? StRange{2, 5} : StRange{0, 9};
    if (made.kind == "open files")
        return given ? Texts{"some", "more"} : Texts();
    if (made.kind == "choice")
        return std::string(given ? "y" : "x");
    if (made.kind == "switch")
        return given;
    if (made.kind == "color")
        return std::string(given ? "#012345" : "#ffffff");
    return std::string(given ? "some" : "");
}

Type typeOf(const StMade& made) {
    for (const StKeyRow& row : keysOf(made.kind)) {
        if (row.key == std::string("default"))
            return row.type;
    }
    return Null;
}

CValue* validValue(const StMade& made) {
    for (const StKeyRow& row : keysOf(made.kind)) {
        if (row.key == std::string("default"))
            return row.valid();
    }
    return nullptr;
}

/// The map that holds the parameter, made where it is missing.
CValueMap& holderIn(CValueMap& parameters, const Texts& groups) {
    CValueMap* holder = &parameters;
    for (const std::string& key : groups) {
        if (!holder->HasEntry(key))
            holder->SetEntry(key, new CValueMap);
        holder = dynamic_cast<CValueMap*>(holder->Entry(key, true));
    }
    return *holder;
}

} // namespace

namespace {

/// Random parameters for what was made, and what the model says of them.
struct StGiven {
    CValueMap parameters;
    std::vector<Value> values; ///< All of them, if there is no fault.
    std::string fault;         ///< The first one.

    void giveWrong(const StMade& made, const Dice& dice) {
        const Type type = otherType(typeOf(made), dice);
        give(made, sample(type));
        if (fault.empty())
            fault = "parameter " + nameOf(made, true) + " must be " + inWords(typeOf(made)) +
                    ", not " + inWords(type);
    }

    void giveValid(StMade made) {
        give(made, validValue(made));
        made.entry.SetEntry("default", validValue(made)); // the same value
        values.push_back(defaultOf(made));
    }

    void give(const StMade& made, CValue* value) {
        holderIn(parameters, made.groups).SetEntry(made.entry.EntryString("key"), value);
    }
};

StGiven givenTo(const std::vector<StMade>& all, const Dice& dice) {
    StGiven given;
    for (const StMade& made : all) {
        const unsigned way = dice(8);
        if (way == 0)
            given.giveWrong(made, dice);
        else if (way < 4)
            given.giveValid(made);
        else
            given.values.push_back(defaultOf(made));
    }
    return given;
}

} // namespace

TEST_P(RandomTest, EveryFaultIsToldAsTheModelSays) {
    CMaker maker(m_dice);
    int nDamaged = 0;
    int nWrong = 0;
    for (int i = 0; i < c_nMapsASeed; ++i) {
        CValueMap description = maker.description();
        const std::vector<StMade>& made = maker.made();
        ASSERT_FALSE(made.empty());

        const StGiven given = givenTo(made, m_dice);
        try {
            const StDialog dialog = parseDescription(&description);
            ASSERT_EQ(readParameters(dialog, given.parameters), given.values);
            ASSERT_EQ(given.fault, "");
        } catch (const TEVU::CException& refused) {
            ASSERT_EQ(refused.Message(), given.fault) << written(description);
            ++nWrong;
        }

        const StMade& victim = made[m_dice(static_cast<unsigned>(made.size()))];
        CValueMap* const entry = find(description, victim.entry.EntryString("key"));
        const std::string fault = damage(*entry, victim, m_dice);
        ASSERT_EQ(refusal(description), fault) << written(description);
        nDamaged += fault.empty() ? 0 : 1;
    }
    EXPECT_GT(nDamaged, c_nMapsASeed / 2);
    EXPECT_GT(nWrong, c_nMapsASeed / 10);
}

#ifdef _WIN32 // once more the same code: one seed shows whether it does the same
const unsigned c_nSeeds = 1;
#else
const unsigned c_nSeeds = 4;
#endif

INSTANTIATE_TEST_SUITE_P(Seeds, RandomTest, testing::Range(1u, c_nSeeds + 1));
