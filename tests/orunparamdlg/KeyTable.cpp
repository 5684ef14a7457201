#include "KeyTable.h"

#include <map>
#include <ostream>
#include <utility>

using namespace maps;

namespace {

template <int value>
CValue* wholeOf() {
    return whole(value);
}

CValue* some() {
    return text("some");
}

CValue* keyA() {
    return text("a");
}

CValue* yes() {
    return flag(true);
}

CValue* nothing() {
    return list({});
}

CValue* filter() {
    return text("Tables (*.csv)");
}

/// The keys that every kind of parameter has.
std::vector<StKeyRow> commonKeys(const char* kind, CValue* (*makeKind)()) {
    return {{kind, "kind", String, true, makeKind},
            {kind, "key", String, true, keyA},
            {kind, "label", String, false, some},
            {kind, "help", String, false, some},
            {kind, "advanced", Bool, false, yes}};
}

const StKeyRow c_ownKeys[] = {
    {"", "title", String, false, some},
    {"", "entries", Vector, true, nothing},
    {"group", "kind", String, true, [] { return text("group"); }},
    {"group", "title", String, false, some},
    {"group", "key", String, false, keyA},
    {"group", "help", String, false, some},
    {"group", "advanced", Bool, false, yes},
    {"group", "entries", Vector, true, nothing},
    {"integer", "default", Long, false, wholeOf<5>},
    {"integer", "min", Long, false, wholeOf<0>},
    {"integer", "max", Long, false, wholeOf<9>},
    {"integer", "step", Long, false, wholeOf<2>},
    {"integer", "unit", String, false, some},
    {"number", "default", Double, false, [] { return number(2.5); }},
    {"number", "min", Double, false, [] { return number(0); }},
    {"number", "max", Double, false, [] { return number(9); }},
    {"number", "step", Double, false, [] { return number(0.5); }},
    {"number", "decimals", Long, false, wholeOf<3>},
    {"number", "unit", String, false, some},
    {"range", "default", Map, false, [] { return range(2, 5); }},
    {"range", "min", Long, true, wholeOf<0>},
    {"range", "max", Long, true, wholeOf<9>},
    {"text", "default", String, false, some},
    {"open file", "default", String, false, some},
    {"open file", "filter", String, false, filter},
    {"open file", "required", Bool, false, yes},
    {"open files", "default", Vector, false,
     [] {
         return texts({"some", "more"});
     }},
    {"open files", "filter", String, false, filter},
    {"open files", "required", Bool, false, yes},
    {"save file", "default", String, false, some},
    {"save file", "filter", String, true, filter},
    {"save file", "required", Bool, false, yes},
    {"choice", "default", String, false, [] { return text("y"); }},
    {"choice", "choices", Vector, true,
     [] {
         return texts({"x", "y"});
     }},
    {"choice", "labels", Vector, false,
     [] {
         return texts({"X", "Y"});
     }},
    {"switch", "default", Bool, false, yes},
    {"color", "default", String, false, [] { return text("#012345"); }},
};

template <std::size_t index>
CValue* kindText() {
    return text(parameterKinds()[index].c_str());
}

template <std::size_t... indices>
std::vector<StKeyRow> allCommonKeys(std::index_sequence<indices...>) {
    std::vector<StKeyRow> rows;
    for (const auto& keys : {commonKeys(parameterKinds()[indices].c_str(), kindText<indices>)...})
        rows.insert(rows.end(), keys.begin(), keys.end());
    return rows;
}

} // namespace

void PrintTo(const StKeyRow& row, std::ostream* out) {
    *out << row.kind << '/' << row.key;
}

const std::vector<StKeyRow>& keyTable() {
    static const std::vector<StKeyRow> table = [] {
        std::vector<StKeyRow> rows = allCommonKeys(std::make_index_sequence<10>());
        rows.insert(rows.end(), std::begin(c_ownKeys), std::end(c_ownKeys));
        return rows;
    }();
    return table;
}

const std::vector<StKeyRow>& keysOf(const std::string& kind) {
    static const std::map<std::string, std::vector<StKeyRow>> byKind = [] {
        std::map<std::string, std::vector<StKeyRow>> sorted;
        for (const StKeyRow& row : keyTable())
            sorted[row.kind].push_back(row);
        return sorted;
    }();
    return byKind.at(kind);
}

const std::vector<std::string>& parameterKinds() {
    static const std::vector<std::string> kinds = {"integer",   "number",     "range",     "text",
                                                   "open file", "open files", "save file", "choice",
                                                   "switch",    "color"};
    return kinds;
}

TEVU::CValueMap leastOf(const std::string& kind) {
    TEVU::CValueMap map;
    for (const StKeyRow& row : keysOf(kind)) {
        if (row.needed || (row.key == std::string("key") && kind != "group"))
            map.SetEntry(row.key, row.valid());
    }
    if (kind == "group")
        map.SetEntry("key", keyA());
    return map;
}
