#ifndef RUQGUI_GALLERY_FORM_H
#define RUQGUI_GALLERY_FORM_H

#include <qt3/CheckBox.h>
#include <qt3/GroupBox.h>
#include <qt3/Label.h>
#include <qt3/Layout.h>
#include <qt3/LineEdit.h>
#include <qt3/TextEdit.h>
#include <qt3/Widget.h>

// What the pages build their boxes from. All widgets belong to the box.

/// A box that fills \a panel.
qt3::GroupBox* boxIn(qt3::Widget* panel, const char* title);

/// The column inside a box: its parts from top to bottom.
qt3::VBoxLayout* columnIn(qt3::GroupBox* box);

qt3::Label* addText(qt3::GroupBox* box, qt3::VBoxLayout* column, const char* text,
                    const char* name = nullptr);

/// A line that says something of any length. What finds no room is cut off: it does not widen the box.
qt3::Label* addMessage(qt3::GroupBox* box, qt3::VBoxLayout* column, const char* text,
                       const char* name);

/// A field below its label.
qt3::LineEdit* addField(qt3::GroupBox* box, qt3::VBoxLayout* column, const char* label,
                        const char* text);

/// A text to read that may be long: it scrolls. As many lines high as that, or, for 0, as there is room.
qt3::TextEdit* addPane(QWidget* box, qt3::VBoxLayout* column, const char* name, int lines);

/// A widget right of its label.
void addLabelled(qt3::GroupBox* box, qt3::VBoxLayout* column, const char* label, QWidget* widget);

/// A box to tick whose change runs \a slot of \a receiver, written with SLOT() and taking a bool.
qt3::CheckBox* addSwitch(qt3::GroupBox* box, qt3::VBoxLayout* column, const char* text, bool on,
                         QObject* receiver, const char* slot);

#endif
