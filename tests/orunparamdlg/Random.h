#ifndef RUQGUI_TESTS_ORUNPARAMDLG_RANDOM_H
#define RUQGUI_TESTS_ORUNPARAMDLG_RANDOM_H

#include <DialogDescription.h>
#include <functional>
#include <ruqlib2core/CValueMap.h>
#include <string>

/// Descriptions and parameters of all sorts, and what must hold for them: for random numbers as for the
/// bytes of a fuzzer.
namespace random_maps {

/// Gives a number from 0 to \a limit - 1. Zeros alone end every map and vector soon.
using Dice = std::function<unsigned(unsigned limit)>;

/// Mostly in order, but anything can be missing, of another type or value, or too much.
TEVU::CValueMap description(const Dice& dice);

/// The same for the parameters of a description that is in order.
TEVU::CValueMap parameters(const Dice& dice, const autodlg::StDialog& dialog);

/// How far it came.
enum class Outcome { DescriptionRefused, ParametersRefused, Accepted };

/// Reads a random description with random parameters. Either one is refused with a CException that
/// names an entry, or defaults and values survive storing and reading, and nothing else is touched.
/// \throws std::logic_error that says what does not hold
Outcome check(const Dice& dice);

} // namespace random_maps

#endif
