#include "FileSystem.h"

#include "WideText.h"

#include <ruqlib2core/CException.h>

#include <algorithm>
#include <cstdlib>
#include <system_error>
#include <windows.h>

namespace TEVU {
namespace FileSystem {

namespace {

[[noreturn]] void fail(const char* place, const std::string& path, DWORD error) {
    throw CException(place, path + ": " + std::system_category().message(static_cast<int>(error)));
}

/// Closes its handle, which may be INVALID_HANDLE_VALUE for none.
class Handle {
public:
    explicit Handle(HANDLE handle = INVALID_HANDLE_VALUE) : m_pHandle(handle) {}
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    ~Handle() { Close(); }
    operator HANDLE() const { return m_pHandle; }
    bool IsOpen() const { return m_pHandle != INVALID_HANDLE_VALUE; }
    void Close() { Take(INVALID_HANDLE_VALUE); }

    void Take(HANDLE handle) {
        if (IsOpen())
            ::CloseHandle(m_pHandle);
        m_pHandle = handle;
    }

private:
    HANDLE m_pHandle;
};

const DWORD c_nShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

HANDLE open(const wchar_t* path, DWORD access, DWORD share, DWORD creation) {
    return ::CreateFileW(path, access, share, nullptr, creation, FILE_ATTRIBUTE_NORMAL, nullptr);
}

HANDLE open(const std::string& path, DWORD access, DWORD share, DWORD creation) {
    return open(toWide(path).c_str(), access, share, creation);
}

std::string versionOf(HANDLE handle) {
    BY_HANDLE_FILE_INFORMATION status = {};
    if (!::GetFileInformationByHandle(handle, &status))
        return std::string();
    std::string version;
    for (const DWORD part :
         {status.dwVolumeSerialNumber, status.nFileIndexHigh, status.nFileIndexLow,
          status.nFileSizeHigh, status.nFileSizeLow, status.ftLastWriteTime.dwHighDateTime,
          status.ftLastWriteTime.dwLowDateTime})
        version += std::to_string(part) + ":";
    return version;
}

bool hasAttribute(const std::string& path, DWORD attribute) {
    const DWORD attributes = ::GetFileAttributesW(toWide(path).c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & attribute);
}

bool isFolder(const std::string& path) {
    return hasAttribute(path, FILE_ATTRIBUTE_DIRECTORY);
}

bool isReadOnly(const std::string& path) {
    return hasAttribute(path, FILE_ATTRIBUTE_READONLY);
}

/// Errors that say nothing about the content: out of resources, or another program has it open.
bool isAboutTheProcess(DWORD error) {
    return error == ERROR_TOO_MANY_OPEN_FILES || error == ERROR_NOT_ENOUGH_MEMORY ||
           error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION;
}

StReading failedReading(DWORD error) {
    StReading reading;
    if (error != ERROR_FILE_NOT_FOUND && error != ERROR_PATH_NOT_FOUND)
        reading.state = isAboutTheProcess(error) ? StReading::eUnavailable : StReading::eUnreadable;
    reading.reason = std::system_category().message(static_cast<int>(error));
    return reading;
}

/// The bytes up to the end of the file; 0, or the error number.
DWORD readAll(HANDLE handle, std::size_t largest, std::string& bytes) {
    char buffer[64 * 1024];
    DWORD count = 0;
    do {
        if (!::ReadFile(handle, buffer, sizeof buffer, &count, nullptr))
            return ::GetLastError();
        bytes.append(buffer, count);
        if (bytes.size() > largest)
            return ERROR_FILE_TOO_LARGE;
    } while (count > 0);
    return 0;
}

void flush(const std::string& path) {
    const Handle handle(open(path, GENERIC_WRITE, c_nShareAll, OPEN_EXISTING));
    if (!handle.IsOpen() || !::FlushFileBuffers(handle))
        fail("NewFile", path, ::GetLastError());
}

/// Another program, a virus scanner say, may have the target open for a moment.
void renameOver(const std::string& from, const std::string& to) {
    // Not left to the rename: some file systems replace what is write-protected.
    if (isReadOnly(to))
        fail("NewFile", to, ERROR_ACCESS_DENIED);
    DWORD error = 0;
    for (int attempt = 0; attempt < 100; ++attempt) {
        if (::MoveFileExW(toWide(from).c_str(), toWide(to).c_str(),
                          MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
            return;
        error = ::GetLastError();
        ::Sleep(10);
    }
    fail("NewFile", to, error);
}

} // namespace

std::string environmentVariable(const char* name) {
    const wchar_t* value = ::_wgetenv(toWide(name).c_str());
    return value ? toUtf8(value) : std::string();
}

StReading readFile(const std::string& path, std::size_t largest) {
    StReading reading;
    reading.state = StReading::eUnavailable;
    reading.reason = "is no ordinary file";
    if (isFolder(path))
        return reading;
    const Handle handle(open(path, GENERIC_READ, c_nShareAll, OPEN_EXISTING));
    if (!handle.IsOpen())
        return failedReading(::GetLastError());
    if (::GetFileType(handle) != FILE_TYPE_DISK)
        return reading;
    const DWORD error = readAll(handle, largest, reading.bytes);
    if (error != 0)
        return failedReading(error);
    reading.state = StReading::eWhole;
    reading.version = versionOf(static_cast<HANDLE>(handle));
    // Nothing is held: file numbers are not used again here, and an open file would be in the way.
    return reading;
}

std::string versionOf(const std::string& path) {
    const Handle handle(open(path, 0, c_nShareAll, OPEN_EXISTING));
    return handle.IsOpen() ? versionOf(static_cast<HANDLE>(handle)) : std::string();
}

bool exists(const std::string& path) {
    return ::GetFileAttributesW(toWide(path).c_str()) != INVALID_FILE_ATTRIBUTES;
}

void renameFile(const std::string& from, const std::string& to) {
    if (!::MoveFileExW(toWide(from).c_str(), toWide(to).c_str(), MOVEFILE_WRITE_THROUGH))
        fail("renameFile", from, ::GetLastError());
}

void createFolders(const std::string& folder) {
    if (isFolder(folder) || ::CreateDirectoryW(toWide(folder).c_str(), nullptr))
        return;
    if (::GetLastError() != ERROR_PATH_NOT_FOUND || folderOf(folder) == ".")
        fail("createFolders", folder, ::GetLastError());
    createFolders(folderOf(folder));
    if (!::CreateDirectoryW(toWide(folder).c_str(), nullptr) && !isFolder(folder))
        fail("createFolders", folder, ::GetLastError());
}

std::string resolveLinks(const std::string& path) {
    return path;
}

std::string absolutePath(const std::string& path) {
    wchar_t absolute[MAX_PATH];
    const DWORD length = ::GetFullPathNameW(toWide(path).c_str(), MAX_PATH, absolute, nullptr);
    if (length == 0 || length >= MAX_PATH)
        return path;
    std::string utf8 = toUtf8(absolute);
    std::replace(utf8.begin(), utf8.end(), '\\', '/'); // as the toolkit and the callers write it
    return utf8;
}

std::string configurationFolder() {
    return environmentVariable("APPDATA");
}

namespace {

/// An exclusive lock of a byte far behind the content, which it leaves accessible. The system releases it when
/// the handle is closed or the process ends.
bool lockExclusively(HANDLE handle, DWORD flags = 0) {
    OVERLAPPED at = {};
    at.OffsetHigh = MAXLONG;
    return ::LockFileEx(handle, LOCKFILE_EXCLUSIVE_LOCK | flags, 0, 1, 0, &at);
}

} // namespace

struct Lock::StHandle {
    Handle handle;
};

Lock::Lock(const std::string& path) : m_pHandle(std::make_unique<StHandle>()) {
    m_pHandle->handle.Take(open(path, GENERIC_READ | GENERIC_WRITE, c_nShareAll, OPEN_ALWAYS));
    if (!m_pHandle->handle.IsOpen() || !lockExclusively(m_pHandle->handle))
        fail("Lock", path, ::GetLastError());
}

Lock::~Lock() = default;

struct NewFile::StHandle {
    Handle handle;
};

namespace {

/// Makes the file and locks it, which tells others that it is not left behind, until it has been renamed.
/// 0, or the error number.
DWORD makeLocked(const wchar_t* path, Handle& handle) {
    // Nobody can delete the file while this is open. It would be in the way of the rename, though.
    Handle made(open(path, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, CREATE_NEW));
    if (!made.IsOpen())
        return ::GetLastError();
    handle.Take(open(path, GENERIC_READ, c_nShareAll, OPEN_EXISTING));
    if (handle.IsOpen() && lockExclusively(handle))
        return 0;
    const DWORD error = ::GetLastError();
    made.Close();
    ::DeleteFileW(path);
    return error;
}

} // namespace

// Whatever can run out of memory comes before the file is made: a constructor cleans nothing up.
NewFile::NewFile(const std::string& target)
    : m_sTarget(target), m_pHandle(std::make_unique<StHandle>()) {
    if (isFolder(target))
        throw CException("NewFile", target + ": is no ordinary file");
    m_sPath = newFileName(target);
    if (const DWORD error = makeLocked(toWide(m_sPath).c_str(), m_pHandle->handle)) {
        m_sPath.clear();
        fail("NewFile", target, error);
    }
}

NewFile::~NewFile() {
    m_pHandle->handle.Close();
    if (!m_sPath.empty())
        ::DeleteFileW(toWide(m_sPath).c_str());
}

void NewFile::MoveToTarget() {
    flush(m_sPath);
    renameOver(m_sPath, m_sTarget);
    m_sPath.clear();
}

namespace {

/// Opened for reading only: a living process may want to write to its file just now.
void removeUnlessInUse(const std::string& path) {
    const Handle handle(open(path, GENERIC_READ, c_nShareAll, OPEN_EXISTING));
    if (handle.IsOpen() && lockExclusively(handle, LOCKFILE_FAIL_IMMEDIATELY))
        ::DeleteFileW(toWide(path).c_str());
}

struct SearchCloser {
    void operator()(void* search) const { ::FindClose(search); }
};

} // namespace

void removeLeftBehind(const std::string& target) {
    WIN32_FIND_DATAW found = {};
    const std::string folder = folderOf(target);
    const HANDLE first = ::FindFirstFileW(toWide(folder + "/*.new").c_str(), &found);
    if (first == INVALID_HANDLE_VALUE)
        return;
    const std::unique_ptr<void, SearchCloser> search(first);
    do {
        const std::string name = toUtf8(found.cFileName);
        if (isNewFileName(name, target))
            removeUnlessInUse(folder + "/" + name);
    } while (::FindNextFileW(search.get(), &found));
}

} // namespace FileSystem
} // namespace TEVU
