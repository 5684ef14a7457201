#ifndef RUQGUI_TESTS_ORUNPARAMDLG_MAPS_H
#define RUQGUI_TESTS_ORUNPARAMDLG_MAPS_H

#include <Description.h> // the example's short names for values

#include <ruqlib2core/CValueMap.h>
#include <string>
#include <vector>

/// What tests of the generated dialogs say of value maps.
namespace maps {

using description::CValue;
using description::Entries;
using description::entry;
using description::flag;
using description::group;
using description::list;
using description::map;
using description::number;
using description::text;
using description::texts;
using description::whole;

CValue* nullPointer();
CValue* range(long lower, long upper);

/// Takes what was made by map() for a test that keeps it.
TEVU::CValueMap taken(CValue* map);

/// A description of one entry, or of several.
TEVU::CValueMap dialogOf(CValue* entry);
TEVU::CValueMap dialogOf(const std::vector<CValue*>& entries);

/// The kinds of values, one of each: true, 1, 1.5, "a", a null pointer, a pointer, an empty vector, an
/// empty map.
enum Type { Bool, Long, Double, String, Null, Pointer, Vector, Map };
constexpr Type c_allTypes[] = {Bool, Long, Double, String, Null, Pointer, Vector, Map};
CValue* sample(Type type);

/// Whether a value of one type is one of the other: the two pointers are.
bool sameType(Type left, Type right);

/// As a complaint says it, such as "a whole number".
std::string inWords(Type type);

/// All that is in a value, such as "{a: 1, b: [\"x\", 1.5]}". Pointers are "pointer" or "null".
std::string written(const CValue& value);

} // namespace maps

#endif
