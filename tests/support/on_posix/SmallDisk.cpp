#include "SmallDisk.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <sched.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

namespace support {

namespace {

const char* const c_options = "size=64k,nr_inodes=11"; // one is the folder itself

bool write(const char* path, const std::string& text) {
    std::ofstream file(path);
    file << text;
    file.close();
    return bool(file);
}

// An ordinary user may mount where he is the superuser.
bool becomeSuperuserOfOwn() {
    const std::string user = std::to_string(geteuid());
    const std::string group = std::to_string(getegid());
    return unshare(CLONE_NEWUSER) == 0 && write("/proc/self/setgroups", "deny") &&
           write("/proc/self/uid_map", "0 " + user + " 1") &&
           write("/proc/self/gid_map", "0 " + group + " 1");
}

bool leaveTheDisksOfOthers() {
    return (geteuid() == 0 || becomeSuperuserOfOwn()) && unshare(CLONE_NEWNS) == 0 &&
           mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

bool mountAt(const std::string& folder, unsigned long flags) {
    return mount("ruqgui-test", folder.c_str(), "tmpfs", flags, c_options) == 0;
}

} // namespace

SmallDisk::SmallDisk(const std::string& folder) : m_sFolder(folder) {
    EXPECT_TRUE(mountAt(folder, 0)) << folder << ": " << std::strerror(errno);
}

SmallDisk::~SmallDisk() {
    EXPECT_EQ(umount2(m_sFolder.c_str(), MNT_DETACH), 0) << m_sFolder;
}

void SmallDisk::fill() const {
    const int file = open((m_sFolder + "/filler").c_str(), O_WRONLY | O_CREAT | O_EXCL, 0600);
    ASSERT_GE(file, 0) << std::strerror(errno);
    while (::write(file, "x", 1) == 1) {
    }
    EXPECT_EQ(errno, ENOSPC);
    close(file);
}

void SmallDisk::takeAllFiles() const {
    for (int number = 1;; ++number) {
        const std::string path = m_sFolder + "/file" + std::to_string(number);
        const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL, 0600);
        if (file < 0)
            break;
        close(file);
    }
    EXPECT_EQ(errno, ENOSPC);
}

void SmallDisk::setReadOnly(bool readOnly) const {
    EXPECT_TRUE(mountAt(m_sFolder, MS_REMOUNT | (readOnly ? MS_RDONLY : 0)))
        << std::strerror(errno);
}

bool mayHaveOwnDisks() {
    const pid_t child = fork();
    if (child == 0)
        _exit(leaveTheDisksOfOthers() && mountAt("/tmp", 0) ? 0 : 1);
    int status = 1;
    waitpid(child, &status, 0);
    return status == 0;
}

Outcome runCurrentTestWithOwnDisks() {
    return rerunCurrentTest(leaveTheDisksOfOthers);
}

} // namespace support
