#ifndef RUQGUI_TESTS_TOOLKIT_TAPSPECIMEN_H
#define RUQGUI_TESTS_TOOLKIT_TAPSPECIMEN_H

#include <qcolor.h>
#include <qobject.h>
#include <qstring.h>

/// Has a signal of each kind that the tap writes.
class TapSpecimen : public QObject {
    Q_OBJECT

public:
    void emitAll();
    void emitWhole(int value);
    void emitText(const QString& value);
    void emitUnknown();

signals:
    void nothing();
    void whole(int value);
    void yes(bool value);
    void pair(int first, int second);
    void real(double value);
    void text(const QString& value);
    void object(QObject* value);
    void unknown(const QColor& value);
};

#endif
