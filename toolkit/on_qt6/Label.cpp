#include <qt3/Label.h>

namespace qt3 {

Label::Label(QWidget* parent, const char* name) : Bridged<QLabel>(name, parent) {
    setTextFormat(Qt::PlainText);
}

Label::Label(const QString& text, QWidget* parent, const char* name) : Label(parent, name) {
    setText(text);
}

Label::~Label() = default;

} // namespace qt3
