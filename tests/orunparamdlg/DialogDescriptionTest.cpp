#include "DialogDescription.h"

#include "KeyTable.h"
#include "Maps.h"

#include <cfloat>
#include <climits>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <ostream>
#include <ruqlib2core/CException.h>

using namespace autodlg;
using namespace maps;
using TEVU::CValueMap;

namespace {

/// What is said against a description; empty when nothing is.
std::string refusal(const CValue* description) {
    try {
        parseDescription(description);
    } catch (const TEVU::CException& refused) {
        EXPECT_EQ(refused.Place(), "plugwdgt_orunparamdlg::autodlg");
        return refused.Message();
    }
    return "";
}

std::string refusal(const CValueMap& description) {
    return refusal(&description);
}

/// What is said against a single entry.
std::string entryRefusal(CValue* entry) {
    return refusal(dialogOf(entry));
}

StParameter onlyParameter(CValue* entry) {
    const StDialog dialog = parseDescription(&static_cast<const CValue&>(dialogOf(entry)));
    EXPECT_EQ(dialog.parameters.size(), 1u);
    return dialog.parameters.at(0);
}

template <class Kind>
Kind onlyKind(CValue* entry) {
    return std::get<Kind>(onlyParameter(entry).kind);
}

const StGroup& groupAt(const StGroup& group, std::size_t place) {
    return std::get<StGroup>(group.members.at(place).what);
}

std::size_t parameterAt(const StGroup& group, std::size_t place) {
    return std::get<std::size_t>(group.members.at(place).what);
}

std::string quoted(const std::string& key) {
    return '"' + key + '"';
}

} // namespace

TEST(DialogDescriptionTest, MissingDescriptionIsRefused) {
    EXPECT_EQ(refusal(nullptr), "\"dialog\" is missing");
}

TEST(DialogDescriptionTest, DescriptionIsAMap) {
    for (const Type type : c_allTypes) {
        const std::unique_ptr<CValue> value(sample(type));
        const std::string expected = type == Map ? "\"dialog\": \"entries\" is missing"
                                                 : "\"dialog\" must be a map, not " + inWords(type);
        EXPECT_EQ(refusal(value.get()), expected);
    }
}

TEST(DialogDescriptionTest, TitleIsParametersIfNoneIsGiven) {
    EXPECT_EQ(parseDescription(&static_cast<const CValue&>(dialogOf({}))).form.title, "Parameters");
    const CValueMap titled = taken(map({{"title", text("Find pores")}, {"entries", list({})}}));
    EXPECT_EQ(parseDescription(&titled).form.title, "Find pores");
}

TEST(DialogDescriptionTest, DialogWithoutEntriesIsADialog) {
    const StDialog dialog = parseDescription(&static_cast<const CValue&>(dialogOf({})));
    EXPECT_TRUE(dialog.parameters.empty());
    EXPECT_TRUE(dialog.form.members.empty());
}

TEST(DialogDescriptionTest, EntriesStandInTheOrderOfTheirIndices) {
    auto* entries = new TEVU::CValueVector;
    entries->SetEntry(10, entry("text", "last", ""));
    entries->SetEntry(2, entry("text", "z", ""));
    entries->SetEntry(9, entry("text", "a", ""));
    const CValueMap description = taken(map({{"entries", entries}}));
    const StDialog dialog = parseDescription(&description);
    ASSERT_EQ(dialog.parameters.size(), 3u);
    EXPECT_EQ(dialog.parameters[0].path, Texts{"z"});
    EXPECT_EQ(dialog.parameters[1].path, Texts{"a"});
    EXPECT_EQ(dialog.parameters[2].path, Texts{"last"});
}

TEST(DialogDescriptionTest, WhatEveryParameterHas) {
    const StParameter parameter = onlyParameter(
        entry("switch", "a", "&Label", {{"help", text("Why")}, {"advanced", flag(true)}}));
    EXPECT_EQ(parameter.path, Texts{"a"});
    EXPECT_EQ(parameter.label, "&Label");
    EXPECT_EQ(parameter.help, "Why");
    EXPECT_TRUE(parameter.advanced);
}

TEST(DialogDescriptionTest, LabelInASentenceHasNoMarksOfTheForm) {
    EXPECT_EQ(plainLabel("&Mask:"), "Mask");
    EXPECT_EQ(plainLabel("Black && &white"), "Black & white");
    EXPECT_EQ(plainLabel("::"), ":");
    EXPECT_EQ(plainLabel("&"), "");
    EXPECT_EQ(plainLabel(""), "");
}

TEST(DialogDescriptionTest, LabelIsTheKeyIfNoneIsGiven) {
    const StParameter parameter =
        onlyParameter(map({{"kind", text("switch")}, {"key", text("a")}}));
    EXPECT_EQ(parameter.label, "a");
    EXPECT_EQ(parameter.help, "");
    EXPECT_FALSE(parameter.advanced);
}

TEST(DialogDescriptionTest, WholeNumberHasAllIntsAsItsRange) {
    const auto kind = onlyKind<StIntegerKind>(entry("integer", "a", ""));
    EXPECT_EQ(kind.min, INT_MIN);
    EXPECT_EQ(kind.max, INT_MAX);
    EXPECT_EQ(kind.step, 1);
    EXPECT_EQ(kind.unit, "");
}

TEST(DialogDescriptionTest, WholeNumberHasItsRangeStepAndUnit) {
    const auto kind = onlyKind<StIntegerKind>(
        entry("integer", "a", "",
              {{"min", whole(-3)}, {"max", whole(12)}, {"step", whole(3)}, {"unit", text("px")}}));
    EXPECT_EQ(kind.min, -3);
    EXPECT_EQ(kind.max, 12);
    EXPECT_EQ(kind.step, 3);
    EXPECT_EQ(kind.unit, "px");
}

TEST(DialogDescriptionTest, NumberHasAllFiniteNumbersAsItsRange) {
    const auto kind = onlyKind<StNumberKind>(entry("number", "a", ""));
    EXPECT_EQ(kind.min, -DBL_MAX);
    EXPECT_EQ(kind.max, DBL_MAX);
    EXPECT_EQ(kind.step, 1.0);
    EXPECT_EQ(kind.unit, "");
    EXPECT_EQ(kind.decimals, std::nullopt);
}

TEST(DialogDescriptionTest, NumberHasItsRangeStepUnitAndDecimals) {
    const auto kind = onlyKind<StNumberKind>(entry("number", "a", "",
                                                   {{"min", number(-0.5)},
                                                    {"max", number(0.5)},
                                                    {"step", number(0.25)},
                                                    {"decimals", whole(3)},
                                                    {"unit", text("mm")}}));
    EXPECT_EQ(kind.min, -0.5);
    EXPECT_EQ(kind.max, 0.5);
    EXPECT_EQ(kind.step, 0.25);
    EXPECT_EQ(kind.decimals, 3);
    EXPECT_EQ(kind.unit, "mm");
}

TEST(DialogDescriptionTest, StepOfANumberIsAOneInItsLastDecimal) {
    const auto stepWith = [](long decimals) {
        return onlyKind<StNumberKind>(entry("number", "a", "", {{"decimals", whole(decimals)}}))
            .step;
    };
    EXPECT_EQ(stepWith(0), 1.0);
    EXPECT_EQ(stepWith(1), 0.1);
    EXPECT_EQ(stepWith(3), 0.001);
    EXPECT_EQ(stepWith(15), 1e-15);
}

TEST(DialogDescriptionTest, RangeHasItsLimits) {
    const auto kind =
        onlyKind<StRangeKind>(entry("range", "a", "", {{"min", whole(-2)}, {"max", whole(7)}}));
    EXPECT_EQ(kind.min, -2);
    EXPECT_EQ(kind.max, 7);
}

TEST(DialogDescriptionTest, FilesHaveTheirModeFilterAndWhetherTheyAreRequired) {
    const auto open = onlyKind<StFileKind>(entry("open file", "a", ""));
    EXPECT_EQ(open.mode, StFileKind::eOpenFile);
    EXPECT_EQ(open.filter, "All files (*)");
    EXPECT_FALSE(open.required);
    const auto several = onlyKind<StFileKind>(
        entry("open files", "a", "", {{"filter", text("X (*.x)")}, {"required", flag(true)}}));
    EXPECT_EQ(several.mode, StFileKind::eOpenFiles);
    EXPECT_EQ(several.filter, "X (*.x)");
    EXPECT_TRUE(several.required);
    const auto save =
        onlyKind<StFileKind>(entry("save file", "a", "", {{"filter", text("X (*.x)")}}));
    EXPECT_EQ(save.mode, StFileKind::eSaveFile);
    EXPECT_EQ(save.filter, "X (*.x)");
}

TEST(DialogDescriptionTest, FilterForSavingBeginsWithAPatternOfAnExtension) {
    for (const char* filter : {"", "Images", "All (*)", "All (*);;Images (*.tif)", "*", "(.tif)"})
        EXPECT_EQ(entryRefusal(entry("save file", "a", "", {{"filter", text(filter)}})),
                  "entry \"a\": \"filter\" must begin its patterns with one such as \"*.tif\"")
            << filter;
    for (const char* filter : {"*.tif", "Images (*.tif *.png)", "Images (*.tif);;All (*)"})
        EXPECT_EQ(entryRefusal(entry("save file", "a", "", {{"filter", text(filter)}})), "")
            << filter;
}

TEST(DialogDescriptionTest, LabelsOfChoicesAreTheChoicesIfNoneAreGiven) {
    const auto plain =
        onlyKind<StChoiceKind>(entry("choice", "a", "", {{"choices", texts({"x", "y"})}}));
    EXPECT_EQ(plain.choices, (Texts{"x", "y"}));
    EXPECT_EQ(plain.labels, (Texts{"x", "y"}));
    const auto labelled = onlyKind<StChoiceKind>(
        entry("choice", "a", "", {{"choices", texts({"x", "y"})}, {"labels", texts({"Z", "Z"})}}));
    EXPECT_EQ(labelled.choices, (Texts{"x", "y"}));
    EXPECT_EQ(labelled.labels, (Texts{"Z", "Z"}));
}

TEST(DialogDescriptionTest, GroupsHoldWhatIsInThemInItsOrder) {
    const CValueMap description =
        dialogOf({entry("text", "a", ""),
                  group("Outer",
                        {entry("text", "b", ""), group("Inner", {entry("text", "c", "")}),
                         entry("text", "d", "")},
                        {{"help", text("Why")}}),
                  entry("text", "e", "")});
    const StDialog dialog = parseDescription(&description);
    ASSERT_EQ(dialog.parameters.size(), 5u);
    EXPECT_EQ(dialog.parameters[2].path, Texts{"c"});
    const StGroup& form = dialog.form;
    EXPECT_EQ(parameterAt(form, 0), 0u);
    EXPECT_EQ(groupAt(form, 1).title, "Outer");
    EXPECT_EQ(groupAt(form, 1).help, "Why");
    EXPECT_EQ(parameterAt(groupAt(form, 1), 0), 1u);
    EXPECT_EQ(groupAt(groupAt(form, 1), 1).title, "Inner");
    EXPECT_EQ(groupAt(groupAt(form, 1), 1).help, "");
    EXPECT_EQ(parameterAt(groupAt(groupAt(form, 1), 1), 0), 2u);
    EXPECT_EQ(parameterAt(groupAt(form, 1), 2), 3u);
    EXPECT_EQ(parameterAt(form, 2), 4u);
}

TEST(DialogDescriptionTest, KeysOfGroupsLeadToTheirParameters) {
    const CValueMap description =
        dialogOf({group("",
                        {group("", {group("", {entry("text", "x", "")}, {{"key", text("c")}})}),
                         entry("text", "y", "")},
                        {{"key", text("a")}})});
    const StDialog dialog = parseDescription(&description);
    EXPECT_EQ(dialog.parameters.at(0).path, (Texts{"a", "c", "x"}));
    EXPECT_EQ(dialog.parameters.at(1).path, (Texts{"a", "y"}));
}

TEST(DialogDescriptionTest, GroupsMayShareTheirKey) {
    const CValueMap description =
        dialogOf({group("", {entry("text", "x", "")}, {{"key", text("a")}}),
                  group("", {entry("text", "y", "")}, {{"key", text("a")}})});
    const StDialog dialog = parseDescription(&description);
    EXPECT_EQ(dialog.parameters.at(0).path, (Texts{"a", "x"}));
    EXPECT_EQ(dialog.parameters.at(1).path, (Texts{"a", "y"}));
}

TEST(DialogDescriptionTest, WhatIsInAnAdvancedGroupIsAdvanced) {
    const CValueMap description =
        dialogOf({group("", {entry("text", "a", ""), group("", {entry("text", "b", "")})},
                        {{"advanced", flag(true)}}),
                  group("", {entry("text", "c", "")}), entry("text", "d", "")});
    const StDialog dialog = parseDescription(&description);
    EXPECT_TRUE(dialog.parameters.at(0).advanced);
    EXPECT_TRUE(dialog.parameters.at(1).advanced);
    EXPECT_FALSE(dialog.parameters.at(2).advanced);
    EXPECT_FALSE(dialog.parameters.at(3).advanced);
}

TEST(DialogDescriptionTest, AKeyIsThereOnce) {
    EXPECT_EQ(refusal(dialogOf({entry("text", "a", ""), entry("switch", "a", "")})),
              "entry \"a\" is there twice");
    EXPECT_EQ(refusal(dialogOf({entry("text", "a", ""), group("", {entry("text", "a", "")})})),
              "entry \"a\" is there twice");
    EXPECT_EQ(refusal(dialogOf({entry("text", "a", ""),
                                group("", {entry("text", "a", "")}, {{"key", text("b")}})})),
              "");
}

TEST(DialogDescriptionTest, AParameterHasNoKeyOfAGroup) {
    EXPECT_EQ(refusal(dialogOf({group("", {}, {{"key", text("a")}}), entry("text", "a", "")})),
              "entry \"a\" is there twice");
    EXPECT_EQ(refusal(dialogOf({entry("text", "a", ""), group("", {}, {{"key", text("a")}})})),
              "entry \"a\" has the key of a parameter");
}

TEST(DialogDescriptionTest, AKeyIsNotEmpty) {
    EXPECT_EQ(entryRefusal(entry("text", "", "")), "entry \"#0\": \"key\" must not be empty");
    EXPECT_EQ(entryRefusal(group("", {}, {{"key", text("")}})),
              "entry \"#0\": \"key\" must not be empty");
}

TEST(DialogDescriptionTest, WhatHasNoKeyIsNamedByItsPlace) {
    EXPECT_EQ(refusal(dialogOf({entry("text", "a", ""), map({{"kind", text("text")}})})),
              "entry \"#1\": \"key\" is missing");
    EXPECT_EQ(refusal(dialogOf({group("", {group("", {map({})}, {{"key", text("b")}})})})),
              "entry \"#0/b/#0\": \"kind\" is missing");
    EXPECT_EQ(
        refusal(dialogOf({group("", {group("", {entry("x", "c", "")})}, {{"key", text("b")}})}))
            .substr(0, 20),
        "entry \"b/c\": \"kind\" ");
}

TEST(DialogDescriptionTest, GroupsAreNotDeeperThanTheLimit) {
    const auto nested = [](int depth) {
        CValue* inner = entry("text", "a", "");
        for (int i = 0; i < depth; ++i)
            inner = group("", {inner});
        return inner;
    };
    EXPECT_EQ(entryRefusal(nested(c_nMaxDepth)), "");
    EXPECT_NE(entryRefusal(nested(c_nMaxDepth + 1)).find("lies too deep: groups can be 16 deep"),
              std::string::npos);
    EXPECT_NE(entryRefusal(nested(200)), "");
}

TEST(DialogDescriptionTest, UnknownKindIsNamedWithThoseThatThereAre) {
    EXPECT_EQ(entryRefusal(entry("colour", "a", "")),
              "entry \"a\": \"kind\" must be one of \"integer\", \"number\", \"range\", \"text\", "
              "\"open file\", \"open files\", \"save file\", \"choice\", \"switch\", \"color\", "
              "\"group\", not \"colour\"");
}

TEST(DialogDescriptionTest, EveryEntryIsAMap) {
    for (const Type type : c_allTypes) {
        const std::string expected = type == Map
                                         ? "entry \"#0\": \"kind\" is missing"
                                         : "entry \"#0\" must be a map, not " + inWords(type);
        EXPECT_EQ(entryRefusal(sample(type)), expected);
    }
}

namespace {

class DialogDescriptionKeys : public testing::TestWithParam<StKeyRow> {
protected:
    static std::string refusalOf(const CValueMap& owner) {
        return GetParam().kind[0] ? entryRefusal(owner.Clone()) : refusal(owner);
    }

    /// The entry or the dialog with what else it needs.
    static CValueMap ownerWithoutKey() {
        CValueMap owner = leastOf(GetParam().kind);
        owner.RemoveEntry(GetParam().key);
        return owner;
    }

    /// How a complaint names it: by its key, unless that is what is wrong.
    static std::string subject() {
        if (!GetParam().kind[0])
            return "\"dialog\"";
        return std::string("entry ") + (GetParam().key == std::string("key") ? "\"#0\"" : "\"a\"");
    }
};

} // namespace

TEST_P(DialogDescriptionKeys, AreOfTheirTypeOnly) {
    for (const Type type : c_allTypes) {
        if (sameType(type, GetParam().type))
            continue;
        CValueMap wrong = ownerWithoutKey();
        wrong.SetEntry(GetParam().key, sample(type));
        EXPECT_EQ(refusalOf(wrong), subject() + ": " + quoted(GetParam().key) + " must be " +
                                        inWords(GetParam().type) + ", not " + inWords(type));
    }
}

TEST_P(DialogDescriptionKeys, AreMissingWhereTheyAreNeededOnly) {
    EXPECT_EQ(refusalOf(ownerWithoutKey()),
              GetParam().needed ? subject() + ": " + quoted(GetParam().key) + " is missing" : "");
}

INSTANTIATE_TEST_SUITE_P(All, DialogDescriptionKeys, testing::ValuesIn(keyTable()));

namespace {

class DialogDescriptionKinds : public testing::TestWithParam<std::string> {};

} // namespace

TEST_P(DialogDescriptionKinds, HaveNoOtherKeys) {
    for (const char* key : {"Min", "tooltip", "entries", "title", "3"}) {
        CValueMap entry = leastOf(GetParam());
        entry.SetEntry(key, nullPointer());
        EXPECT_EQ(entryRefusal(entry.Clone()),
                  "entry \"a\": " + quoted(key) + " is no key of the kind " + quoted(GetParam()));
    }
}

INSTANTIATE_TEST_SUITE_P(All, DialogDescriptionKinds, testing::ValuesIn(parameterKinds()),
                         [](const auto& row) {
                             std::string name = row.param;
                             for (char& c : name)
                                 c = c == ' ' ? '_' : c;
                             return name;
                         });

TEST(DialogDescriptionTest, GroupsAndDialogsHaveNoOtherKeys) {
    EXPECT_EQ(entryRefusal(group("", {}, {{"default", whole(1)}})),
              "entry \"#0\": \"default\" is no key of the kind \"group\"");
    EXPECT_EQ(refusal(taken(map({{"entries", list({})}, {"help", text("")}}))),
              "\"dialog\": \"help\" is no key of a dialog");
}

namespace {

/// An entry "a" and what is wrong with it.
struct FaultRow {
    const char* name;
    CValue* (*make)();
    const char* fault; ///< Behind the name of the entry.
};

void PrintTo(const FaultRow& row, std::ostream* out) {
    *out << row.name;
}

template <long min, long max>
CValue* limits() {
    return entry("integer", "a", "", {{"min", whole(min)}, {"max", whole(max)}});
}

CValue* integerWith(const char* key, CValue* value) {
    return entry("integer", "a", "", {{"min", whole(-5)}, {"max", whole(5)}, {key, value}});
}

CValue* numberWith(const char* key, CValue* value) {
    return entry("number", "a", "", {{"decimals", whole(2)}, {key, value}});
}

CValue* rangeWith(long min, long max, CValue* byDefault = nullptr) {
    return entry("range", "a", "",
                 {{"min", whole(min)}, {"max", whole(max)}, {"default", byDefault}});
}

CValue* choiceWith(CValue* choices, const char* key = "label", CValue* value = nullptr) {
    return entry("choice", "a", "", {{"choices", choices}, {key, value}});
}

const double c_infinity = std::numeric_limits<double>::infinity();

const FaultRow c_faults[] = {
#if LONG_MAX > INT_MAX // as it is not on Windows
    {"IntegerMinBelowInt", limits<-2147483649L, 1>,
     ": \"min\" must be between -2147483648 and 2147483647, not -2147483649"},
    {"IntegerMaxAboveInt", limits<0, 2147483648L>,
     ": \"max\" must be between -2147483648 and 2147483647, not 2147483648"},
    {"IntegerStepAboveInt", [] { return integerWith("step", whole(2147483648L)); },
     ": \"step\" must be between -2147483648 and 2147483647, not 2147483648"},
    {"RangeMinBelowInt", [] { return rangeWith(-2147483649L, 0); },
     ": \"min\" must be between -2147483648 and 2147483647, not -2147483649"},
    {"RangeMaxAboveInt", [] { return rangeWith(0, 2147483648L); },
     ": \"max\" must be between -2147483648 and 2147483647, not 2147483648"},
#endif
    {"IntegerLimitsReversed", limits<2, 1>,
     ": \"min\" must not be above \"max\", which is 1, but is 2"},
    {"IntegerStepZero", [] { return integerWith("step", whole(0)); },
     ": \"step\" must be at least 1, not 0"},
    {"IntegerStepNegative", [] { return integerWith("step", whole(-1)); },
     ": \"step\" must be at least 1, not -1"},
    {"IntegerDefaultTooLarge", [] { return integerWith("default", whole(6)); },
     ": \"default\" must be between -5 and 5, not 6"},
    {"IntegerDefaultTooSmall", [] { return integerWith("default", whole(-6)); },
     ": \"default\" must be between -5 and 5, not -6"},
    {"NumberLimitsReversed",
     [] {
         return entry("number", "a", "", {{"min", number(0.5)}, {"max", number(0.25)}});
     },
     ": \"min\" must not be above \"max\", which is 0.25, but is 0.5"},
    {"NumberMinInfinite", [] { return numberWith("min", number(-c_infinity)); },
     ": \"min\" must be finite, not -inf"},
    {"NumberMinNoNumber", [] { return numberWith("min", number(std::nan(""))); },
     ": \"min\" must be finite, not nan"},
    {"NumberMaxInfinite", [] { return numberWith("max", number(c_infinity)); },
     ": \"max\" must be finite, not inf"},
    {"NumberStepZero", [] { return numberWith("step", number(0)); },
     ": \"step\" must be above 0, not 0"},
    {"NumberStepNegative", [] { return numberWith("step", number(-0.5)); },
     ": \"step\" must be above 0, not -0.5"},
    {"NumberStepInfinite", [] { return numberWith("step", number(c_infinity)); },
     ": \"step\" must be finite, not inf"},
    {"NumberStepNoNumber", [] { return numberWith("step", number(std::nan(""))); },
     ": \"step\" must be finite, not nan"},
    {"NumberStepThatDoesNotShow", [] { return numberWith("step", number(0.005)); },
     ": \"step\" is too small to show with so many decimals: 0.005"},
    {"NumberDecimalsNegative",
     [] {
         return entry("number", "a", "", {{"decimals", whole(-1)}});
     },
     ": \"decimals\" must be between 0 and 15, not -1"},
    {"NumberDecimalsTooMany",
     [] {
         return entry("number", "a", "", {{"decimals", whole(16)}});
     },
     ": \"decimals\" must be between 0 and 15, not 16"},
    {"NumberDefaultTooLarge",
     [] {
         return entry("number", "a", "", {{"max", number(1)}, {"default", number(1.5)}});
     },
     ": \"default\" must be between -1.7976931348623157e+308 and 1, not 1.5"},
    {"NumberDefaultNoNumber", [] { return numberWith("default", number(std::nan(""))); },
     ": \"default\" must be finite, not nan"},
    {"NumberDefaultInfinite", [] { return numberWith("default", number(c_infinity)); },
     ": \"default\" must be finite, not inf"},
    {"RangeLimitsReversed", [] { return rangeWith(2, 1); },
     ": \"min\" must not be above \"max\", which is 1, but is 2"},
    {"RangeTooWide", [] { return rangeWith(-1, INT_MAX); },
     ": \"max\" must be at most 2147483647 above \"min\""},
    {"RangeDefaultBelow", [] { return rangeWith(0, 9, range(-1, 5)); },
     ": \"default\": \"lower\" must be between 0 and 9, not -1"},
    {"RangeDefaultAbove", [] { return rangeWith(0, 9, range(1, 10)); },
     ": \"default\": \"upper\" must be between 0 and 9, not 10"},
    {"RangeDefaultReversed", [] { return rangeWith(0, 9, range(5, 4)); },
     ": \"default\": \"lower\" must not be above \"upper\""},
    {"RangeDefaultWithoutUpper",
     [] {
         return rangeWith(0, 9, map({{"lower", whole(1)}}));
     },
     ": \"default\": \"upper\" is missing"},
    {"RangeDefaultOfOtherTypes",
     [] {
         return rangeWith(0, 9, map({{"lower", number(1)}, {"upper", whole(2)}}));
     },
     ": \"default\": \"lower\" must be a whole number, not a number"},
    {"NoChoices", [] { return choiceWith(list({})); }, ": \"choices\" must not be empty"},
    {"SameChoices",
     [] {
         return choiceWith(texts({"x", "y", "x"}));
     },
     ": \"choices\" must differ, but \"x\" is there twice"},
    {"ChoiceNoText",
     [] {
         return choiceWith(list({text("x"), whole(1)}));
     },
     ": \"choices\": \"1\" must be a text, not a whole number"},
    {"ChoiceNullPointer", [] { return choiceWith(list({nullPointer()})); },
     ": \"choices\": \"0\" must be a text, not a pointer"},
    {"FewerLabels",
     [] {
         return choiceWith(texts({"x", "y"}), "labels", texts({"X"}));
     },
     ": \"labels\" must be as many as the choices"},
    {"LabelNoText", [] { return choiceWith(texts({"x"}), "labels", list({map({})})); },
     ": \"labels\": \"0\" must be a text, not a map"},
    {"DefaultNoChoice",
     [] {
         return choiceWith(texts({"x", "y"}), "default", text("z"));
     },
     ": \"default\" must be one of the choices, not \"z\""},
    {"DefaultPathNoText",
     [] {
         return entry("open files", "a", "", {{"default", list({flag(true)})}});
     },
     ": \"default\": \"0\" must be a text, not a truth value"},
    {"ColorWithoutHash",
     [] {
         return entry("color", "a", "", {{"default", text("ff8000")}});
     },
     ": \"default\" must be a colour such as \"#ff8000\", not \"ff8000\""},
    {"ColorTooShort",
     [] {
         return entry("color", "a", "", {{"default", text("#fff")}});
     },
     ": \"default\" must be a colour such as \"#ff8000\", not \"#fff\""},
    {"ColorTooLong",
     [] {
         return entry("color", "a", "", {{"default", text("#ff800000")}});
     },
     ": \"default\" must be a colour such as \"#ff8000\", not \"#ff800000\""},
    {"ColorNotHexadecimal",
     [] {
         return entry("color", "a", "", {{"default", text("#ff80g0")}});
     },
     ": \"default\" must be a colour such as \"#ff8000\", not \"#ff80g0\""},
    {"ColorName",
     [] {
         return entry("color", "a", "", {{"default", text("red")}});
     },
     ": \"default\" must be a colour such as \"#ff8000\", not \"red\""},
};

class DialogDescriptionFaults : public testing::TestWithParam<FaultRow> {};

} // namespace

TEST_P(DialogDescriptionFaults, AreToldWithTheEntry) {
    EXPECT_EQ(entryRefusal(GetParam().make()), std::string("entry \"a\"") + GetParam().fault);
}

TEST_P(DialogDescriptionFaults, AreToldWithThePathOfTheEntry) {
    EXPECT_EQ(entryRefusal(group("", {GetParam().make()}, {{"key", text("g")}})),
              std::string("entry \"g/a\"") + GetParam().fault);
}

INSTANTIATE_TEST_SUITE_P(All, DialogDescriptionFaults, testing::ValuesIn(c_faults),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(DialogDescriptionTest, LimitsMayBeEqualAndAtTheEnds) {
    EXPECT_EQ(entryRefusal(limits<3, 3>()), "");
    EXPECT_EQ(entryRefusal(limits<INT_MIN, INT_MAX>()), "");
    EXPECT_EQ(entryRefusal(rangeWith(4, 4)), "");
    EXPECT_EQ(entryRefusal(rangeWith(0, INT_MAX, range(INT_MAX, INT_MAX))), "");
    EXPECT_EQ(entryRefusal(rangeWith(INT_MIN, -1)), "");
    EXPECT_EQ(entryRefusal(entry("number", "a", "", {{"min", number(1)}, {"max", number(1)}})), "");
    EXPECT_EQ(entryRefusal(integerWith("default", whole(5))), "");
    EXPECT_EQ(entryRefusal(integerWith("default", whole(-5))), "");
}

TEST(DialogDescriptionTest, DefaultsAreTheGivenOnes) {
    const auto byDefault = [](CValue* entry) { return onlyParameter(entry).byDefault; };
    EXPECT_EQ(byDefault(integerWith("default", whole(3))), Value(3L));
    EXPECT_EQ(byDefault(numberWith("default", number(0.125))), Value(0.125));
    EXPECT_EQ(byDefault(rangeWith(0, 9, range(2, 2))), Value(StRange{2, 2}));
    EXPECT_EQ(byDefault(entry("text", "a", "", {{"default", text("b")}})), Value(std::string("b")));
    EXPECT_EQ(byDefault(entry("open files", "a", "", {{"default", texts({"x", "y,z"})}})),
              Value(Texts{"x", "y,z"}));
    EXPECT_EQ(byDefault(choiceWith(texts({"x", "y"}), "default", text("y"))),
              Value(std::string("y")));
    EXPECT_EQ(byDefault(entry("switch", "a", "", {{"default", flag(true)}})), Value(true));
    EXPECT_EQ(byDefault(entry("color", "a", "", {{"default", text("#FF8000")}})),
              Value(std::string("#FF8000")));
}

TEST(DialogDescriptionTest, DefaultsThatAreNotGiven) {
    const auto byDefault = [](CValue* entry) { return onlyParameter(entry).byDefault; };
    EXPECT_EQ(byDefault(entry("integer", "a", "")), Value(0L));
    EXPECT_EQ(byDefault(limits<3, 8>()), Value(3L));
    EXPECT_EQ(byDefault(limits<-8, -3>()), Value(-3L));
    EXPECT_EQ(byDefault(entry("number", "a", "")), Value(0.0));
    EXPECT_EQ(byDefault(entry("number", "a", "", {{"min", number(0.5)}})), Value(0.5));
    EXPECT_EQ(byDefault(entry("number", "a", "", {{"max", number(-0.5)}})), Value(-0.5));
    EXPECT_EQ(byDefault(rangeWith(3, 8)), Value(StRange{3, 8}));
    EXPECT_EQ(byDefault(entry("text", "a", "")), Value(std::string()));
    EXPECT_EQ(byDefault(entry("open file", "a", "")), Value(std::string()));
    EXPECT_EQ(byDefault(entry("open files", "a", "")), Value(Texts()));
    EXPECT_EQ(byDefault(choiceWith(texts({"x", "y"}))), Value(std::string("x")));
    EXPECT_EQ(byDefault(entry("switch", "a", "")), Value(false));
    EXPECT_EQ(byDefault(entry("color", "a", "")), Value(std::string("#ffffff")));
}

TEST(DialogDescriptionTest, ValuesOfDerivedClassesCount) {
    struct Derived : TEVU::CValueLong {
        Derived() : CValueLong(4) {}
        Derived* Clone() const override { return new Derived(*this); }
    };
    EXPECT_EQ(onlyParameter(integerWith("default", new Derived)).byDefault, Value(4L));
}

TEST(DialogDescriptionTest, ReadingChangesNothing) {
    const CValueMap description =
        dialogOf({limits<1, 2>(), choiceWith(texts({"x"}), "help", text("y"))});
    const std::string before = written(description);
    EXPECT_EQ(refusal(description), "entry \"a\" is there twice");
    EXPECT_EQ(written(description), before);
}
