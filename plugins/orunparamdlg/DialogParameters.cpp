#include "DialogParameters.h"

#include <ruqlib2core/CValueMap.h>

namespace autodlg {

namespace {

Subject subjectOf(const Texts& path) {
    return Subject("parameter \"" + joined(path) + '"');
}

/// The map under \a key of \a map; null when there is none.
/// \param path all keys that lead to it
const TEVU::CValueMap* findMap(const TEVU::CValueMap& map, const std::string& key,
                               const Texts& path) {
    const TEVU::CValue* const value = map.Entry(key, false);
    return value ? &toMap(*value, subjectOf(path)) : nullptr;
}

/// The map that holds the last key of \a path; null when it or one on the way is missing.
const TEVU::CValueMap* findHolder(const TEVU::CValueMap& parameters, const Texts& path) {
    const TEVU::CValueMap* holder = &parameters;
    for (auto key = path.begin(); holder && key + 1 != path.end(); ++key)
        holder = findMap(*holder, *key, Texts(path.begin(), key + 1));
    return holder;
}

/// As findHolder(), making what is missing.
TEVU::CValueMap& makeHolder(TEVU::CValueMap& parameters, const Texts& path) {
    TEVU::CValueMap* holder = &parameters;
    for (auto key = path.begin(); key + 1 != path.end(); ++key) {
        if (!findMap(*holder, *key, Texts(path.begin(), key + 1)))
            holder->SetEntry(*key, new TEVU::CValueMap);
        holder = static_cast<TEVU::CValueMap*>(holder->Entry(*key, true));
    }
    return *holder;
}

/// The value in the map; null when there is none.
const TEVU::CValue* find(const TEVU::CValueMap& parameters, const Texts& path) {
    const TEVU::CValueMap* const holder = findHolder(parameters, path);
    return holder ? holder->Entry(path.back(), false) : nullptr;
}

} // namespace

std::vector<Value> readParameters(const StDialog& dialog, const TEVU::CValueMap& parameters) {
    std::vector<Value> values;
    for (const StParameter& parameter : dialog.parameters) {
        const TEVU::CValue* const value = find(parameters, parameter.path);
        values.push_back(value ? read(parameter.kind, *value, subjectOf(parameter.path))
                               : parameter.byDefault);
    }
    return values;
}

void writeParameters(const StDialog& dialog, const std::vector<Value>& values,
                     TEVU::CValueMap& parameters) {
    for (std::size_t i = 0; i < values.size(); ++i) {
        const StParameter& parameter = dialog.parameters[i];
        const TEVU::CValue* const present = find(parameters, parameter.path);
        if (present && read(parameter.kind, *present, subjectOf(parameter.path)) == values[i])
            continue;
        makeHolder(parameters, parameter.path)
            .SetEntry(parameter.path.back(), toMapValue(values[i], present).release());
    }
}

} // namespace autodlg
