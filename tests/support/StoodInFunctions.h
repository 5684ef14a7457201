#ifndef RUQGUI_TESTS_SUPPORT_STOODINFUNCTIONS_H
#define RUQGUI_TESTS_SUPPORT_STOODINFUNCTIONS_H

#include <qcolor.h>
#include <qstring.h>
#include <qstringlist.h>

class QWidget;

/// Called in place of the functions of the toolkit layer that have these names there. They ask the
/// ToolkitStandIn, or without any the toolkit.
namespace stand_in {

QString getOpenFileName(const QString& startWith, const QString& filter, QWidget* parent,
                        const char* name, const QString& caption);
QStringList getOpenFileNames(const QString& filter, const QString& dir, QWidget* parent,
                             const char* name, const QString& caption);
QString getSaveFileName(const QString& startWith, const QString& filter, QWidget* parent,
                        const char* name, const QString& caption);
void useNativeDialogs(bool use);
int warning(QWidget* parent, const QString& caption, const QString& text, int button0, int button1,
            int button2);
int information(QWidget* parent, const QString& caption, const QString& text, int button0,
                int button1, int button2);
QColor getColor(const QColor& initial, QWidget* parent, const char* name);
bool exists(const QString& name);
bool isReadable(const QString& name);
bool isWritable(const QString& name);
bool canCreate(const QString& name);
bool isInExistingDir(const QString& name);

/// To be called once before the functions are counted on; what that takes is the system's affair.
void takePlaces();

} // namespace stand_in

#endif
