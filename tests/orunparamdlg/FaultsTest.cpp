#include "GeneratedDialogTest.h"

#include <CountedValue.h>
#include <memory>
#include <qapplication.h>
#include <qt3/Pointer.h>
#include <qt3/Widget.h>
#include <ruqlib2core/CException.h>
#include <ruqlib2core/CPluginBase.h>
#include <ruqlib2core/CValueBool.h>
#include <stdexcept>

// What goes wrong in each of the plug-in's calls reaches the application, and leaves nothing behind.

using namespace maps;
using TEVU::CPluginBase;
using TEVU::CValueMap;

namespace {

const char c_plugin[] = "plugwdgt_orunparamdlg::autodlg";

/// What happens before the real plug-in gets its calls.
struct StSpy {
    std::vector<std::string> calls;
    int nPlugins = 0;
    std::function<void(CValueMap&)> beforeInit = [](CValueMap&) {};
    std::function<void(CValueMap&)> beforeSetup = [](CValueMap&) {};
    std::function<void(CValueMap&)> beforeExecute = [](CValueMap&) {};
};

StSpy* g_spy = nullptr;

CPluginBase* createSpying();

/// The plug-in out of the shared object, not the registered one.
CPluginBase* loadReal() {
    TEVU::RegisterPlugin(c_plugin, nullptr);
    CPluginBase* const real = TEVU::GetNewPluginInstance(c_plugin);
    TEVU::RegisterPlugin(c_plugin, createSpying);
    return real;
}

/// Stands between the wrapper and the real plug-in, and looks at each call.
class CSpyingPlugin : public CPluginBase {
public:
    CSpyingPlugin() : m_real(loadReal()) { ++g_spy->nPlugins; }
    ~CSpyingPlugin() override { --g_spy->nPlugins; }

    void Init(CValue* reserved, CValueMap& init) override {
        g_spy->calls.push_back("Init");
        g_spy->beforeInit(init);
        m_real->Init(reserved, init);
    }

    void Setup(CValueMap& setup) override {
        g_spy->calls.push_back("Setup");
        g_spy->beforeSetup(setup);
        m_real->Setup(setup);
    }

    void Execute(CValueMap& setup) override {
        g_spy->calls.push_back("Execute");
        g_spy->beforeExecute(setup);
        m_real->Execute(setup);
    }

private:
    std::unique_ptr<CPluginBase> m_real;
};

CPluginBase* createSpying() {
    return new CSpyingPlugin;
}

class FaultsTest : public GeneratedDialogTest {
protected:
    FaultsTest() {
        g_spy = &m_spy;
        TEVU::RegisterPlugin(c_plugin, createSpying);
        describe(entry("integer", "a", "", {{"max", whole(9)}}));
        CountedValue::StartCounting();
        m_app.m_parameters.SetEntry("mark", new CountedValue(1)); // in every copy too
    }

    ~FaultsTest() override {
        TEVU::RegisterPlugin(c_plugin, nullptr);
        g_spy = nullptr;
    }

    /// Shows the dialog, and expects that nothing of it is left.
    std::string failure() {
        std::string message;
        try {
            m_app.show();
            ADD_FAILURE() << "nothing was thrown";
        } catch (const TEVU::CException& thrown) {
            message = thrown.Message();
        } catch (const std::exception& thrown) {
            message = thrown.what();
        }
        EXPECT_EQ(CountedValue::s_nAlive, 1) << "a map is still there";
        EXPECT_EQ(m_spy.nPlugins, 0) << "a plug-in is still there";
        EXPECT_EQ(m_app.m_nTaken, 0);
        return message;
    }

    static void spoil(CValueMap& map) { map.SetEntry("parameters", maps::map({{"a", text("x")}})); }

    static constexpr const char* c_spoilt = "parameter \"a\" must be a whole number, not a text";

    StSpy m_spy;
};

} // namespace

TEST_F(FaultsTest, ThereAreNoneInTheRealPlugin) {
    EXPECT_EQ(okAfter().substr(0, 6), "{a: 0,");
    EXPECT_EQ(m_spy.calls, (Lines{"Init", "Setup", "Execute"}));
    EXPECT_EQ(CountedValue::s_nAlive, 1);
    EXPECT_EQ(m_spy.nPlugins, 0);
}

TEST_F(FaultsTest, FaultyDescriptionFailsTheInitialisation) {
    describe(entry("integer", "a", "", {{"max", text("9")}}));
    EXPECT_EQ(failure(), "entry \"a\": \"max\" must be a whole number, not a text");
    EXPECT_EQ(m_spy.calls, Lines{"Init"});
}

TEST_F(FaultsTest, UnknownKindFailsTheInitialisation) {
    describe(entry("slider", "a", ""));
    EXPECT_NE(failure().find("entry \"a\": \"kind\" must be one of"), std::string::npos);
    EXPECT_EQ(m_spy.calls, Lines{"Init"});
}

TEST_F(FaultsTest, MissingDescriptionFailsTheInitialisation) {
    m_spy.beforeInit = [](CValueMap& init) { init.RemoveEntry("dialog"); };
    EXPECT_EQ(failure(), "\"dialog\" is missing");
    EXPECT_EQ(m_spy.calls, Lines{"Init"});
}

TEST_F(FaultsTest, DescriptionOfAnyOtherTypeFailsTheInitialisation) {
    for (const Type type : c_allTypes) {
        if (type == Map)
            continue;
        m_spy.beforeInit = [=](CValueMap& init) { init.SetEntry("dialog", sample(type)); };
        EXPECT_EQ(failure(), "\"dialog\" must be a map, not " + inWords(type));
    }
}

TEST_F(FaultsTest, FaultyParameterFailsTheInitialisation) {
    m_app.m_parameters.SetEntry("a", whole(10));
    EXPECT_EQ(failure(), "parameter \"a\" must be between -2147483648 and 9, not 10");
    EXPECT_EQ(m_spy.calls, Lines{"Init"});
}

TEST_F(FaultsTest, ParametersOfAnyOtherTypeFailTheInitialisation) {
    for (const Type type : c_allTypes) {
        if (type == Map)
            continue;
        m_spy.beforeInit = [=](CValueMap& init) { init.SetEntry("parameters", sample(type)); };
        EXPECT_EQ(failure(), "\"parameters\" must be a map, not " + inWords(type));
    }
}

TEST_F(FaultsTest, FaultyParameterFailsTheSetup) {
    m_spy.beforeSetup = spoil;
    EXPECT_EQ(failure(), c_spoilt);
    EXPECT_EQ(m_spy.calls, (Lines{"Init", "Setup"}));
}

TEST_F(FaultsTest, FaultyParameterFailsTheExecution) {
    m_spy.beforeExecute = spoil;
    EXPECT_EQ(failure(), c_spoilt);
    EXPECT_EQ(m_spy.calls, (Lines{"Init", "Setup", "Execute"}));
}

TEST_F(FaultsTest, ForeignFaultsPassThroughEachCall) {
    const auto fail = [](CValueMap&) { throw std::runtime_error("no more"); };
    m_spy.beforeExecute = fail;
    EXPECT_EQ(failure(), "no more");
    m_spy.beforeSetup = fail;
    EXPECT_EQ(failure(), "no more");
    m_spy.beforeInit = fail;
    EXPECT_EQ(failure(), "no more");
    EXPECT_EQ(m_spy.calls, (Lines{"Init", "Setup", "Execute", "Init", "Setup", "Init"}));
}

TEST_F(FaultsTest, FaultAfterTheUserSaidOkLeavesNothingBehind) {
    struct CRefusing : CAppDialog {
        bool SetParameterValue(CValueMap&) override { throw std::runtime_error("no more"); }
    } refusing;
    refusing.m_description = m_app.m_description;
    user.expectDialog({}).act([](QWidget* dialog) { press(dialog, "ok"); });
    EXPECT_THROW(refusing.show(), std::runtime_error);
    EXPECT_EQ(m_spy.nPlugins, 0);
}

TEST_F(FaultsTest, DialogThatFailedCanBeShownAgain) {
    m_spy.beforeSetup = spoil;
    failure();
    m_spy.beforeSetup = [](CValueMap&) {};
    EXPECT_EQ(okAfter().substr(0, 6), "{a: 0,");
}

// The plug-in alone

namespace {

std::string failureOf(const std::function<void()>& call) {
    try {
        call();
    } catch (const TEVU::CException& thrown) {
        return thrown.Message();
    }
    return "";
}

} // namespace

TEST_F(FaultsTest, CallsBeforeTheInitialisationAreRefused) {
    const std::unique_ptr<CPluginBase> plugin(TEVU::GetNewPluginInstance(c_plugin));
    CValueMap setup;
    EXPECT_EQ(failureOf([&] { plugin->Setup(setup); }),
              "\"dialog\" is missing: Init() comes first");
    EXPECT_EQ(failureOf([&] { plugin->Execute(setup); }),
              "\"dialog\" is missing: Init() comes first");
}

TEST_F(FaultsTest, InitialisationThatFailedCountsAsNone) {
    const std::unique_ptr<CPluginBase> plugin(TEVU::GetNewPluginInstance(c_plugin));
    CValueMap init = taken(map({{"dialog", m_app.m_description.Clone()}}));
    plugin->Init(nullptr, init);
    CValueMap setup;
    plugin->Setup(setup);
    init.SetEntry("dialog", whole(1));
    EXPECT_EQ(failureOf([&] { plugin->Init(nullptr, init); }),
              "\"dialog\" must be a map, not a whole number");
    EXPECT_EQ(failureOf([&] { plugin->Setup(setup); }),
              "\"dialog\" is missing: Init() comes first");
}

TEST_F(FaultsTest, MapsStayAsTheyWereAfterAFault) {
    const std::unique_ptr<CPluginBase> plugin(TEVU::GetNewPluginInstance(c_plugin));
    CValueMap init = taken(map({{"dialog", m_app.m_description.Clone()}}));
    const std::string before = written(init);
    plugin->Init(nullptr, init);
    EXPECT_EQ(written(init), before);
    CValueMap setup = taken(map({{"parameters", map({{"a", text("x")}, {"b", whole(1)}})}}));
    EXPECT_EQ(failureOf([&] { plugin->Execute(setup); }), c_spoilt);
    EXPECT_EQ(written(setup), "{parameters: {a: \"x\", b: 1}}");
}

TEST_F(FaultsTest, DialogWhoseParentGoesIsCancelled) {
    auto* const window = new qt3::Widget;
    support::show(window); // the active window is the parent
    EXPECT_FALSE(show([=](QWidget*) { delete window; }));
}
