#include "TypedValue.h"

#include <ruqlib2core/CValueBool.h>
#include <ruqlib2core/CValueDouble.h>
#include <ruqlib2core/CValueLong.h>
#include <ruqlib2core/CValueMap.h>
#include <ruqlib2core/CValueString.h>
#include <ruqlib2core/CValueVector.h>

namespace autodlg {

namespace {

const char* typeName(TEVU::CValue::EnGenericType type) {
    switch (type) {
    case TEVU::CValue::eBool:
        return "a truth value";
    case TEVU::CValue::eLong:
        return "a whole number";
    case TEVU::CValue::eDouble:
        return "a number";
    case TEVU::CValue::eString:
        return "a text";
    case TEVU::CValue::ePointer:
        return "a pointer";
    case TEVU::CValue::eVector:
        return "a vector";
    case TEVU::CValue::eMap:
        return "a map";
    }
    return "a value of an unknown type";
}

template <class Type>
const Type& demand(const TEVU::CValue& value, TEVU::CValue::EnGenericType type,
                   const Subject& subject) {
    const auto* const typed = dynamic_cast<const Type*>(&value);
    if (!typed)
        subject.refuse(std::string("must be ") + typeName(type) + ", not " +
                       typeName(value.GenericType()));
    return *typed;
}

} // namespace

bool toBool(const TEVU::CValue& value, const Subject& subject) {
    return demand<TEVU::CValueBool>(value, TEVU::CValue::eBool, subject).Bool();
}

long toLong(const TEVU::CValue& value, const Subject& subject) {
    return demand<TEVU::CValueLong>(value, TEVU::CValue::eLong, subject).Long();
}

double toDouble(const TEVU::CValue& value, const Subject& subject) {
    return demand<TEVU::CValueDouble>(value, TEVU::CValue::eDouble, subject).Double();
}

std::string toText(const TEVU::CValue& value, const Subject& subject) {
    return demand<TEVU::CValueString>(value, TEVU::CValue::eString, subject).String();
}

Texts toTexts(const TEVU::CValue& value, const Subject& subject) {
    const TEVU::CValueVector& vector = toVector(value, subject);
    Texts texts;
    for (const TEVU::CValue_Key& key : vector.Keys())
        texts.push_back(toText(*vector.Entry(key, true), subject.part(key.String())));
    return texts;
}

const TEVU::CValueMap& toMap(const TEVU::CValue& value, const Subject& subject) {
    return demand<TEVU::CValueMap>(value, TEVU::CValue::eMap, subject);
}

const TEVU::CValueVector& toVector(const TEVU::CValue& value, const Subject& subject) {
    return demand<TEVU::CValueVector>(value, TEVU::CValue::eVector, subject);
}

} // namespace autodlg
