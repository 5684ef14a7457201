#include "FileSystem.h"

#include <ruqlib2core/CException.h>

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <dirent.h>
#include <fcntl.h>
#include <filesystem>
#include <pwd.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace TEVU {
namespace FileSystem {

namespace {

std::string reasonOf(int error) {
    return std::generic_category().message(error);
}

[[noreturn]] void fail(const char* place, const std::string& path, int error) {
    throw CException(place, path + ": " + reasonOf(error));
}

/// Closes its file descriptor, which may be -1 for none.
class Descriptor {
public:
    explicit Descriptor(int descriptor) : m_nDescriptor(descriptor) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() { Take(-1); }

    void Take(int descriptor) {
        if (m_nDescriptor >= 0)
            ::close(m_nDescriptor);
        m_nDescriptor = descriptor;
    }

    operator int() const { return m_nDescriptor; }

private:
    int m_nDescriptor;
};

/// flock() that is not disturbed by signals; false when another process has the lock or the file
/// system knows no locks.
bool lock(int descriptor, int how) {
    int result = 0;
    do
        result = ::flock(descriptor, how);
    while (result != 0 && errno == EINTR);
    return result == 0;
}

bool isStillAt(int descriptor, const std::string& path) {
    struct stat opened = {};
    struct stat found = {};
    return ::fstat(descriptor, &opened) == 0 && ::lstat(path.c_str(), &found) == 0 &&
           opened.st_dev == found.st_dev && opened.st_ino == found.st_ino;
}

std::string versionOf(const struct stat& status) {
    std::string version;
    for (const long long part :
         {static_cast<long long>(status.st_dev), static_cast<long long>(status.st_ino),
          static_cast<long long>(status.st_size), static_cast<long long>(status.st_mtim.tv_sec),
          static_cast<long long>(status.st_mtim.tv_nsec),
          static_cast<long long>(status.st_ctim.tv_sec),
          static_cast<long long>(status.st_ctim.tv_nsec)})
        version += std::to_string(part) + ":";
    return version;
}

/// Errors that say nothing about the content: out of resources, or no file with a content (a
/// socket).
bool isAboutTheProcess(int error) {
    return error == EMFILE || error == ENFILE || error == ENOMEM || error == ENXIO;
}

StReading failedReading(int error) {
    StReading reading;
    if (error != ENOENT && error != ENOTDIR)
        reading.state = isAboutTheProcess(error) ? StReading::eUnavailable : StReading::eUnreadable;
    reading.reason = reasonOf(error);
    return reading;
}

/// The bytes up to the end of the file; 0, or the error number.
int readAll(int descriptor, std::size_t largest, std::string& bytes) {
    char buffer[64 * 1024];
    for (;;) {
        const ssize_t count = ::read(descriptor, buffer, sizeof buffer);
        if (count < 0 && errno != EINTR)
            return errno;
        if (count == 0)
            return 0;
        if (count > 0)
            bytes.append(buffer, static_cast<std::size_t>(count));
        if (bytes.size() > largest)
            return EFBIG;
    }
}

void syncFolder(const std::string& folder) {
    const Descriptor descriptor(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    // A folder that may be written but not read cannot be synced; EINVAL: this file system never
    // can.
    if (descriptor < 0 && errno == EACCES)
        return;
    if (descriptor < 0 || (::fsync(descriptor) != 0 && errno != EINVAL))
        fail("syncFolder", folder, errno);
}

} // namespace

std::string environmentVariable(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

StReading readFile(const std::string& path, std::size_t largest) {
    // O_NONBLOCK: a pipe at this place must not make the process wait.
    const int opened = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (opened < 0)
        return failedReading(errno);
    const auto descriptor = std::make_shared<const Descriptor>(opened);
    struct stat status = {};
    StReading reading;
    if (::fstat(opened, &status) != 0 || !S_ISREG(status.st_mode)) {
        reading.state = StReading::eUnavailable;
        reading.reason = "is no ordinary file";
        return reading;
    }
    const int error = readAll(opened, largest, reading.bytes);
    if (error != 0)
        return failedReading(error);
    reading.state = StReading::eWhole;
    reading.version = versionOf(status);
    reading.hold = descriptor;
    return reading;
}

std::string versionOf(const std::string& path) {
    struct stat status = {};
    return ::stat(path.c_str(), &status) == 0 ? versionOf(status) : std::string();
}

bool exists(const std::string& path) {
    struct stat status = {};
    return ::lstat(path.c_str(), &status) == 0;
}

void renameFile(const std::string& from, const std::string& to) {
    if (::rename(from.c_str(), to.c_str()) != 0)
        fail("renameFile", from, errno);
}

void createFolders(const std::string& folder) {
    if (::mkdir(folder.c_str(), 0777) == 0 || errno == EEXIST)
        return;
    if (errno != ENOENT)
        fail("createFolders", folder, errno);
    createFolders(folderOf(folder));
    if (::mkdir(folder.c_str(), 0777) != 0 && errno != EEXIST)
        fail("createFolders", folder, errno);
}

// Not realpath(): that gives up on a link whose target is still to be made.
std::string resolveLinks(const std::string& path) {
    const int mostLinks = 40; // as many as the system follows
    std::filesystem::path name(path);
    std::error_code error;
    for (int link = 0; link < mostLinks && std::filesystem::is_symlink(name, error); ++link) {
        const std::filesystem::path target = std::filesystem::read_symlink(name, error);
        if (error)
            break;
        name = name.parent_path() / target; // an absolute target replaces the folder
    }
    return name.string();
}

std::string absolutePath(const std::string& path) {
    char folder[PATH_MAX];
    if (path.empty() || path[0] == '/' || !::getcwd(folder, sizeof folder))
        return path;
    return std::string(folder) + "/" + path;
}

std::string configurationFolder() {
    const char* configured = std::getenv("XDG_CONFIG_HOME");
    if (configured && configured[0] == '/')
        return configured;
    const char* home = std::getenv("HOME");
    if (home && home[0] == '/')
        return std::string(home) + "/.config";
    const passwd* user = ::getpwuid(::getuid());
    return user && user->pw_dir ? std::string(user->pw_dir) + "/.config" : std::string();
}

struct Lock::StHandle {
    Descriptor descriptor{-1};
};

Lock::Lock(const std::string& path) : m_pHandle(std::make_unique<StHandle>()) {
    // Open for reading is enough for a lock, and works on one that another user has made.
    m_pHandle->descriptor.Take(
        ::open(path.c_str(), O_RDONLY | O_CREAT | O_NONBLOCK | O_CLOEXEC, 0666));
    if (m_pHandle->descriptor < 0 || !lock(m_pHandle->descriptor, LOCK_EX))
        fail("Lock", path, errno);
}

Lock::~Lock() = default;

struct NewFile::StHandle {
    Descriptor descriptor{-1};
    struct stat status = {}; ///< The owner and the permissions that the file gets at the end.
};

// Whatever can run out of memory comes before the file is made: a constructor cleans nothing up.
NewFile::NewFile(const std::string& target)
    : m_sTarget(target), m_pHandle(std::make_unique<StHandle>()) {
    struct stat old = {};
    const bool replaces = ::stat(target.c_str(), &old) == 0;
    if (replaces && !S_ISREG(old.st_mode))
        throw CException("NewFile", target + ": is no ordinary file");
    do {
        m_sPath = newFileName(target);
        m_pHandle->descriptor.Take(
            ::open(m_sPath.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
        if (m_pHandle->descriptor < 0)
            fail("NewFile", target, errno);
        // The lock tells others that this file is not left behind. One that was faster removes it.
        lock(m_pHandle->descriptor, LOCK_EX);
    } while (!isStillAt(m_pHandle->descriptor, m_sPath));
    ::fstat(m_pHandle->descriptor, &m_pHandle->status);
    if (replaces)
        m_pHandle->status = old;
    // Until it has its final permissions nobody else may look into it.
    ::fchmod(m_pHandle->descriptor, 0600);
}

NewFile::~NewFile() {
    if (!m_sPath.empty())
        ::unlink(m_sPath.c_str());
}

void NewFile::MoveToTarget() {
    // Opened anew: the writer may have put another file in the place of the empty one.
    const Descriptor descriptor(::open(m_sPath.c_str(), O_RDONLY | O_CLOEXEC));
    if (descriptor < 0)
        fail("NewFile", m_sPath, errno);
    const struct stat& status = m_pHandle->status;
    // Only root may give files away; for all others the new file is theirs.
    const bool given = ::fchown(descriptor, status.st_uid, status.st_gid) == 0;
    ::fchmod(descriptor, status.st_mode & (given ? 07777 : 0777));
    if (::fsync(descriptor) != 0 || ::rename(m_sPath.c_str(), m_sTarget.c_str()) != 0)
        fail("NewFile", m_sTarget, errno);
    m_sPath.clear();
    syncFolder(folderOf(m_sTarget));
}

namespace {

struct FolderCloser {
    void operator()(DIR* folder) const { ::closedir(folder); }
};

void removeUnlessInUse(const std::string& path) {
    const Descriptor descriptor(
        ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOFOLLOW | O_CLOEXEC));
    if (descriptor >= 0 && lock(descriptor, LOCK_EX | LOCK_NB) && isStillAt(descriptor, path))
        ::unlink(path.c_str());
}

} // namespace

void removeLeftBehind(const std::string& target) {
    const std::string folder = folderOf(target);
    const std::unique_ptr<DIR, FolderCloser> entries(::opendir(folder.c_str()));
    if (!entries)
        return;
    while (const dirent* entry = ::readdir(entries.get())) {
        if (isNewFileName(entry->d_name, target))
            removeUnlessInUse(folder + "/" + entry->d_name);
    }
}

} // namespace FileSystem
} // namespace TEVU
