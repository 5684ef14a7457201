#include "CHeaderFieldsWidget.h"

#include "UnitTable.h"

#include <limits>
#include <qevent.h>
#include <qt3/DoubleValidator.h>
#include <qt3/Text.h>

namespace TEVU {

namespace {

struct StNumber {
    bool bValid;
    double dValue;
};

StNumber numberOf(const QString& text) {
    StNumber number = {false, 0.0};
    number.dValue = qt3::toDouble(text, &number.bValid);
    return number;
}

QString spacingNumber(double v) {
    return qt3::number(v, CHeaderFieldsWidget::m_cQtDoubleFormat,
                       CHeaderFieldsWidget::m_nQtStringPrecision);
}

bool isLineBreak(const QEvent* event) {
    if (event->type() != QEvent::KeyPress)
        return false;
    const int key = static_cast<const QKeyEvent*>(event)->key();
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

} // namespace

const char CHeaderFieldsWidget::m_cQtDoubleFormat = 'g';
const int CHeaderFieldsWidget::m_nQtStringPrecision = 10;

CHeaderFieldsWidget::CHeaderFieldsWidget(QWidget* parent, const char* name, unsigned int flags)
    : qt3::Widget(parent, name ? name : "CHeaderFieldsWidget", flags) {
    CHeaderFieldsWidgetLayout = new qt3::VBoxLayout(this, 11, 6, "CHeaderFieldsWidgetLayout");
    CreateSpacingGroup();
    CreateDescriptionGroup();
    CreateBottomRow();
    languageChange();
    resize(QSize(577, 579).expandedTo(minimumSizeHint()));
    qt3::clearPolished(this);

    CheckUnits();
    SetUnit(comboUnit->currentText());

    qt3::connectActivated(comboUnit, this, SLOT(onComboUnitTextChanged(const QString&)));
    historyText->installEventFilter(this);
    descriptionText->installEventFilter(this);
}

CHeaderFieldsWidget::CHeaderFieldsWidget(const CHeaderFieldsWidget& other) = default;
CHeaderFieldsWidget& CHeaderFieldsWidget::operator=(const CHeaderFieldsWidget& other) = default;
CHeaderFieldsWidget::~CHeaderFieldsWidget() = default;

void CHeaderFieldsWidget::CreateSpacingGroup() {
    groupBox1 = new qt3::GroupBox(this, "groupBox1");
    qt3::setSizePolicy(groupBox1, QSizePolicy::Preferred, QSizePolicy::Fixed);
    groupBox1->setColumnLayout(0, Qt::Vertical);
    groupBox1->layout()->setSpacing(6);
    qt3::setMargin(groupBox1->layout(), 11);
    groupBox1Layout = new qt3::HBoxLayout(groupBox1->layout());
    groupBox1Layout->setAlignment(Qt::AlignTop);

    textLabel1 = new qt3::Label(groupBox1, "textLabel1");
    xSpacingLine = CreateSpacingLine("xSpacingLine");
    textLabel1_3 = new qt3::Label(groupBox1, "textLabel1_3");
    ySpacingLine = CreateSpacingLine("ySpacingLine");
    textLabel1_3_2 = new qt3::Label(groupBox1, "textLabel1_3_2");
    zSpacingLine = CreateSpacingLine("zSpacingLine");
    comboUnit = new qt3::ComboBox(false, groupBox1, "comboUnit");
    qt3::setSizePolicy(comboUnit, QSizePolicy::Fixed, QSizePolicy::Fixed);

    for (qt3::Label* label : {textLabel1, textLabel1_3, textLabel1_3_2})
        qt3::setSizePolicy(label, QSizePolicy::Preferred, QSizePolicy::Fixed);
    for (QWidget* child :
         std::initializer_list<QWidget*>{textLabel1, xSpacingLine, textLabel1_3, ySpacingLine,
                                         textLabel1_3_2, zSpacingLine, comboUnit})
        groupBox1Layout->addWidget(child);
    CHeaderFieldsWidgetLayout->addWidget(groupBox1);
}

qt3::LineEdit* CHeaderFieldsWidget::CreateSpacingLine(const char* name) {
    auto* line = new qt3::LineEdit(groupBox1, name);
    line->setValidator(new qt3::DoubleValidator(0.0, std::numeric_limits<double>::max(), 10, this));
    return line;
}

void CHeaderFieldsWidget::CreateDescriptionGroup() {
    groupBox2 = new qt3::GroupBox(this, "groupBox2");
    groupBox2->setColumnLayout(0, Qt::Vertical);
    groupBox2->layout()->setSpacing(6);
    qt3::setMargin(groupBox2->layout(), 11);
    groupBox2Layout = new qt3::VBoxLayout(groupBox2->layout());
    groupBox2Layout->setAlignment(Qt::AlignTop);

    textLabel2 = new qt3::Label(groupBox2, "textLabel2");
    creatorLine = new qt3::LineEdit(groupBox2, "creatorLine");
    textLabel2_2 = new qt3::Label(groupBox2, "textLabel2_2");
    descriptionText = new qt3::TextEdit(groupBox2, "descriptionText");
    qt3::setSizePolicy(descriptionText, QSizePolicy::Expanding, QSizePolicy::Fixed);
    textLabel2_2_2 = new qt3::Label(groupBox2, "textLabel2_2_2");
    historyText = new qt3::TextEdit(groupBox2, "historyText");

    for (QWidget* child : std::initializer_list<QWidget*>{
             textLabel2, creatorLine, textLabel2_2, descriptionText, textLabel2_2_2, historyText})
        groupBox2Layout->addWidget(child);
    CHeaderFieldsWidgetLayout->addWidget(groupBox2);
}

void CHeaderFieldsWidget::CreateBottomRow() {
    layout2 = new qt3::HBoxLayout(0, 0, 6, "layout2");
    spacer1 = new qt3::SpacerItem(369, 16, QSizePolicy::Expanding, QSizePolicy::Minimum);
    layout2->addItem(spacer1);
    CHeaderFieldsWidgetLayout->addLayout(layout2);
}

void CHeaderFieldsWidget::CheckUnits() const {
    for (int item = 0; item < comboUnit->count(); ++item) {
        if (unitIndex(qt3::ascii(comboUnit->text(item))) == c_nUnknownUnit)
            throw std::string("Error configuring dialog: Unit string mismatch.");
    }
}

void CHeaderFieldsWidget::languageChange() {
    setCaption(tr("Header Fields"));
    groupBox1->setTitle(tr("Spacing"));
    textLabel1->setText(tr("x:"));
    textLabel1_3->setText(tr("y:"));
    textLabel1_3_2->setText(tr("z:"));
    comboUnit->clear();
    comboUnit->insertItem(tr("m"));
    comboUnit->insertItem(tr("mm"));
    comboUnit->insertItem(tr("um"));
    comboUnit->insertItem(tr("nm"));
    comboUnit->setCurrentItem(2);
    groupBox2->setTitle(tr("Description"));
    textLabel2->setText(tr("Creator:"));
    textLabel2_2->setText(tr("Description:"));
    textLabel2_2_2->setText(tr("History:"));
}

void CHeaderFieldsWidget::SetUnit(QString unit) {
    m_nUnitIndex = unitIndex(qt3::ascii(unit));
    comboUnit->setCurrentText(unit);
}

void CHeaderFieldsWidget::SetTextX(double v) {
    xSpacingLine->setText(spacingNumber(v));
}

void CHeaderFieldsWidget::SetTextY(double v) {
    ySpacingLine->setText(spacingNumber(v));
}

void CHeaderFieldsWidget::SetTextZ(double v) {
    if (zSpacingLine->isEnabled())
        zSpacingLine->setText(spacingNumber(v));
}

void CHeaderFieldsWidget::SetSpacings(double x, double y, double z) {
    // The toolkit's own shortest form: the conversion below then has no more digits to work with.
    const int shortest = 6;
    SetUnit("m");
    m_dSpacingX = x;
    m_dSpacingY = y;
    m_dSpacingZ = z;
    xSpacingLine->setText(qt3::number(x, 'g', shortest));
    ySpacingLine->setText(qt3::number(y, 'g', shortest));
    zSpacingLine->setText(qt3::number(z, 'g', shortest));
    m_bHasSpacing = true;
    onComboUnitTextChanged(comboUnit->currentText());
}

void CHeaderFieldsWidget::onComboUnitTextChanged(const QString& unit) {
    const int newUnit = unitIndex(qt3::ascii(unit));
    if (newUnit == c_nUnknownUnit)
        throw std::string("Invalid unit selected.");

    const StNumber x = numberOf(xSpacingLine->text());
    const StNumber y = numberOf(ySpacingLine->text());
    const StNumber z = numberOf(zSpacingLine->isEnabled() ? zSpacingLine->text() : QString());
    const double factor = conversionFactor(m_nUnitIndex, newUnit);
    if (x.bValid)
        SetTextX(factor * x.dValue);
    if (y.bValid)
        SetTextY(factor * y.dValue);
    if (z.bValid)
        SetTextZ(factor * z.dValue);
    m_nUnitIndex = newUnit;
}

bool CHeaderFieldsWidget::eventFilter(QObject* watched, QEvent* event) {
    return (watched == descriptionText || watched == historyText) && event && isLineBreak(event);
}

} // namespace TEVU
