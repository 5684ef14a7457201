#ifndef RUQGUI_QT3_COMBOBOX_H
#define RUQGUI_QT3_COMBOBOX_H

#include <qt3/Bridged.h>

#include <qcombobox.h>

namespace qt3 {

/// QComboBox with the Qt 3.3 members.
class RUQGUI_EXPORT ComboBox : public Bridged<QComboBox> {
public:
    explicit ComboBox(QWidget* parent = nullptr, const char* name = nullptr);
    explicit ComboBox(bool editable, QWidget* parent = nullptr, const char* name = nullptr);
    ~ComboBox() override;

    /// At \a index, or at the end if it is negative or too large.
    void insertItem(const QString& text, int index = -1);

    bool editable() const { return isEditable(); }
    QString text(int index) const { return itemText(index); }

    /// 0 also when there are no items.
    int currentItem() const;

    /// Does nothing but warn when there is no such item.
    void setCurrentItem(int index);

    /// Selects the first item of that text. If there is none, an editable box shows it in its field
    /// and another one renames its current item.
    void setCurrentText(const QString& text);
};

/// Connects the choice of an item by the user, with the item's text, to \a slot of \a receiver,
/// written with SLOT() and taking a const QString&. Choosing from code reaches no slot.
RUQGUI_EXPORT bool connectActivated(ComboBox* comboBox, const QObject* receiver, const char* slot);

} // namespace qt3

#endif
