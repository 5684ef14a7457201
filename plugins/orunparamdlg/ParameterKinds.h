#ifndef RUQGUI_ORUNPARAMDLG_PARAMETERKINDS_H
#define RUQGUI_ORUNPARAMDLG_PARAMETERKINDS_H

#include "TypedValue.h"

#include <memory>
#include <optional>
#include <ruqlib2core/CValue.h>
#include <string>
#include <variant>
#include <vector>

namespace autodlg {

/// A range of whole numbers, lower <= upper.
struct StRange {
    long lower;
    long upper;
};

bool operator==(const StRange& left, const StRange& right);
bool operator!=(const StRange& left, const StRange& right);

/// The value of a parameter. Which of the types it has follows from the kind.
using Value = std::variant<bool, long, double, std::string, StRange, Texts>;

// The kinds of parameters. Each has
// - fallback(): the default where the description gives none, always valid;
// - read(): a valid value out of a value of a map, else a complaint about \a subject, which throws.

/// A whole number: long, within min and max, which are of type int.
struct StIntegerKind {
    long min;
    long max;
    long step; ///< At least 1.
    std::string unit;

    Value fallback() const;
    Value read(const TEVU::CValue& value, const Subject& subject) const;
};

/// A finite number: double, within min and max.
struct StNumberKind {
    double min;
    double max;
    double step; ///< Above 0.
    std::string unit;
    std::optional<int> decimals; ///< To show, 0 to 15; without, six significant digits show.

    Value fallback() const;
    Value read(const TEVU::CValue& value, const Subject& subject) const;
};

/// A range of whole numbers within min and max, whose difference is of type int as they are: StRange,
/// in maps a map with "lower" and "upper".
struct StRangeKind {
    long min;
    long max;

    Value fallback() const;
    Value read(const TEVU::CValue& value, const Subject& subject) const;
};

/// Any text: std::string, a character a byte.
struct StTextKind {
    Value fallback() const;
    Value read(const TEVU::CValue& value, const Subject& subject) const;
};

/// A path, or several paths: std::string or Texts. Any texts are valid; whether there are such files
/// is asked when the user confirms.
struct StFileKind {
    enum EnMode { eOpenFile, eOpenFiles, eSaveFile };

    EnMode mode;
    std::string filter; ///< The toolkit's; fit for the save dialog if that is the mode.
    bool required;      ///< It may not be empty when the user confirms.

    Value fallback() const;
    Value read(const TEVU::CValue& value, const Subject& subject) const;
};

/// One text of a list: std::string.
struct StChoiceKind {
    Texts choices; ///< At least one, all different.
    Texts labels;  ///< What shows, one a choice.

    Value fallback() const;
    Value read(const TEVU::CValue& value, const Subject& subject) const;
};

/// On or off: bool.
struct StSwitchKind {
    Value fallback() const;
    Value read(const TEVU::CValue& value, const Subject& subject) const;
};

/// A colour: std::string, such as "#ff8000".
struct StColorKind {
    Value fallback() const;
    Value read(const TEVU::CValue& value, const Subject& subject) const;
};

using Kind = std::variant<StIntegerKind, StNumberKind, StRangeKind, StTextKind, StFileKind,
                          StChoiceKind, StSwitchKind, StColorKind>;

Value fallback(const Kind& kind);
Value read(const Kind& kind, const TEVU::CValue& value, const Subject& subject);

/// \a value as it stands in a map. A range goes into a copy of the map \a present if that is one, whose
/// other entries stay.
std::unique_ptr<TEVU::CValue> toMapValue(const Value& value, const TEVU::CValue* present);

/// A number in a message, with as few digits as tell it apart from others.
std::string shown(long number);
std::string shown(double number);

} // namespace autodlg

#endif
