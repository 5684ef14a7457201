#ifndef RUQGUI_TESTS_DIFFERENTIAL_REDUCTION_H
#define RUQGUI_TESTS_DIFFERENTIAL_REDUCTION_H

#include "Operation.h"

#include <functional>

namespace differential {

/// The shortest part of \a operations, in their order, that still fails and that can be found by
/// leaving out ever smaller pieces: no single further operation can be left out. \a operations
/// themselves must fail.
Operations reduced(const Operations& operations,
                   const std::function<bool(const Operations&)>& fails);

} // namespace differential

#endif
