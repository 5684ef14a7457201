#ifndef RUQGUI_GALLERY_SIGNALLOG_H
#define RUQGUI_GALLERY_SIGNALLOG_H

#include <deque>
#include <qt3/SignalTap.h>
#include <qt3/TextEdit.h>
#include <string>

/// A pane that shows the signals of the watched objects as they come, the newest on top.
class SignalLog : public qt3::TextEdit {
public:
    SignalLog(QWidget* parent, const char* name);

    /// Logs every signal that the object's class declares, under this name. Ends with the object.
    void watch(QObject* object, const std::string& name);

    /// Logs one signal, also one that a base class declares, by its signature.
    void watch(QObject* object, const std::string& name, const std::string& signal);

    void add(const std::string& line);

private:
    std::deque<std::string> m_lines; ///< The newest first.
    int m_nCount = 0;                ///< Of all lines since the start.
    qt3::SignalTap m_tap;
};

#endif
