#include <qt3/Widget.h>

namespace qt3 {

Widget::Widget(QWidget* parent, const char* name, WFlags flags) : QWidget(parent, name, flags) {}

Widget::Widget(const Widget& other)
    : QWidget(other.parentWidget(), other.name(nullptr), other.getWFlags()) {
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
