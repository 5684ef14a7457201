#ifndef RUQGUI_TESTS_SUPPORT_DIALOGS_H
#define RUQGUI_TESTS_SUPPORT_DIALOGS_H

#include <qcolor.h>
#include <string>
#include <vector>

class QWidget;
class QPushButton;

/// What there is to see and to do in an open modal dialog. The modal driver's own vocabulary: tests
/// talk to the driver.
namespace support {

enum class DialogKind { Message, File, Color, Other };

DialogKind kindOf(QWidget* dialog);
std::string nameOf(QWidget* dialog);
std::string captionOf(QWidget* dialog);

/// "information", "warning", "critical" or "plain".
std::string messageIcon(QWidget* box);
std::string messageText(QWidget* box);
/// In the order in which the caller gave them.
std::vector<QPushButton*> messageButtons(QWidget* box);
/// Without the mark of the accelerator.
std::string buttonLabel(QPushButton* button);
/// The button that Escape and closing answer with; "" if none.
std::string escapeLabel(QWidget* box);

/// Absolute, without a slash at the end.
std::string folderOf(QWidget* dialog);
std::string typedFileName(QWidget* dialog);
std::vector<std::string> filtersOf(QWidget* dialog);
/// "open", "open several" or "save".
std::string fileModeOf(QWidget* dialog);
void typeFileName(QWidget* dialog, const std::string& text);
/// Ends the dialog with the name that is there.
void acceptFileName(QWidget* dialog);
/// Lets a dialog that has just been opened become what a user would see.
void settle(QWidget* dialog);

QColor colorOf(QWidget* dialog);
void setColor(QWidget* dialog, const QColor& color);

void acceptColor(QWidget* dialog);

/// Of a file dialog or a colour dialog.
QPushButton* cancelButton(QWidget* dialog);

} // namespace support

#endif
