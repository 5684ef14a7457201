#include "DialogParameters.h"

#include "Maps.h"

#include <climits>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <memory>
#include <ostream>
#include <ruqlib2core/CException.h>

using namespace autodlg;
using namespace maps;
using TEVU::CValueMap;

namespace {

using Values = std::vector<Value>;

StDialog dialogWith(const std::vector<CValue*>& entries) {
    const CValueMap description = dialogOf(entries);
    return parseDescription(&description);
}

Values readFrom(const StDialog& dialog, CValue* parameters) {
    return readParameters(dialog, taken(parameters));
}

/// What is said against the parameters; empty when nothing is.
std::string refusal(const StDialog& dialog, const CValueMap& parameters) {
    try {
        readParameters(dialog, parameters);
    } catch (const TEVU::CException& refused) {
        EXPECT_EQ(refused.Place(), "plugwdgt_orunparamdlg::autodlg");
        return refused.Message();
    }
    return "";
}

/// The map after values were stored in it.
std::string afterWriting(const StDialog& dialog, const Values& values, CValue* parameters) {
    CValueMap map = taken(parameters);
    writeParameters(dialog, values, map);
    return written(map);
}

CValue* grey(CValue* byDefault = nullptr) {
    return entry("range", "grey", "",
                 {{"min", whole(0)}, {"max", whole(9)}, {"default", byDefault}});
}

CValue* method() {
    return entry("choice", "method", "", {{"choices", texts({"mean", "median"})}});
}

StDialog everyKind() {
    return dialogWith({entry("integer", "count", "", {{"min", whole(-9)}, {"max", whole(9)}}),
                       entry("number", "sigma", "", {{"min", number(-1)}, {"max", number(1)}}),
                       grey(), entry("text", "note", ""), entry("open file", "mask", ""),
                       entry("open files", "more", ""),
                       entry("save file", "table", "", {{"filter", text("*.csv")}}), method(),
                       entry("switch", "on", ""), entry("color", "mark", "")});
}

CValue* everyParameter() {
    return map({{"count", whole(3)},
                {"sigma", number(-0.25)},
                {"grey", range(2, 5)},
                {"note", text("Hello")},
                {"mask", text("/m.tif")},
                {"more", texts({"/a.tif", "/b,c.tif"})},
                {"table", text("t.csv")},
                {"method", text("median")},
                {"on", flag(true)},
                {"mark", text("#FF8000")}});
}

Values everyValue() {
    return {3L,
            -0.25,
            StRange{2, 5},
            std::string("Hello"),
            std::string("/m.tif"),
            Texts{"/a.tif", "/b,c.tif"},
            std::string("t.csv"),
            std::string("median"),
            true,
            std::string("#FF8000")};
}

/// A value that knows whether it is still the one that was put into the map.
class Original : public TEVU::CValueLong {
public:
    explicit Original(long value) : CValueLong(value) {}
    Original* Clone() const override { return new Original(*this); }
};

} // namespace

TEST(DialogParametersTest, ValuesComeInTheOrderOfTheDescription) {
    EXPECT_EQ(readFrom(everyKind(), everyParameter()), everyValue());
}

TEST(DialogParametersTest, WhatIsMissingHasItsDefault) {
    const Values defaults = {
        0L,      0.0,           StRange{0, 9},       std::string(), std::string(),
        Texts(), std::string(), std::string("mean"), false,         std::string("#ffffff")};
    EXPECT_EQ(readFrom(everyKind(), map({})), defaults);
    EXPECT_EQ(readFrom(dialogWith({grey(range(3, 4))}), map({})), Values{(StRange{3, 4})});
}

TEST(DialogParametersTest, WhatIsNotDescribedIsNotLookedAt) {
    EXPECT_EQ(readFrom(dialogWith({method()}), map({{"other", nullPointer()}, {"3", map({})}})),
              Values{std::string("mean")});
}

TEST(DialogParametersTest, ParametersOfAGroupWithAKeyLieInItsMap) {
    const StDialog dialog = dialogWith(
        {group("", {method(), group("", {entry("switch", "on", "")}, {{"key", text("b")}})},
               {{"key", text("a")}})});
    EXPECT_EQ(
        readFrom(dialog,
                 map({{"a", map({{"method", text("median")}, {"b", map({{"on", flag(true)}})}})}})),
        (Values{std::string("median"), true}));
    EXPECT_EQ(readFrom(dialog, map({{"a", map({{"b", map({})}})}})),
              (Values{std::string("mean"), false}));
    EXPECT_EQ(readFrom(dialog, map({{"method", text("median")}})),
              (Values{std::string("mean"), false}));
}

TEST(DialogParametersTest, MapOfAGroupIsAMap) {
    const StDialog dialog = dialogWith(
        {group("", {group("", {method()}, {{"key", text("b")}})}, {{"key", text("a")}})});
    for (const Type type : c_allTypes) {
        const std::string complaint = type == Map ? "" : " must be a map, not " + inWords(type);
        const auto named = [&](const char* path) {
            return complaint.empty() ? "" : std::string("parameter \"") + path + '"' + complaint;
        };
        EXPECT_EQ(refusal(dialog, taken(map({{"a", sample(type)}}))), named("a"));
        EXPECT_EQ(refusal(dialog, taken(map({{"a", map({{"b", sample(type)}})}}))), named("a/b"));
    }
}

namespace {

struct TypeRow {
    const char* key;
    Type type;
};

void PrintTo(const TypeRow& row, std::ostream* out) {
    *out << row.key;
}

class DialogParametersTypes : public testing::TestWithParam<TypeRow> {};

} // namespace

TEST_P(DialogParametersTypes, AreDemanded) {
    const std::string key = GetParam().key;
    for (const Type type : c_allTypes) {
        if (sameType(type, GetParam().type))
            continue;
        CValueMap parameters = taken(everyParameter());
        parameters.SetEntry(key, sample(type));
        EXPECT_EQ(refusal(everyKind(), parameters), "parameter \"" + key + "\" must be " +
                                                        inWords(GetParam().type) + ", not " +
                                                        inWords(type));
    }
}

INSTANTIATE_TEST_SUITE_P(All, DialogParametersTypes,
                         testing::Values(TypeRow{"count", Long}, TypeRow{"sigma", Double},
                                         TypeRow{"grey", Map}, TypeRow{"note", String},
                                         TypeRow{"mask", String}, TypeRow{"more", Vector},
                                         TypeRow{"table", String}, TypeRow{"method", String},
                                         TypeRow{"on", Bool}, TypeRow{"mark", String}),
                         [](const auto& row) { return std::string(row.param.key); });

namespace {

struct ValueRow {
    const char* name;
    const char* key;
    CValue* (*make)();
    const char* fault; ///< Behind the name of the parameter; empty when the value is valid.
};

void PrintTo(const ValueRow& row, std::ostream* out) {
    *out << row.name;
}

const std::string c_sFarAbove = " must be between -9 and 9, not " + std::to_string(LONG_MAX);

const ValueRow c_values[] = {
    {"CountAtTheMinimum", "count", [] { return whole(-9); }, ""},
    {"CountAtTheMaximum", "count", [] { return whole(9); }, ""},
    {"CountBelow", "count", [] { return whole(-10); }, " must be between -9 and 9, not -10"},
    {"CountAbove", "count", [] { return whole(10); }, " must be between -9 and 9, not 10"},
    {"CountFarAbove", "count", [] { return whole(LONG_MAX); }, c_sFarAbove.c_str()},
    {"SigmaAtTheMinimum", "sigma", [] { return number(-1); }, ""},
    {"SigmaAtTheMaximum", "sigma", [] { return number(1); }, ""},
    {"SigmaJustAbove", "sigma", [] { return number(std::nextafter(1.0, 2.0)); },
     " must be between -1 and 1, not 1.0000000000000002"},
    {"SigmaBelow", "sigma", [] { return number(-1.5); }, " must be between -1 and 1, not -1.5"},
    {"SigmaNoNumber", "sigma", [] { return number(std::nan("")); }, " must be finite, not nan"},
    {"SigmaInfinite", "sigma", [] { return number(-std::numeric_limits<double>::infinity()); },
     " must be finite, not -inf"},
    {"GreyAtTheLimits", "grey", [] { return range(0, 9); }, ""},
    {"GreyOfOneValue", "grey", [] { return range(4, 4); }, ""},
    {"GreyBelow", "grey", [] { return range(-1, 9); },
     ": \"lower\" must be between 0 and 9, not -1"},
    {"GreyAbove", "grey", [] { return range(0, 10); },
     ": \"upper\" must be between 0 and 9, not 10"},
    {"GreyReversed", "grey", [] { return range(5, 4); }, ": \"lower\" must not be above \"upper\""},
    {"GreyWithoutLower", "grey",
     [] {
         return map({{"upper", whole(1)}});
     },
     ": \"lower\" is missing"},
    {"GreyWithoutUpper", "grey",
     [] {
         return map({{"lower", whole(1)}});
     },
     ": \"upper\" is missing"},
    {"GreyWithAText", "grey",
     [] {
         return map({{"lower", whole(1)}, {"upper", text("2")}});
     },
     ": \"upper\" must be a whole number, not a text"},
    {"GreyWithANullPointer", "grey",
     [] {
         return map({{"lower", nullPointer()}, {"upper", whole(2)}});
     },
     ": \"lower\" must be a whole number, not a pointer"},
    {"GreyWithMore", "grey",
     [] {
         return map({{"lower", whole(1)}, {"upper", whole(2)}, {"more", flag(true)}});
     },
     ""},
    {"MoreWithANumber", "more",
     [] {
         return list({text("a"), number(1)});
     },
     ": \"1\" must be a text, not a number"},
    {"MoreWithANullPointer", "more", [] { return list({nullPointer()}); },
     ": \"0\" must be a text, not a pointer"},
    {"MoreIsEmpty", "more", [] { return list({}); }, ""},
    {"NoSuchMethod", "method", [] { return text("Median"); },
     " must be one of the choices, not \"Median\""},
    {"MarkIsNoColor", "mark", [] { return text("#12345x"); },
     " must be a colour such as \"#ff8000\", not \"#12345x\""},
    {"MarkIsEmpty", "mark", [] { return text(""); },
     " must be a colour such as \"#ff8000\", not \"\""},
};

class DialogParametersValues : public testing::TestWithParam<ValueRow> {};

} // namespace

TEST_P(DialogParametersValues, AreCheckedAndNamed) {
    CValueMap parameters = taken(everyParameter());
    parameters.SetEntry(GetParam().key, GetParam().make());
    const std::string fault = GetParam().fault;
    EXPECT_EQ(refusal(everyKind(), parameters),
              fault.empty() ? "" : std::string("parameter \"") + GetParam().key + '"' + fault);
}

INSTANTIATE_TEST_SUITE_P(All, DialogParametersValues, testing::ValuesIn(c_values),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(DialogParametersTest, ValuesAreStoredWhereTheyAreRead) {
    const std::string all = written(taken(everyParameter()));
    EXPECT_EQ(afterWriting(everyKind(), everyValue(), map({})), all);
    EXPECT_EQ(afterWriting(everyKind(), everyValue(), everyParameter()), all);
}

TEST(DialogParametersTest, ChangedValuesReplaceTheOldOnes) {
    Values values = everyValue();
    values[0] = -9L;
    values[5] = Texts{"/only.tif"};
    EXPECT_EQ(afterWriting(everyKind(), values, everyParameter()),
              "{count: -9, grey: {lower: 2, upper: 5}, mark: \"#FF8000\", mask: \"/m.tif\", "
              "method: \"median\", more: [\"/only.tif\"], note: \"Hello\", on: true, "
              "sigma: -0.25000000000000000, table: \"t.csv\"}");
}

TEST(DialogParametersTest, MapsOfGroupsAreMadeWhereTheyAreMissing) {
    const StDialog dialog = dialogWith(
        {group("", {method(), group("", {entry("switch", "on", "")}, {{"key", text("b")}})},
               {{"key", text("a")}})});
    const Values values = {std::string("median"), true};
    const std::string stored = "{a: {b: {on: true}, method: \"median\"}}";
    EXPECT_EQ(afterWriting(dialog, values, map({})), stored);
    EXPECT_EQ(afterWriting(dialog, values, map({{"a", map({})}})), stored);
}

TEST(DialogParametersTest, WhatIsNotDescribedStays) {
    const StDialog dialog = dialogWith({grey(), group("", {method()}, {{"key", text("a")}})});
    EXPECT_EQ(afterWriting(
                  dialog, {StRange{4, 5}, std::string("median")},
                  map({{"0", nullPointer()},
                       {"other", list({whole(1), map({{"x", flag(false)}})})},
                       {"grey", map({{"lower", whole(1)}, {"upper", whole(2)}, {"u", text("z")}})},
                       {"a", map({{"method", text("mean")}, {"Method", number(1.5)}})}})),
              "{0: null, a: {Method: 1.5000000000000000, method: \"median\"}, "
              "grey: {lower: 4, u: \"z\", upper: 5}, other: [1, {x: false}]}");
}

TEST(DialogParametersTest, WhatIsUnchangedStaysTheVeryValue) {
    const StDialog dialog = dialogWith({entry("integer", "a", ""), entry("integer", "b", "")});
    CValueMap map;
    map.SetEntry("a", new Original(1));
    map.SetEntry("b", new Original(2));
    const CValue* const a = map.Entry("a", true);
    writeParameters(dialog, {1L, 3L}, map);
    EXPECT_EQ(map.Entry("a", true), a);
    EXPECT_TRUE(map.HasEntry("a", typeid(Original)));
    EXPECT_TRUE(map.HasEntry("b", typeid(TEVU::CValueLong)));
}

TEST(DialogParametersTest, TextsKeepEveryByte) {
    const StDialog dialog = dialogWith({entry("text", "a", "")});
    const std::string bytes("\0\xff\xc3\n", 4);
    CValueMap map;
    map.SetEntry("a", new TEVU::CValueString(bytes));
    EXPECT_EQ(readParameters(dialog, map), Values{bytes});
    CValueMap copy;
    writeParameters(dialog, {bytes}, copy);
    EXPECT_EQ(copy.EntryString("a"), bytes);
}

TEST(DialogParametersTest, KeysMayBeIndices) {
    const StDialog dialog = dialogWith({entry("integer", "3", ""), entry("integer", "03", "")});
    EXPECT_EQ(readFrom(dialog, map({{"3", whole(5)}, {"03", whole(6)}})), (Values{5L, 6L}));
}

TEST(DialogParametersTest, ParametersThatCannotBeReadAreNotReplaced) {
    const StDialog dialog = dialogWith({entry("integer", "a", "")});
    CValueMap parameters = taken(map({{"a", text("x")}}));
    EXPECT_THROW(writeParameters(dialog, {1L}, parameters), TEVU::CException);
    EXPECT_EQ(written(parameters), "{a: \"x\"}");
}
