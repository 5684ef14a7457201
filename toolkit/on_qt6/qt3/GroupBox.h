#ifndef RUQGUI_QT3_GROUPBOX_H
#define RUQGUI_QT3_GROUPBOX_H

#include <qt3/Bridged.h>

#include <qgroupbox.h>

namespace qt3 {

/// QGroupBox with the Qt 3.3 members.
class RUQGUI_EXPORT GroupBox : public Bridged<QGroupBox> {
public:
    explicit GroupBox(QWidget* parent = nullptr, const char* name = nullptr);
    explicit GroupBox(const QString& title, QWidget* parent = nullptr, const char* name = nullptr);
    ~GroupBox() override;

    /// Gives the box a layout with margin 11 and spacing 0 for the application to fill below the
    /// title. \param strips must be 0: the box arranges nothing by itself
    void setColumnLayout(int strips, Qt::Orientation direction);
};

} // namespace qt3

#endif
