#include "Display.h"

#include "System.h"

#include <QApplication>
#include <QProxyStyle>
#include <QSettings>
#include <cstdlib>
#include <map>

namespace support {

namespace {

const char* const c_style = "windows";

class TestedStyle : public QProxyStyle {
public:
    using QProxyStyle::QProxyStyle;

#ifdef _WIN32
    /// The width of scroll bars, and so that of handles, is the user's choice there; here it is the usual one.
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override {
        return metric == PM_ScrollBarExtent ? 16 : QProxyStyle::pixelMetric(metric, option, widget);
    }
#endif
};

/// The application's style, with the icons that it has given already.
class IconsOnce : public TestedStyle {
public:
    using TestedStyle::TestedStyle;

    QIcon standardIcon(StandardPixmap which, const QStyleOption* option,
                       const QWidget* widget) const override {
        if (option)
            return QProxyStyle::standardIcon(which, option, widget);
        auto [icon, isNew] = m_icons.try_emplace(which);
        if (isNew)
            icon->second = QProxyStyle::standardIcon(which, nullptr, widget);
        return icon->second;
    }

private:
    mutable std::map<StandardPixmap, QIcon> m_icons;
};

} // namespace

void prepareDisplay() {
    if (!std::getenv("QT_QPA_PLATFORM"))
        setVariable("QT_QPA_PLATFORM", "offscreen");
    // The toolkit's file dialog keeps its view, its history and its last folder in the user's settings: tests
    // neither follow them nor change them. Where nothing can be written, they live in the process alone.
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, "/dev/null");
}

// The drivers answer the toolkit's dialogs. That the library asks for these is what ScriptedUser shows.
void addDisplayOptions(std::vector<char*>&) {
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

void setTestedStyle() {
#ifdef _WIN32
    QApplication::setStyle(new TestedStyle(c_style));
#else
    QApplication::setStyle(c_style);
#endif
}

void decodeIconsOnce() {
    QApplication::setStyle(new IconsOnce(c_style));
}

} // namespace support
