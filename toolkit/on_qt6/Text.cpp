#include <qt3/Text.h>

namespace qt3 {

QString stripWhiteSpace(const QString& text) {
    return text.trimmed();
}

QString lower(const QString& text) {
    QString result = text;
    for (QChar& c : result)
        c = c.toLower();
    return result;
}

} // namespace qt3
