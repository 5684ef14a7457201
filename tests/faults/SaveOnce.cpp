// A program that saves one thing once, for strace to look at: the calls between two calls of getppid() are its system
// calls. Prints "saved" when the library says that what it was given is stored.

#include "Saving.h"

#include <cstdio>
#include <unistd.h>

int main(int count, char** arguments) {
    if (count != 3)
        return 2;
    const auto mark = [] { ::getppid(); };
    if (savesOnce(arguments[1], arguments[2], mark, mark))
        std::puts("saved");
}
