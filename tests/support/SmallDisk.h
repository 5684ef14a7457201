#ifndef RUQGUI_TESTS_SUPPORT_SMALLDISK_H
#define RUQGUI_TESTS_SUPPORT_SMALLDISK_H

#include "Rerun.h"

#include <gtest/gtest.h>
#include <string>

namespace support {

/// A disk of 64 KB with room for ten files, in memory, over a folder that is there. It goes with this
/// object. What cannot be done fails the test.
/// \code
/// TEST(Save, NeedsRoom) {
///     RUN_WITH_OWN_DISKS();
///     const support::TempDir dir;
///     const support::SmallDisk disk(dir.makeFolder("disk"));
///     disk.fill();
/// \endcode
class SmallDisk {
public:
    explicit SmallDisk(const std::string& folder);
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;
    ~SmallDisk();

    void fill() const;         ///< Into the file "filler", until nothing more can be written.
    void takeAllFiles() const; ///< Empty ones, "file1" to "fileN", until no more can be made.
    void setReadOnly(bool readOnly) const;

private:
    std::string m_sFolder;
};

/// Whether this process may have disks that no other process sees.
bool mayHaveOwnDisks();

/// Runs the current test once more, in a program that sees disks of its own.
Outcome runCurrentTestWithOwnDisks();

} // namespace support

/// At the top of a test with a SmallDisk: the test then runs in another process, and passes or fails with
/// that run. It is skipped where the system does not allow that, as in some containers.
#define RUN_WITH_OWN_DISKS()                                                                       \
    if (!support::isRerun()) {                                                                     \
        if (!support::mayHaveOwnDisks())                                                           \
            GTEST_SKIP() << "the system does not let this user mount a disk";                      \
        const support::Outcome outcome = support::runCurrentTestWithOwnDisks();                    \
        EXPECT_TRUE(outcome.passed) << outcome.output;                                             \
        return;                                                                                    \
    }                                                                                              \
    static_assert(true, "")

#endif
