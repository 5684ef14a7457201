#include <qt3/Widget.h>

namespace qt3 {

Widget::Widget(QWidget* parent, const char* name, WFlags flags)
    : Bridged<QWidget>(name, parent, Qt::WindowFlags::fromInt(static_cast<int>(flags))) {}

Widget::Widget(const Widget& other)
    : Bridged<QWidget>(other.name(nullptr), other.parentWidget(), other.windowFlags()) {
    takeOver(this, &other);
}

Widget& Widget::operator=(const Widget& other) {
    if (this != &other) {
        setName(other.name(nullptr));
        takeOver(this, &other);
    }
    return *this;
}

Widget::~Widget() = default;

} // namespace qt3
