#include "Maps.h"

#include <memory>
#include <ruqlib2core/CValuePointer.h>
#include <sstream>

namespace maps {

namespace {

int g_target = 0;

std::string writtenEntries(const TEVU::CValueContainerBase& container, bool withKeys) {
    std::string words;
    for (const TEVU::CValue_Key& key : container.Keys())
        words += (words.empty() ? "" : ", ") + (withKeys ? key.String() + ": " : "") +
                 written(*container.Entry(key, true));
    return words;
}

} // namespace

CValue* nullPointer() {
    return new TEVU::CValuePointer<TEVU::CValueMap>(nullptr);
}

CValue* range(long lower, long upper) {
    return map({{"lower", whole(lower)}, {"upper", whole(upper)}});
}

TEVU::CValueMap taken(CValue* map) {
    const std::unique_ptr<CValue> owner(map);
    return dynamic_cast<TEVU::CValueMap&>(*map);
}

TEVU::CValueMap dialogOf(CValue* entry) {
    return dialogOf(std::vector<CValue*>{entry});
}

TEVU::CValueMap dialogOf(const std::vector<CValue*>& entries) {
    return taken(map({{"entries", list(entries)}}));
}

CValue* sample(Type type) {
    switch (type) {
    case Bool:
        return flag(true);
    case Long:
        return whole(1);
    case Double:
        return number(1.5);
    case String:
        return text("a");
    case Null:
        return nullPointer();
    case Pointer:
        return new TEVU::CValuePointer<int>(&g_target);
    case Vector:
        return list({});
    case Map:
        break;
    }
    return map({});
}

bool sameType(Type left, Type right) {
    return inWords(left) == inWords(right);
}

std::string inWords(Type type) {
    const char* const words[] = {"a truth value", "a whole number", "a number", "a text",
                                 "a pointer",     "a pointer",      "a vector", "a map"};
    return words[type];
}

std::string written(const CValue& value) {
    std::ostringstream words;
    words.precision(17);
    if (const auto* flag = dynamic_cast<const TEVU::CValueBool*>(&value))
        words << (flag->Bool() ? "true" : "false");
    else if (const auto* whole = dynamic_cast<const TEVU::CValueLong*>(&value))
        words << whole->Long();
    else if (const auto* number = dynamic_cast<const TEVU::CValueDouble*>(&value))
        words << std::showpoint << number->Double();
    else if (const auto* text = dynamic_cast<const TEVU::CValueString*>(&value))
        words << '"' << text->String() << '"';
    else if (const auto* pointer = dynamic_cast<const TEVU::CValuePointerBase*>(&value))
        words << (pointer->Address() ? "pointer" : "null");
    else if (const auto* vector = dynamic_cast<const TEVU::CValueVector*>(&value))
        words << '[' << writtenEntries(*vector, false) << ']';
    else
        words << '{' << writtenEntries(dynamic_cast<const TEVU::CValueMap&>(value), true) << '}';
    return words.str();
}

} // namespace maps
