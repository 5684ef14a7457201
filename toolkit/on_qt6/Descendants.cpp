#include <qt3/Descendants.h>

namespace qt3 {

std::vector<QObject*> descendants(QObject* parent, const char* name) {
    const QList<QObject*> list = parent->findChildren<QObject*>(QString::fromLatin1(name));
    return {list.begin(), list.end()};
}

} // namespace qt3
