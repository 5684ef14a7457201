#include "Process.h"

#include <cstdio>
#include <windows.h>

#include <shellapi.h>

namespace process {

namespace {

std::string toUtf8(const wchar_t* wide) {
    // With the NUL at the end, which the string does not need.
    const int length = ::WideCharToMultiByte(CP_UTF8, 0, wide, -1, nullptr, 0, nullptr, nullptr);
    std::string utf8(static_cast<std::size_t>(length), '\0');
    ::WideCharToMultiByte(CP_UTF8, 0, wide, -1, utf8.data(), length, nullptr, nullptr);
    utf8.pop_back();
    return utf8;
}

/// A file or pipe to which the caller has led the stream.
bool isLedElsewhere(DWORD stream) {
    const HANDLE handle = ::GetStdHandle(stream);
    return handle != nullptr && handle != INVALID_HANDLE_VALUE;
}

} // namespace

std::vector<std::string> commandLine(int, char**) {
    int count = 0;
    wchar_t** words = ::CommandLineToArgvW(::GetCommandLineW(), &count);
    std::vector<std::string> arguments;
    for (int word = 0; word < count; ++word)
        arguments.push_back(toUtf8(words[word]));
    ::LocalFree(words);
    return arguments;
}

void useConsoleOfTheCaller() {
    const bool output = !isLedElsewhere(STD_OUTPUT_HANDLE);
    const bool errors = !isLedElsewhere(STD_ERROR_HANDLE);
    if ((!output && !errors) || !::AttachConsole(ATTACH_PARENT_PROCESS))
        return;
    if (output)
        std::freopen("CONOUT$", "w", stdout);
    if (errors)
        std::freopen("CONOUT$", "w", stderr);
}

} // namespace process
