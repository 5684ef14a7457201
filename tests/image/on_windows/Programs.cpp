#include "Programs.h"

#include <TempDir.h>

#include <gtest/gtest.h>
#include <string>
#include <windows.h>

// Under wine the programs are those of the system around it. Wine starts them, but gives no handle to wait
// for: the shell leaves a file when it is done.

namespace programs {

namespace {

const int c_pieces = 1200;
const DWORD c_milliseconds = 50;

using UnixName = char*(CDECL*)(const wchar_t*);

/// The path as the system around wine names it; empty on Windows itself.
std::string outside(const std::string& path) {
    // By way of void*: the compiler warns of every other cast between function types.
    const auto unixName = reinterpret_cast<UnixName>(reinterpret_cast<void*>(
        ::GetProcAddress(::GetModuleHandleA("kernel32.dll"), "wine_get_unix_file_name")));
    if (!unixName)
        return std::string();
    char* name = unixName(std::wstring(path.begin(), path.end()).c_str());
    std::string copy = name ? name : "";
    ::HeapFree(::GetProcessHeap(), 0, name);
    return copy;
}

bool start(const std::string& script) {
    STARTUPINFOA startup = {};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process = {};
    std::string command = "sh " + script;
    return ::CreateProcessA("Z:\\bin\\sh", command.data(), nullptr, nullptr, FALSE, 0, nullptr,
                            nullptr, &startup, &process);
}

void waitForFile(const support::TempDir& dir, const std::string& name) {
    const HANDLE change =
        ::FindFirstChangeNotificationA(dir.path().c_str(), FALSE, FILE_NOTIFY_CHANGE_FILE_NAME);
    // Wine does not hear of everything that happens outside it: so the wait is cut into pieces.
    for (int piece = 0; piece < c_pieces && !dir.exists(name); ++piece) {
        ::WaitForSingleObject(change, c_milliseconds);
        ::FindNextChangeNotification(change);
    }
    ::FindCloseChangeNotification(change);
}

} // namespace

Result runInShell(const std::string& folder, const std::string& command) {
    const support::TempDir dir;
    const std::string here = outside(dir.path());
    if (here.empty())
        return {-1, "", "the programs that read what we write are run under wine only"};
    dir.writeFile("script", "export LC_ALL=C; cd '" + here + "'\n( cd '" + outside(folder) +
                                "' && " + command + " ) >out 2>err\necho $? >code\nmv code done\n");
    if (!start(here + "/script"))
        return {-1, "", "the shell could not be started"};
    waitForFile(dir, "done");
    const std::string code = dir.read("done");
    return {code.empty() ? -1 : std::stoi(code), dir.read("out"), dir.read("err")};
}

} // namespace programs
