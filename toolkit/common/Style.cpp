#include <qt3/Style.h>

namespace qt3 {

Style::Style(const QWidget* widget) : m_pWidget(widget), m_context(widget) {}

Style styleOf(const QWidget* widget) {
    return Style(widget);
}

} // namespace qt3
