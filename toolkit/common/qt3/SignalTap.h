#ifndef RUQGUI_QT3_SIGNALTAP_H
#define RUQGUI_QT3_SIGNALTAP_H

#include <functional>
#include <memory>
#include <qt3/Export.h>
#include <string>

class QObject;

namespace qt3 {

/// Listens to signals that are known only by their text, and tells their arguments as text: for
/// logs of what a widget says. To react to a signal, connect a slot. \code qt3::SignalTap tap;
/// tap.listenToAll(slider, [](const std::string& signal, const std::string& arguments) {
///     std::cout << signal << '(' << arguments << ")\n";
/// });
/// \endcode
///
/// The text is the same on both toolkits: "true" and "false"; whole numbers; floating-point numbers
/// with as few digits as tell them apart from others; strings in double quotes, in UTF-8, with line
/// breaks as "\n"; "null" or "pointer" for pointers to objects; "?" for all other types.
/// Arguments are separated by ", ".
///
/// The tap ends with this object or with the sender, whichever goes first.
class RUQGUI_EXPORT SignalTap {
public:
    typedef std::function<void(const std::string& arguments)> Handler;
    typedef std::function<void(const std::string& signal, const std::string& arguments)>
        NamedHandler;

    SignalTap();
    SignalTap(const SignalTap&) = delete;
    SignalTap& operator=(const SignalTap&) = delete;
    ~SignalTap();

    /// Calls \a handler with the arguments at each emission of \a signal, a signature such as
    /// "valueChanged(const QString&)". False if \a sender has no such signal.
    bool listen(QObject* sender, const char* signal, Handler handler);

    /// Calls \a handler with the plain name and the arguments of every signal that \a sender's
    /// class itself declares. Inherited signals are left out.
    void listenToAll(QObject* sender, const NamedHandler& handler);

private:
    class Receiver;
    std::unique_ptr<Receiver> m_pReceiver;
};

} // namespace qt3

#endif
