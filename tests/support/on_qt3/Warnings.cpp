#include "Warnings.h"

#include <cstdio>
#include <cstdlib>
#include <qglobal.h>

namespace support {

namespace {

Warnings* s_current = nullptr;
QtMsgHandler s_previous = nullptr;

void receive(QtMsgType type, const char* message) {
    if (type == QtWarningMsg)
        s_current->add(message);
    else
        std::fprintf(stderr, "%s\n", message);
    if (type == QtFatalMsg)
        std::abort();
}

} // namespace

Warnings::Warnings() : m_pOuter(s_current) {
    s_current = this;
    if (!m_pOuter)
        s_previous = qInstallMsgHandler(receive);
}

Warnings::~Warnings() {
    s_current = m_pOuter;
    if (!m_pOuter)
        qInstallMsgHandler(s_previous);
}

} // namespace support
