#include "SmallWidgetsPage.h"

#include "Form.h"
#include "SignalLog.h"

#include <CColorPushButton.h>
#include <CNoNewLinesTextEdit.h>
#include <qt3/Widget.h>

using TEVU::CColorPushButton;
using TEVU::CNoNewLinesTextEdit;

namespace {

QWidget* createButtons(QWidget* page, SignalLog& log) {
    auto* box = new qt3::GroupBox("Colour buttons: click one", page, "colours");
    auto* column = columnIn(box);
    const struct {
        const char* m_sLabel;
        QColor m_color;
        bool m_bEnabled;
        const char* m_sName;
    } buttons[] = {{"Dark:", QColor(20, 60, 129), true, "dark"},
                   {"Bright:", QColor(240, 200, 40), true, "bright"},
                   {"Just bright:", QColor(0, 130, 0), true, "justBright"},
                   {"Disabled:", QColor(180, 60, 60), false, "disabled"}};
    for (const auto& variant : buttons) {
        auto* button = new CColorPushButton(variant.m_color, box, variant.m_sName);
        button->setEnabled(variant.m_bEnabled);
        log.watch(button, variant.m_sName, "clicked()");
        addLabelled(box, column, variant.m_sLabel, button);
    }
    return box;
}

QWidget* createTextEdit(QWidget* page, SignalLog& log) {
    auto* box = new qt3::GroupBox("Text without line breaks: paste into it", page, "texts");
    auto* column = columnIn(box);
    auto* edit = new CNoNewLinesTextEdit(box, "noNewLines");
    edit->setText("After a paste by keys, by menu or by the middle button this text is one line, "
                  "however long.");
    log.watch(edit, "noNewLines", "textChanged()");
    column->addWidget(edit);
    return box;
}

} // namespace

QWidget* createSmallWidgetsPage(QWidget* parent, SignalLog& log, const Options&) {
    auto* page = new qt3::Widget(parent, "smallWidgetsPage");
    auto* row = new qt3::HBoxLayout(page, 8, 8);
    row->addWidget(createButtons(page, log), 1);
    row->addWidget(createTextEdit(page, log), 1);
    return page;
}
