#ifndef RUQLIB2CORE_REGISTRYTEXT_H
#define RUQLIB2CORE_REGISTRYTEXT_H

#include <ruqlib2core/CValue.h>

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <variant>

namespace TEVU {

/// What the registry's file holds, and how it is written.
///
/// The file is one JSON object: each entry's key with true or false, a whole number (long), a
/// number with a point or an exponent (double), or a string. JSON knows no strings of arbitrary
/// bytes, no infinities and no NaN. These are strings with a mark in front: "bytes:" and
/// hexadecimal digits, or "double:" and inf, -inf or nan. A string that is not UTF-8 or that begins
/// with one of the marks itself is written as bytes, so that no two values look the same. Keys are
/// strings as well.
namespace RegistryText {

using Scalar = std::variant<bool, long, double, std::string>;
using Settings = std::map<std::string, Scalar>;

/// The content of a value that outlives the process; none for the other kinds.
std::optional<Scalar> scalarOf(const CValue& value);
std::unique_ptr<CValue> valueOf(const Scalar& scalar);

/// Equal in kind and value: 1 differs from 1.0, and -0.0 from 0.0; NaN is the same as NaN.
bool areSame(const Scalar& a, const Scalar& b);

std::string write(const Settings& settings);

/// A CException with the reason for a text that write() does not write, however it is made.
Settings read(const std::string& text);

} // namespace RegistryText
} // namespace TEVU

#endif
