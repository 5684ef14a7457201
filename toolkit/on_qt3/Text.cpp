#include <qt3/Text.h>

namespace qt3 {

QString stripWhiteSpace(const QString& text) {
    return text.stripWhiteSpace();
}

QString lower(const QString& text) {
    return text.lower();
}

} // namespace qt3
