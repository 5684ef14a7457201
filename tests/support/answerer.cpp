#include "SecondProgram.h"

#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <string>

namespace {

int deeper(int depth);
int (*volatile s_deeper)(int) = deeper;

int deeper(int depth) {
    volatile char room[1000];
    room[0] = static_cast<char>(depth);
    return s_deeper(depth + 1) + room[0];
}

} // namespace

/// The other end of SecondProgramTest: repeats each line, until one tells it how to end.
int main() {
    support::SecondProgram::behavePlainly();
    for (std::string line; std::getline(std::cin, line);) {
        if (line == "fail")
            return 3;
        if (line == "crash") {
            volatile int* volatile nowhere = nullptr;
            *nowhere = 1;
        }
        if (line == "recurse for ever")
            return deeper(0);
        if (line == "break off") {
            std::fputs("half a li", stdout);
            return 0;
        }
        std::puts(line.c_str());
        std::fflush(stdout);
    }
}
