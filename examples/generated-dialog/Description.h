#ifndef GENERATED_DIALOG_DESCRIPTION_H
#define GENERATED_DIALOG_DESCRIPTION_H

#include <ruqlib2core/CValueBool.h>
#include <ruqlib2core/CValueDouble.h>
#include <ruqlib2core/CValueLong.h>
#include <ruqlib2core/CValueMap.h>
#include <ruqlib2core/CValueString.h>
#include <ruqlib2core/CValueVector.h>
#include <utility>
#include <vector>

/// Short names for what a description is made of. What they make belongs to what it is put into.
namespace description {

using TEVU::CValue;
using Entries = std::vector<std::pair<const char*, CValue*>>;

inline CValue* text(const char* value) {
    return new TEVU::CValueString(value);
}

inline CValue* whole(long value) {
    return new TEVU::CValueLong(value);
}

inline CValue* number(double value) {
    return new TEVU::CValueDouble(value);
}

inline CValue* flag(bool value) {
    return new TEVU::CValueBool(value);
}

inline CValue* map(const Entries& entries) {
    auto* map = new TEVU::CValueMap;
    for (const auto& [key, value] : entries)
        map->SetEntry(key, value);
    return map;
}

inline CValue* list(const std::vector<CValue*>& values) {
    auto* list = new TEVU::CValueVector;
    for (std::size_t index = 0; index < values.size(); ++index)
        list->SetEntry(static_cast<int>(index), values[index]);
    return list;
}

inline CValue* texts(const std::vector<const char*>& values) {
    auto* list = new TEVU::CValueVector;
    for (std::size_t index = 0; index < values.size(); ++index)
        list->SetEntry(static_cast<int>(index), text(values[index]));
    return list;
}

inline CValue* entry(const char* kind, const char* key, const char* label, Entries more = {}) {
    more.insert(more.end(), {{"kind", text(kind)}, {"key", text(key)}, {"label", text(label)}});
    return map(more);
}

inline CValue* group(const char* title, const std::vector<CValue*>& entries, Entries more = {}) {
    more.insert(more.end(),
                {{"kind", text("group")}, {"title", text(title)}, {"entries", list(entries)}});
    return map(more);
}

} // namespace description

#endif
