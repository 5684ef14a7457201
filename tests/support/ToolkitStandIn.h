#ifndef RUQGUI_TESTS_SUPPORT_TOOLKITSTANDIN_H
#define RUQGUI_TESTS_SUPPORT_TOOLKITSTANDIN_H

#include <qcolor.h>
#include <qstring.h>
#include <qstringlist.h>
#include <string>

class QWidget;

/// What the library asks the toolkit's file dialogs for, as it says it.
struct FileDialogCall {
    enum Kind { OpenOne, OpenSeveral, Save } kind;
    QString start;
    QString filter;
    QWidget* parent;
    std::string name;
    QString caption;
};

/// Of a message box.
struct WarningCall {
    QWidget* parent;
    QString caption;
    QString text;
    int buttons[3]; ///< With their flags.
};

/// Answers in place of the toolkit as long as it lives: no dialog, no box, and if wanted no file
/// either. For what real dialogs do not show (the exact start path), and for thousands of runs in a
/// second. One at a time; without any, the toolkit itself answers.
class ToolkitStandIn {
public:
    ToolkitStandIn();
    ToolkitStandIn(const ToolkitStandIn&) = delete;
    ToolkitStandIn& operator=(const ToolkitStandIn&) = delete;
    virtual ~ToolkitStandIn();

    /// No path is a cancelled dialog.
    virtual QStringList run(const FileDialogCall& call) = 0;
    /// The button, without flags.
    virtual int warn(const WarningCall& call) = 0;
    virtual void useNativeDialogs(bool use) = 0;

    /// As the toolkit itself answers, unless overridden.
    virtual int inform(const WarningCall& call);
    virtual QColor chooseColor(const QColor& initial, QWidget* parent, const std::string& name);
    virtual bool exists(const QString& name);
    virtual bool isReadable(const QString& name);
    virtual bool isWritable(const QString& name);
    virtual bool canCreate(const QString& name);
    virtual bool isInExistingDir(const QString& name);
};

/// "Yes (default), No, Cancel (escape)".
std::string buttonsOf(const WarningCall& call);

#endif
