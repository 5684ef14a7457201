#include <qt3/Descendants.h>

#include <memory>
#include <qobjectlist.h>

namespace qt3 {

std::vector<QObject*> descendants(QObject* parent, const char* name) {
    const std::unique_ptr<QObjectList> list(parent->queryList(nullptr, name, false, true));
    std::vector<QObject*> objects;
    for (QObjectListIt object(*list); object.current(); ++object)
        objects.push_back(object.current());
    return objects;
}

} // namespace qt3
