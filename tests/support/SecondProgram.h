#ifndef RUQGUI_TESTS_SUPPORT_SECONDPROGRAM_H
#define RUQGUI_TESTS_SUPPORT_SECONDPROGRAM_H

#include <cstdint>
#include <cstdio>
#include <string>

namespace support {

/// A program that runs beside this one and talks with it in lines: this one writes to its standard input
/// and reads its standard output.
class SecondProgram {
public:
    enum EnErrors { eErrorsShown, eErrorsHidden };

    /// \a command is for the shell, on Windows for the system itself: a program, in quotation marks if
    /// there are spaces in its path, and its arguments. Throws std::runtime_error if there can be no second
    /// process.
    explicit SecondProgram(const std::string& command, EnErrors errors = eErrorsShown);
    SecondProgram(const SecondProgram&) = delete;
    SecondProgram& operator=(const SecondProgram&) = delete;
    ~SecondProgram(); ///< Waits for its end.

    /// Lost when the program has ended.
    void writeLine(const std::string& line);
    /// Waits for a whole line; false when the program has ended instead.
    bool readLine(std::string* line);

    /// Ends its input and waits for its end: whether that is a good one, without a signal and with 0.
    bool endsWell();

    /// For the main function of the second program: its lines end with one character, and a crash ends it at once,
    /// as on every other system.
    static void behavePlainly();

private:
    bool hasEndedWell();

    std::intptr_t m_nProcess = 0; ///< As the system names it.
    std::FILE* m_pTo = nullptr;
    std::FILE* m_pFrom = nullptr;
};

} // namespace support

#endif
