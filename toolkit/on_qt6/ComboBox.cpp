#include <qt3/ComboBox.h>

#include <algorithm>

namespace qt3 {

ComboBox::ComboBox(QWidget* parent, const char* name) : Bridged<QComboBox>(name, parent) {}

ComboBox::ComboBox(bool editable, QWidget* parent, const char* name)
    : Bridged<QComboBox>(name, parent) {
    setEditable(editable);
}

ComboBox::~ComboBox() = default;

void ComboBox::insertItem(const QString& text, int index) {
    QComboBox::insertItem(index < 0 ? count() : index, text);
}

int ComboBox::currentItem() const {
    return std::max(currentIndex(), 0);
}

void ComboBox::setCurrentItem(int index) {
    if (index >= 0 && index < count())
        setCurrentIndex(index);
    else
        qWarning("ComboBox::setCurrentItem: %d is out of range", index);
}

void ComboBox::setCurrentText(const QString& text) {
    const int index = findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (index >= 0)
        setCurrentIndex(index);
    else if (isEditable())
        setEditText(text);
    else if (currentIndex() >= 0)
        setItemText(currentIndex(), text);
}

bool connectActivated(ComboBox* comboBox, const QObject* receiver, const char* slot) {
    return QObject::connect(comboBox, SIGNAL(textActivated(QString)), receiver, slot);
}

} // namespace qt3
