#include "Random.h"

#include "KeyTable.h"
#include "Maps.h"

#include <DialogParameters.h>
#include <algorithm>
#include <climits>
#include <limits>
#include <memory>
#include <optional>
#include <ruqlib2core/CException.h>
#include <set>
#include <stdexcept>

using namespace autodlg;
using namespace maps;
using TEVU::CValueMap;

namespace random_maps {

namespace {

const int c_nMaxDepth = 4;

template <class T, std::size_t count>
const T& oneOf(const Dice& dice, const T (&values)[count]) {
    return values[dice(count)];
}

CValue* anyWhole(const Dice& dice) {
    // On Windows, where a long is no wider, it is INT_MIN once more.
    const auto aboveInt = static_cast<long>(INT_MAX + 1LL);
    static const long values[] = {0, 1, 2, 9, -3, 16, 100, INT_MIN, INT_MAX, aboveInt, LONG_MIN};
    return whole(oneOf(dice, values));
}

CValue* anyNumber(const Dice& dice) {
    using Limits = std::numeric_limits<double>;
    static const double values[] = {0,
                                    1,
                                    0.5,
                                    -1,
                                    9.25,
                                    0.001,
                                    -0.0,
                                    1e300,
                                    -1e300,
                                    Limits::max(),
                                    Limits::denorm_min(),
                                    Limits::infinity(),
                                    Limits::quiet_NaN()};
    return number(oneOf(dice, values));
}

CValue* anyText(const Dice& dice) {
    static const char* const values[] = {
        "a",       "b", "c", "x", "y", "", "#ff8000", "*.tif", "Images (*.tif *.png);;All (*)",
        "\xff\xfe"};
    return text(oneOf(dice, values));
}

CValue* anyFlag(const Dice& dice) {
    return flag(dice(2) == 1);
}

CValue* anyKey(const Dice& dice) {
    const unsigned number = dice(32);
    return text(number == 1 ? "" : std::to_string(number).c_str());
}

CValue* anyTexts(const Dice& dice) {
    std::vector<CValue*> values;
    while (values.size() < 5 && dice(3) > 0)
        values.push_back(anyText(dice));
    return list(values);
}

CValue* anyRange(const Dice& dice) {
    return map({{"lower", anyWhole(dice)}, {"upper", anyWhole(dice)}});
}

CValue* anyMap(const Dice& dice, int depth);

CValue* anything(const Dice& dice, int depth) {
    switch (dice(9)) {
    case 0:
        return nullPointer();
    case 1:
        return anyWhole(dice);
    case 2:
        return anyNumber(dice);
    case 3:
        return anyText(dice);
    case 4:
        return anyFlag(dice);
    case 5:
        return anyTexts(dice);
    case 6:
        return anyRange(dice);
    case 7:
        return list({anyMap(dice, depth)});
    default:
        return anyMap(dice, depth);
    }
}

CValue* anyMap(const Dice& dice, int depth) {
    static const char* const keys[] = {"a", "b", "lower", "upper", "kind", "key", "entries", "1"};
    auto result = std::make_unique<CValueMap>();
    while (depth < c_nMaxDepth && dice(3) > 0)
        result->SetEntry(oneOf(dice, keys), anything(dice, depth + 1));
    return result.release();
}

/// Of that type, but not always in order.
CValue* anyOf(Type type, const Dice& dice) {
    switch (type) {
    case Bool:
        return anyFlag(dice);
    case Long:
        return anyWhole(dice);
    case Double:
        return anyNumber(dice);
    case String:
        return anyText(dice);
    case Vector:
        return anyTexts(dice);
    default:
        return anyRange(dice);
    }
}

/// What stands under a key: mostly what should, null for nothing.
CValue* anyEntry(const StKeyRow& row, const Dice& dice) {
    const unsigned way = dice(128);
    if (way < (row.needed ? 1 : 48))
        return nullptr;
    if (way == 127)
        return anything(dice, 0);
    return way > 124 ? anyOf(row.type, dice) : row.valid();
}

CValue* anyEntries(const Dice& dice, int depth);

CValue* anyMember(const Dice& dice, int depth) {
    const auto& kinds = parameterKinds();
    const unsigned choice = dice(static_cast<unsigned>(kinds.size()) + 3);
    const std::string kind = choice < kinds.size() ? kinds[choice] : "group";
    auto member = std::make_unique<CValueMap>();
    for (const StKeyRow& row : keysOf(kind))
        member->SetEntry(row.key, anyEntry(row, dice));
    if (member->HasEntry("key"))
        member->SetEntry("key", anyKey(dice));
    if (kind == "group" && depth < c_nMaxDepth && dice(16) > 0)
        member->SetEntry("entries", anyEntries(dice, depth + 1));
    if (dice(64) == 1)
        member->SetEntry("other", anything(dice, 0));
    return member.release();
}

CValue* anyEntries(const Dice& dice, int depth) {
    std::vector<CValue*> members;
    while (members.size() < 4 && dice(members.empty() ? 16 : 3) > 0)
        members.push_back(dice(64) == 1 ? anything(dice, 0) : anyMember(dice, depth));
    return list(members);
}

/// A value for a parameter: mostly one that it can have, null for none.
CValue* anyValue(const StParameter& parameter, const Dice& dice) {
    switch (dice(8)) {
    case 0:
    case 1:
        return nullptr;
    case 2:
        return dice(2) == 1 ? anything(dice, 0)
                            : toMapValue(fallback(parameter.kind), nullptr).release();
    case 3:
        return dice(2) == 1 ? anyOf(static_cast<Type>(dice(Map + 1)), dice) : nullptr;
    default:
        return toMapValue(parameter.byDefault, nullptr).release();
    }
}

/// Puts it where the path leads, through whatever is there.
void put(CValueMap& map, const Texts& path, CValue* value) {
    CValueMap* holder = &map;
    for (std::size_t i = 0; i + 1 < path.size(); ++i) {
        if (!holder->HasEntry(path[i], typeid(CValueMap)))
            holder->SetEntry(path[i], new CValueMap);
        holder = static_cast<CValueMap*>(holder->Entry(path[i], true));
    }
    holder->SetEntry(path.back(), value);
}

void demand(bool holds, const std::string& what) {
    if (!holds)
        throw std::logic_error(what);
}

void checkRefusal(const TEVU::CException& refusal) {
    const std::string& message = refusal.Message();
    const std::size_t quote = message.find('"');
    demand(refusal.Place() == "plugwdgt_orunparamdlg::autodlg", "the place is " + refusal.Place());
    demand(quote != std::string::npos && message.find('"', quote + 1) != std::string::npos,
           "nothing is named: " + message);
}

/// Whether all of \a part is in \a whole, but for what lies under the paths \a except.
bool contains(const CValueMap& whole, const CValueMap& part, const std::set<Texts>& except,
              const Texts& around = {}) {
    for (const TEVU::CValue_Key& key : part.Keys()) {
        Texts path = around;
        path.push_back(key.String());
        if (except.count(path))
            continue;
        const CValue* const left = whole.Entry(key, false);
        const CValue* const right = part.Entry(key, true);
        const auto* const leftMap = dynamic_cast<const CValueMap*>(left);
        const auto* const rightMap = dynamic_cast<const CValueMap*>(right);
        if (leftMap && rightMap ? !contains(*leftMap, *rightMap, except, path)
                                : !left || written(*left) != written(*right))
            return false;
    }
    return true;
}

/// Stores \a values in a copy of \a map, and looks at what has become of it.
void checkStoring(const StDialog& dialog, const std::vector<Value>& values, const CValueMap& map,
                  const std::set<Texts>& mayChange) {
    CValueMap stored = map;
    writeParameters(dialog, values, stored);
    demand(readParameters(dialog, stored) == values, "what was stored reads otherwise");
    demand(contains(stored, map, mayChange), "something else has changed");
    const std::string once = written(stored);
    writeParameters(dialog, values, stored);
    demand(written(stored) == once, "storing it again changes something");
}

void checkValues(const StDialog& dialog, const CValueMap& map, const std::vector<Value>& values) {
    std::vector<Value> defaults;
    std::set<Texts> paths;
    for (const StParameter& parameter : dialog.parameters) {
        defaults.push_back(parameter.byDefault);
        demand(paths.insert(parameter.path).second, "a path is there twice");
    }
    demand(readParameters(dialog, CValueMap()) == defaults,
           "nothing does not read as the defaults");
    checkStoring(dialog, defaults, CValueMap(), {});
    checkStoring(dialog, values, map, {});
    checkStoring(dialog, defaults, map, paths);
}

std::optional<StDialog> parsed(const CValueMap& description) {
    try {
        return parseDescription(&description);
    } catch (const TEVU::CException& refusal) {
        checkRefusal(refusal);
        return std::nullopt;
    }
}

std::optional<std::vector<Value>> valuesOf(const StDialog& dialog, const CValueMap& map) {
    try {
        return readParameters(dialog, map);
    } catch (const TEVU::CException& refusal) {
        checkRefusal(refusal);
        return std::nullopt;
    }
}

} // namespace

CValueMap description(const Dice& dice) {
    CValueMap dialog;
    for (const StKeyRow& row : keysOf(""))
        dialog.SetEntry(row.key, anyEntry(row, dice));
    if (dice(32) != 1)
        dialog.SetEntry("entries", anyEntries(dice, 0));
    if (dice(64) == 1)
        dialog.SetEntry("other", anything(dice, 0));
    return dialog;
}

CValueMap parameters(const Dice& dice, const StDialog& dialog) {
    CValueMap map;
    while (map.Size() < 4 && dice(3) > 0)
        map.SetEntry("other" + std::to_string(map.Size()), anything(dice, 0));
    for (const StParameter& parameter : dialog.parameters)
        put(map, parameter.path, anyValue(parameter, dice));
    if (!dialog.parameters.empty() && dice(32) == 1)
        map.SetEntry(dialog.parameters.front().path.front(), anything(dice, 0));
    return map;
}

Outcome check(const Dice& dice) {
    const CValueMap description = random_maps::description(dice);
    const std::string before = written(description);
    const std::optional<StDialog> dialog = parsed(description);
    demand(written(description) == before, "reading has changed the description");
    if (!dialog)
        return Outcome::DescriptionRefused;
    const CValueMap map = parameters(dice, *dialog);
    const auto values = valuesOf(*dialog, map);
    if (!values)
        return Outcome::ParametersRefused;
    checkValues(*dialog, map, *values);
    return Outcome::Accepted;
}

} // namespace random_maps
