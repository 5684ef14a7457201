#include "TapSpecimen.h"

void TapSpecimen::emitAll() {
    emit nothing();
    emit whole(-7);
    emit yes(true);
    emit yes(false);
    emit pair(1, 2);
    emit real(0.1);
    emit real(1e100);
    emit real(-0.0);
    emit real(3.0);
    emit text("a \"b\" line\nnext");
    emit text(QString());
    emit object(nullptr);
    emit object(this);
}

void TapSpecimen::emitWhole(int value) {
    emit whole(value);
}

void TapSpecimen::emitText(const QString& value) {
    emit text(value);
}

void TapSpecimen::emitUnknown() {
    emit unknown(QColor(1, 2, 3));
}
