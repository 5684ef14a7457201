#include <qt3/MetaObject.h>

#include <private/qucom_p.h>
#include <qmetaobject.h>
#include <qobject.h>
#include <qstrlist.h>

namespace qt3 {
namespace {

std::vector<std::string> parameterNames(const QUMethod* method) {
    std::vector<std::string> names;
    for (int i = 0; i < method->count; ++i) {
        const QUParameter& parameter = method->parameters[i];
        if (parameter.inOut != QUParameter::Out) // the result is not one of the parameters
            names.push_back(parameter.name ? parameter.name : "");
    }
    return names;
}

Method methodOf(const QMetaData* data) {
    return {plainSignature(data->name), parameterNames(data->method),
            static_cast<Method::Access>(data->access)};
}

} // namespace

std::vector<Method> slotTable(const QObject* object) {
    QMetaObject* const metaObject = object->metaObject();
    std::vector<Method> table;
    for (int i = 0; i < metaObject->numSlots(false); ++i)
        table.push_back(methodOf(metaObject->slot(i, false)));
    return table;
}

std::vector<Method> signalTable(const QObject* object) {
    QMetaObject* const metaObject = object->metaObject();
    std::vector<Method> table;
    for (int i = 0; i < metaObject->numSignals(false); ++i) {
        table.push_back(methodOf(metaObject->signal(i, false)));
        table.back().access = Method::Public; // the toolkit tells the section before "signals:"
    }
    return table;
}

int furtherEntries(const QObject* object) {
    const QMetaObject* const metaObject = object->metaObject();
    return metaObject->numProperties(false) + metaObject->numEnumerators(false) +
           metaObject->numClassInfo(false);
}

std::string className(const QObject* object) {
    return object->className();
}

std::string superClassName(const QObject* object) {
    const char* const name = object->metaObject()->superClassName();
    return name && std::string(name) != "Qt" ? name : ""; // Qt is a class here, with no meta-object
}

} // namespace qt3
