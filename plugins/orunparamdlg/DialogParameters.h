#ifndef RUQGUI_ORUNPARAMDLG_DIALOGPARAMETERS_H
#define RUQGUI_ORUNPARAMDLG_DIALOGPARAMETERS_H

#include "DialogDescription.h"

#include <vector>

namespace TEVU {
class CValueMap;
}

namespace autodlg {

/// The values of the parameters of \a dialog, in their order: those in \a parameters, and the default
/// where there is none.
/// \throws CException that names the parameter when its value, or one of the maps around it, is of a
///         wrong type or not valid.
std::vector<Value> readParameters(const StDialog& dialog, const TEVU::CValueMap& parameters);

/// Stores \a values, one for each parameter of \a dialog. What the map has already, and what
/// the dialog does not describe, stays the very value that it is.
/// \throws CException as readParameters(): \a parameters must be readable by it. Then some of the
///         values may have been stored.
void writeParameters(const StDialog& dialog, const std::vector<Value>& values,
                     TEVU::CValueMap& parameters);

} // namespace autodlg

#endif
