#ifndef RUQGUI_QT3_METAOBJECT_H
#define RUQGUI_QT3_METAOBJECT_H

#include <qt3/Export.h>

#include <string>
#include <vector>

class QObject;

namespace qt3 {

/// A slot or a signal as the meta-object tells it.
struct Method {
    enum Access { Private, Protected, Public };

    std::string signature; ///< As plainSignature() writes it.
    std::vector<std::string> parameterNames;
    Access access;
};

/// \a signature without blanks and with "T" for "const T&": Qt 6 does not tell these apart.
RUQGUI_EXPORT std::string plainSignature(const std::string& signature);

/// What the object's own class declares, without the inherited ones, in the order of declaration.
RUQGUI_EXPORT std::vector<Method> slotTable(const QObject* object);

/// As slotTable(). A signal is Public, whatever the section that it is declared after.
RUQGUI_EXPORT std::vector<Method> signalTable(const QObject* object);

/// How many properties, enumerations and class informations the object's own class declares.
RUQGUI_EXPORT int furtherEntries(const QObject* object);

RUQGUI_EXPORT std::string className(const QObject* object);

/// The class of the meta-object above; empty for a QObject.
RUQGUI_EXPORT std::string superClassName(const QObject* object);

} // namespace qt3

#endif
