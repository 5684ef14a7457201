#ifndef RUQGUI_ORUNPARAMDLG_DIALOGDESCRIPTION_H
#define RUQGUI_ORUNPARAMDLG_DIALOGDESCRIPTION_H

#include "ParameterKinds.h"

#include <cstddef>
#include <string>
#include <variant>
#include <vector>

namespace TEVU {
class CValue;
}

namespace autodlg {

/// A parameter as the description has it.
struct StParameter {
    Texts path; ///< The keys that lead to its value in the map of parameters: at least one.
    std::string label;
    std::string help;
    bool advanced; ///< Also when a group around it is.
    Kind kind;
    Value byDefault;
};

struct StMember;

/// A box of the form with parameters and further groups, from top to bottom.
struct StGroup {
    std::string title;
    std::string help;
    std::vector<StMember> members;
};

struct StMember {
    std::variant<std::size_t, StGroup> what; ///< A parameter, by its place in the list, or a group.
};

/// A whole description.
///
/// Invariants:
/// 1. No two parameters have the same path, and none has that of a group's map.
/// 2. The groups hold each parameter once, in the order of the list.
/// 3. Every default is a valid value of its kind.
struct StDialog {
    std::vector<StParameter> parameters;
    StGroup form; ///< Its title is that of the window.
};

/// How deep groups can be in groups.
constexpr int c_nMaxDepth = 16;

/// "filter/sigma": a path in words.
std::string joined(const Texts& path);

/// A label as a name in a sentence: without the mark of the accelerator and without a colon at the end.
std::string plainLabel(const std::string& label);

/// Reads a description; docs/generated-dialogs.md has its form.
/// \param description may be null, which is a missing one
/// \throws CException for whatever is missing, of a wrong type or value, or unknown. Its message names
///         the entry: by its path ("filter/sigma"), or by its place if it has no key ("#2" is the
///         third one, "filter/#2" the third one of a group).
StDialog parseDescription(const TEVU::CValue* description);

} // namespace autodlg

#endif
