#include "CParameterDialog.h"

#include "FormView.h"

#include <algorithm>
#include <qevent.h>
#include <qt3/GroupBox.h>
#include <qt3/Label.h>
#include <qt3/Pointer.h>
#include <qt3/PushButton.h>
#include <qt3/Text.h>
#include <qt3/WidgetFunctions.h>

namespace autodlg {

namespace {

const int c_nMargin = 11;
const int c_nSpacing = 6;

} // namespace

CParameterDialog::CParameterDialog(const StDialog& dialog, const std::vector<Value>& values,
                                   bool showAdvanced, QWidget* parent)
    : qt3::Dialog(parent, "autodlg", true), m_dialog(dialog), m_values(values),
      m_bShowAdvanced(showAdvanced), m_fields(values.size()) {
    setCaption(qt3::fromAscii(dialog.form.title));
    auto* column = new qt3::VBoxLayout(this, c_nMargin, c_nMargin);
    column->addWidget(createForm(), 1);
    createButtons(column);
    const auto first = std::find_if(m_fields.begin(), m_fields.end(),
                                    [](const auto& field) { return field != nullptr; });
    if (first != m_fields.end())
        (*first)->focusTarget()->setFocus();
}

CParameterDialog::~CParameterDialog() = default;

const std::vector<Value>& CParameterDialog::values() const {
    return m_values;
}

QWidget* CParameterDialog::createForm() {
    auto* view = new CFormView(this, "view");
    auto* column = new qt3::VBoxLayout(view->form());
    auto* grid = new qt3::GridLayout(column, 1, 2, c_nSpacing);
    fill(m_dialog.form, view->form(), grid);
    alignLabels();
    column->addStretch(1);
    return view;
}

void CParameterDialog::createButtons(qt3::VBoxLayout* column) {
    auto* row = new qt3::HBoxLayout(column, c_nSpacing);
    auto* defaults = new qt3::PushButton("Restore Defaults", this, "defaults");
    connect(defaults, SIGNAL(clicked()), this, SLOT(restoreDefaults()));
    auto* ok = new qt3::PushButton("OK", this, "ok");
    ok->setDefault(true);
    connect(ok, SIGNAL(clicked()), this, SLOT(accept()));
    auto* cancel = new qt3::PushButton("Cancel", this, "cancel");
    connect(cancel, SIGNAL(clicked()), this, SLOT(reject()));
    row->addWidget(defaults);
    row->addStretch(1);
    row->addWidget(ok);
    row->addWidget(cancel);
}

void CParameterDialog::fill(const StGroup& group, QWidget* box, qt3::GridLayout* grid) {
    grid->setColStretch(1, 1);
    int row = 0;
    for (const StMember& member : group.members) {
        if (const auto* const inner = std::get_if<StGroup>(&member.what))
            addGroup(*inner, box, grid, row++);
        else
            addParameter(std::get<std::size_t>(member.what), box, grid, row++);
    }
}

void CParameterDialog::addParameter(std::size_t index, QWidget* box, qt3::GridLayout* grid,
                                    int row) {
    if (!shows(index))
        return;
    const StParameter& parameter = m_dialog.parameters[index];
    const QString help = qt3::fromAscii(parameter.help);
    FieldPointer field = createField(parameter, box);
    field->setValue(m_values[index]);
    qt3::setToolTip(field->widget(), help);
    grid->addWidget(field->widget(), row, 1);
    const QString text = qt3::fromAscii(parameter.label);
    if (!field->takesLabel(text)) {
        auto* label = new qt3::Label(text, box);
        label->setBuddy(field->focusTarget());
        qt3::setToolTip(label, help);
        grid->addWidget(label, row, 0);
        m_labels.push_back(label);
    }
    m_fields[index] = std::move(field);
}

void CParameterDialog::addGroup(const StGroup& group, QWidget* box, qt3::GridLayout* grid,
                                int row) {
    if (!shows(group))
        return;
    auto* inner = new qt3::GroupBox(qt3::fromAscii(group.title), box);
    qt3::setToolTip(inner, qt3::fromAscii(group.help));
    inner->setColumnLayout(0, Qt::Vertical);
    fill(group, inner, new qt3::GridLayout(inner->layout(), 1, 2, c_nSpacing));
    grid->addMultiCellWidget(inner, row, row, 0, 1);
}

// The fields of all groups begin at one line.
void CParameterDialog::alignLabels() {
    int width = 0;
    for (const QWidget* const label : m_labels)
        width = std::max(width, label->sizeHint().width());
    for (QWidget* const label : m_labels)
        label->setMinimumWidth(width);
}

// Only now are all widgets polished, and know their sizes; the toolkit finds a place for what it finds
// here. When the window comes back from being an icon, it has the size that the user gave it.
void CParameterDialog::showEvent(QShowEvent* event) {
    if (!event->spontaneous()) {
        layout()->invalidate();
        resize(layout()->sizeHint());
    }
    qt3::Dialog::showEvent(event);
    if (!event->spontaneous())
        stayOnScreen();
}

// On Qt 3.3 the place was found before, for another size.
void CParameterDialog::stayOnScreen() {
    const QRect screen = qt3::availableGeometry(this);
    const QRect window = frameGeometry();
    const int left = std::min(window.left(), screen.right() + 1 - window.width());
    const int top = std::min(window.top(), screen.bottom() + 1 - window.height());
    const QPoint place(std::max(left, screen.left()), std::max(top, screen.top()));
    if (place != window.topLeft())
        move(place);
}

bool CParameterDialog::shows(std::size_t parameter) const {
    return m_bShowAdvanced || !m_dialog.parameters[parameter].advanced;
}

// A group with nothing to show would be an empty box.
bool CParameterDialog::shows(const StGroup& group) const {
    return std::any_of(group.members.begin(), group.members.end(), [&](const StMember& member) {
        return std::visit([&](const auto& what) { return shows(what); }, member.what);
    });
}

void CParameterDialog::accept() {
    const qt3::Pointer<CParameterDialog> self(this); // the application may end under a box
    CField* const field = firstUnacceptable();
    if (!self)
        return endExecOfDestroyed();
    if (field)
        return field->focusTarget()->setFocus();
    for (std::size_t i = 0; i < m_fields.size(); ++i) {
        if (m_fields[i])
            m_values[i] = m_fields[i]->value();
    }
    qt3::Dialog::accept();
}

CField* CParameterDialog::firstUnacceptable() {
    for (std::size_t i = 0; i < m_fields.size(); ++i) {
        CField* const field = m_fields[i].get();
        const QString label = qt3::fromAscii(plainLabel(m_dialog.parameters[i].label));
        if (field && !field->isAcceptable(this, label))
            return field; // of a dialog that is still there, unless it went under the box
    }
    return nullptr;
}

void CParameterDialog::restoreDefaults() {
    for (std::size_t i = 0; i < m_fields.size(); ++i) {
        if (m_fields[i])
            m_fields[i]->setValue(m_dialog.parameters[i].byDefault);
    }
}

} // namespace autodlg
