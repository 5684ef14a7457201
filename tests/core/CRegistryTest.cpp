#include "CRegistryTest.h"

#include "CountedValue.h"

#include <ruqlib2core/CValueBool.h>
#include <ruqlib2core/CValueDouble.h>
#include <ruqlib2core/CValuePointer.h>

#include <climits>
#include <cmath>
#include <limits>
#include <random>
#include <thread>

using namespace TEVU;
using namespace registry_tests;
using support::ChildProcess;
using support::inChild;

namespace {

/// For a child.
std::string setFirst(const ChildProcess::Arguments& text) {
    return setAndGet(text[0]);
}

/// Sets one entry after the other for ever, and tells each number when its entry is set.
void writeForEver(ChildProcess::Output& acknowledgements, const ChildProcess::Arguments& first) {
    for (long number = std::stol(first[0]);; ++number) {
        CRegistry::Obj().SetEntry("entry " + std::to_string(number), new CValueLong(number));
        acknowledgements.write(std::to_string(number) + "\n");
    }
}

void writeMany(ChildProcess::Output&, const ChildProcess::Arguments& prefix) {
    for (int number = 0; number < 100; ++number)
        CRegistry::Obj().SetEntry(prefix[0] + std::to_string(number), new CValueLong(number));
}

} // namespace

TEST_F(CRegistryTest, IsOneObject) {
    EXPECT_EQ(&CRegistry::Obj(), &CRegistry::Obj());
    EXPECT_EQ(CRegistry::Obj().FilePath(), m_folder.Path("registry.json"));
}

TEST_F(CRegistryTest, StartsEmptyWithoutAWordAndWithoutAFile) {
    const auto outcome = inChild([] { return std::to_string(CRegistry::Obj().Size()); });

    EXPECT_EQ(outcome.output, "0");
    EXPECT_EQ(outcome.errors, "");
    EXPECT_EQ(m_folder.Names(), Names{});
}

TEST_F(CRegistryTest, ValuesOfAllFourKindsSurviveExactly) {
    const std::string bytes("\0\xff\xc3\xa4\"bytes:", 12);
    const auto setAll = [](const ChildProcess::Arguments& arguments) -> std::string {
        const std::string& text = arguments[0];
        CRegistry& registry = CRegistry::Obj();
        registry.SetEntry("true", new CValueBool(true));
        registry.SetEntry("lowest", new CValueLong(LONG_MIN));
        registry.SetEntry("highest", new CValueLong(LONG_MAX));
        registry.SetEntry("minus zero", new CValueDouble(-0.0));
        registry.SetEntry("whole", new CValueDouble(3.0));
        registry.SetEntry("infinity", new CValueDouble(-std::numeric_limits<double>::infinity()));
        registry.SetEntry("nan", new CValueDouble(std::numeric_limits<double>::quiet_NaN()));
        registry.SetEntry("bytes", new CValueString(text));
        registry.SetEntry(text, new CValueString(text));
        return "";
    };
    inChild(setAll, {bytes});

    const CRegistry& registry = CRegistry::Obj();
    EXPECT_EQ(registry.Size(), 9u);
    EXPECT_TRUE(registry.EntryBool("true", false));
    EXPECT_EQ(registry.EntryLong("lowest", 0), LONG_MIN);
    EXPECT_EQ(registry.EntryLong("highest", 0), LONG_MAX);
    EXPECT_EQ(registry.EntryDouble("minus zero", 1.0), 0.0);
    EXPECT_TRUE(std::signbit(registry.EntryDouble("minus zero", 1.0)));
    EXPECT_TRUE(registry.HasEntry("whole", typeid(CValueDouble)));
    EXPECT_EQ(registry.EntryDouble("infinity", 0), -std::numeric_limits<double>::infinity());
    EXPECT_TRUE(std::isnan(registry.EntryDouble("nan", 0)));
    EXPECT_EQ(registry.EntryString("bytes"), bytes);
    EXPECT_EQ(registry.EntryString(bytes), bytes);
}

TEST_F(CRegistryTest, ChangeThroughTheBaseClassIsOnDiskAtOnce) {
    CValueContainerBase& base = CRegistry::Obj();

    base.SetEntry("a/b", new CValueLong(1));
    EXPECT_EQ(SettingsInFile(), (RegistryText::Settings{{"a/b", 1L}}));

    EXPECT_TRUE(base.RemoveEntry("a/b"));
    EXPECT_EQ(SettingsInFile(), RegistryText::Settings{});
    EXPECT_FALSE(base.RemoveEntry("a/b"));
}

TEST_F(CRegistryTest, ValueThatChangesNothingIsNotWritten) {
    CRegistry::Obj().SetEntry("key", new CValueDouble(0.0));
    const auto written = std::filesystem::last_write_time(m_folder.Path("registry.json"));
    std::filesystem::last_write_time(m_folder.Path("registry.json"),
                                     written - std::chrono::hours(1));

    CRegistry::Obj().SetEntry("key", new CValueDouble(0.0));
    CRegistry::Obj().RemoveEntry("another");
    EXPECT_LT(std::filesystem::last_write_time(m_folder.Path("registry.json")), written);

    CRegistry::Obj().SetEntry("key", new CValueDouble(-0.0));
    EXPECT_GE(std::filesystem::last_write_time(m_folder.Path("registry.json")), written);
}

TEST_F(CRegistryTest, SetValueIsTheEntryItself) {
    auto* value = new CValueString("text");
    CRegistry::Obj().SetEntry("key", value);

    EXPECT_EQ(CRegistry::Obj().Entry("key", true), value);
    CRegistry::Obj().SetEntry("key", value);
    EXPECT_EQ(CRegistry::Obj().Entry("key", true), value);
}

TEST_F(CRegistryTest, EachValueIsDeletedOnce) {
    CountedValue::StartCounting();
    CRegistry& registry = CRegistry::Obj();

    registry.SetEntry("a", new CountedValue(1));
    registry.SetEntry("a", new CountedValue(2));
    registry.SetEntry("b", new CountedValue(3));
    registry.RemoveEntry("a");
    registry.SetEntry("b", nullptr);

    EXPECT_EQ(CountedValue::s_nAlive, 0);
    EXPECT_EQ(CountedValue::s_nDeleted, 3);
}

TEST_F(CRegistryTest, ValuesOfOtherKindsLiveInMemoryOnlyAndRemoveTheStoredOne) {
    int number = 0;
    CRegistry& registry = CRegistry::Obj();
    registry.SetEntry("pointer", new CValueLong(1));
    registry.SetEntry("map", new CValueMap);

    registry.SetEntry("pointer", new CValuePointer<int>(&number));

    EXPECT_TRUE(registry.HasEntry("pointer", typeid(CValuePointer<int>)));
    EXPECT_TRUE(registry.HasEntry("map", typeid(CValueMap)));
    EXPECT_EQ(SettingsInFile(), RegistryText::Settings{});
    EXPECT_EQ(inChild([] { return std::to_string(CRegistry::Obj().HasEntry("key")); }).output, "0");
}

TEST_F(CRegistryTest, MemoryOnlyValuesStayWhenAnotherProcessWrites) {
    CRegistry::Obj().SetEntry("map", new CValueMap);

    inChild([] { return setAndGet("other"); });

    EXPECT_TRUE(CRegistry::Obj().HasEntry("map"));
    EXPECT_EQ(CRegistry::Obj().EntryString("key"), "other");
}

TEST_F(CRegistryTest, CloneIsAPlainMapThatDoesNotPersist) {
    CRegistry::Obj().SetEntry("key", new CValueLong(1));

    const std::unique_ptr<CValueMap> map(CRegistry::Obj().Clone());
    map->SetEntry("key", new CValueLong(2));

    EXPECT_EQ(CRegistry::Obj().EntryLong("key", 0), 1);
    EXPECT_EQ(SettingsInFile(), (RegistryText::Settings{{"key", 1L}}));
}

TEST_F(CRegistryTest, ReadsSeeWhatAnotherProcessWrites) {
    ASSERT_EQ(CRegistry::Obj().Size(), 0u);

    inChild([] { return setAndGet("first"); });
    EXPECT_EQ(CRegistry::Obj().EntryString("key"), "first");

    inChild([] { return setAndGet("other"); }); // as long as the first
    EXPECT_EQ(CRegistry::Obj().EntryString("key"), "other");

    inChild([] { return std::to_string(CRegistry::Obj().RemoveEntry("key")); });
    EXPECT_FALSE(CRegistry::Obj().HasEntry("key"));
}

TEST_F(CRegistryTest, EveryOneOfManyQuickChangesIsSeen) {
    // Files of one size that follow each other quickly may get the same number and time.
    for (int number = 10; number < 60; ++number) {
        const std::string text = std::to_string(number);
        inChild(setFirst, {text});
        ASSERT_EQ(CRegistry::Obj().GetString("key", ""), text);
    }
}

TEST_F(CRegistryTest, PointerStaysValidWhenAnotherProcessReplacesTheEntry) {
    setAndGet("mine");
    const auto* held = dynamic_cast<const CValueString*>(CRegistry::Obj().Entry("key", true));

    inChild([] { return setAndGet("other"); });
    ASSERT_EQ(CRegistry::Obj().EntryString("key"), "other");

    EXPECT_EQ(held->String(), "mine");
}

TEST_F(CRegistryTest, ValueWhoseEntryAnotherProcessHasReplacedMayBeGivenAgain) {
    const auto outcome = inChild([] {
        CRegistry& registry = CRegistry::Obj();
        auto* const value = new CValueString("mine");
        registry.SetEntry("key", value);
        inChild([] { return setAndGet("theirs"); });
        const std::string between = registry.GetString("key", "missing");
        registry.SetEntry("key", value);
        registry.SetEntry("other", new CValueString("x"));
        return between + " " + registry.GetString("key", "missing") + " " + value->String();
    });

    EXPECT_EQ(outcome.errors, "");
    EXPECT_EQ(outcome.output, "theirs mine mine");
    EXPECT_EQ(std::get<std::string>(SettingsInFile().at("key")), "mine");
}

TEST_F(CRegistryTest, ChangeKeepsWhatAnotherProcessHasWrittenMeanwhile) {
    CRegistry::Obj().SetEntry("mine", new CValueLong(1));
    inChild([] { return setAndGet("other"); });

    CRegistry::Obj().SetEntry("mine", new CValueLong(2));

    EXPECT_EQ(SettingsInFile(),
              (RegistryText::Settings{{"key", std::string("other")}, {"mine", 2L}}));
}

TEST_F(CRegistryTest, ProcessesThatWriteDifferentKeysLoseNone) {
    ChildProcess first(writeMany, {"first "});
    ChildProcess second(writeMany, {"second "});
    ChildProcess third(writeMany, {"third "});

    for (ChildProcess* process : {&first, &second, &third}) {
        const auto outcome = process->wait();
        EXPECT_EQ(outcome.status, 0);
        EXPECT_EQ(outcome.errors, "");
    }

    EXPECT_EQ(SettingsInFile().size(), 300u);
    EXPECT_EQ(m_folder.Names(), (Names{"registry.json", "registry.json.lock"}));
}

TEST_F(CRegistryTest, ProcessKilledAtAnyMomentLeavesAWholeFileWithEveryAcknowledgedEntry) {
    std::mt19937 random(20240131);
    long acknowledged = -1;
    std::size_t roundsWithRemains = 0;
    for (int round = 0; round < 100; ++round) {
        ChildProcess writer(writeForEver, {std::to_string(acknowledged + 1)});
        for (unsigned lines = random() % 4 + 1; lines > 0; --lines)
            acknowledged = std::stol(writer.readLine());
        std::this_thread::sleep_for(std::chrono::microseconds(random() % 3000));
        writer.kill();
        for (std::string line = writer.readLine(); !line.empty(); line = writer.readLine())
            acknowledged = std::stol(line);
        writer.wait();

        const RegistryText::Settings settings = SettingsInFile();
        for (long number = 0; number <= acknowledged; ++number)
            ASSERT_EQ(settings.count("entry " + std::to_string(number)), 1u) << number;
        ASSERT_LE(settings.size(), static_cast<std::size_t>(acknowledged) + 2) << "never begun";
        roundsWithRemains += m_folder.Names().size() > 2;
    }
    RecordProperty("roundsWithRemains", static_cast<int>(roundsWithRemains));

    CRegistry::Obj().SetEntry("last", new CValueBool(true));
    EXPECT_EQ(m_folder.Names(), (Names{"registry.json", "registry.json.lock"}));
}

TEST_F(CRegistryTest, MissingFoldersAreMade) {
    UseFile("some/folder/registry.json");

    const auto outcome = inChild([] { return setAndGet("text"); });

    EXPECT_EQ(outcome.output, "text");
    EXPECT_EQ(outcome.errors, "");
    EXPECT_TRUE(std::filesystem::exists(m_folder.Path("some/folder/registry.json")));
}

TEST_F(CRegistryTest, RelativePathIsThatOfTheFirstLook) {
    support::setVariable("RUQ_REGISTRY", "relative.json");
    std::filesystem::current_path(m_folder.Path(""));
    const auto outcome = inChild([] {
        CRegistry::Obj();
        std::filesystem::current_path("/");
        return setAndGet("text");
    });
    std::filesystem::current_path("/");

    EXPECT_EQ(outcome.errors, "");
    EXPECT_EQ(m_folder.Names(), (Names{"relative.json", "relative.json.lock"}));
}

TEST_F(CRegistryTest, CorruptFileIsKeptAsideWithALineAndTheRegistryStartsEmpty) {
    m_folder.Write("registry.json", "{\"key\": ");

    const auto outcome = inChild([] { return std::to_string(CRegistry::Obj().Size()); });

    EXPECT_EQ(outcome.output, "0");
    EXPECT_EQ(m_folder.Read("registry.json.unreadable-1"), "{\"key\": ");
    EXPECT_FALSE(std::filesystem::exists(m_folder.Path("registry.json")));
    EXPECT_EQ(linesIn(outcome.errors), 1u) << outcome.errors;
    EXPECT_NE(outcome.errors.find(m_folder.Path("registry.json.unreadable-1")), std::string::npos);
}

TEST_F(CRegistryTest, KeptFileIsNeverOverwritten) {
    m_folder.Write("registry.json.unreadable-1", "first");
    m_folder.Write("registry.json.unreadable-2", "second");
    m_folder.Write("registry.json", "third");

    const auto outcome = inChild([] { return setAndGet("text"); });

    EXPECT_EQ(outcome.output, "text");
    EXPECT_EQ(m_folder.Read("registry.json.unreadable-1"), "first");
    EXPECT_EQ(m_folder.Read("registry.json.unreadable-2"), "second");
    EXPECT_EQ(m_folder.Read("registry.json.unreadable-3"), "third");
    EXPECT_EQ(SettingsInFile().size(), 1u);
}

TEST_F(CRegistryTest, FileThatBecomesCorruptWhileInUseIsKeptAside) {
    setAndGet("text");
    m_folder.Write("registry.json", "broken by another program");

    EXPECT_FALSE(CRegistry::Obj().HasEntry("key"));
    EXPECT_EQ(m_folder.Read("registry.json.unreadable-1"), "broken by another program");
    EXPECT_EQ(setAndGet("again"), "again");
    EXPECT_EQ(SettingsInFile().size(), 1u);
}

TEST_F(CRegistryTest, HostileFilesAreKeptAside) {
    m_folder.Write("registry.json", std::string(1000000, '['));
    EXPECT_EQ(inChild([] { return setAndGet("text"); }).output, "text");

    m_folder.Write("registry.json", "");
    std::filesystem::resize_file(m_folder.Path("registry.json"), 65ull << 20);
    const auto outcome = inChild([] { return setAndGet("text"); });

    EXPECT_EQ(outcome.output, "text");
    EXPECT_EQ(linesIn(outcome.errors), 1u) << outcome.errors;
    EXPECT_EQ(SettingsInFile().size(), 1u);
    EXPECT_TRUE(std::filesystem::exists(m_folder.Path("registry.json.unreadable-2")));
}

TEST_F(CRegistryTest, FolderInPlaceOfTheFileCostsALineAndIsLeftAlone) {
    std::filesystem::create_directory(m_folder.Path("registry.json"));
    m_folder.Write("registry.json/precious", "data");

    const auto outcome = inChild([] { return setAndGet("text"); });

    EXPECT_EQ(outcome.output, "text");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(linesIn(outcome.errors), 2u)
        << outcome.errors; // one for the look, one for the change
    EXPECT_EQ(m_folder.Read("registry.json/precious"), "data");
}

TEST_F(CRegistryTest, FoldersThatCannotBeMadeCostALine) {
    m_folder.Write("file", "in the place of a folder");
    UseFile("file/none/registry.json");

    const auto outcome = inChild([] { return setAndGet("text"); });

    EXPECT_EQ(outcome.output, "text");
    EXPECT_EQ(linesIn(outcome.errors), 1u) << outcome.errors;
}
