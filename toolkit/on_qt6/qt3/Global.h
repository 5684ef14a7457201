#ifndef RUQGUI_QT3_GLOBAL_H
#define RUQGUI_QT3_GLOBAL_H

#include <qpalette.h>
#include <qsizepolicy.h>
#include <qwidget.h>

namespace qt3 {

/// The flags of a widget.
using WFlags = unsigned int;
constexpr WFlags WType_Dialog = Qt::Dialog;

/// One policy of a QSizePolicy, such as QSizePolicy::Fixed.
using SizeType = QSizePolicy::Policy;

/// The palette role behind a widget.
using BackgroundMode = QPalette::ColorRole;
constexpr BackgroundMode PaletteBackground = QPalette::Window;
constexpr BackgroundMode PaletteBase = QPalette::Base;

/// The colours of one state of a widget.
class ColorGroup {
public:
    enum ColorRole {
        Foreground = QPalette::WindowText,
        Button = QPalette::Button,
        Text = QPalette::Text,
        ButtonText = QPalette::ButtonText,
        Base = QPalette::Base,
        Background = QPalette::Window
    };

    ColorGroup(const QPalette& palette, QPalette::ColorGroup group) : m_hPalette(palette) {
        m_hPalette.setCurrentColorGroup(group);
    }

    const QColor& color(ColorRole role) const {
        return m_hPalette.color(static_cast<QPalette::ColorRole>(role));
    }

    const QColor& foreground() const { return color(Foreground); }
    const QColor& button() const { return color(Button); }
    const QColor& text() const { return color(Text); }
    const QColor& buttonText() const { return color(ButtonText); }
    const QColor& base() const { return color(Base); }
    const QColor& background() const { return color(Background); }

    /// It shows these colours in every state.
    const QPalette& palette() const { return m_hPalette; }

private:
    QPalette m_hPalette;
};

} // namespace qt3

#endif
