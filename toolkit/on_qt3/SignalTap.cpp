#include <qt3/SignalTap.h>

#include "SignalText.h"

#include <cstring>
#include <private/qucom_p.h>
#include <private/qucomextra_p.h>
#include <qmetaobject.h>
#include <qobject.h>
#include <qstring.h>
#include <vector>

namespace qt3 {

namespace {

const int c_slotCode = 1;

std::string argumentText(const QUParameter& parameter, QUObject* argument) {
    if (parameter.type == &static_QUType_bool)
        return signalText(static_QUType_bool.get(argument));
    if (parameter.type == &static_QUType_int)
        return signalText(static_QUType_int.get(argument));
    if (parameter.type == &static_QUType_double)
        return signalText(static_QUType_double.get(argument));
    if (parameter.type == &static_QUType_QString)
        return signalText(std::string(static_QUType_QString.get(argument).utf8()));
    if (parameter.type == &static_QUType_ptr)
        return signalText(static_cast<const void*>(static_QUType_ptr.get(argument)));
    return "?";
}

} // namespace

/// The slot of a signal is its index here, behind the slots of the base.
class SignalTap::Receiver : public QObject {
public:
    using QObject::normalizeSignalSlot;

    void listen(QObject* sender, int signal, Handler handler);
    bool qt_invoke(int slot, QUObject* arguments) override;

private:
    struct Line {
        const QUMethod* signal;
        Handler handler;
    };
    std::vector<Line> m_vLines;
};

void SignalTap::Receiver::listen(QObject* sender, int signal, Handler handler) {
    const int slot = metaObject()->numSlots(true) + int(m_vLines.size());
    m_vLines.push_back({sender->metaObject()->signal(signal, true)->method, handler});
    connectInternal(sender, signal, this, c_slotCode, slot);
}

bool SignalTap::Receiver::qt_invoke(int slot, QUObject* arguments) {
    const int index = slot - metaObject()->numSlots(true);
    if (index < 0 || index >= int(m_vLines.size()))
        return QObject::qt_invoke(slot, arguments);
    const Line line = m_vLines[index]; // the handler may add further lines
    std::string text;
    for (int i = 0; i < line.signal->count; ++i)
        text += (i ? ", " : "") + argumentText(line.signal->parameters[i], arguments + i + 1);
    line.handler(text);
    return true;
}

SignalTap::SignalTap() : m_pReceiver(new Receiver) {}
SignalTap::~SignalTap() = default;

bool SignalTap::listen(QObject* sender, const char* signal, Handler handler) {
    const int index = sender->metaObject()->findSignal(Receiver::normalizeSignalSlot(signal), true);
    if (index < 0)
        return false;
    m_pReceiver->listen(sender, index, handler);
    return true;
}

void SignalTap::listenToAll(QObject* sender, const NamedHandler& handler) {
    QMetaObject* meta = sender->metaObject();
    for (int i = 0; i < meta->numSignals(false); ++i) {
        const std::string name = signalName(meta->signal(i, false)->name);
        m_pReceiver->listen(sender, meta->signalOffset() + i,
                            [=](const std::string& arguments) { handler(name, arguments); });
    }
}

} // namespace qt3
