#include "CValueMapFileVersionHandling.h"

#include "Events.h"
#include "ModalDriver.h"
#include "Warnings.h"

#include <cstdio>
#include <gtest/gtest.h>
#include <memory>
#include <qt3/Application.h>
#include <qwidget.h>
#include <ruqlib2core/CException.h>
#include <ruqlib2core/CValueLong.h>
#include <ruqlib2core/CValueMap.h>
#include <ruqlib2core/CValueString.h>
#include <string>
#include <vector>

using TEVU::CValueLong;
using TEVU::CValueMap;
using TEVU::CValueMapFileVersionHandling;
using TEVU::CValueString;

namespace {

using Lines = std::vector<std::string>;

/// A string that is an entry of another class.
class COtherString : public CValueString {
public:
    using CValueString::CValueString;
    COtherString* Clone() const override { return new COtherString(*this); }
};

CValueMap stamped(const char* identifier, const char* version) {
    CValueMap map;
    map.SetEntry("id", new CValueString(identifier));
    map.SetEntry("version", new CValueString(version));
    map.SetEntry("gain", new CValueLong(3));
    return map;
}

/// The map as "key=text" lines; what is no string is "key".
Lines entries(const CValueMap& map) {
    Lines lines;
    for (const TEVU::CValue_Key& key : map.Keys()) {
        const auto* text = dynamic_cast<const CValueString*>(map.Entry(key, true));
        lines.push_back(key.String() + (text ? "=" + text->String() : ""));
    }
    return lines;
}

Lines members(const CValueMapFileVersionHandling& format) {
    return {format.m_sIdentifier, format.m_sVersion, format.m_sFamily, format.m_sRemainder};
}

/// Takes what goes to standard error while it lives.
class ErrorStream {
public:
    ErrorStream() { testing::internal::CaptureStderr(); }
    ErrorStream(const ErrorStream&) = delete;
    ErrorStream& operator=(const ErrorStream&) = delete;
    ~ErrorStream() {
        if (m_bCapturing)
            take();
    }

    std::string take() {
        m_bCapturing = false;
        std::fflush(stderr);
        return testing::internal::GetCapturedStderr();
    }

private:
    bool m_bCapturing = true;
};

/// A program with a window, and what its user and its console see of a check.
class FileVersionCheck : public testing::Test {
protected:
    FileVersionCheck() { qt3::setMainWidget(&m_window); }
    ~FileVersionCheck() override { qt3::setMainWidget(nullptr); }

    bool verify(CValueMap* map, const char* identifier, const char* version) {
        CValueMapFileVersionHandling format(identifier, version);
        return verify(map, &format, "scan.map", "settings", "Viewer");
    }

    bool verify(CValueMap* map, CValueMapFileVersionHandling* format, const char* fileName,
                const char* formatName, const char* context) {
        ErrorStream errors;
        const support::Warnings warnings; // the toolkit's own lines are not ours
        const bool result =
            format->VerifyLoadedMapWithErrorMessageBox(*map, fileName, formatName, context);
        m_sConsole = errors.take();
        return result;
    }

    QWidget m_window;
    support::ModalDriver m_driver;
    std::string m_sConsole;
};

const char c_refused[] = "Failed to load scan.map: not a settings file, but of type 'other:x:1'.";
const char c_asked[] = "File scan.map: not a settings file, but of type 'abq:y:2'. Load anyway?";
const char c_noticed[] = "File scan.map: Future version of settings file format  detected.\n"
                         "Some features my be unsupported";

} // namespace

TEST(FileVersionHandling, KeepsBothTextsAndSplitsTheIdentifier) {
    EXPECT_EQ(members(CValueMapFileVersionHandling("abc:x:1", "1.2")),
              (Lines{"abc:x:1", "1.2", "ab", "x:1"}));
    EXPECT_EQ(members(CValueMapFileVersionHandling("ab:x:1", "")),
              (Lines{"ab:x:1", "", "", "x:1"}));
    EXPECT_EQ(members(CValueMapFileVersionHandling("abc:x", "2")),
              (Lines{"abc:x", "2", "abc:x", ""}));
}

TEST(FileVersionHandling, MembersLieInTheirOrder) {
    const CValueMapFileVersionHandling format("abc", "1");
    EXPECT_LT(&format.m_sIdentifier, &format.m_sVersion);
    EXPECT_LT(&format.m_sVersion, &format.m_sFamily);
    EXPECT_LT(&format.m_sFamily, &format.m_sRemainder);
}

TEST(FileVersionHandling, CopyHasAllFourMembersAsTheyAre) {
    CValueMapFileVersionHandling original("abc:x:1", "1.2");
    original.m_sFamily = "changed"; // a copy splits nothing anew
    const CValueMapFileVersionHandling copy(original);
    original.m_sIdentifier = "later";

    EXPECT_EQ(members(copy), (Lines{"abc:x:1", "1.2", "changed", "x:1"}));
}

TEST(FileVersionHandling, AssignmentTakesOverAllFourMembersAsTheyAre) {
    CValueMapFileVersionHandling original("abc:x:1", "1.2");
    original.m_sRemainder = "changed";
    CValueMapFileVersionHandling target("other", "3");

    EXPECT_EQ(&(target = original), &target);

    EXPECT_EQ(members(target), (Lines{"abc:x:1", "1.2", "ab", "changed"}));
}

TEST(FileVersionHandling, StampIsTwoStrings) {
    CValueMap map;
    CValueMapFileVersionHandling("abc:x:1", "1.2").AddIdVersion(map);

    EXPECT_EQ(entries(map), (Lines{"id=abc:x:1", "version=1.2"}));
    EXPECT_TRUE(map.HasEntry("id", typeid(CValueString)));
    EXPECT_TRUE(map.HasEntry("version", typeid(CValueString)));
}

TEST(FileVersionHandling, StampReplacesAnOlderOneOfAnyType) {
    CValueMap map = stamped("old", "0");
    map.SetEntry("version", new CValueLong(4));
    CValueMapFileVersionHandling("abc", "1.2").AddIdVersion(map);

    EXPECT_EQ(entries(map), (Lines{"gain", "id=abc", "version=1.2"}));
}

TEST(FileVersionHandling, StampGoesAndTheRestStays) {
    CValueMap map = stamped("whatever", "9");
    const CValueMapFileVersionHandling format("abc", "1.2");
    format.RemoveIdVersion(map);
    EXPECT_EQ(entries(map), Lines{"gain"});

    format.RemoveIdVersion(map);
    EXPECT_EQ(entries(map), Lines{"gain"});
}

TEST(FileVersionHandling, IdIsAvailableOnlyAsAString) {
    const CValueMapFileVersionHandling format("abc", "1");
    CValueMap map;
    EXPECT_FALSE(format.IsIdAvailable(map));
    map.SetEntry("id", new CValueLong(1));
    EXPECT_FALSE(format.IsIdAvailable(map));
    map.SetEntry("id", new COtherString("abc"));
    EXPECT_FALSE(format.IsIdAvailable(map));
    map.SetEntry("id", new CValueString(""));
    EXPECT_TRUE(format.IsIdAvailable(map));
}

TEST(FileVersionHandling, GetIdGivesTheTextOfTheMap) {
    EXPECT_EQ(CValueMapFileVersionHandling("abc", "1").GetId(stamped("map's own", "2")),
              "map's own");
}

TEST(FileVersionHandling, GetIdNeedsNoFormat) {
    EXPECT_EQ(CValueMapFileVersionHandling::GetId(stamped("map's own", "2")), "map's own");
}

TEST(FileVersionHandling, MapWithoutIdMakesEveryQuestionAboutItThrow) {
    const CValueMapFileVersionHandling format("abc", "1");
    const CValueMap map;
    EXPECT_THROW(format.GetId(map), TEVU::CException);
    EXPECT_THROW(format.IsIdOk(map), TEVU::CException);
    EXPECT_THROW(format.IsIdCompatible(map), TEVU::CException);
}

TEST(FileVersionHandling, IdThatIsNoStringThrows) {
    CValueMap map;
    map.SetEntry("id", new CValueLong(1));
    EXPECT_THROW(CValueMapFileVersionHandling("abc", "1").GetId(map), TEVU::CException);
}

TEST(FileVersionHandling, IdIsOkOnlyWhenItIsTheSame) {
    const CValueMapFileVersionHandling format("abc:x:1", "1");
    EXPECT_TRUE(format.IsIdOk(stamped("abc:x:1", "2")));
    EXPECT_FALSE(format.IsIdOk(stamped("abc:x:2", "1")));
    EXPECT_FALSE(format.IsIdOk(stamped("ABC:x:1", "1")));
    EXPECT_FALSE(format.IsIdOk(stamped("abc:x:1 ", "1")));
}

TEST(FileVersionHandling, IdsAreCompatibleByTheCutFamily) {
    struct StRow {
        const char* sName;
        const char* sOwn;
        const char* sMap;
        bool bCompatible;
    };
    for (const StRow& row : {
             StRow{"the same", "abc:x:1", "abc:x:1", true},
             StRow{"other remainder", "abc:x:1", "abc:y:2", true},
             StRow{"the lost character does not count", "abc:x:1", "abq:x:1", true},
             StRow{"the character before does", "abc:x:1", "aqc:x:1", false},
             StRow{"all short ones are one family", "ab:x:1", "q:y:2", true},
             StRow{"a short one and an empty one", "ab:x:1", "", true},
             StRow{"one colon is no split", "abc:x:1", "abc:x", false},
             StRow{"without colons the whole counts", "ab", "abc:x:1", true},
             StRow{"without colons on both sides", "abc", "abd", false},
         }) {
        SCOPED_TRACE(row.sName);
        const CValueMapFileVersionHandling format(row.sOwn, "1");
        EXPECT_EQ(format.IsIdCompatible(stamped(row.sMap, "1")), row.bCompatible);
    }
}

TEST(FileVersionHandling, CompatibilityIsWithTheStoredFamily) {
    CValueMapFileVersionHandling format("abc:x:1", "1");
    format.m_sFamily = "other";
    EXPECT_FALSE(format.IsIdCompatible(stamped("abc:x:1", "1")));
    EXPECT_TRUE(format.IsIdCompatible(stamped("other", "1")));
}

TEST(FileVersionHandling, FutureVersionIsOneWithAGreaterNumber) {
    const CValueMapFileVersionHandling format("abc", "1.5");
    EXPECT_TRUE(format.IsAFutureFormatVersion(stamped("abc", "2.0")));
    EXPECT_TRUE(format.IsAFutureFormatVersion(stamped("abc", "1.6")));
    EXPECT_FALSE(format.IsAFutureFormatVersion(stamped("abc", "1.5")));
    EXPECT_FALSE(format.IsAFutureFormatVersion(stamped("abc", "1.50")));
    EXPECT_FALSE(format.IsAFutureFormatVersion(stamped("abc", "1.10")));
}

TEST(FileVersionHandling, VersionDoesNotDependOnTheIdentifier) {
    EXPECT_TRUE(CValueMapFileVersionHandling("abc", "1").IsAFutureFormatVersion(stamped("q", "2")));
}

TEST(FileVersionHandling, WithoutAVersionTextThereIsNoFutureOne) {
    const CValueMapFileVersionHandling format("abc", "1");
    CValueMap map;
    EXPECT_FALSE(format.IsAFutureFormatVersion(map));
    map.SetEntry("version", new CValueLong(2));
    EXPECT_FALSE(format.IsAFutureFormatVersion(map));
    map.SetEntry("version", new COtherString("2"));
    EXPECT_FALSE(format.IsAFutureFormatVersion(map));
}

TEST_F(FileVersionCheck, SameFormatPassesSilentlyAndLosesItsStamp) {
    for (const char* version : {"1.5", "1.50", "1.4", "0", "nothing"}) {
        SCOPED_TRACE(version);
        CValueMap map = stamped("abc:x:1", version);
        EXPECT_TRUE(verify(&map, "abc:x:1", "1.5"));
        EXPECT_EQ(m_sConsole, "");
        EXPECT_EQ(entries(map), Lines{"gain"});
    }
}

TEST_F(FileVersionCheck, SameFormatWithoutAVersionPassesSilently) {
    CValueMap map;
    map.SetEntry("id", new CValueString("abc"));
    EXPECT_TRUE(verify(&map, "abc", "1.5"));
    EXPECT_EQ(m_sConsole, "");
    EXPECT_EQ(entries(map), Lines{});
}

TEST_F(FileVersionCheck, VersionThatIsNoTextIsRemovedUnread) {
    CValueMap map = stamped("abc", "");
    map.SetEntry("version", new CValueLong(99));
    EXPECT_TRUE(verify(&map, "abc", "1.5"));
    EXPECT_EQ(m_sConsole, "");
    EXPECT_EQ(entries(map), Lines{"gain"});
}

TEST_F(FileVersionCheck, MapWithoutIdPassesUncheckedAndKeepsItsVersion) {
    CValueMap map;
    map.SetEntry("version", new CValueString("99"));
    EXPECT_TRUE(verify(&map, "abc", "1.5"));
    EXPECT_EQ(m_sConsole, "");
    EXPECT_EQ(entries(map), Lines{"version=99"});
}

TEST_F(FileVersionCheck, MapWithAnIdThatIsNoTextPassesUnchecked) {
    CValueMap map = stamped("", "99");
    map.SetEntry("id", new CValueLong(1));
    EXPECT_TRUE(verify(&map, "abc", "1.5"));
    EXPECT_EQ(m_sConsole, "");
    EXPECT_EQ(entries(map), (Lines{"gain", "id", "version=99"}));
}

TEST_F(FileVersionCheck, OtherFamilyIsRefusedWithAWarning) {
    CValueMap map = stamped("other:x:1", "99"); // of no interest any more: a future version
    m_driver.expectWarning({"Format error of settings", c_refused, {"OK"}})
        .under(&m_window)
        .answer("OK");

    EXPECT_FALSE(verify(&map, "abc:x:1", "1.5"));
    EXPECT_EQ(m_sConsole, std::string("Viewer: ") + c_refused + "\n");
    EXPECT_EQ(entries(map), (Lines{"gain", "id=other:x:1", "version=99"}));
}

TEST_F(FileVersionCheck, EscapeFromTheRefusalChangesNothing) {
    CValueMap map = stamped("other:x:1", "1");
    m_driver.expectWarning({"Format error of settings", c_refused}).escape();
    EXPECT_FALSE(verify(&map, "abc:x:1", "1.5"));
}

TEST_F(FileVersionCheck, SameFamilyIsLoadedWhenTheUserAgrees) {
    CValueMap map = stamped("abq:y:2", "1");
    m_driver.expectInformation({"Format error of settings", c_asked, {"OK", "Cancel"}})
        .under(&m_window)
        .answer("OK");

    EXPECT_TRUE(verify(&map, "abc:x:1", "1.5"));
    EXPECT_EQ(m_sConsole, std::string("Viewer: ") + c_asked + "\n");
    EXPECT_EQ(entries(map), Lines{"gain"});
}

TEST_F(FileVersionCheck, SameFamilyIsNotLoadedAfterCancel) {
    CValueMap map = stamped("abq:y:2", "99");
    m_driver.expectInformation({"Format error of settings", c_asked}).answer("Cancel");

    EXPECT_FALSE(verify(&map, "abc:x:1", "1.5"));
    EXPECT_EQ(m_sConsole, std::string("Viewer: ") + c_asked + "\n");
    EXPECT_EQ(entries(map), (Lines{"gain", "id=abq:y:2", "version=99"}));
}

TEST_F(FileVersionCheck, EscapeAndCloseAreCancel) {
    CValueMap map = stamped("abq:y:2", "1");
    m_driver.expectInformation({"Format error of settings", c_asked}).escape();
    EXPECT_FALSE(verify(&map, "abc:x:1", "1.5"));
    m_driver.expectInformation({"Format error of settings", c_asked}).close();
    EXPECT_FALSE(verify(&map, "abc:x:1", "1.5"));
    EXPECT_EQ(entries(map), (Lines{"gain", "id=abq:y:2", "version=1"}));
}

TEST_F(FileVersionCheck, ReturnLoadsAnyway) {
    CValueMap map = stamped("abq:y:2", "1");
    m_driver.expectInformation({"Format error of settings", c_asked}).enter();
    EXPECT_TRUE(verify(&map, "abc:x:1", "1.5"));
}

TEST_F(FileVersionCheck, FutureVersionIsLoadedWithANotice) {
    CValueMap map = stamped("abc:x:1", "2.0");
    m_driver
        .expectInformation({"Future version of settings file format  detected", c_noticed, {"OK"}})
        .under(&m_window)
        .answer("OK");

    EXPECT_TRUE(verify(&map, "abc:x:1", "1.5"));
    EXPECT_EQ(m_sConsole, std::string("Viewer: ") + c_noticed + "\n");
    EXPECT_EQ(entries(map), Lines{"gain"});
}

TEST_F(FileVersionCheck, EscapeFromTheNoticeLoadsToo) {
    CValueMap map = stamped("abc:x:1", "2.0");
    m_driver.expectInformation({{}, c_noticed}).escape();
    EXPECT_TRUE(verify(&map, "abc:x:1", "1.5"));
    EXPECT_EQ(entries(map), Lines{"gain"});
}

TEST_F(FileVersionCheck, OtherFormatInAFutureVersionAsksFirstAndThenTells) {
    CValueMap map = stamped("abq:y:2", "2.0");
    m_driver.expectInformation({"Format error of settings", c_asked}).answer("OK");
    m_driver.expectInformation({"Future version of settings file format  detected", c_noticed})
        .answer("OK");

    EXPECT_TRUE(verify(&map, "abc:x:1", "1.5"));
    EXPECT_EQ(m_sConsole, std::string("Viewer: ") + c_asked + "\nViewer: " + c_noticed + "\n");
    EXPECT_EQ(entries(map), Lines{"gain"});
}

TEST_F(FileVersionCheck, ConsoleIsToldBeforeEachBox) {
    const auto mark = [] { std::fputs("[box]\n", stderr); };
    CValueMap map = stamped("abq:y:2", "2.0");
    m_driver.expectInformation({}).before(mark).answer("OK");
    m_driver.expectInformation({}).before(mark).answer("OK");
    verify(&map, "abc:x:1", "1.5");
    EXPECT_EQ(m_sConsole,
              std::string("Viewer: ") + c_asked + "\n[box]\nViewer: " + c_noticed + "\n[box]\n");

    CValueMap foreign = stamped("other:x:1", "1");
    m_driver.expectWarning({}).before(mark).answer("OK");
    verify(&foreign, "abc:x:1", "1.5");
    EXPECT_EQ(m_sConsole, std::string("Viewer: ") + c_refused + "\n[box]\n");
}

TEST_F(FileVersionCheck, StampIsThereWhileTheUserIsAsked) {
    CValueMap map = stamped("abq:y:2", "2.0");
    const Lines whole = entries(map);
    m_driver.expectInformation({}).before([&] { EXPECT_EQ(entries(map), whole); }).answer("OK");
    m_driver.expectInformation({}).before([&] { EXPECT_EQ(entries(map), whole); }).answer("OK");
    EXPECT_TRUE(verify(&map, "abc:x:1", "1.5"));
}

TEST_F(FileVersionCheck, NamesThatLookLikeMarkersStayAsTheyAre) {
    CValueMapFileVersionHandling format("abc:x:1", "1.5");
    CValueMap foreign = stamped("%1%2%3", "1");
    const std::string refused = "Failed to load %3%2.map: not a %1 %3 file, but of type '%1%2%3'.";
    m_driver.expectWarning({"Format error of %1 %3", refused}).answer("OK");
    EXPECT_FALSE(verify(&foreign, &format, "%3%2.map", "%1 %3", "%1"));
    EXPECT_EQ(m_sConsole, "%1: " + refused + "\n");

    CValueMap relative = stamped("ab%1:%2:%3", "2");
    format.m_sFamily = "ab%";
    const std::string asked =
        "File %3%2.map: not a %1 %3 file, but of type 'ab%1:%2:%3'. Load anyway?";
    const std::string noticed = "File %3%2.map: Future version of %1 %3 file format  detected.\n"
                                "Some features my be unsupported";
    m_driver.expectInformation({"Format error of %1 %3", asked}).answer("OK");
    m_driver.expectInformation({"Future version of %1 %3 file format  detected", noticed})
        .answer("OK");
    EXPECT_TRUE(verify(&relative, &format, "%3%2.map", "%1 %3", "%1"));
    EXPECT_EQ(m_sConsole, "%1: " + asked + "\n%1: " + noticed + "\n");
}

TEST_F(FileVersionCheck, MarkupAndAcceleratorsStayAsTheyAre) {
    CValueMapFileVersionHandling format("abc", "1.5");
    CValueMap map = stamped("<i>x</i>", "1");
    const std::string refused =
        "Failed to load <b>R&D</b>: not a a<br>b file, but of type '<i>x</i>'.";
    m_driver.expectWarning({"Format error of a<br>b", refused}).answer("OK");
    EXPECT_FALSE(verify(&map, &format, "<b>R&D</b>", "a<br>b", "Viewer"));
    EXPECT_EQ(m_sConsole, "Viewer: " + refused + "\n");
}

TEST_F(FileVersionCheck, BytesBeyondAsciiAreShownAsLatin1AndWrittenAsTheyAre) {
    CValueMapFileVersionHandling format("abc", "1.5");
    CValueMap map = stamped("\xfc", "1");
    m_driver
        .expectWarning({"Format error of \xc3\xb6",
                        "Failed to load \xc3\xa4: not a \xc3\xb6 file, but of type '\xc3\xbc'."})
        .answer("OK");
    EXPECT_FALSE(verify(&map, &format, "\xe4", "\xf6", "Viewer"));
    EXPECT_EQ(m_sConsole, "Viewer: Failed to load \xe4: not a \xf6 file, but of type '\xfc'.\n");
}

TEST_F(FileVersionCheck, NullTextsCountAsEmpty) {
    CValueMapFileVersionHandling format("abc", "1.5");
    CValueMap map = stamped("abc", "2");
    const std::string noticed = "File : Future version of  file format  detected.\n"
                                "Some features my be unsupported";
    m_driver.expectInformation({"Future version of  file format  detected", noticed}).answer("OK");
    EXPECT_TRUE(verify(&map, &format, nullptr, nullptr, nullptr));
    EXPECT_EQ(m_sConsole, ": " + noticed + "\n");
}

TEST_F(FileVersionCheck, BoxesBelongToTheMainWidgetNotToTheActiveWindow) {
    QWidget active;
    support::show(&active);
    CValueMap map = stamped("abc", "2");
    m_driver.expectInformation({}).under(&m_window).answer("OK");
    EXPECT_TRUE(verify(&map, "abc", "1"));
}

TEST_F(FileVersionCheck, WithoutAnyWindowBoxesHaveNoParent) {
    qt3::setMainWidget(nullptr);
    CValueMap map = stamped("other", "1");
    m_driver.expectWarning({}).under(nullptr).answer("OK");
    EXPECT_FALSE(verify(&map, "abc", "1"));
}

TEST_F(FileVersionCheck, ChecksLeaveTheFormatAsItWas) {
    CValueMapFileVersionHandling format("abc:x:1", "1.5");
    CValueMap map = stamped("abq:y:2", "2.0");
    m_driver.expectInformation({}).answer("OK");
    m_driver.expectInformation({}).answer("OK");
    EXPECT_TRUE(verify(&map, &format, "scan.map", "settings", "Viewer"));
    EXPECT_EQ(members(format), (Lines{"abc:x:1", "1.5", "ab", "x:1"}));
}
