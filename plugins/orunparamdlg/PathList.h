#ifndef RUQGUI_ORUNPARAMDLG_PATHLIST_H
#define RUQGUI_ORUNPARAMDLG_PATHLIST_H

#include "TypedValue.h"

#include <functional>
#include <string>

namespace autodlg {

/// The paths as one text, separated by commas.
std::string joinedPaths(const Texts& paths);

/// The paths in such a text. A comma may also be part of a name: of the pieces between the commas, as few
/// as make up a file are one path, and a piece that is not the beginning of any file is a path as it
/// stands. Empty pieces are dropped.
/// \param isFile whether there is a file of that path
Texts splitPaths(const std::string& text, const std::function<bool(const std::string&)>& isFile);

} // namespace autodlg

#endif
