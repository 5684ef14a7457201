#include "Translation.h"

#include "Events.h"

#include <qapplication.h>
#include <qtranslator.h>

namespace support {

class Translation::Translator : public QTranslator {
public:
    Translator(const std::string& className, const Texts& texts) : QTranslator(0) {
        for (const auto& [source, text] : texts)
            insert(QTranslatorMessage(className.c_str(), source.c_str(), "", text.c_str()));
    }
};

Translation::Translation(const std::string& className, const Texts& texts)
    : m_pTranslator(new Translator(className, texts)) {
    qApp->installTranslator(m_pTranslator.get());
    processEvents();
}

Translation::~Translation() {
    qApp->removeTranslator(m_pTranslator.get());
    processEvents();
}

} // namespace support
