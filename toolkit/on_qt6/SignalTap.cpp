#include <qt3/SignalTap.h>

#include "SignalText.h"

#include <QMetaMethod>
#include <QObject>
#include <utility>
#include <vector>

namespace qt3 {

namespace {

std::string argumentText(QMetaType type, const void* argument) {
    switch (type.id()) {
    case QMetaType::Bool:
        return signalText(*static_cast<const bool*>(argument));
    case QMetaType::Int:
        return signalText(*static_cast<const int*>(argument));
    case QMetaType::Double:
        return signalText(*static_cast<const double*>(argument));
    case QMetaType::QString:
        return signalText(static_cast<const QString*>(argument)->toStdString());
    }
    if (type.flags() & QMetaType::IsPointer)
        return signalText(*static_cast<const void* const*>(argument));
    return "?";
}

bool isClone(const QMetaMethod& signal) {
    return signal.attributes() & QMetaMethod::Cloned;
}

} // namespace

/// The method of a signal is its index here, behind the methods of the base.
class SignalTap::Receiver : public QObject {
public:
    void listen(QObject* sender, const QMetaMethod& signal, Handler handler);
    int qt_metacall(QMetaObject::Call call, int method, void** arguments) override;

private:
    struct Line {
        std::vector<QMetaType> types;
        Handler handler;
    };
    std::vector<Line> m_vLines;
};

void SignalTap::Receiver::listen(QObject* sender, const QMetaMethod& signal, Handler handler) {
    std::vector<QMetaType> types;
    for (int i = 0; i < signal.parameterCount(); ++i)
        types.push_back(signal.parameterMetaType(i));
    // A signature that leaves out defaults is emitted as the full one that precedes it.
    int index = signal.methodIndex();
    while (isClone(sender->metaObject()->method(index)))
        --index;
    const int method = metaObject()->methodCount() + int(m_vLines.size());
    m_vLines.push_back({types, std::move(handler)});
    QMetaObject::connect(sender, index, this, method, Qt::DirectConnection);
}

int SignalTap::Receiver::qt_metacall(QMetaObject::Call call, int method, void** arguments) {
    const int index = QObject::qt_metacall(call, method, arguments);
    if (index < 0 || call != QMetaObject::InvokeMetaMethod || index >= int(m_vLines.size()))
        return index;
    const Line line = m_vLines[index]; // the handler may add further lines
    std::string text;
    for (std::size_t i = 0; i < line.types.size(); ++i)
        text += (i ? ", " : "") + argumentText(line.types[i], arguments[i + 1]);
    line.handler(text);
    return -1;
}

SignalTap::SignalTap() : m_pReceiver(new Receiver) {}
SignalTap::~SignalTap() = default;

bool SignalTap::listen(QObject* sender, const char* signal, Handler handler) {
    const QMetaObject* meta = sender->metaObject();
    const int index = meta->indexOfSignal(QMetaObject::normalizedSignature(signal));
    if (index < 0)
        return false;
    m_pReceiver->listen(sender, meta->method(index), std::move(handler));
    return true;
}

void SignalTap::listenToAll(QObject* sender, const NamedHandler& handler) {
    const QMetaObject* meta = sender->metaObject();
    for (int i = meta->methodOffset(); i < meta->methodCount(); ++i) {
        const QMetaMethod signal = meta->method(i);
        if (signal.methodType() != QMetaMethod::Signal || isClone(signal))
            continue;
        const std::string name = signal.name().toStdString();
        m_pReceiver->listen(sender, signal,
                            [=](const std::string& arguments) { handler(name, arguments); });
    }
}

} // namespace qt3
