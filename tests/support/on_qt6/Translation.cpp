#include "Translation.h"

#include "Events.h"

#include <qapplication.h>
#include <qtranslator.h>

namespace support {

class Translation::Translator : public QTranslator {
public:
    Translator(const std::string& className, const Texts& texts)
        : m_sClassName(className), m_texts(texts) {}

    bool isEmpty() const override { return false; }

    QString translate(const char* context, const char* sourceText, const char*,
                      int) const override {
        const auto found = m_texts.find(sourceText);
        if (m_sClassName != context || found == m_texts.end())
            return QString();
        return QString::fromStdString(found->second);
    }

private:
    const std::string m_sClassName;
    const Texts m_texts;
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
