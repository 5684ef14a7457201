#include "ScriptedUser.h"

#include <Events.h>
#include <qt3/MessageBox.h>
#include <sstream>
#include <utility>

using support::text;

namespace {

std::string dialogLine(const std::string& kind, const std::string& start, const std::string& filter,
                       const std::string& name, const std::string& caption) {
    return kind + " from '" + start + "' with '" + filter + "' as '" + name + "', '" + caption +
           '\'';
}

int buttonOf(const std::string& label) {
    const std::pair<const char*, int> labels[] = {
        {"OK", qt3::MessageBox::Ok},       {"Cancel", qt3::MessageBox::Cancel},
        {"Yes", qt3::MessageBox::Yes},     {"No", qt3::MessageBox::No},
        {"Retry", qt3::MessageBox::Retry},
    };
    for (const auto& [known, button] : labels) {
        if (label == known)
            return button;
    }
    return qt3::MessageBox::Cancel;
}

} // namespace

void ScriptedUser::answer(const std::string& text, const std::function<void()>& before) {
    m_vAnswers.push_back({text, before});
}

ScriptedUser::Lines ScriptedUser::takeLog() {
    for (const Answer& left : std::exchange(m_vAnswers, {}))
        m_vLog.push_back("not asked for '" + left.text + '\'');
    m_vStarts.clear();
    return std::exchange(m_vLog, {});
}

ScriptedUser::Lines ScriptedUser::takeStarts() {
    Lines starts = std::exchange(m_vStarts, {});
    takeLog();
    return starts;
}

std::string ScriptedUser::next() {
    if (m_vAnswers.empty())
        return "";
    const Answer answer = m_vAnswers.front();
    m_vAnswers.pop_front();
    if (answer.before)
        answer.before();
    return answer.text;
}

void ScriptedUser::checkParent(const QWidget* parent) {
    if (parent != m_pParent)
        note("the parent is another widget");
}

QStringList ScriptedUser::run(const FileDialogCall& call) {
    const char* kinds[] = {"open", "open several", "save"};
    checkParent(call.parent);
    note(dialogLine(kinds[call.kind], text(call.start), text(call.filter), call.name,
                    text(call.caption)));
    m_vStarts.push_back(text(call.start));
    QStringList paths;
    std::istringstream answer(nextChoice());
    for (std::string path; std::getline(answer, path);)
        paths.append(QString::fromUtf8(path.c_str()));
    return paths;
}

int ScriptedUser::askedBy(const std::string& icon, const WarningCall& call) {
    checkParent(call.parent);
    note(icon + script::boxText(text(call.caption), text(call.text), buttonsOf(call)));
    return buttonOf(nextButton());
}

int ScriptedUser::warn(const WarningCall& call) {
    return askedBy("warning", call);
}

int ScriptedUser::inform(const WarningCall& call) {
    return askedBy("information", call);
}

QColor ScriptedUser::chooseColor(const QColor& initial, QWidget* parent, const std::string& name) {
    checkParent(parent);
    note("color from " + text(initial.name()) + " as '" + name + '\'');
    const std::string chosen = nextChoice();
    return chosen.empty() ? QColor() : QColor(chosen.c_str());
}

void ScriptedUser::useNativeDialogs(bool use) {
    note(use ? "native dialogs on" : "native dialogs off");
}

namespace script {

std::string openOne(const std::string& start, const std::string& filter) {
    return dialogLine("open", start, filter, "opendialog", "Choose a file...");
}

std::string openSeveral(const std::string& start, const std::string& filter) {
    return dialogLine("open several", start, filter, "opendialog", "Select one or more files...");
}

std::string save(const std::string& start, const std::string& filter) {
    return dialogLine("save", start, filter, "savedialog", "Specify a filename...");
}

std::string boxText(const std::string& caption, const std::string& message,
                    const std::string& buttons) {
    return " '" + caption + "', '" + message + "' [" + buttons + ']';
}

std::string warning(const std::string& caption, const std::string& message,
                    const std::string& buttons) {
    return "warning" + boxText(caption, message, buttons);
}

} // namespace script
