#include "Form.h"

namespace {

const int c_nLabelWidth = 130;
const int c_nPaneFrame = 12; ///< Pixels above and below the lines.

} // namespace

qt3::GroupBox* boxIn(qt3::Widget* panel, const char* title) {
    auto* layout = new qt3::VBoxLayout(panel, 0, 0);
    auto* box = new qt3::GroupBox(title, panel);
    layout->addWidget(box);
    return box;
}

qt3::VBoxLayout* columnIn(qt3::GroupBox* box) {
    box->setColumnLayout(0, Qt::Vertical);
    box->layout()->setSpacing(6);
    auto* column = new qt3::VBoxLayout(box->layout());
    column->setAlignment(Qt::AlignTop);
    return column;
}

qt3::Label* addText(qt3::GroupBox* box, qt3::VBoxLayout* column, const char* text,
                    const char* name) {
    auto* label = new qt3::Label(box, name);
    label->setText(text);
    column->addWidget(label);
    return label;
}

qt3::Label* addMessage(qt3::GroupBox* box, qt3::VBoxLayout* column, const char* text,
                       const char* name) {
    qt3::Label* const label = addText(box, column, text, name);
    label->setSizePolicy(QSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred));
    return label;
}

qt3::LineEdit* addField(qt3::GroupBox* box, qt3::VBoxLayout* column, const char* label,
                        const char* text) {
    addText(box, column, label);
    auto* field = new qt3::LineEdit(box);
    field->setText(text);
    column->addWidget(field);
    return field;
}

qt3::TextEdit* addPane(QWidget* box, qt3::VBoxLayout* column, const char* name, int lines) {
    auto* pane = new qt3::TextEdit(box, name);
    pane->setReadOnly(true);
    if (lines > 0)
        pane->setFixedHeight(lines * pane->fontMetrics().lineSpacing() + c_nPaneFrame);
    column->addWidget(pane, lines > 0 ? 0 : 1);
    return pane;
}

void addLabelled(qt3::GroupBox* box, qt3::VBoxLayout* column, const char* label, QWidget* widget) {
    auto* row = new qt3::HBoxLayout(column, 6);
    auto* text = new qt3::Label(box);
    text->setText(label);
    text->setFixedWidth(c_nLabelWidth);
    row->addWidget(text);
    row->addWidget(widget, 1);
}

qt3::CheckBox* addSwitch(qt3::GroupBox* box, qt3::VBoxLayout* column, const char* text, bool on,
                         QObject* receiver, const char* slot) {
    auto* checkBox = new qt3::CheckBox(text, box);
    checkBox->setChecked(on);
    QObject::connect(checkBox, SIGNAL(toggled(bool)), receiver, slot);
    column->addWidget(checkBox);
    return checkBox;
}
