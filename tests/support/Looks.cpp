#include "Looks.h"

#include "Events.h"

#include <qt3/WidgetFunctions.h>

namespace support {

std::vector<std::string> childWidgets(QObject* parent) {
    std::vector<std::string> names;
    for (QObject* object : descendants(parent)) {
        if (object->parent() == parent && object->isWidgetType())
            names.push_back(qt3::name(object));
    }
    return names;
}

} // namespace support
