#ifndef RUQGUI_TESTS_NUMERIC_OUTPUT_H
#define RUQGUI_TESTS_NUMERIC_OUTPUT_H

#include <iostream>
#include <sstream>
#include <string>

/// Takes what is written to standard output while it lives.
class Output {
public:
    Output() : m_pBefore(std::cout.rdbuf(m_stream.rdbuf())) {}
    Output(const Output&) = delete;
    Output& operator=(const Output&) = delete;
    ~Output() { std::cout.rdbuf(m_pBefore); }

    std::string text() const { return m_stream.str(); }

private:
    std::ostringstream m_stream;
    std::streambuf* m_pBefore;
};

#endif
