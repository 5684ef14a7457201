#ifndef RUQGUI_TESTS_SUPPORT_OTHERLOCALE_H
#define RUQGUI_TESTS_SUPPORT_OTHERLOCALE_H

#include <System.h>

#include <clocale>
#include <string>

namespace support {

/// Puts this process into a locale, as a toolkit does with the user's. What is not C comes from those that
/// the build has made.
/// \code
/// const support::OtherLocale turkish("tr_TR.UTF-8");
/// ASSERT_TRUE(turkish.IsThere());
/// \endcode
class OtherLocale {
public:
    explicit OtherLocale(const std::string& name) : m_sBefore(std::setlocale(LC_ALL, nullptr)) {
        setVariable("LOCPATH", RUQGUI_LOCALES);
        m_bThere = std::setlocale(LC_ALL, name.c_str());
    }
    OtherLocale(const OtherLocale&) = delete;
    OtherLocale& operator=(const OtherLocale&) = delete;
    ~OtherLocale() { std::setlocale(LC_ALL, m_sBefore.c_str()); }

    bool IsThere() const { return m_bThere; }

private:
    std::string m_sBefore;
    bool m_bThere;
};

} // namespace support

#endif
