#include "SignalLog.h"

#include <qt3/Text.h>

namespace {

const std::size_t c_nShownLines = 200;

} // namespace

SignalLog::SignalLog(QWidget* parent, const char* name) : qt3::TextEdit(parent, name) {
    setReadOnly(true);
}

void SignalLog::watch(QObject* object, const std::string& name) {
    m_tap.listenToAll(object,
                      [this, name](const std::string& signal, const std::string& arguments) {
                          add(name + "  " + signal + "(" + arguments + ")");
                      });
}

void SignalLog::watch(QObject* object, const std::string& name, const std::string& signal) {
    const std::string line = name + "  " + signal.substr(0, signal.find('('));
    m_tap.listen(object, signal.c_str(),
                 [this, line](const std::string& arguments) { add(line + "(" + arguments + ")"); });
}

void SignalLog::add(const std::string& line) {
    m_lines.push_front(std::to_string(++m_nCount) + "  " + line);
    if (m_lines.size() > c_nShownLines)
        m_lines.pop_back();
    std::string text;
    for (const std::string& shown : m_lines)
        text += shown + "\n";
    setText(QString::fromUtf8(text.c_str()));
}
