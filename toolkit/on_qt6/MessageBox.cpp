#include <qt3/MessageBox.h>

#include <QCloseEvent>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

namespace qt3 {

namespace {

struct Button {
    int code;
    QMessageBox::StandardButton standard;
};

const Button c_buttons[] = {
    {MessageBox::Ok, QMessageBox::Ok},         {MessageBox::Cancel, QMessageBox::Cancel},
    {MessageBox::Yes, QMessageBox::Yes},       {MessageBox::No, QMessageBox::No},
    {MessageBox::Abort, QMessageBox::Abort},   {MessageBox::Retry, QMessageBox::Retry},
    {MessageBox::Ignore, QMessageBox::Ignore},
};

QMessageBox::StandardButton toStandard(int code) {
    for (const Button& button : c_buttons) {
        if (button.code == code)
            return button.standard;
    }
    return QMessageBox::Ok;
}

int toCode(QMessageBox::StandardButton standard) {
    for (const Button& button : c_buttons) {
        if (button.standard == standard)
            return button.code;
    }
    return MessageBox::NoButton;
}

// Without a button flagged Escape, the toolkit's box guesses one, or refuses to close. This one
// closes without an answer.
class Box : public QMessageBox {
public:
    using QMessageBox::QMessageBox;

    void addCode(int button);
    int answer() const;

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

void Box::addCode(int button) {
    const int flags = MessageBox::Default | MessageBox::Escape;
    QPushButton* added = addButton(toStandard(button & ~flags));
    if (button & MessageBox::Default || !defaultButton())
        setDefaultButton(added);
    if (button & MessageBox::Escape)
        setEscapeButton(added);
}

int Box::answer() const {
    return clickedButton() ? toCode(standardButton(clickedButton())) : MessageBox::NoButton;
}

void Box::closeEvent(QCloseEvent* event) {
    if (escapeButton())
        QMessageBox::closeEvent(event);
    else
        QDialog::closeEvent(event); // NOLINT(bugprone-parent-virtual-call): QMessageBox refuses
}

void Box::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Cancel) && !escapeButton())
        reject();
    else
        QMessageBox::keyPressEvent(event);
}

int ask(QMessageBox::Icon icon, const char* name, QWidget* parent, const QString& caption,
        const QString& text, const int (&buttons)[3]) {
    const QPointer<Box> box = new Box(parent);
    box->setObjectName(QLatin1String(name));
    box->setIcon(icon);
    box->setWindowTitle(caption);
    box->setTextFormat(Qt::PlainText);
    box->setText(text);
    box->addCode(buttons[0] ? buttons[0] : MessageBox::Ok);
    for (const int button : {buttons[1], buttons[2]}) {
        if (button)
            box->addCode(button);
    }
    box->exec();
    const int answer = box ? box->answer() : MessageBox::NoButton;
    delete box;
    return answer;
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
