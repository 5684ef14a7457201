#include "ParameterKinds.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <ruqlib2core/CValueBool.h>
#include <ruqlib2core/CValueDouble.h>
#include <ruqlib2core/CValueLong.h>
#include <ruqlib2core/CValueMap.h>
#include <ruqlib2core/CValueString.h>
#include <ruqlib2core/CValueVector.h>

namespace autodlg {

namespace {

const char* const c_sLower = "lower";
const char* const c_sUpper = "upper";

template <class Number>
void demandBetween(Number number, Number min, Number max, const Subject& subject) {
    if (number < min || number > max)
        subject.refuse("must be between " + shown(min) + " and " + shown(max) + ", not " +
                       shown(number));
}

/// One end of a range.
long readEnd(const TEVU::CValueMap& range, const char* key, const Subject& subject) {
    const TEVU::CValue* const end = range.Entry(key, false);
    if (!end)
        subject.part(key).refuse("is missing");
    return toLong(*end, subject.part(key));
}

bool isColorName(const std::string& text) {
    return text.size() == 7 && text[0] == '#' &&
           text.find_first_not_of("0123456789abcdefABCDEF", 1) == std::string::npos;
}

/// Makes the value of a map for each type.
struct StMapValueMaker {
    const TEVU::CValue* present;

    TEVU::CValue* operator()(bool value) const { return new TEVU::CValueBool(value); }
    TEVU::CValue* operator()(long value) const { return new TEVU::CValueLong(value); }
    TEVU::CValue* operator()(double value) const { return new TEVU::CValueDouble(value); }
    TEVU::CValue* operator()(const std::string& value) const {
        return new TEVU::CValueString(value);
    }

    TEVU::CValue* operator()(const StRange& value) const {
        const auto* const old = dynamic_cast<const TEVU::CValueMap*>(present);
        auto range = std::make_unique<TEVU::CValueMap>(old ? *old : TEVU::CValueMap());
        range->SetEntry(c_sLower, new TEVU::CValueLong(value.lower));
        range->SetEntry(c_sUpper, new TEVU::CValueLong(value.upper));
        return range.release();
    }

    TEVU::CValue* operator()(const Texts& value) const {
        auto texts = std::make_unique<TEVU::CValueVector>();
        int index = 0;
        for (const std::string& text : value)
            texts->SetEntry(index++, new TEVU::CValueString(text));
        return texts.release();
    }
};

} // namespace

std::string shown(long number) {
    return std::to_string(number);
}

std::string shown(double number) {
    char text[32];
    const std::to_chars_result end = std::to_chars(text, text + sizeof text, number);
    return std::string(text, end.ptr);
}

bool operator==(const StRange& left, const StRange& right) {
    return left.lower == right.lower && left.upper == right.upper;
}

bool operator!=(const StRange& left, const StRange& right) {
    return !(left == right);
}

Value StIntegerKind::fallback() const {
    return std::clamp(0L, min, max);
}

Value StIntegerKind::read(const TEVU::CValue& value, const Subject& subject) const {
    const long number = toLong(value, subject);
    demandBetween(number, min, max, subject);
    return number;
}

Value StNumberKind::fallback() const {
    return std::clamp(0.0, min, max);
}

Value StNumberKind::read(const TEVU::CValue& value, const Subject& subject) const {
    const double number = toDouble(value, subject);
    if (!std::isfinite(number))
        subject.refuse("must be finite, not " + shown(number));
    demandBetween(number, min, max, subject);
    return number;
}

Value StRangeKind::fallback() const {
    return StRange{min, max};
}

Value StRangeKind::read(const TEVU::CValue& value, const Subject& subject) const {
    const auto& map = toMap(value, subject);
    const StRange range = {readEnd(map, c_sLower, subject), readEnd(map, c_sUpper, subject)};
    demandBetween(range.lower, min, max, subject.part(c_sLower));
    demandBetween(range.upper, min, max, subject.part(c_sUpper));
    if (range.lower > range.upper)
        subject.part(c_sLower).refuse("must not be above \"upper\"");
    return range;
}

Value StTextKind::fallback() const {
    return std::string();
}

Value StTextKind::read(const TEVU::CValue& value, const Subject& subject) const {
    return toText(value, subject);
}

Value StFileKind::fallback() const {
    return mode == eOpenFiles ? Value(Texts()) : Value(std::string());
}

Value StFileKind::read(const TEVU::CValue& value, const Subject& subject) const {
    if (mode == eOpenFiles)
        return toTexts(value, subject);
    return toText(value, subject);
}

Value StChoiceKind::fallback() const {
    return choices.front();
}

Value StChoiceKind::read(const TEVU::CValue& value, const Subject& subject) const {
    const std::string chosen = toText(value, subject);
    if (std::find(choices.begin(), choices.end(), chosen) == choices.end())
        subject.refuse("must be one of the choices, not \"" + chosen + '"');
    return chosen;
}

Value StSwitchKind::fallback() const {
    return false;
}

Value StSwitchKind::read(const TEVU::CValue& value, const Subject& subject) const {
    return toBool(value, subject);
}

Value StColorKind::fallback() const {
    return std::string("#ffffff");
}

Value StColorKind::read(const TEVU::CValue& value, const Subject& subject) const {
    const std::string name = toText(value, subject);
    if (!isColorName(name))
        subject.refuse("must be a colour such as \"#ff8000\", not \"" + name + '"');
    return name;
}

Value fallback(const Kind& kind) {
    return std::visit([](const auto& typed) { return typed.fallback(); }, kind);
}

Value read(const Kind& kind, const TEVU::CValue& value, const Subject& subject) {
    return std::visit([&](const auto& typed) { return typed.read(value, subject); }, kind);
}

std::unique_ptr<TEVU::CValue> toMapValue(const Value& value, const TEVU::CValue* present) {
    return std::unique_ptr<TEVU::CValue>(std::visit(StMapValueMaker{present}, value));
}

} // namespace autodlg
