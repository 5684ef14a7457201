#include "Dialogs.h"

#include "Events.h"

#include <qapplication.h>
#include <qcolordialog.h>
#include <qcombobox.h>
#include <qfiledialog.h>
#include <qlineedit.h>
#include <qlistview.h>
#include <qmessagebox.h>
#include <qpushbutton.h>

namespace support {

namespace {

const char* c_nameField = "name/filter editor";

std::string labelOf(int code) {
    const char* labels[] = {"", "OK", "Cancel", "Yes", "No", "Abort", "Retry", "Ignore"};
    return code >= 0 && code < 8 ? labels[code] : "";
}

int channel(QWidget* dialog, const char* field) {
    return child<QLineEdit>(dialog, field)->text().toInt();
}

void setChannel(QWidget* dialog, const char* field, int value) {
    QLineEdit* edit = child<QLineEdit>(dialog, field);
    edit->setText(QString::number(value));
    keyClick(edit, Qt::Key_End); // only keys make the dialog read the field
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
    return dialog->name("");
}

std::string captionOf(QWidget* dialog) {
    return text(dialog->caption());
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

std::vector<QPushButton*> messageButtons(QWidget* box) {
    std::vector<QPushButton*> buttons;
    for (const char* name : {"button1", "button2", "button3"}) {
        if (QPushButton* button = child<QPushButton>(box, name))
            buttons.push_back(button);
    }
    return buttons;
}

std::string buttonLabel(QPushButton* button) {
    QString label = button->text();
    label.remove('&');
    return text(label);
}

// A box that is not visible takes note of its answer when it is asked to close, and does no more.
std::string escapeLabel(QWidget* box) {
    QMessageBox* message = static_cast<QMessageBox*>(box);
    message->QWidget::hide();
    QCloseEvent event;
    QApplication::sendEvent(message, &event);
    message->QWidget::show();
    return labelOf(message->result());
}

std::string folderOf(QWidget* dialog) {
    const std::string folder = text(static_cast<QFileDialog*>(dialog)->dirPath());
    return folder.size() > 1 && folder.back() == '/' ? folder.substr(0, folder.size() - 1) : folder;
}

std::string typedFileName(QWidget* dialog) {
    return text(child<QLineEdit>(dialog, c_nameField)->text());
}

std::vector<std::string> filtersOf(QWidget* dialog) {
    QComboBox* types = child<QComboBox>(dialog, "file types");
    std::vector<std::string> filters;
    for (int i = 0; i < types->count(); ++i)
        filters.push_back(text(types->text(i)));
    return filters;
}

std::string fileModeOf(QWidget* dialog) {
    switch (static_cast<QFileDialog*>(dialog)->mode()) {
    case QFileDialog::ExistingFile:
        return "open";
    case QFileDialog::ExistingFiles:
        return "open several";
    default:
        return "save";
    }
}

void typeFileName(QWidget* dialog, const std::string& text) {
    child<QLineEdit>(dialog, c_nameField)->setText(QString::fromUtf8(text.c_str()));
}

void acceptFileName(QWidget* dialog) {
    mouseClick(child<QPushButton>(dialog, "OK"));
}

// The files are listed some events later, which clears the name field. A folder that can be listed has
// at least the entry of the one above.
void settle(QWidget* dialog) {
    if (kindOf(dialog) == DialogKind::File)
        waitUntil([=] { return child<QListView>(dialog)->childCount() > 0; }, 500);
}

QColor colorOf(QWidget* dialog) {
    return QColor(channel(dialog, "qt_red_edit"), channel(dialog, "qt_grn_edit"),
                  channel(dialog, "qt_blue_edit"));
}

void setColor(QWidget* dialog, const QColor& color) {
    setChannel(dialog, "qt_red_edit", color.red());
    setChannel(dialog, "qt_grn_edit", color.green());
    setChannel(dialog, "qt_blue_edit", color.blue());
}

void acceptColor(QWidget* dialog) {
    mouseClick(child<QPushButton>(dialog, "qt_ok_btn"));
}

QPushButton* cancelButton(QWidget* dialog) {
    return child<QPushButton>(dialog,
                              kindOf(dialog) == DialogKind::File ? "Cancel" : "qt_cancel_btn");
}

} // namespace support
