#include "Dialogs.h"

#include "Events.h"

#include <QColorDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

namespace support {

namespace {

const char* c_nameField = "fileNameEdit";

QFileDialog* fileDialog(QWidget* dialog) {
    return static_cast<QFileDialog*>(dialog);
}

QPushButton* standardButton(QWidget* dialog, QDialogButtonBox::StandardButton which) {
    return child<QDialogButtonBox>(dialog)->button(which);
}

} // namespace

DialogKind kindOf(QWidget* dialog) {
    if (dialog->inherits("QMessageBox"))
        return DialogKind::Message;
    if (dialog->inherits("QFileDialog"))
        return DialogKind::File;
    return dialog->inherits("QColorDialog") ? DialogKind::Color : DialogKind::Other;
}

std::string nameOf(QWidget* dialog) {
    return text(dialog->objectName());
}

std::string captionOf(QWidget* dialog) {
    return text(dialog->windowTitle());
}

std::string messageIcon(QWidget* box) {
    switch (static_cast<QMessageBox*>(box)->icon()) {
    case QMessageBox::Information:
        return "information";
    case QMessageBox::Warning:
        return "warning";
    case QMessageBox::Critical:
        return "critical";
    default:
        return "plain";
    }
}

std::string messageText(QWidget* box) {
    return text(static_cast<QMessageBox*>(box)->text());
}

// Not the box's own list of buttons: that is sorted by what the buttons are for.
std::vector<QPushButton*> messageButtons(QWidget* box) {
    const QList<QPushButton*> buttons = child<QDialogButtonBox>(box)->findChildren<QPushButton*>();
    return std::vector<QPushButton*>(buttons.begin(), buttons.end());
}

std::string buttonLabel(QPushButton* button) {
    return text(button->text().remove('&'));
}

std::string escapeLabel(QWidget* box) {
    QAbstractButton* button = static_cast<QMessageBox*>(box)->escapeButton();
    return button ? text(button->text().remove('&')) : "";
}

std::string folderOf(QWidget* dialog) {
    return text(fileDialog(dialog)->directory().absolutePath());
}

std::string typedFileName(QWidget* dialog) {
    return text(child<QLineEdit>(dialog, c_nameField)->text());
}

std::vector<std::string> filtersOf(QWidget* dialog) {
    std::vector<std::string> filters;
    for (const QString& filter : fileDialog(dialog)->nameFilters())
        filters.push_back(text(filter));
    return filters;
}

std::string fileModeOf(QWidget* dialog) {
    if (fileDialog(dialog)->acceptMode() == QFileDialog::AcceptSave)
        return "save";
    return fileDialog(dialog)->fileMode() == QFileDialog::ExistingFiles ? "open several" : "open";
}

// In a field without the focus the toolkit shows the files that it finds in the text instead.
void typeFileName(QWidget* dialog, const std::string& text) {
    auto* const field = child<QLineEdit>(dialog, c_nameField);
    giveFocus(field);
    field->setText(QString::fromStdString(text));
}

// By the key and not by the button: that is disabled for a file which the filter hides.
void acceptFileName(QWidget* dialog) {
    keyClick(child<QLineEdit>(dialog, c_nameField), Qt::Key_Return, Modifier::None, "\r");
}

void settle(QWidget*) {}

QColor colorOf(QWidget* dialog) {
    return static_cast<QColorDialog*>(dialog)->currentColor();
}

void setColor(QWidget* dialog, const QColor& color) {
    static_cast<QColorDialog*>(dialog)->setCurrentColor(color);
}

void acceptColor(QWidget* dialog) {
    mouseClick(standardButton(dialog, QDialogButtonBox::Ok));
}

QPushButton* cancelButton(QWidget* dialog) {
    return standardButton(dialog, QDialogButtonBox::Cancel);
}

} // namespace support
