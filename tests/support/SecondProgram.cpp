#include "SecondProgram.h"

namespace support {

SecondProgram::~SecondProgram() {
    if (m_pTo)
        endsWell();
    std::fclose(m_pFrom);
}

void SecondProgram::writeLine(const std::string& line) {
    std::fprintf(m_pTo, "%s\n", line.c_str());
    std::fflush(m_pTo);
}

bool SecondProgram::readLine(std::string* line) {
    line->clear();
    int c = 0;
    while ((c = std::fgetc(m_pFrom)) != EOF && c != '\n')
        *line += static_cast<char>(c);
    return c == '\n';
}

bool SecondProgram::endsWell() {
    std::fclose(m_pTo);
    m_pTo = nullptr;
    return hasEndedWell();
}

} // namespace support
