#ifndef RUQGUI_GALLERY_PROCESS_H
#define RUQGUI_GALLERY_PROCESS_H

#include <string>
#include <vector>

/// What a program with windows needs of the operating system at its start, once for each system.
namespace process {

/// The command line with the program in front, as bytes that open files: what main() is given, but on Windows
/// UTF-8, since main() gets there what the code page has letters for.
std::vector<std::string> commandLine(int argc, char** argv);

/// Lets the standard streams reach the console from which the program was started. On Windows a program with
/// windows has none of its own.
void useConsoleOfTheCaller();

} // namespace process

#endif
