#include <qt3/MessageBox.h>

#include "DialogGuard.h"

#include <qmessagebox.h>

namespace qt3 {

namespace {

// The toolkit's own static functions would take a text with tags for rich text. The box gets its
// text after the format, because a box that has once held rich text goes on breaking lines between
// words.
int ask(QMessageBox::Icon icon, const char* name, QWidget* parent, const QString& caption,
        const QString& text, const int (&buttons)[3]) {
    const DialogGuard guard(parent, "QMessageBox");
    QMessageBox* box = new QMessageBox(caption, QString::null, icon, buttons[0], buttons[1],
                                       buttons[2], parent, name, true, Qt::WDestructiveClose);
    box->setTextFormat(Qt::PlainText);
    box->setText(text);
    return box->exec();
}

} // namespace

int MessageBox::information(QWidget* parent, const QString& caption, const QString& text,
                            int button0, int button1, int button2) {
    return ask(QMessageBox::Information, "qt_msgbox_information", parent, caption, text,
               {button0, button1, button2});
}

int MessageBox::warning(QWidget* parent, const QString& caption, const QString& text, int button0,
                        int button1, int button2) {
    return ask(QMessageBox::Warning, "qt_msgbox_warning", parent, caption, text,
               {button0, button1, button2});
}

int MessageBox::critical(QWidget* parent, const QString& caption, const QString& text, int button0,
                         int button1, int button2) {
    return ask(QMessageBox::Critical, "qt_msgbox_critical", parent, caption, text,
               {button0, button1, button2});
}

} // namespace qt3
