#ifndef RUQGUI_QT3_MESSAGEBOX_H
#define RUQGUI_QT3_MESSAGEBOX_H

#include <qstring.h>
#include <qt3/Export.h>

class QWidget;

namespace qt3 {

/// A modal box with a text, up to three buttons and one answer, as the static functions of Qt 3.3's
/// message box show it.
/// \code
/// const int answer = qt3::MessageBox::warning(parent, "Overwrite File", text,
///                                             qt3::MessageBox::Yes | qt3::MessageBox::Default,
///                                             qt3::MessageBox::No,
///                                             qt3::MessageBox::Cancel | qt3::MessageBox::Escape);
/// if (answer == qt3::MessageBox::Cancel)
///     return false;
/// \endcode
///
/// The same on both toolkits:
/// - The answer is one of the enumerators Ok to Ignore, without flags. Compare only with those.
/// - Escape and closing the box answer with the button flagged Escape. Without such a button they
///   answer 0, which is no button.
/// - Return presses the button flagged Default. Without such a button it presses the first one.
/// - The text is plain: what looks like markup and every "&" stay as typed.
/// - Without any button there is one Ok.
/// - When \a parent is destroyed under the open box, the box goes too, and answers 0.
///
/// The place of the buttons is the host's: in the order given on Qt 3.3, by their role on Qt 6.
/// \a parent may be null.
class RUQGUI_EXPORT MessageBox {
public:
    enum {
        NoButton = 0,
        Ok = 1,
        Cancel = 2,
        Yes = 3,
        No = 4,
        Abort = 5,
        Retry = 6,
        Ignore = 7,
        Default = 0x100, ///< Flag, or-ed to a button: Return presses it.
        Escape = 0x200   ///< Flag, or-ed to a button: Escape and closing answer with it.
    };

    static int information(QWidget* parent, const QString& caption, const QString& text,
                           int button0, int button1 = 0, int button2 = 0);
    static int warning(QWidget* parent, const QString& caption, const QString& text, int button0,
                       int button1, int button2 = 0);
    static int critical(QWidget* parent, const QString& caption, const QString& text, int button0,
                        int button1, int button2 = 0);
};

} // namespace qt3

#endif
