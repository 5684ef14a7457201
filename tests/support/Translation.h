#ifndef RUQGUI_TESTS_SUPPORT_TRANSLATION_H
#define RUQGUI_TESTS_SUPPORT_TRANSLATION_H

#include <map>
#include <memory>
#include <string>

namespace support {

/// Translates texts of one class as long as it lives. Making it and destroying it changes the
/// language of the application: widgets are told.
/// \code
/// const support::Translation german("TEVU::CHeaderFieldsWidget", {{"Creator:", "Urheber:"}});
/// \endcode
class Translation {
public:
    using Texts = std::map<std::string, std::string>;

    Translation(const std::string& className, const Texts& texts);
    Translation(const Translation&) = delete;
    Translation& operator=(const Translation&) = delete;
    ~Translation();

private:
    class Translator;
    std::unique_ptr<Translator> m_pTranslator;
};

} // namespace support

#endif
