#include <qt3/Layout.h>

namespace qt3 {

void setMargin(QLayout* layout, int margin) {
    layout->setContentsMargins(margin, margin, margin, margin);
}

void initTopLayout(QLayout* layout, int border, int spacing, const char* name) {
    setMargin(layout, border);
    layout->setSpacing(spacing < 0 ? border : spacing);
    layout->setObjectName(QString::fromLatin1(name));
}

void initNestedLayout(QLayout* layout, int spacing, const char* name) {
    setMargin(layout, 0);
    layout->setSpacing(spacing);
    layout->setObjectName(QString::fromLatin1(name));
}

void nest(QLayout* parent, QLayout* layout) {
    if (QBoxLayout* const box = qobject_cast<QBoxLayout*>(parent))
        box->addLayout(layout);
    else
        qWarning("qt3::nest: only a box layout can take a nested one");
}

} // namespace qt3
