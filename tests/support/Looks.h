#ifndef RUQGUI_TESTS_SUPPORT_LOOKS_H
#define RUQGUI_TESTS_SUPPORT_LOOKS_H

#include <qcolor.h>
#include <qlayout.h>
#include <qpalette.h>
#include <qt3/Global.h>
#include <qt3/TextEdit.h>
#include <qwidget.h>
#include <string>
#include <vector>

/// What tests ask of widgets and layouts, the same on both toolkits.
namespace support {

/// The names of the widgets right below \a parent, in the order in which they were made.
std::vector<std::string> childWidgets(QObject* parent);

qt3::SizeType horizontalPolicy(const QWidget* widget);
qt3::SizeType verticalPolicy(const QWidget* widget);

/// The markup of the tool tip that shows over \a widget, "" if none does.
std::string toolTip(QWidget* widget);

/// The margin of a layout, -1 if its sides differ.
int margin(QLayout* layout);

/// Sets the colour of the text on buttons for one state.
void setButtonText(QWidget* widget, QPalette::ColorGroup state, const QColor& color);

/// The count of characters and line breaks before the cursor of a text edit.
int cursorOf(const qt3::TextEdit* edit);
/// Its selected text in UTF-8, with "\n" between paragraphs.
std::string selectionOf(const qt3::TextEdit* edit);
/// One line for each paragraph, however long.
void keepLinesWhole(qt3::TextEdit* edit);

/// The widget flag of a dialog.
unsigned int dialogFlag();
/// Whether the widget is a window made with dialogFlag().
bool isDialog(const QWidget* widget);

} // namespace support

#endif
