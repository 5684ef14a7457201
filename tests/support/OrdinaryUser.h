#ifndef RUQGUI_TESTS_SUPPORT_ORDINARYUSER_H
#define RUQGUI_TESTS_SUPPORT_ORDINARYUSER_H

#include "NotOnWindows.h"
#include "Rerun.h"

#include <gtest/gtest.h>

namespace support {

bool isSuperuser();

/// Runs the current test once more, in a program of its own, as the user "nobody".
Outcome runCurrentTestAsOrdinaryUser();

} // namespace support

/// At the top of a test that needs permissions to mean something: for the superuser every file can be
/// read and written. The test then runs as another user, with modal dialogs and all, and passes or
/// fails with that run. For ordinary users it goes on as it is.
/// \code
/// TEST(CFileDialog, UnreadableFileIsReported)
/// {
///     RUN_AS_ORDINARY_USER();
///     const support::TempDir dir;
/// \endcode
#define RUN_AS_ORDINARY_USER()                                                                     \
    NOT_ON_WINDOWS(noPermissions);                                                                 \
    if (support::isSuperuser()) {                                                                  \
        const support::Outcome outcome = support::runCurrentTestAsOrdinaryUser();                  \
        EXPECT_TRUE(outcome.passed) << outcome.output;                                             \
        return;                                                                                    \
    }                                                                                              \
    static_assert(true, "")

#endif
