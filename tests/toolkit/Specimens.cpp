#include "Specimens.h"

#include <qt3/Text.h>

namespace specimen {

CTalkingWidget::CTalkingWidget(QWidget* parent, const char* name) : qt3::Widget(parent, name) {}

void CTalkingWidget::setEnabled(bool enabled) {
    qt3::Widget::setEnabled(enabled);
    m_vCalls.push_back(enabled ? "setEnabled(true)" : "setEnabled(false)");
}

void CTalkingWidget::enabledChange(bool oldEnabled) {
    qt3::Widget::enabledChange(oldEnabled);
    m_vCalls.push_back(oldEnabled ? "enabledChange(true)" : "enabledChange(false)");
}

void CTalkingWidget::styleChange(QStyle& style) {
    qt3::Widget::styleChange(style);
    m_vCalls.push_back("styleChange");
}

void CTalkingWidget::languageChange() {
    m_vCalls.push_back("languageChange");
}

CPastingEdit::CPastingEdit(QWidget* parent, const char* name) : qt3::TextEdit(parent, name) {}

void CPastingEdit::paste() {
    qt3::TextEdit::paste();
    m_vCalls.push_back("paste");
}

void CListener::hear(const QString& text) {
    m_vTexts.push_back(qt3::ascii(text));
}

CTables::CTables(QWidget* parent, const char* name) : qt3::Widget(parent, name) {}

void CTables::first(int) {}

int CTables::second() {
    return 2;
}

void CTables::third(QString) {}

void CTables::fourth(const QString&, double) {}

void CTables::fifth() {}

} // namespace specimen
