#include "SmallDisk.h"

#include "TempDir.h"

#include <cerrno>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

namespace {

class SmallDiskTest : public testing::Test {
protected:
    /// 0, or why the file cannot be made.
    int errorOfMaking(const std::string& name) const {
        const int file = open(dir.path(name).c_str(), O_WRONLY | O_CREAT | O_EXCL, 0600);
        const int error = file < 0 ? errno : 0;
        close(file);
        return error;
    }

    const support::TempDir dir;
};

TEST_F(SmallDiskTest, FullOneTakesNoByteButANewFile) {
    RUN_WITH_OWN_DISKS();
    const support::SmallDisk disk(dir.makeFolder("disk"));

    disk.fill();

    EXPECT_EQ(errorOfMaking("disk/new"), 0);
    const int file = open(dir.path("disk/new").c_str(), O_WRONLY);
    EXPECT_EQ(write(file, "x", 1), -1);
    EXPECT_EQ(errno, ENOSPC);
    close(file);
}

TEST_F(SmallDiskTest, OneWithAllItsFilesTakesNoFurtherOne) {
    RUN_WITH_OWN_DISKS();
    const support::SmallDisk disk(dir.makeFolder("disk"));

    disk.takeAllFiles();

    EXPECT_EQ(errorOfMaking("disk/new"), ENOSPC);
    dir.remove("disk/file1");
    EXPECT_EQ(errorOfMaking("disk/new"), 0);
}

TEST_F(SmallDiskTest, ReadOnlyOneTakesNothing) {
    RUN_WITH_OWN_DISKS();
    const support::SmallDisk disk(dir.makeFolder("disk"));

    disk.setReadOnly(true);
    EXPECT_EQ(errorOfMaking("disk/new"), EROFS);

    disk.setReadOnly(false);
    EXPECT_EQ(errorOfMaking("disk/new"), 0);
}

TEST_F(SmallDiskTest, GoesAndLeavesTheFolder) {
    RUN_WITH_OWN_DISKS();
    const std::string folder = dir.makeFolder("disk");
    {
        const support::SmallDisk disk(folder);
        EXPECT_EQ(errorOfMaking("disk/new"), 0);
    }

    EXPECT_TRUE(dir.exists("disk"));
    EXPECT_FALSE(dir.exists("disk/new"));
}

} // namespace
