#include "SecondProgram.h"

#include <fcntl.h>
#include <io.h>
#include <stdexcept>
#include <windows.h>

namespace support {

namespace {

struct Pipe {
    HANDLE out = nullptr;
    HANDLE in = nullptr;
};

Pipe makePipe() {
    Pipe pipe;
    if (!::CreatePipe(&pipe.out, &pipe.in, nullptr, 0))
        throw std::runtime_error("no pipe");
    return pipe;
}

HANDLE inheritable(HANDLE handle) {
    ::SetHandleInformation(handle, HANDLE_FLAG_INHERIT, HANDLE_FLAG_INHERIT);
    return handle;
}

HANDLE openNowhere() {
    return ::CreateFileA("NUL", GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                         OPEN_EXISTING, 0, nullptr);
}

HANDLE start(std::string command, HANDLE input, HANDLE output, HANDLE errors) {
    STARTUPINFOA startup = {};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdInput = inheritable(input);
    startup.hStdOutput = inheritable(output);
    startup.hStdError = inheritable(errors);
    PROCESS_INFORMATION process = {};
    if (!::CreateProcessA(nullptr, command.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr,
                          &startup, &process))
        throw std::runtime_error("no second process: " + command);
    ::CloseHandle(process.hThread);
    return process.hProcess;
}

std::FILE* fileOf(HANDLE handle, const char* mode) {
    return ::_fdopen(::_open_osfhandle(reinterpret_cast<std::intptr_t>(handle), _O_BINARY), mode);
}

} // namespace

SecondProgram::SecondProgram(const std::string& command, EnErrors errors) {
    const Pipe to = makePipe();
    const Pipe from = makePipe();
    const HANDLE nowhere = openNowhere();
    const HANDLE shown = ::GetStdHandle(STD_ERROR_HANDLE);
    m_nProcess = reinterpret_cast<std::intptr_t>(
        start(command, to.out, from.in, errors == eErrorsHidden ? nowhere : shown));
    for (const HANDLE childs : {to.out, from.in, nowhere})
        ::CloseHandle(childs);
    m_pTo = fileOf(to.in, "wb");
    m_pFrom = fileOf(from.out, "rb");
}

bool SecondProgram::hasEndedWell() {
    DWORD status = 1;
    const auto process = reinterpret_cast<HANDLE>(m_nProcess);
    ::WaitForSingleObject(process, INFINITE);
    ::GetExitCodeProcess(process, &status);
    ::CloseHandle(process);
    return status == 0;
}

namespace {

LONG CALLBACK endBecauseOfCrash(EXCEPTION_POINTERS* crash) {
    std::fprintf(stderr, "Crash: exception %lx at %p\n", crash->ExceptionRecord->ExceptionCode,
                 crash->ExceptionRecord->ExceptionAddress);
    std::fflush(stderr);
    ::TerminateProcess(::GetCurrentProcess(), 9);
    return EXCEPTION_EXECUTE_HANDLER;
}

} // namespace

void SecondProgram::behavePlainly() {
    // Without it a debugger is started, or a box waits for somebody.
    ::SetUnhandledExceptionFilter(endBecauseOfCrash);
    ::_setmode(::_fileno(stdin), _O_BINARY);
    ::_setmode(::_fileno(stdout), _O_BINARY);
}

} // namespace support
