#include "Display.h"

#include "System.h"

#include <QApplication>
#include <QProxyStyle>
#include <cstdlib>
#include <map>

namespace support {

namespace {

/// The application's style, with the icons that it has given already.
class IconsOnce : public QProxyStyle {
public:
    using QProxyStyle::QProxyStyle;

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
}

void addDisplayOptions(std::vector<char*>&) {}

void decodeIconsOnce() {
    QApplication::setStyle(new IconsOnce(QApplication::style()->name()));
}

} // namespace support
