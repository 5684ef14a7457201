#ifndef RUQGUI_CCOLORPUSHBUTTON_H
#define RUQGUI_CCOLORPUSHBUTTON_H

#include <qcolor.h>
#include <qt3/Export.h>
#include <qt3/PushButton.h>

namespace TEVU {

/// A push button that shows a colour with its name, and lets the user choose another one by a click.
///
/// \code
/// auto* button = new TEVU::CColorPushButton(QColor(0, 0, 255), this, "markColour");
/// // ...
/// mark.setColour(button->color());
/// \endcode
/// It announces no change: read color() when it is needed, or connect to clicked(), which comes after
/// the choice to those who connected after construction.
///
/// Invariants:
/// 1. The text is the colour's name, such as "#0000ff".
/// 2. Outline and name are white on dark colours (HSV value below 130) and black on others.
/// 3. A colour that is not valid looks as black does; color() gives it back as it was set.
///
/// GUI thread only. A copy has the state of its original; clicking it does not open the dialog.
class RUQGUI_EXPORT CColorPushButton : public qt3::PushButton {
    Q_OBJECT

public:
    CColorPushButton(const QColor& color, QWidget* parent, const char* name);
    CColorPushButton(const CColorPushButton& other);
    CColorPushButton& operator=(const CColorPushButton& other);
    ~CColorPushButton();

    void setColor(QColor c); ///< Shows another colour, in face, text and contrast.
    QColor color();

protected slots:
    /// Opens the colour dialog, always starting with white. A cancel changes nothing.
    void SlotOpenColorChooser();

protected:
    /// The style's bevel, drawButtonLabel(), and the focus rectangle when it has the focus.
    void drawButton(qt3::Painter* painter) override;

    /// The colour over the whole button, outlined, and its name in the middle.
    void drawButtonLabel(qt3::Painter* painter) override;

private:
    QColor m_color;
};

} // namespace TEVU

#endif
