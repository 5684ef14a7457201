#ifndef RUQGUI_FILES_FILECHECKS_H
#define RUQGUI_FILES_FILECHECKS_H

#include <qstring.h>

class QWidget;

namespace TEVU {

/// The tests themselves, without a box.
bool isReadable(const QString& name);
bool isWritable(const QString& name);

/// Shows a warning about the file (%1 in \a text) with Cancel and Retry while \a test fails.
/// \return true as soon as the test passes, false on Cancel.
bool passesOrCancelled(bool (*test)(const QString&), const QString& name, QWidget* parent,
                       const char* caption, const char* text);

/// The box with one OK button about a name with characters of code 128 or more.
void warnAboutNonAsciiName(const QString& name, QWidget* parent);

} // namespace TEVU

#endif
