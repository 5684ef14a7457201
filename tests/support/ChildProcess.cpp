#include "ChildProcess.h"

#include "ChildTask.h"

#include <cstdint>
#include <cstdio>
#include <exception>

namespace support {

namespace {

using WithoutArguments = std::string (*)();
using WithArguments = std::string (*)(const ChildProcess::Arguments&);

std::intptr_t addressOf(AnyFunction function) {
    return reinterpret_cast<std::intptr_t>(function);
}

std::intptr_t anchor() {
    return addressOf(reinterpret_cast<AnyFunction>(&anchor));
}

void writeResult(ChildProcess::Output& output, const ChildProcess::Arguments& arguments) {
    output.write(reinterpret_cast<WithoutArguments>(functionOf(arguments.front()))());
}

void writeResultOfArguments(ChildProcess::Output& output,
                            const ChildProcess::Arguments& arguments) {
    const auto task = reinterpret_cast<WithArguments>(functionOf(arguments.front()));
    output.write(task({arguments.begin() + 1, arguments.end()}));
}

} // namespace

// The program lies elsewhere in each process, but all of its functions by the same distance.
std::string textOf(AnyFunction function) {
    return std::to_string(addressOf(function) - anchor());
}

AnyFunction functionOf(const std::string& text) {
    return reinterpret_cast<AnyFunction>(anchor() + static_cast<std::intptr_t>(std::stoll(text)));
}

int runTask(ChildProcess::Task task, int descriptor, const ChildProcess::Arguments& arguments) {
    try {
        ChildProcess::Output output(descriptor);
        task(output, arguments);
        return 0;
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "exception: %s\n", failure.what());
        return 2;
    }
}

ChildProcess::Outcome inChild(std::string (*task)()) {
    return ChildProcess(writeResult, {textOf(reinterpret_cast<AnyFunction>(task))}).wait();
}

ChildProcess::Outcome inChild(std::string (*task)(const ChildProcess::Arguments& arguments),
                              const ChildProcess::Arguments& arguments) {
    ChildProcess::Arguments all = {textOf(reinterpret_cast<AnyFunction>(task))};
    all.insert(all.end(), arguments.begin(), arguments.end());
    return ChildProcess(writeResultOfArguments, all).wait();
}

} // namespace support
