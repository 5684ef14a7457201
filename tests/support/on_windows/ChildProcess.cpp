#include "ChildProcess.h"

#include "ChildTask.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <io.h>
#include <stdexcept>
#include <system_error>
#include <windows.h>

namespace support {

namespace {

/// Tells the program that it is a child: its task and the arguments, in hexadecimal digits.
const char* const c_taskVariable = "RUQ_TEST_CHILD";

std::string toHex(const std::string& text) {
    static const char* const digits = "0123456789abcdef";
    std::string hex;
    for (const char c : text) {
        hex += digits[static_cast<unsigned char>(c) >> 4];
        hex += digits[static_cast<unsigned char>(c) & 15];
    }
    return hex;
}

std::string fromHex(const std::string& hex) {
    std::string text;
    for (std::size_t at = 0; at + 1 < hex.size(); at += 2)
        text += static_cast<char>(std::stoi(hex.substr(at, 2), nullptr, 16));
    return text;
}

std::string joined(const ChildProcess::Arguments& words) {
    std::string all;
    for (const std::string& word : words)
        all += toHex(word) + ',';
    return all;
}

ChildProcess::Arguments split(const std::string& all) {
    ChildProcess::Arguments words;
    for (std::size_t begin = 0; begin < all.size(); begin = all.find(',', begin) + 1)
        words.push_back(fromHex(all.substr(begin, all.find(',', begin) - begin)));
    return words;
}

/// Bytes until the end of the pipe or file, or until an end of line when that is asked for.
std::string readFrom(HANDLE handle, bool oneLine) {
    std::string text;
    char c = 0;
    for (DWORD count = 0; ::ReadFile(handle, &c, 1, &count, nullptr) && count == 1;) {
        if (oneLine && c == '\n')
            break;
        text += c;
    }
    return text;
}

HANDLE inheritable(HANDLE handle) {
    ::SetHandleInformation(handle, HANDLE_FLAG_INHERIT, HANDLE_FLAG_INHERIT);
    return handle;
}

/// Gone when both processes have closed it.
HANDLE temporaryFile() {
    char folder[MAX_PATH];
    char name[MAX_PATH];
    ::GetTempPathA(MAX_PATH, folder);
    ::GetTempFileNameA(folder, "err", 0, name);
    return ::CreateFileA(name, GENERIC_READ | GENERIC_WRITE,
                         FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                         CREATE_ALWAYS, FILE_FLAG_DELETE_ON_CLOSE, nullptr);
}

/// This program once more, not running yet.
PROCESS_INFORMATION startSuspended(HANDLE output, HANDLE errors) {
    char program[MAX_PATH];
    ::GetModuleFileNameA(nullptr, program, MAX_PATH);
    STARTUPINFOA startup = {};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdInput = ::GetStdHandle(STD_INPUT_HANDLE);
    startup.hStdOutput = output;
    startup.hStdError = errors;
    PROCESS_INFORMATION process = {};
    if (!::CreateProcessA(program, ::GetCommandLineA(), nullptr, nullptr, TRUE, CREATE_SUSPENDED,
                          nullptr, nullptr, &startup, &process))
        throw std::system_error(static_cast<int>(::GetLastError()), std::system_category(),
                                "no process");
    return process;
}

} // namespace

void ChildProcess::Output::write(const std::string& text) {
    if (::_write(m_descriptor, text.data(), static_cast<unsigned>(text.size())) !=
        static_cast<int>(text.size()))
        std::_Exit(3);
}

struct ChildProcess::Handles {
    PROCESS_INFORMATION process = {};
    HANDLE output = nullptr;
    HANDLE errors = nullptr;
};

ChildProcess::ChildProcess(Task task, const Arguments& arguments, EnStart start)
    : m_handles(std::make_unique<Handles>()) {
    HANDLE childsOutput = nullptr;
    if (!::CreatePipe(&m_handles->output, &childsOutput, nullptr, 0))
        throw std::runtime_error("no pipe");
    m_handles->errors = inheritable(temporaryFile());
    Arguments all = {textOf(reinterpret_cast<AnyFunction>(task))};
    all.insert(all.end(), arguments.begin(), arguments.end());
    ::SetEnvironmentVariableA(c_taskVariable, joined(all).c_str());
    m_handles->process = startSuspended(inheritable(childsOutput), m_handles->errors);
    ::SetEnvironmentVariableA(c_taskVariable, nullptr);
    ::CloseHandle(childsOutput);
    if (start == eNow)
        letGo();
}

ChildProcess::~ChildProcess() {
    if (m_handles->process.hProcess) {
        kill();
        wait();
    }
    ::CloseHandle(m_handles->output);
    ::CloseHandle(m_handles->errors);
}

void ChildProcess::letGo() {
    ::ResumeThread(m_handles->process.hThread);
}

std::string ChildProcess::readLine() {
    return readFrom(m_handles->output, true);
}

void ChildProcess::kill() {
    ::TerminateProcess(m_handles->process.hProcess, 9);
}

ChildProcess::Outcome ChildProcess::wait() {
    Outcome outcome;
    outcome.output = readFrom(m_handles->output, false);
    DWORD status = 0;
    ::WaitForSingleObject(m_handles->process.hProcess, INFINITE);
    ::GetExitCodeProcess(m_handles->process.hProcess, &status);
    outcome.status = static_cast<int>(status);
    ::CloseHandle(m_handles->process.hThread);
    ::CloseHandle(m_handles->process.hProcess);
    m_handles->process = {};
    ::SetFilePointer(m_handles->errors, 0, nullptr, FILE_BEGIN);
    outcome.errors = readFrom(m_handles->errors, false);
    // Ends of lines are written as two characters here.
    outcome.errors.erase(std::remove(outcome.errors.begin(), outcome.errors.end(), '\r'),
                         outcome.errors.end());
    return outcome;
}

bool ChildProcess::isOne() {
    return std::getenv(c_taskVariable) != nullptr;
}

int ChildProcess::runItsTask() {
    Arguments all = split(std::getenv(c_taskVariable));
    const auto task = reinterpret_cast<Task>(functionOf(all.front()));
    all.erase(all.begin());
    ::_putenv_s(c_taskVariable, ""); // not for its own children
    ::_setmode(1, _O_BINARY);
    const int status = runTask(task, 1, all);
    std::fflush(nullptr);
    // As a copied process ends on other systems: without the destructors of the test program.
    std::_Exit(status);
}

void ChildProcess::killThis() {
    ::TerminateProcess(::GetCurrentProcess(), 9);
    std::_Exit(9);
}

} // namespace support
