#include "ModalDriver.h"

#include "Dialogs.h"
#include "Events.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <qapplication.h>
#include <qpushbutton.h>

namespace support {

namespace {

const int c_interval = 1; // milliseconds
const std::chrono::seconds c_patience(3);
const int c_maxUnexpected = 20;

using Lines = std::vector<std::string>;
using Text = std::optional<std::string>;

std::string quoted(const std::string& text) {
    std::string shown = "'";
    for (const char c : text)
        shown += c == '\n' ? std::string("\\n") : std::string(1, c);
    return shown + "'";
}

std::string joined(const Lines& lines) {
    std::string all;
    for (const std::string& line : lines)
        all += (all.empty() ? "" : ", ") + line;
    return '[' + all + ']';
}

Lines buttonLabels(QWidget* box) {
    Lines labels;
    for (QPushButton* button : messageButtons(box))
        labels.push_back(buttonLabel(button));
    return labels;
}

// Return presses the button that has the focus in the box, else the default one.
std::string returnLabel(QWidget* box) {
    if (QPushButton* focused = dynamic_cast<QPushButton*>(box->focusWidget()))
        return buttonLabel(focused);
    for (QPushButton* button : messageButtons(box)) {
        if (button->isDefault())
            return buttonLabel(button);
    }
    return "";
}

std::string colorName(QWidget* dialog) {
    return text(colorOf(dialog).name());
}

std::string describe(QWidget* dialog) {
    const std::string caption = quoted(captionOf(dialog));
    const std::string name = quoted(nameOf(dialog));
    switch (kindOf(dialog)) {
    case DialogKind::Message:
        return messageIcon(dialog) + ' ' + caption + ' ' + quoted(messageText(dialog)) + ' ' +
               joined(buttonLabels(dialog));
    case DialogKind::File:
        return fileModeOf(dialog) + ' ' + name + ' ' + caption + " in " + quoted(folderOf(dialog)) +
               " with " + quoted(typedFileName(dialog));
    case DialogKind::Color:
        return "color " + name + ' ' + quoted(colorName(dialog));
    case DialogKind::Other:
        break;
    }
    return "dialog " + name + ' ' + caption;
}

template <class Shown>
auto textCheck(const char* what, const Text& expected, Shown shown) {
    return [=](QWidget* dialog, Lines& differences) {
        if (!expected)
            return;
        const std::string seen = shown(dialog);
        if (seen != *expected)
            differences.push_back(std::string(what) + " is " + quoted(seen) + ", not " +
                                  quoted(*expected));
    };
}

template <class Shown>
auto listCheck(const char* what, const Lines& expected, Shown shown) {
    return [=](QWidget* dialog, Lines& differences) {
        const Lines seen = shown(dialog);
        if (!expected.empty() && seen != expected)
            differences.push_back(std::string(what) + " are " + joined(seen) + ", not " +
                                  joined(expected));
    };
}

std::string shownText(const Text& expected) {
    return expected ? ' ' + quoted(*expected) : std::string();
}

void click(QPushButton* button) {
    if (button->isEnabled())
        mouseClick(button);
}

void clickLabel(QWidget* box, const std::string& label) {
    for (QPushButton* button : messageButtons(box)) {
        if (buttonLabel(button) == label)
            return click(button);
    }
    ADD_FAILURE() << "no button " << quoted(label) << " in " << describe(box);
}

} // namespace

void Step::answerWith(const std::string& description, Act act) {
    m_sAnswer = description;
    m_act = act;
}

void Step::checkParent(QWidget* parent) {
    m_vChecks.push_back([=](QWidget* dialog, Lines& differences) {
        if (dialog->parentWidget() != parent)
            differences.push_back("the parent is another widget");
    });
}

void Step::escape() {
    answerWith("escape", [](QWidget* dialog) { keyPress(dialog, Qt::Key_Escape); });
}

void Step::close() {
    answerWith("close", [](QWidget* dialog) { dialog->close(); });
}

void MessageStep::answer(const std::string& button) {
    answerWith(button, [=](QWidget* box) { clickLabel(box, button); });
}

void MessageStep::enter() {
    answerWith("enter", [](QWidget* box) {
        QWidget* focused = box->focusWidget();
        keyPress(focused ? focused : box, Qt::Key_Return, Modifier::None, "\r");
    });
}

void FileStep::choose(const std::string& path) {
    answerWith(quoted(path), [=](QWidget* dialog) {
        typeFileName(dialog, path);
        acceptFileName(dialog);
    });
}

void FileStep::chooseSeveral(const std::vector<std::string>& paths) {
    std::string typed;
    for (const std::string& path : paths)
        typed += '"' + path + "\" ";
    answerWith(joined(paths), [=](QWidget* dialog) {
        typeFileName(dialog, typed);
        acceptFileName(dialog);
    });
}

void FileStep::accept() {
    answerWith("accept", acceptFileName);
}

void FileStep::cancel() {
    answerWith("cancel", [](QWidget* dialog) { click(cancelButton(dialog)); });
}

void ColorStep::accept(const QColor& color) {
    answerWith(quoted(text(color.name())), [=](QWidget* dialog) {
        setColor(dialog, color);
        acceptColor(dialog);
    });
}

void ColorStep::accept() {
    answerWith("accept", acceptColor);
}

void ColorStep::cancel() {
    answerWith("cancel", [](QWidget* dialog) { click(cancelButton(dialog)); });
}

void DialogStep::act(std::function<void(QWidget*)> user) {
    answerWith("done", user);
}

ModalDriver::ModalDriver() {
    restartTimer();
}

ModalDriver::~ModalDriver() {
    finish();
}

template <class S>
S& ModalDriver::add(DialogKind kind, const std::string& expected) {
    m_vSteps.push_back(std::make_unique<S>());
    S& step = static_cast<S&>(*m_vSteps.back());
    step.m_kind = kind;
    step.m_sExpected = expected;
    step.close();
    return step;
}

MessageStep& ModalDriver::addMessage(const Text& icon, const Message& expected) {
    MessageStep& step =
        add<MessageStep>(DialogKind::Message,
                         "message box" + shownText(expected.caption) + shownText(expected.text));
    step.m_vChecks = {textCheck("the icon", icon, messageIcon),
                      textCheck("the caption", expected.caption, captionOf),
                      textCheck("the text", expected.text, messageText),
                      listCheck("the buttons", expected.buttons, buttonLabels),
                      textCheck("the default button", expected.defaultButton, returnLabel),
                      textCheck("the escape button", expected.escapeButton, escapeLabel)};
    return step;
}

MessageStep& ModalDriver::expectMessage(const Message& expected) {
    return addMessage({}, expected);
}

MessageStep& ModalDriver::expectInformation(const Message& expected) {
    return addMessage("information", expected);
}

MessageStep& ModalDriver::expectWarning(const Message& expected) {
    return addMessage("warning", expected);
}

FileStep& ModalDriver::expectFileDialog(const FileRequest& expected) {
    FileStep& step = add<FileStep>(DialogKind::File, "file dialog" + shownText(expected.name) +
                                                         shownText(expected.caption));
    step.m_vChecks = {textCheck("the name", expected.name, nameOf),
                      textCheck("the caption", expected.caption, captionOf),
                      textCheck("the folder", expected.folder, folderOf),
                      textCheck("the file name", expected.fileName, typedFileName),
                      listCheck("the filters", expected.filters, filtersOf),
                      textCheck("the mode", expected.mode, fileModeOf)};
    return step;
}

ColorStep& ModalDriver::expectColorDialog(const ColorRequest& expected) {
    ColorStep& step = add<ColorStep>(DialogKind::Color, "color dialog" + shownText(expected.name));
    step.m_vChecks = {textCheck("the name", expected.name, nameOf),
                      textCheck("the color", expected.initial, colorName)};
    return step;
}

DialogStep& ModalDriver::expectDialog(const DialogRequest& expected) {
    DialogStep& step = add<DialogStep>(DialogKind::Other, "dialog" + shownText(expected.name) +
                                                              shownText(expected.caption));
    step.m_vChecks = {textCheck("the name", expected.name, nameOf),
                      textCheck("the caption", expected.caption, captionOf)};
    return step;
}

void ModalDriver::finish() {
    for (; m_nNext < m_vSteps.size(); ++m_nNext)
        ADD_FAILURE() << "never came: " << m_vSteps[m_nNext]->m_sExpected;
}

// A timer whose own event opens a further dialog would be silent until that is closed. A new one is
// not.
void ModalDriver::restartTimer() {
    if (m_nTimer)
        killTimer(m_nTimer);
    m_nTimer = startTimer(c_interval);
}

void ModalDriver::timerEvent(QTimerEvent*) {
    restartTimer();
    QWidget* dialog = QApplication::activeModalWidget();
    if (!dialog || !dialog->isVisible())
        return;
    if (Open* open = find(dialog))
        watch(*open, dialog);
    else
        meet(dialog);
}

ModalDriver::Open* ModalDriver::find(QObject* dialog) {
    for (Open& open : m_vOpen) {
        if (open.dialog == dialog)
            return &open;
    }
    return nullptr;
}

void ModalDriver::remember(QWidget* dialog) {
    dialog->installEventFilter(this);
    if (!find(dialog))
        m_vOpen.push_back({dialog, Clock::now()});
}

// A dialog that is shown again after it was hidden is a further one.
bool ModalDriver::eventFilter(QObject* object, QEvent* event) {
    if (event->type() == QEvent::Hide && !event->spontaneous())
        m_vOpen.erase(std::remove_if(m_vOpen.begin(), m_vOpen.end(),
                                     [=](const Open& open) { return open.dialog == object; }),
                      m_vOpen.end());
    return false;
}

void ModalDriver::meet(QWidget* dialog) {
    remember(dialog);
    settle(dialog);
    if (m_nNext < m_vSteps.size())
        return follow(*m_vSteps[m_nNext++], dialog);
    m_vLog.push_back(describe(dialog) + " -> unexpected");
    ADD_FAILURE() << "unexpected: " << describe(dialog);
    dismiss(dialog);
}

void ModalDriver::follow(Step& step, QWidget* dialog) {
    const Lines differences = compare(step, dialog);
    m_vLog.push_back(describe(dialog) + " -> " + step.m_sAnswer);
    if (!differences.empty()) {
        ADD_FAILURE() << "not as expected: " << describe(dialog) << ": " << joined(differences);
        return dismiss(dialog);
    }
    remember(dialog); // looking at it may have hidden it for a moment
    if (step.m_hook)
        step.m_hook();
    if (Open* open = find(dialog)) {
        open->answered = Clock::now();
        step.m_act(dialog);
    }
}

Lines ModalDriver::compare(const Step& step, QWidget* dialog) {
    if (kindOf(dialog) != step.m_kind)
        return {"it should be: " + step.m_sExpected};
    Lines differences;
    for (const Step::Check& check : step.m_vChecks)
        check(dialog, differences);
    return differences;
}

void ModalDriver::dismiss(QWidget* dialog) {
    if (++m_nUnexpected > c_maxUnexpected) {
        std::fprintf(stderr, "Too many unexpected dialogs, the last: %s\n",
                     describe(dialog).c_str());
        std::abort();
    }
    dialog->close();
    if (dialog->isVisible())
        dialog->hide();
}

void ModalDriver::watch(Open& open, QWidget* dialog) {
    if (Clock::now() - open.answered < c_patience)
        return;
    ADD_FAILURE() << "stays open: " << describe(dialog);
    dismiss(dialog);
}

} // namespace support
