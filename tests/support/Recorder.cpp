#include "Recorder.h"

#include <gtest/gtest.h>
#include <utility>

namespace support {

void Recorder::tapAll(QObject* sender, const std::string& label) {
    m_tap.listenToAll(sender, [=](const std::string& signal, const std::string& arguments) {
        add(label + '.' + signal + '(' + arguments + ')');
    });
}

void Recorder::tap(QObject* sender, const char* signal, const std::string& label) {
    const std::string signature = signal;
    const std::string start = label + '.' + signature.substr(0, signature.find('(')) + '(';
    const bool known = m_tap.listen(
        sender, signal, [=](const std::string& arguments) { add(start + arguments + ')'); });
    EXPECT_TRUE(known) << "no signal " << signal;
}

void Recorder::add(const std::string& line) {
    m_vLines.push_back(line);
}

Lines Recorder::take() {
    return std::exchange(m_vLines, Lines());
}

} // namespace support
