#include "CAutoDialogPluginWrapper.h"

#include "VirtualPlaces.h"

#include <cstddef>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <ruqlib2core/CException.h>
#include <ruqlib2core/CPluginBase.h>
#include <ruqlib2core/CValueBool.h>
#include <ruqlib2core/CValueLong.h>
#include <ruqlib2core/CValueMap.h>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <vector>

using support::placeOf;
using support::standInARow;
using TEVU::CValue;
using TEVU::CValueBool;
using TEVU::CValueLong;
using TEVU::CValueMap;

namespace {

using Lines = std::vector<std::string>;

const char c_plugin[] = "plugwdgt_orunparamdlg::autodlg";

/// A value that tells how many of it there are: one in a map shows whether the map is still there.
class CountedValue : public CValueLong {
public:
    explicit CountedValue(long value) : CValueLong(value) { ++s_nAlive; }
    CountedValue(const CountedValue& other) : CValueLong(other) { ++s_nAlive; }
    CountedValue& operator=(const CountedValue&) = default;
    ~CountedValue() override { --s_nAlive; }
    CountedValue* Clone() const override { return new CountedValue(*this); }

    static inline int s_nAlive = 0;
};

CValueMap* mapWith(const char* key, long value) {
    auto* map = new CValueMap;
    map->SetEntry(key, new CountedValue(value));
    return map;
}

/// Such as "{config user: true, parameters: {gain: 2}}".
std::string described(const CValue& value) {
    if (const auto* number = dynamic_cast<const CValueLong*>(&value))
        return std::to_string(number->Long());
    if (const auto* flag = dynamic_cast<const CValueBool*>(&value))
        return flag->Bool() ? "true" : "false";
    std::string text;
    const auto& map = dynamic_cast<const CValueMap&>(value);
    for (const TEVU::CValue_Key& key : map.Keys())
        text += (text.empty() ? "" : ", ") + key.String() + ": " + described(*map.Entry(key, true));
    return "{" + text + "}";
}

/// What happens in one test, in its order, and what the plug-in does in its calls.
struct StScript {
    Lines log;
    int nPlugins = 0;
    std::function<void()> create = [] {};
    std::function<void(CValueMap&)> init = [](CValueMap&) {};
    std::function<void(CValueMap&)> setup = [](CValueMap&) {};
    std::function<void(CValueMap&)> execute = [](CValueMap&) {};
    std::function<void()> destroy = [] {};
};

StScript* g_script = nullptr;

class CScriptedPlugin : public TEVU::CPluginBase {
public:
    CScriptedPlugin() {
        g_script->log.push_back("create");
        g_script->create();
        ++g_script->nPlugins;
    }

    ~CScriptedPlugin() override {
        g_script->log.push_back("destroy");
        g_script->destroy();
        --g_script->nPlugins;
    }

    void Init(CValue* reserved, CValueMap& init) override {
        g_script->log.push_back(std::string("Init(") + (reserved ? "value" : "null") + ", " +
                                described(init) + ")");
        g_script->init(init);
    }

    void Setup(CValueMap& setup) override {
        g_script->log.push_back("Setup(" + described(setup) + ")");
        g_script->setup(setup);
    }

    void Execute(CValueMap& setup) override {
        g_script->log.push_back("Execute(" + described(setup) + ")");
        g_script->execute(setup);
    }
};

TEVU::CPluginBase* createScripted() {
    return new CScriptedPlugin;
}

/// An application's dialog, which writes down what it is asked.
class CDialog : public TEVU::CAutoDialogPluginWrapper {
public:
    CValue* GetDialogValue() override {
        g_script->log.push_back("GetDialogValue");
        return m_dialog();
    }

    CValue* GetParameterValue() override {
        g_script->log.push_back("GetParameterValue");
        return m_parameters();
    }

    bool SetParameterValue(CValueMap& parameters) override {
        g_script->log.push_back("SetParameterValue(" + described(parameters) + ")");
        return m_accept(parameters);
    }

    std::function<CValue*()> m_dialog = [] { return mapWith("title", 1); };
    std::function<CValue*()> m_parameters = [] { return mapWith("gain", 2); };
    std::function<bool(CValueMap&)> m_accept = [](CValueMap&) { return true; };
};

/// What comes behind the operations of the base in the table of virtual functions.
class CLongerDialog : public CDialog {
public:
    virtual void Afterwards() {}
};

[[noreturn]] void fail() {
    throw std::runtime_error("no more");
}

/// The plug-in's map of parameters.
CValueMap& parametersOf(CValueMap& map) {
    return dynamic_cast<CValueMap&>(*map.Entry("parameters", true));
}

class AutoDialog : public testing::Test {
protected:
    AutoDialog() {
        CountedValue::s_nAlive = 0;
        g_script = &m_script;
        TEVU::RegisterPlugin(c_plugin, createScripted);
    }

    ~AutoDialog() override {
        EXPECT_EQ(CountedValue::s_nAlive, 0) << "a map is still there";
        EXPECT_EQ(m_script.nPlugins, 0) << "a plug-in is still there";
        TEVU::RegisterPlugin(c_plugin, nullptr);
        g_script = nullptr;
    }

    /// Puts a counted value into each map that the plug-in sees, so that none is lost unseen.
    void markMaps() {
        m_script.init = [](CValueMap& map) { map.SetEntry("mark", new CountedValue(8)); };
        m_script.setup = [](CValueMap& map) { map.SetEntry("mark", new CountedValue(9)); };
    }

    void expectFailureAfter(const Lines& log) {
        EXPECT_THROW(m_dialog.show(), std::runtime_error);
        EXPECT_EQ(m_script.log, log);
    }

    StScript m_script;
    CDialog m_dialog;
};

const char c_init[] = "Init(null, {dialog: {title: 1}, parameters: {gain: 2}})";
const char c_setup[] = "Setup({parameters: {gain: 2}})";
const char c_execute[] = "Execute({config user: true, parameters: {gain: 2}})";

} // namespace

static_assert(std::is_abstract_v<TEVU::CAutoDialogPluginWrapper>);
static_assert(std::has_virtual_destructor_v<TEVU::CAutoDialogPluginWrapper>);
static_assert(std::is_copy_constructible_v<CDialog> && std::is_copy_assignable_v<CDialog>);

// An application that was built before finds each by its place.
TEST(AutoDialogOperations, LieInTheirOrderBeforeTheDestructor) {
    const std::ptrdiff_t first = placeOf(&CLongerDialog::GetDialogValue);
    const std::ptrdiff_t last = placeOf(&CLongerDialog::SetParameterValue);
    EXPECT_EQ(first, 0);
    EXPECT_TRUE(standInARow({first, placeOf(&CLongerDialog::GetParameterValue), last}));
    EXPECT_GT(placeOf(&CLongerDialog::Afterwards), last + 1);
}

TEST_F(AutoDialog, CallsComeInTheirOrder) {
    EXPECT_TRUE(m_dialog.show());
    EXPECT_EQ(m_script.log, (Lines{"create", "GetDialogValue", "GetParameterValue", c_init, c_setup,
                                   c_execute, "SetParameterValue({gain: 2})", "destroy"}));
}

TEST_F(AutoDialog, EditedParametersAreTaken) {
    m_script.execute = [](CValueMap& setup) {
        parametersOf(setup).SetEntry("gain", new CountedValue(5));
    };
    EXPECT_TRUE(m_dialog.show());
    EXPECT_EQ(m_script.log[6], "SetParameterValue({gain: 5})");
}

TEST_F(AutoDialog, ParametersThatThePluginPutsInTheirPlaceAreTaken) {
    m_script.execute = [](CValueMap& setup) { setup.SetEntry("parameters", mapWith("new", 6)); };
    EXPECT_TRUE(m_dialog.show());
    EXPECT_EQ(m_script.log[6], "SetParameterValue({new: 6})");
}

TEST_F(AutoDialog, ParametersAreGivenAsTheyLieInTheResults) {
    CValueMap* left = nullptr;
    m_script.execute = [&](CValueMap& setup) { left = &parametersOf(setup); };
    m_dialog.m_accept = [&](CValueMap& parameters) { return &parameters == left; };
    EXPECT_TRUE(m_dialog.show());
}

TEST_F(AutoDialog, AnswerOfTheDerivedClassIsTheResult) {
    m_dialog.m_accept = [](CValueMap&) { return false; };
    EXPECT_FALSE(m_dialog.show());
    m_dialog.m_accept = [](CValueMap&) { return true; };
    EXPECT_TRUE(m_dialog.show());
}

TEST_F(AutoDialog, CancelledDialogLeavesTheDerivedClassAlone) {
    m_script.execute = [](CValueMap& setup) {
        parametersOf(setup).SetEntry("gain", new CountedValue(5));
        setup.SetEntry("cancelled", new CValueBool(true));
    };
    EXPECT_FALSE(m_dialog.show());
    EXPECT_EQ(m_script.log, (Lines{"create", "GetDialogValue", "GetParameterValue", c_init, c_setup,
                                   c_execute, "destroy"}));
}

TEST_F(AutoDialog, CancelledIsOnlyWhatIsATruthValueAndTrue) {
    m_script.execute = [](CValueMap& setup) { setup.SetEntry("cancelled", new CValueBool(false)); };
    EXPECT_TRUE(m_dialog.show());
    m_script.execute = [](CValueMap& setup) { setup.SetEntry("cancelled", new CValueLong(1)); };
    EXPECT_TRUE(m_dialog.show());
}

TEST_F(AutoDialog, CancelInTheSetupCountsWhenItIsStillThere) {
    m_script.setup = [](CValueMap& setup) { setup.SetEntry("cancelled", new CValueBool(true)); };
    EXPECT_FALSE(m_dialog.show());
}

TEST_F(AutoDialog, UserConfigurationIsSetBetweenSetupAndExecution) {
    m_script.setup = [](CValueMap& setup) { setup.SetEntry("config user", new CValueBool(false)); };
    bool user = false;
    m_script.execute = [&](CValueMap& setup) {
        EXPECT_TRUE(setup.HasEntry("config user", typeid(CValueBool)));
        user = setup.EntryBool("config user", false);
    };
    EXPECT_TRUE(m_dialog.show());
    EXPECT_EQ(m_script.log[4], c_setup);
    EXPECT_TRUE(user);
}

TEST_F(AutoDialog, SetupGetsACopyOfTheParameters) {
    const CValueMap* given = nullptr;
    m_script.init = [&](CValueMap& init) { given = &parametersOf(init); };
    m_script.setup = [&](CValueMap& setup) {
        EXPECT_NE(&parametersOf(setup), given);
        parametersOf(setup).SetEntry("gain", new CountedValue(7));
        EXPECT_EQ(described(*given), "{gain: 2}");
    };
    EXPECT_TRUE(m_dialog.show());
    EXPECT_EQ(m_script.log[6], "SetParameterValue({gain: 7})");
}

TEST_F(AutoDialog, SetupGetsTheParametersAsTheInitialisationLeftThem) {
    m_script.init = [](CValueMap& init) { init.SetEntry("parameters", mapWith("checked", 3)); };
    EXPECT_TRUE(m_dialog.show());
    EXPECT_EQ(m_script.log[4], "Setup({parameters: {checked: 3}})");
}

TEST_F(AutoDialog, SetupAndExecutionGetTheSameMapAndTheInitialisationAnotherOne) {
    std::vector<const CValueMap*> maps;
    const auto keep = [&](CValueMap& map) { maps.push_back(&map); };
    m_script.init = m_script.setup = m_script.execute = keep;
    EXPECT_TRUE(m_dialog.show());
    ASSERT_EQ(maps.size(), 3u);
    EXPECT_NE(maps[0], maps[1]);
    EXPECT_EQ(maps[1], maps[2]);
}

TEST_F(AutoDialog, ValuesAreHandedOverNotCopied) {
    const CValue* dialog = nullptr;
    const CValue* parameters = nullptr;
    m_dialog.m_dialog = [&] {
        CValueMap* map = mapWith("title", 1);
        dialog = map;
        return map;
    };
    m_dialog.m_parameters = [&] {
        CValueMap* map = mapWith("gain", 2);
        parameters = map;
        return map;
    };
    m_script.init = [&](CValueMap& init) {
        EXPECT_EQ(init.Entry("dialog", true), dialog);
        EXPECT_EQ(init.Entry("parameters", true), parameters);
    };
    EXPECT_TRUE(m_dialog.show());
}

TEST_F(AutoDialog, InitialisationMapLivesUntilTheDialogIsOver) {
    const CValueMap* init = nullptr;
    Lines seen;
    const auto look = [&](CValueMap&) {
        seen.push_back(described(*init));
        return true;
    };
    m_script.init = [&](CValueMap& map) { init = &map; };
    m_script.execute = look;
    m_dialog.m_accept = look;
    EXPECT_TRUE(m_dialog.show());
    EXPECT_EQ(seen, Lines(2, "{dialog: {title: 1}, parameters: {gain: 2}}"));
}

TEST_F(AutoDialog, PluginLivesUntilTheParametersAreTaken) {
    m_dialog.m_accept = [&](CValueMap&) { return m_script.nPlugins == 1; };
    EXPECT_TRUE(m_dialog.show());
}

TEST_F(AutoDialog, MapsGoBeforeThePluginWhoseValuesTheyMayHold) {
    std::vector<int> left;
    markMaps();
    m_script.destroy = [&] { left.push_back(CountedValue::s_nAlive); };

    EXPECT_TRUE(m_dialog.show());
    m_script.execute = [](CValueMap& setup) { setup.SetEntry("cancelled", new CValueBool(true)); };
    EXPECT_FALSE(m_dialog.show());
    m_script.execute = [](CValueMap&) { fail(); };
    EXPECT_THROW(m_dialog.show(), std::runtime_error);

    EXPECT_EQ(left, std::vector<int>(3, 0));
}

TEST_F(AutoDialog, DescriptionNeedsNoParticularType) {
    m_dialog.m_dialog = [] { return new CountedValue(4); };
    EXPECT_TRUE(m_dialog.show());
    EXPECT_EQ(m_script.log[3], "Init(null, {dialog: 4, parameters: {gain: 2}})");
}

TEST_F(AutoDialog, NullValuesAreNoEntries) {
    m_dialog.m_dialog = [] { return nullptr; };
    m_dialog.m_parameters = [] { return nullptr; };
    EXPECT_FALSE(m_dialog.show());
    EXPECT_EQ(m_script.log,
              (Lines{"create", "GetDialogValue", "GetParameterValue", "Init(null, {})", "Setup({})",
                     "Execute({config user: true})", "destroy"}));
}

TEST_F(AutoDialog, ParametersThatAreNoMapDoNotReachTheSetup) {
    m_dialog.m_parameters = [] { return new CountedValue(4); };
    EXPECT_FALSE(m_dialog.show());
    EXPECT_EQ(m_script.log, (Lines{"create", "GetDialogValue", "GetParameterValue",
                                   "Init(null, {dialog: {title: 1}, parameters: 4})", "Setup({})",
                                   "Execute({config user: true})", "destroy"}));
}

TEST_F(AutoDialog, ParametersRemovedByTheInitialisationDoNotReachTheSetup) {
    m_script.init = [](CValueMap& init) { init.RemoveEntry("parameters"); };
    m_script.execute = [](CValueMap& setup) { setup.SetEntry("parameters", mapWith("own", 5)); };
    EXPECT_TRUE(m_dialog.show());
    EXPECT_EQ(m_script.log[4], "Setup({})");
    EXPECT_EQ(m_script.log[6], "SetParameterValue({own: 5})");
}

TEST_F(AutoDialog, WithoutParametersInTheEndThereIsNothingToTake) {
    m_script.execute = [](CValueMap& setup) { setup.RemoveEntry("parameters"); };
    EXPECT_FALSE(m_dialog.show());
    EXPECT_EQ(m_script.log.back(), "destroy");
    EXPECT_EQ(m_script.log.size(), 7u);
}

TEST_F(AutoDialog, ParametersThatAreNoMapInTheEndAreNotTaken) {
    m_script.execute = [](CValueMap& setup) { setup.SetEntry("parameters", new CountedValue(4)); };
    EXPECT_FALSE(m_dialog.show());
    EXPECT_EQ(m_script.log.size(), 7u);
}

TEST_F(AutoDialog, EveryDialogHasAPluginOfItsOwn) {
    EXPECT_TRUE(m_dialog.show());
    const Lines first = m_script.log;
    m_script.log.clear();
    EXPECT_TRUE(m_dialog.show());
    EXPECT_EQ(m_script.log, first);
}

TEST_F(AutoDialog, DialogCanOpenAnotherOne) {
    CDialog inner;
    m_dialog.m_accept = [&](CValueMap& parameters) {
        const bool result = inner.show();
        EXPECT_EQ(m_script.nPlugins, 1);
        EXPECT_EQ(described(parameters), "{gain: 2}");
        return result;
    };
    EXPECT_TRUE(m_dialog.show());
}

TEST_F(AutoDialog, PluginThatCannotBeCreatedAsksTheDerivedClassNothing) {
    m_script.create = [] { throw TEVU::CException("plug-in", "no more"); };
    EXPECT_THROW(m_dialog.show(), TEVU::CException);
    EXPECT_EQ(m_script.log, Lines{"create"});
}

TEST_F(AutoDialog, FailingDescriptionLeavesNothingBehind) {
    m_dialog.m_dialog = []() -> CValue* { fail(); };
    expectFailureAfter({"create", "GetDialogValue", "destroy"});
}

TEST_F(AutoDialog, FailingParametersLeaveNothingBehind) {
    m_dialog.m_parameters = []() -> CValue* { fail(); };
    expectFailureAfter({"create", "GetDialogValue", "GetParameterValue", "destroy"});
}

TEST_F(AutoDialog, FailingInitialisationLeavesNothingBehind) {
    m_script.init = [](CValueMap& map) {
        map.SetEntry("mark", new CountedValue(8));
        fail();
    };
    expectFailureAfter({"create", "GetDialogValue", "GetParameterValue", c_init, "destroy"});
}

TEST_F(AutoDialog, FailingSetupLeavesNothingBehind) {
    markMaps();
    m_script.setup = [](CValueMap& map) {
        map.SetEntry("mark", new CountedValue(9));
        fail();
    };
    expectFailureAfter(
        {"create", "GetDialogValue", "GetParameterValue", c_init, c_setup, "destroy"});
}

TEST_F(AutoDialog, FailingExecutionLeavesNothingBehind) {
    markMaps();
    m_script.execute = [](CValueMap&) { fail(); };
    expectFailureAfter({"create", "GetDialogValue", "GetParameterValue", c_init, c_setup,
                        "Execute({config user: true, mark: 9, parameters: {gain: 2}})", "destroy"});
}

TEST_F(AutoDialog, FailingTakeOverLeavesNothingBehind) {
    markMaps();
    m_dialog.m_accept = [](CValueMap&) -> bool { fail(); };
    expectFailureAfter({"create", "GetDialogValue", "GetParameterValue", c_init, c_setup,
                        "Execute({config user: true, mark: 9, parameters: {gain: 2}})",
                        "SetParameterValue({gain: 2})", "destroy"});
}

TEST_F(AutoDialog, NothingIsLeftBehindAfterSuccessAndAfterCancel) {
    markMaps();
    EXPECT_TRUE(m_dialog.show());
    EXPECT_EQ(CountedValue::s_nAlive, 0);
    EXPECT_EQ(m_script.nPlugins, 0);

    m_script.execute = [](CValueMap& setup) { setup.SetEntry("cancelled", new CValueBool(true)); };
    EXPECT_FALSE(m_dialog.show());
    EXPECT_EQ(CountedValue::s_nAlive, 0);
    EXPECT_EQ(m_script.nPlugins, 0);
}
