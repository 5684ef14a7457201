#include "UnwrapPointer.h"

#include <ruqlib2core/CExBadParam.h>
#include <ruqlib2core/CString.h>

namespace TEVU {

namespace {

// The place is the one under which this fault has always been reported, whatever the file is now.
const char* const c_sFile = "ruqlib2core\\src\\Value/ValuePointer";
const char* const c_sFunction = "TEVU::UnwrapPointer";
const int c_nLine = 676;

} // namespace

void throwPointerTypeMismatch(const std::type_info& requested, const std::type_info& actual) {
    throw CExBadParam(CString("Requested type ('%1') does not match actual type ('%2')!")
                          .Arg(requested.name())
                          .Arg(actual.name()),
                      __DATE__ "-" __TIME__, c_sFile, c_sFunction, c_nLine);
}

} // namespace TEVU
