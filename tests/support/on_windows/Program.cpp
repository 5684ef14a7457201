#include "Program.h"

#include "TempDir.h"

#include <algorithm>
#include <filesystem>
#include <windows.h>

namespace support {

namespace {

/// As a program's command line is taken apart again; none of the words that tests use has quotes in it.
std::wstring quoted(const std::string& word) {
    return L'"' + std::filesystem::u8path(word).wstring() + L'"';
}

HANDLE openForAChild(const std::string& path) {
    SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
    return ::CreateFileA(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                         &inherited, OPEN_EXISTING, 0, nullptr);
}

int runAndWait(std::wstring commandLine, HANDLE output) {
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdOutput = output;
    startup.hStdError = output;
    PROCESS_INFORMATION process = {};
    if (!::CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr,
                          &startup, &process))
        return -1;
    DWORD status = 0;
    ::WaitForSingleObject(process.hProcess, INFINITE);
    ::GetExitCodeProcess(process.hProcess, &status);
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
    return static_cast<int>(status);
}

} // namespace

Ended runProgram(const std::string& program, const std::vector<std::string>& arguments) {
    const TempDir dir;
    std::wstring commandLine = quoted(program);
    for (const std::string& argument : arguments)
        commandLine += L' ' + quoted(argument);
    const HANDLE output = openForAChild(dir.writeFile("output"));
    const int status = runAndWait(commandLine, output);
    ::CloseHandle(output);
    std::string text = dir.read("output");
    text.erase(std::remove(text.begin(), text.end(), '\r'), text.end());
    return {status, text};
}

} // namespace support
