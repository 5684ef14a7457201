#ifndef RUQLIB2CORE_FILESYSTEM_H
#define RUQLIB2CORE_FILESYSTEM_H

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace TEVU {

/// What the library needs of the operating system's files, once for each system. Failures are
/// CExceptions with the path and the system's reason. Paths are the system's bytes; on Windows, whose
/// names are no bytes, they are UTF-8.
namespace FileSystem {

/// Of this process, in the same bytes as paths; empty when there is none.
std::string environmentVariable(const char* name);

/// What a look at a file found.
struct StReading {
    enum EnState {
        eWhole,      ///< bytes holds the content.
        eMissing,    ///< There is no file.
        eUnreadable, ///< There is a file that cannot be read, now or later.
        eUnavailable ///< Nothing is known about the content: no ordinary file, or out of resources.
    };
    EnState state = eMissing;
    std::string bytes;
    std::string reason;               ///< Why there are no bytes.
    std::string version;              ///< What versionOf() said of the file that was read.
    std::shared_ptr<const void> hold; ///< While it lives, no other file gets the same version.
};

/// Reads a whole file. One above \a largest bytes is unreadable.
StReading readFile(const std::string& path, std::size_t largest);

/// A text that changes when the file at \a path is replaced or written to; empty when there is
/// none.
std::string versionOf(const std::string& path);

/// Writes all of \a bytes to a file that exists.
void writeFile(const std::string& path, const std::string& bytes);

bool exists(const std::string& path); ///< Links are not followed: a dangling one exists.
void renameFile(const std::string& from, const std::string& to);
void createFolders(const std::string& folder); ///< With all that are missing above it.

/// The path with a link at its end followed; the path itself when there is none.
std::string resolveLinks(const std::string& path);

std::string absolutePath(const std::string& path);
std::string folderOf(const std::string& path); ///< "." when there is none in it.
std::string nameOf(const std::string& path);

/// The user's folder for settings; empty when the environment tells none.
std::string configurationFolder();

/// An exclusive lock between processes, by a file that stays behind empty. The system releases it
/// when the process ends, in whichever way.
class Lock {
public:
    explicit Lock(const std::string& path); ///< Waits until it is free.
    Lock(const Lock&) = delete;
    Lock& operator=(const Lock&) = delete;
    ~Lock();

private:
    struct StHandle;
    std::unique_ptr<StHandle> m_pHandle;
};

/// A file that is written beside the one it will replace; removed unless it was moved.
class NewFile {
public:
    explicit NewFile(const std::string& target);
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;
    ~NewFile();

    const std::string& Path() const { return m_sPath; }
    void MoveToTarget(); ///< On disk when it returns.

private:
    struct StHandle;
    std::string m_sTarget;
    std::string m_sPath;
    std::unique_ptr<StHandle> m_pHandle;
};

/// Removes the new files for \a target whose process is gone.
void removeLeftBehind(const std::string& target);

/// A name for a new file beside \a target, at random.
std::string newFileName(const std::string& target);

/// Whether \a name is one that newFileName() gives for \a target.
bool isNewFileName(const std::string& name, const std::string& target);

} // namespace FileSystem
} // namespace TEVU

#endif
