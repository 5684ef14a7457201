#include <ruqlib2core/CPluginBase.h>

#include "TestFolder.h"

#include <System.h>

#include <ruqlib2core/CException.h>
#include <ruqlib2core/CValueLong.h>
#include <ruqlib2core/CValuePointer.h>
#include <ruqlib2core/CValueString.h>
#include <ruqlib2core/PluginExport.h>

#include <memory>

using namespace TEVU;

namespace {

#ifdef _WIN32
const char* const c_ending = ".dll";
const char* const c_separator = ";";
#else
const char* const c_ending = ".so";
const char* const c_separator = ":";
#endif

class LinkedPlugin : public CPluginBase {
public:
    void Init(CValue*, CValueMap&) override {}
    void Setup(CValueMap&) override {}
    void Execute(CValueMap& setup) override {
        setup.SetEntry("result", new CValueString("linked"));
    }
};

class OtherLinkedPlugin : public LinkedPlugin {
public:
    void Execute(CValueMap& setup) override { setup.SetEntry("result", new CValueString("other")); }
};

CPluginBase* createLinked() {
    return new LinkedPlugin;
}

CPluginBase* createOtherLinked() {
    return new OtherLinkedPlugin;
}

CPluginBase* createNothing() {
    return nullptr;
}

std::string resultOf(const char* name) {
    const std::unique_ptr<CPluginBase> plugin(GetNewPluginInstance(name));
    CValueMap setup;
    plugin->Execute(setup);
    return setup.GetString("result", "no string");
}

/// The message with which the name is refused.
std::string refusalOf(const char* name) {
    try {
        const std::unique_ptr<CPluginBase> plugin(GetNewPluginInstance(name));
        return "not refused";
    } catch (const CException& failure) {
        EXPECT_EQ(failure.Place(), "GetNewPluginInstance");
        return failure.Message();
    }
}

bool contains(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

class CPluginBaseTest : public testing::Test {
protected:
    CPluginBaseTest() { support::setVariable("RUQ_PLUGIN_PATH", RUQ_TEST_PLUGINS); }
};

} // namespace

TEST_F(CPluginBaseTest, PluginFromALibraryDoesItsWork) {
    const std::unique_ptr<CPluginBase> plugin(GetNewPluginInstance("coretest_good::echo"));
    CValueMap init;
    init.SetEntry("text", new CValueString("ab"));
    CValueMap setup;

    plugin->Init(nullptr, init);
    plugin->Setup(setup);
    plugin->Execute(setup);

    EXPECT_EQ(setup.EntryString("setup"), "ab");
    EXPECT_EQ(setup.EntryString("result"), "abab");
}

TEST_F(CPluginBaseTest, TypesOfThePluginsValuesAreTheProgramsTypes) {
    const std::unique_ptr<CPluginBase> plugin(GetNewPluginInstance("coretest_good::echo"));
    CValueMap setup;

    plugin->Execute(setup);

    EXPECT_TRUE(setup.HasEntry("pointer", typeid(CValuePointer<CValueMap>)));
    EXPECT_TRUE(setup.HasEntry("result", typeid(CValueString)));
    const auto* pointer =
        dynamic_cast<const CValuePointer<CValueMap>*>(setup.Entry("pointer", true));
    ASSERT_NE(pointer, nullptr);
    EXPECT_EQ(pointer->Pointer(), &setup);
    EXPECT_EQ(pointer->PointedType(), typeid(CValueMap));
}

TEST_F(CPluginBaseTest, EachCallGivesANewObjectOfTheNamedClass) {
    const std::unique_ptr<CPluginBase> first(GetNewPluginInstance("coretest_good::counter"));
    const std::unique_ptr<CPluginBase> second(GetNewPluginInstance("coretest_good::counter"));
    CValueMap setup;

    first->Execute(setup);

    EXPECT_NE(first.get(), second.get());
    EXPECT_EQ(setup.EntryLong("result", 0), 1);
}

TEST_F(CPluginBaseTest, FoldersOfThePathAreSearchedInOrderAndEmptyOnesSkipped) {
    const std::string separator = c_separator;
    support::setVariable("RUQ_PLUGIN_PATH", separator + separator + "/missing" + separator +
                                                RUQ_TEST_PLUGINS + separator);

    EXPECT_EQ(resultOf("coretest_good::echo"), "");
}

TEST_F(CPluginBaseTest, FirstFolderWithTheLibraryWins) {
    TestFolder folder;
    folder.Write(std::string("coretest_good") + c_ending, "no shared object");
    support::setVariable("RUQ_PLUGIN_PATH", folder.Path("") + c_separator + RUQ_TEST_PLUGINS);

    EXPECT_TRUE(contains(refusalOf("coretest_good::echo"), "cannot be loaded"));
}

TEST_F(CPluginBaseTest, LibraryIsFoundWithoutAPathInThePluginFolderBesideTheLibraryAndTheProgram) {
    support::unsetVariable("RUQ_PLUGIN_PATH");

    EXPECT_EQ(resultOf("coretest_installed::echo"), "");
    EXPECT_EQ(resultOf("coretest_beside_library::echo"), "");
    EXPECT_EQ(resultOf("coretest_beside_program::echo"), "");
}

TEST_F(CPluginBaseTest, LibraryOfAnotherVersionIsRefusedWithBothVersions) {
    const std::string refusal = refusalOf("coretest_other_version::echo");

    const int expected = RUQ_PLUGIN_INTERFACE_VERSION;
    EXPECT_TRUE(contains(refusal, std::string("coretest_other_version") + c_ending)) << refusal;
    EXPECT_TRUE(contains(refusal, "version " + std::to_string(expected + 1))) << refusal;
    EXPECT_TRUE(contains(refusal, "expected is " + std::to_string(expected))) << refusal;
}

TEST_F(CPluginBaseTest, SharedObjectThatIsNoPluginIsRefused) {
    const std::string refusal = refusalOf("coretest_no_plugin::echo");

    EXPECT_TRUE(
        contains(refusal, std::string("coretest_no_plugin") + c_ending + ": is no plug-in library"))
        << refusal;
}

TEST_F(CPluginBaseTest, UnknownLibraryIsRefusedWithTheFoldersSearched) {
    const std::string refusal = refusalOf("unknown::echo");

    EXPECT_TRUE(contains(refusal, std::string("unknown") + c_ending)) << refusal;
    EXPECT_TRUE(contains(refusal, RUQ_TEST_PLUGINS)) << refusal;
}

TEST_F(CPluginBaseTest, UnknownClassIsRefusedWithItsName) {
    const std::string refusal = refusalOf("coretest_good::unknown");

    EXPECT_TRUE(contains(refusal, std::string("coretest_good") + c_ending)) << refusal;
    EXPECT_TRUE(contains(refusal, "\"unknown\": there is none")) << refusal;
}

TEST_F(CPluginBaseTest, FailureOfTheConstructionIsTheCause) {
    EXPECT_TRUE(contains(refusalOf("coretest_failing::ours"), "Plugin: no licence"));
    EXPECT_TRUE(contains(refusalOf("coretest_failing::standard"), "no memory"));
    EXPECT_TRUE(contains(refusalOf("coretest_failing::number"), "unknown type"));
    EXPECT_TRUE(contains(refusalOf("coretest_failing::nothing"), "creates nothing"));
    try {
        GetNewPluginInstance("coretest_failing::ours");
        FAIL() << "no exception";
    } catch (const CException& failure) {
        ASSERT_NE(failure.Cause(), nullptr);
        EXPECT_EQ(failure.Cause()->Message(), "no licence");
    }
}

TEST_F(CPluginBaseTest, NamesOfAnotherFormAreRefused) {
    for (const char* name : {"", "echo", "::echo", "coretest_good::", ":", "coretest_good:echo"})
        EXPECT_TRUE(contains(refusalOf(name), "library::class")) << name;
    EXPECT_TRUE(contains(refusalOf(nullptr), "library::class"));
    EXPECT_TRUE(contains(refusalOf("../plugins/coretest_good::echo"), "not a path"));
}

TEST_F(CPluginBaseTest, RegisteredPluginIsFoundByItsName) {
    RegisterPlugin("linked::plugin", createLinked);

    EXPECT_EQ(resultOf("linked::plugin"), "linked");
}

TEST_F(CPluginBaseTest, RegisteringAgainReplaces) {
    RegisterPlugin("linked::plugin", createLinked);

    RegisterPlugin("linked::plugin", createOtherLinked);

    EXPECT_EQ(resultOf("linked::plugin"), "other");
}

TEST_F(CPluginBaseTest, RegisteredPluginComesBeforeTheLibrary) {
    RegisterPlugin("coretest_good::echo", createLinked);
    EXPECT_EQ(resultOf("coretest_good::echo"), "linked");

    RegisterPlugin("coretest_good::echo", nullptr);
    EXPECT_EQ(resultOf("coretest_good::echo"), "");
}

TEST_F(CPluginBaseTest, RegisteredFunctionThatCreatesNothingIsAnException) {
    RegisterPlugin("linked::nothing", createNothing);

    EXPECT_TRUE(contains(refusalOf("linked::nothing"), "creates nothing"));
}
