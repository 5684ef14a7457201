#ifndef RUQGUI_TESTS_DIFFERENTIAL_OPERATION_H
#define RUQGUI_TESTS_DIFFERENTIAL_OPERATION_H

#include <cstddef>
#include <string>
#include <vector>

namespace differential {

/// A number (whole ones up to 2^53 exactly) or a text of any bytes.
class Argument {
public:
    Argument(double number) : m_dNumber(number) {}
    Argument(const std::string& text) : m_bText(true), m_sText(text) {}
    Argument(const char* text) : Argument(std::string(text)) {}

    bool isText() const { return m_bText; }
    double number() const { return m_dNumber; }
    const std::string& text() const { return m_sText; }

private:
    bool m_bText = false;
    double m_dNumber = 0.0;
    std::string m_sText;
};

/// One thing to do, as data: the same line of text does the same thing again, without the random
/// numbers that it came from.
/// \code
/// resize 200 24
/// setPrefix "x = "
/// \endcode
class Operation {
public:
    explicit Operation(const std::string& name, const std::vector<Argument>& arguments = {})
        : m_sName(name), m_vArguments(arguments) {}

    /// What line() wrote. Throws std::runtime_error for anything else.
    static Operation parsed(const std::string& line);

    std::string line() const;

    const std::string& name() const { return m_sName; }

    /// A missing argument is 0 or "": a shortened operation still means something.
    double real(std::size_t index) const;
    int integer(std::size_t index) const;
    bool flag(std::size_t index) const { return integer(index) != 0; }
    std::string text(std::size_t index) const;

private:
    std::string m_sName;
    std::vector<Argument> m_vArguments;
};

using Operations = std::vector<Operation>;

/// In double quotes, on one line: control characters, the quote, and bytes that are no ASCII are
/// escaped.
std::string quoted(const std::string& text);

/// With as many digits as give the very same number again.
std::string exactText(double number);

} // namespace differential

#endif
