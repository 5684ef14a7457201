#include "CValueMapFileVersionHandling.h"

#include "FormatModel.h"
#include "ModalDriver.h"
#include "Warnings.h"

#include <gtest/gtest.h>
#include <iostream>
#include <map>
#include <memory>
#include <optional>
#include <qt3/Application.h>
#include <qwidget.h>
#include <random>
#include <ruqlib2core/CException.h>
#include <ruqlib2core/CValueLong.h>
#include <ruqlib2core/CValueMap.h>
#include <ruqlib2core/CValuePointer.h>
#include <ruqlib2core/CValueString.h>
#include <ruqlib2core/CValueVector.h>
#include <sstream>
#include <string>
#include <vector>

using TEVU::CValue;
using TEVU::CValueMap;
using TEVU::CValueMapFileVersionHandling;
using TEVU::CValueString;

namespace {

const int c_nMaps = 100000;

/// Standard error as the library writes to it, while this lives.
class CErrorLines {
public:
    CErrorLines() : m_pBefore(std::cerr.rdbuf(m_lines.rdbuf())) {}
    CErrorLines(const CErrorLines&) = delete;
    CErrorLines& operator=(const CErrorLines&) = delete;
    ~CErrorLines() { std::cerr.rdbuf(m_pBefore); }

    std::string Text() const { return m_lines.str(); }

private:
    std::ostringstream m_lines;
    std::streambuf* m_pBefore;
};

/// An entry of a map that was read: what it is, and the text if it is one.
struct StEntry {
    std::unique_ptr<CValue> value; ///< Null where there is none.
    std::optional<std::string> text;
};

/// What a check should do, by the rules alone.
struct StExpected {
    std::optional<std::string> question; ///< Whether to load a file of the same family.
    std::optional<std::string> refusal;
    std::optional<std::string> notice;
    bool bResult;
    bool bStampGoes;

    std::string console() const {
        std::string all;
        for (const auto& text : {refusal, question, notice})
            all += text ? "Viewer: " + *text + '\n' : "";
        return all;
    }
};

struct StCase {
    std::string sOwnId;
    std::string sOwnVersion;
    StEntry id;
    StEntry version;
    bool bAgrees; ///< The user's answer to the question.

    CValueMap map() const {
        CValueMap map;
        map.SetEntry("gain", new TEVU::CValueLong(3));
        map.SetEntry("id", id.value ? id.value->Clone() : nullptr);
        map.SetEntry("version", version.value ? version.value->Clone() : nullptr);
        return map;
    }

    bool isFuture() const {
        return version.text && format_model::isNewer(*version.text, sOwnVersion);
    }

    bool isCompatible() const {
        return format_model::split(*id.text).first == format_model::split(sOwnId).first;
    }

    StExpected expected() const {
        StExpected expected = {{}, {}, {}, true, false};
        if (!id.text)
            return expected;
        const std::string what = ": not a settings file, but of type '" + *id.text + "'.";
        if (*id.text != sOwnId && !isCompatible())
            expected.refusal = "Failed to load scan.map" + what;
        else if (*id.text != sOwnId)
            expected.question = "File scan.map" + what + " Load anyway?";
        expected.bResult = !expected.refusal && (!expected.question || bAgrees);
        expected.bStampGoes = expected.bResult;
        if (expected.bResult && isFuture())
            expected.notice = "File scan.map: Future version of settings file format  detected.\n"
                              "Some features my be unsupported";
        return expected;
    }
};

class CRandomCases {
public:
    StCase next() {
        return {identifier(), version(), entry(identifier()), entry(version()), oneIn(2)};
    }

    /// Nearly always without a box, each of which takes its time.
    StCase nextQuiet() {
        StCase quiet = next();
        if (quiet.id.text && *quiet.id.text != quiet.sOwnId && !oneIn(100))
            quiet.id = string(quiet.sOwnId);
        if (quiet.isFuture() && !oneIn(100))
            quiet.version = string(quiet.sOwnVersion);
        return quiet;
    }

private:
    int below(int bound) { return static_cast<int>(m_random() % static_cast<unsigned>(bound)); }

    bool oneIn(int count) { return below(count) == 0; }

    std::string identifier() { return text("ab:", 8); }
    std::string version() { return oneIn(4) ? text("12.-+e x", 5) : text("12.", 4); }

    std::string text(const std::string& letters, int length) {
        std::string text;
        for (int i = below(length + 1); i > 0; --i)
            text += letters[static_cast<std::size_t>(below(static_cast<int>(letters.size())))];
        return text;
    }

    static StEntry string(const std::string& text) {
        return {std::make_unique<CValueString>(text), text};
    }

    StEntry entry(const std::string& right) {
        if (!oneIn(3))
            return string(right);
        switch (below(6)) {
        case 0:
            return {std::make_unique<TEVU::CValueLong>(1), {}};
        case 1:
            return {std::make_unique<TEVU::CValueVector>(), {}};
        case 2:
            return {std::make_unique<CValueMap>(), {}};
        case 3:
            return {std::make_unique<TEVU::CValuePointer<std::string>>(nullptr), {}};
        case 4:
            return {std::make_unique<TEVU::CValuePointer<std::string>>(&m_sForeign), {}};
        default:
            return {};
        }
    }

    std::mt19937 m_random{20240207};
    std::string m_sForeign = "abc:x:1";
};

std::vector<std::string> keys(const CValueMap& map) {
    std::vector<std::string> keys;
    for (const TEVU::CValue_Key& key : map.Keys())
        keys.push_back(key.String());
    return keys;
}

std::optional<std::string> idOf(const CValueMapFileVersionHandling& format, const CValueMap& map) {
    try {
        return format.GetId(map);
    } catch (const TEVU::CException&) {
        return {};
    }
}

class FileVersionAgainstModel : public testing::Test {
protected:
    FileVersionAgainstModel() { qt3::setMainWidget(&m_window); }
    ~FileVersionAgainstModel() override { qt3::setMainWidget(nullptr); }

    void answer(const StCase& random) {
        const CValueMapFileVersionHandling format(random.sOwnId, random.sOwnVersion);
        CValueMap map = random.map();
        EXPECT_EQ(format.IsIdAvailable(map), random.id.text.has_value());
        EXPECT_EQ(idOf(format, map), random.id.text);
        EXPECT_EQ(format.IsAFutureFormatVersion(map), random.isFuture());
        if (random.id.text) {
            EXPECT_EQ(format.IsIdOk(map), *random.id.text == random.sOwnId);
            EXPECT_EQ(format.IsIdCompatible(map), random.isCompatible());
        }
        format.AddIdVersion(map);
        EXPECT_TRUE(format.IsIdOk(map) && format.IsIdCompatible(map));
        EXPECT_EQ(map.EntryString("version"), random.sOwnVersion);
        format.RemoveIdVersion(map);
        EXPECT_EQ(keys(map), std::vector<std::string>{"gain"});
    }

    void load(const StCase& random, const StExpected& expected) {
        expectBoxes(expected, random.bAgrees);
        CValueMap map = random.map();
        const auto left = expected.bStampGoes ? std::vector<std::string>{"gain"} : keys(map);
        CValueMapFileVersionHandling format(random.sOwnId, random.sOwnVersion);
        const CErrorLines errors;
        EXPECT_EQ(format.VerifyLoadedMapWithErrorMessageBox(map, "scan.map", "settings", "Viewer"),
                  expected.bResult);
        EXPECT_EQ(errors.Text(), expected.console());
        EXPECT_EQ(keys(map), left);
    }

private:
    void expectBoxes(const StExpected& expected, bool agrees) {
        if (expected.refusal)
            m_driver.expectWarning({"Format error of settings", expected.refusal}).answer("OK");
        if (expected.question)
            m_driver.expectInformation({"Format error of settings", expected.question})
                .answer(agrees ? "OK" : "Cancel");
        if (expected.notice)
            m_driver
                .expectInformation(
                    {"Future version of settings file format  detected", expected.notice})
                .answer("OK");
    }

    QWidget m_window;
    support::ModalDriver m_driver;
    const support::Warnings m_warnings; // the toolkit's own lines are not ours
};

} // namespace

TEST_F(FileVersionAgainstModel, QuestionsAboutAnyMapAreAnsweredByTheRules) {
    CRandomCases random;
    int compatible = 0;
    int future = 0;
    for (int i = 0; i < c_nMaps && !HasFailure(); ++i) {
        SCOPED_TRACE(i);
        const StCase next = random.next();
        answer(next);
        compatible += next.id.text && *next.id.text != next.sOwnId && next.isCompatible();
        future += next.isFuture();
    }
    EXPECT_GT(compatible, c_nMaps / 10); // else the maps would show nothing
    EXPECT_GT(future, c_nMaps / 10);
}

TEST_F(FileVersionAgainstModel, AnyMapIsLoadedOrRefusedByTheRules) {
    CRandomCases random;
    std::map<std::string, int> boxes;
    for (int i = 0; i < c_nMaps && !HasFailure(); ++i) {
        SCOPED_TRACE(i);
        const StCase next = random.nextQuiet();
        const StExpected expected = next.expected();
        load(next, expected);
        boxes["refusal"] += expected.refusal.has_value();
        boxes["question"] += expected.question.has_value();
        boxes["notice"] += expected.notice.has_value();
    }
    for (const auto& [box, count] : boxes)
        EXPECT_GT(count, 50) << box; // else the maps would show nothing
}
