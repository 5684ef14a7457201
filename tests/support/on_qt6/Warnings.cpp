#include "Warnings.h"

#include <QString>
#include <qlogging.h>

namespace support {

namespace {

Warnings* s_current = nullptr;
QtMessageHandler s_previous = nullptr;

void receive(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (type == QtWarningMsg)
        s_current->add(message.toStdString());
    else
        s_previous(type, context, message);
}

} // namespace

Warnings::Warnings() : m_pOuter(s_current) {
    s_current = this;
    if (!m_pOuter)
        s_previous = qInstallMessageHandler(receive);
}

Warnings::~Warnings() {
    s_current = m_pOuter;
    if (!m_pOuter)
        qInstallMessageHandler(s_previous);
}

} // namespace support
