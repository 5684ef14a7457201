#include <qt3/MetaObject.h>

#include <qmetaobject.h>
#include <qobject.h>

namespace qt3 {
namespace {

Method methodOf(const QMetaMethod& method) {
    Method result{plainSignature(method.methodSignature().toStdString()),
                  {},
                  static_cast<Method::Access>(method.access())};
    for (const QByteArray& parameter : method.parameterNames())
        result.parameterNames.push_back(parameter.toStdString());
    return result;
}

std::vector<Method> ownMethods(const QObject* object, QMetaMethod::MethodType type) {
    const QMetaObject* const metaObject = object->metaObject();
    std::vector<Method> table;
    for (int i = metaObject->methodOffset(); i < metaObject->methodCount(); ++i) {
        if (metaObject->method(i).methodType() == type)
            table.push_back(methodOf(metaObject->method(i)));
    }
    return table;
}

} // namespace

std::vector<Method> slotTable(const QObject* object) {
    return ownMethods(object, QMetaMethod::Slot);
}

std::vector<Method> signalTable(const QObject* object) {
    return ownMethods(object, QMetaMethod::Signal);
}

int furtherEntries(const QObject* object) {
    const QMetaObject* const metaObject = object->metaObject();
    return metaObject->propertyCount() - metaObject->propertyOffset() +
           metaObject->enumeratorCount() - metaObject->enumeratorOffset() +
           metaObject->classInfoCount() - metaObject->classInfoOffset();
}

std::string className(const QObject* object) {
    return object->metaObject()->className();
}

std::string superClassName(const QObject* object) {
    const QMetaObject* const superClass = object->metaObject()->superClass();
    return superClass ? superClass->className() : "";
}

} // namespace qt3
