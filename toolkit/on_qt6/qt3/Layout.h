#ifndef RUQGUI_QT3_LAYOUT_H
#define RUQGUI_QT3_LAYOUT_H

#include <qt3/Export.h>

#include <qlayout.h>

namespace qt3 {

using SpacerItem = QSpacerItem;

/// The same margin on all four sides.
RUQGUI_EXPORT void setMargin(QLayout* layout, int margin);

/// Sets what the Qt 3.3 constructors set: the layout of \a widget has \a border and \a spacing,
/// where a negative spacing means the border.
RUQGUI_EXPORT void initTopLayout(QLayout* layout, int border, int spacing, const char* name);

/// A nested layout has no margin; a negative spacing is that of the layout around it.
RUQGUI_EXPORT void initNestedLayout(QLayout* layout, int spacing, const char* name);

/// Appends \a layout to \a parent.
RUQGUI_EXPORT void nest(QLayout* parent, QLayout* layout);

/// A box layout with the constructors and the margins of Qt 3.3.
template <class Base>
class BoxLayout : public Base {
public:
    explicit BoxLayout(QWidget* parent, int border = 0, int spacing = -1,
                       const char* name = nullptr)
        : Base(parent) {
        initTopLayout(this, border, spacing, name);
    }

    explicit BoxLayout(QLayout* parent, int spacing = -1, const char* name = nullptr) {
        initNestedLayout(this, spacing, name);
        nest(parent, this);
    }

    explicit BoxLayout(int spacing = -1, const char* name = nullptr) {
        initNestedLayout(this, spacing, name);
    }
};

using HBoxLayout = BoxLayout<QHBoxLayout>;
using VBoxLayout = BoxLayout<QVBoxLayout>;

/// QGridLayout with the Qt 3.3 members. It grows as it is filled: \a rows and \a columns are where
/// it starts.
class RUQGUI_EXPORT GridLayout : public QGridLayout {
public:
    explicit GridLayout(QWidget* parent, int rows = 1, int columns = 1, int border = 0,
                        int spacing = -1, const char* name = nullptr);
    explicit GridLayout(QLayout* parent, int rows = 1, int columns = 1, int spacing = -1,
                        const char* name = nullptr);
    ~GridLayout() override;

    /// Puts \a widget into all cells of a rectangle, the last row and column included.
    void addMultiCellWidget(QWidget* widget, int fromRow, int toRow, int fromColumn, int toColumn);

    void setColStretch(int column, int stretch) { setColumnStretch(column, stretch); }
};

} // namespace qt3

#endif
