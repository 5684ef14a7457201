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

GridLayout::GridLayout(QWidget* parent, int, int, int border, int spacing, const char* name)
    : QGridLayout(parent) {
    initTopLayout(this, border, spacing, name);
}

GridLayout::GridLayout(QLayout* parent, int, int, int spacing, const char* name) {
    initNestedLayout(this, spacing, name);
    nest(parent, this);
}

GridLayout::~GridLayout() = default;

void GridLayout::addMultiCellWidget(QWidget* widget, int fromRow, int toRow, int fromColumn,
                                    int toColumn) {
    addWidget(widget, fromRow, fromColumn, toRow - fromRow + 1, toColumn - fromColumn + 1);
}

} // namespace qt3
