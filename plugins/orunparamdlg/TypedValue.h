#ifndef RUQGUI_ORUNPARAMDLG_TYPEDVALUE_H
#define RUQGUI_ORUNPARAMDLG_TYPEDVALUE_H

#include "Subject.h"

#include <string>
#include <vector>

namespace TEVU {
class CValue;
class CValueMap;
class CValueVector;
} // namespace TEVU

namespace autodlg {

using Texts = std::vector<std::string>;

// What a value holds. Of another type it is a complaint about the subject, which throws: nothing is
// converted, also no whole number to a number.

bool toBool(const TEVU::CValue& value, const Subject& subject);
long toLong(const TEVU::CValue& value, const Subject& subject);
double toDouble(const TEVU::CValue& value, const Subject& subject);
std::string toText(const TEVU::CValue& value, const Subject& subject);
Texts toTexts(const TEVU::CValue& value, const Subject& subject);
const TEVU::CValueMap& toMap(const TEVU::CValue& value, const Subject& subject);
const TEVU::CValueVector& toVector(const TEVU::CValue& value, const Subject& subject);

} // namespace autodlg

#endif
