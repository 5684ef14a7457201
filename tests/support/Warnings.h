#ifndef RUQGUI_TESTS_SUPPORT_WARNINGS_H
#define RUQGUI_TESTS_SUPPORT_WARNINGS_H

#include <string>
#include <vector>

namespace support {

/// Takes what goes to the toolkit's warning channel (qWarning) while it lives; of several the
/// newest.
/// \code
/// const support::Warnings warnings;
/// range.setRange(2.0, 1.0);
/// EXPECT_EQ(warnings.lines(), std::vector<std::string>{"CRangeControl::setRange: …"});
/// \endcode
class Warnings {
public:
    Warnings();
    Warnings(const Warnings&) = delete;
    Warnings& operator=(const Warnings&) = delete;
    ~Warnings();

    const std::vector<std::string>& lines() const { return m_vLines; }

    void add(const std::string& line) { m_vLines.push_back(line); }

private:
    Warnings* m_pOuter;
    std::vector<std::string> m_vLines;
};

} // namespace support

#endif
