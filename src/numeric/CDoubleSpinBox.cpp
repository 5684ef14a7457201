#include "CDoubleSpinBox.h"

#include "CDoubleSpinBoxValidator.h"
#include "DoubleSpinBoxText.h"

#include <qt3/Events.h>
#include <qt3/LineEdit.h>
#include <qt3/SpinWidget.h>
#include <qt3/Text.h>
#include <qt3/WheelSteps.h>

#include <algorithm>
#include <cmath>
#include <qapplication.h>
#include <vector>

namespace TEVU {

namespace {

const int c_nMinTextWidth = 35;
const std::size_t c_nMostReadings = 10;

enum class KeyIntent { Pass, Leave, StepUp, StepDown, Interpret };

KeyIntent intentOf(const QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return qt3::hasControl(event) ? KeyIntent::Pass : KeyIntent::Leave;
    case Qt::Key_Up:
        return KeyIntent::StepUp;
    case Qt::Key_Down:
        return KeyIntent::StepDown;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return KeyIntent::Interpret;
    default:
        return KeyIntent::Pass;
    }
}

} // namespace

struct StDoubleSpinBoxPrivate {
    qt3::Pointer<qt3::SpinWidget> m_pSpinWidget; ///< Of a copy, the original's.
    bool m_bSelect = false;  ///< The display is being rebuilt for a change: select the number.
    bool m_bPainted = false; ///< The text of the own editor is as it was painted last.
    std::vector<double>
        m_vChanges; ///< The values whose changes are under way, the outermost first.

    /// The present change is one to a value that an outer one is already for, or leads too deep.
    bool isGoingRound() const {
        const auto same = [this](double v) {
            return v == m_vChanges.back() || (std::isnan(v) && std::isnan(m_vChanges.back()));
        };
        return m_vChanges.size() > c_nMostReadings ||
               std::any_of(m_vChanges.begin(), m_vChanges.end() - 1, same);
    }

    // What calls back and so has to be told of the end. Null in a copy, unchanged by assignment.
    qt3::Pointer<qt3::LineEdit> m_pOwnEditor;
    qt3::Pointer<CDoubleSpinBoxValidator> m_pOwnValidator;
};

CDoubleSpinBox::CDoubleSpinBox(QWidget* parent, const char* name)
    : qt3::Widget(parent, name), m_bEdited(false), m_bWrapping(false), m_pReserved(nullptr),
      m_pPrivate(new StDoubleSpinBoxPrivate) {
    buildChildren();
}

CDoubleSpinBox::CDoubleSpinBox(double minValue, double maxValue, double step, QWidget* parent,
                               const char* name)
    : qt3::Widget(parent, name), CRangeControl(minValue, maxValue, step, step, minValue),
      m_bEdited(false), m_bWrapping(false), m_pReserved(nullptr),
      m_pPrivate(new StDoubleSpinBoxPrivate) {
    buildChildren();
}

CDoubleSpinBox::CDoubleSpinBox(const CDoubleSpinBox& other)
    : qt3::Widget(other), CRangeControl(other), m_sPrefix(other.m_sPrefix),
      m_sSuffix(other.m_sSuffix), m_sSpecialValueText(other.m_sSpecialValueText),
      m_bEdited(other.m_bEdited), m_bWrapping(other.m_bWrapping), m_pEditor(other.m_pEditor),
      m_pReserved(other.m_pReserved), m_pPrivate(new StDoubleSpinBoxPrivate),
      m_pValidator(other.m_pValidator) {
    shareChildren(other);
}

CDoubleSpinBox& CDoubleSpinBox::operator=(const CDoubleSpinBox& other) {
    if (this == &other)
        return *this;
    m_bEdited = false; // what is pending goes with the old value, unannounced
    qt3::Widget::operator=(other);
    CRangeControl::operator=(other);
    m_sPrefix = other.m_sPrefix;
    m_sSuffix = other.m_sSuffix;
    m_sSpecialValueText = other.m_sSpecialValueText;
    m_bEdited = other.m_bEdited;
    m_bWrapping = other.m_bWrapping;
    m_pEditor = other.m_pEditor;
    m_pReserved = other.m_pReserved;
    m_pValidator = other.m_pValidator;
    shareChildren(other);
    return *this;
}

// The toolkit destroys the children, and moves the focus, when this object is half gone.
CDoubleSpinBox::~CDoubleSpinBox() {
    if (m_pPrivate->m_pOwnEditor)
        m_pPrivate->m_pOwnEditor->removeEventFilter(this);
    if (m_pPrivate->m_pOwnValidator)
        m_pPrivate->m_pOwnValidator->detach();
    delete m_pPrivate;
}

void CDoubleSpinBox::shareChildren(const CDoubleSpinBox& other) {
    m_pPrivate->m_pSpinWidget = other.m_pPrivate->m_pSpinWidget;
    m_pPrivate->m_bSelect = other.m_pPrivate->m_bSelect;
    m_pPrivate->m_bPainted = false;
}

void CDoubleSpinBox::buildChildren() {
    qt3::SpinWidget* spinWidget = new qt3::SpinWidget(this, "SpinWidget");
    connect(spinWidget, SIGNAL(stepUpPressed()), this, SLOT(stepUp()));
    connect(spinWidget, SIGNAL(stepDownPressed()), this, SLOT(stepDown()));
    m_pPrivate->m_pSpinWidget = spinWidget;

    m_pValidator = new CDoubleSpinBoxValidator(this, "DoubleValidator");
    m_pEditor = new qt3::LineEdit(currentValueText(), this, "LineEdit_DoubleSpinbox");
    m_pPrivate->m_pOwnEditor = m_pEditor;
    m_pPrivate->m_pOwnValidator = m_pValidator;
    m_pPrivate->m_bPainted = true; // it will be, with the text that it has
    spinWidget->setEditWidget(m_pEditor);
    m_pEditor->setEnabled(true); // in a disabled parent a toolkit may disable what moves, for good
    m_pEditor->setValidator(m_pValidator);
    m_pEditor->installEventFilter(this);
    m_pEditor->setFrame(false);

    setFocusProxy(m_pEditor);
    qt3::setSizePolicy(this, QSizePolicy::Minimum, QSizePolicy::Fixed);
    setBackgroundMode(qt3::PaletteBackground, qt3::PaletteBase);
    updateDisplay();
    connect(m_pEditor, SIGNAL(textChanged(const QString&)), this, SLOT(textChanged()));
}

double CDoubleSpinBox::value() const {
    if (m_bEdited) {
        CDoubleSpinBox* self = const_cast<CDoubleSpinBox*>(this);
        self->m_bEdited = false;
        self->interpretText();
    }
    return CRangeControl::value();
}

double CDoubleSpinBox::minValue() const {
    return CRangeControl::minValue();
}

double CDoubleSpinBox::maxValue() const {
    return CRangeControl::maxValue();
}

double CDoubleSpinBox::lineStep() const {
    return CRangeControl::lineStep();
}

QString CDoubleSpinBox::prefix() const {
    return m_sPrefix;
}

QString CDoubleSpinBox::suffix() const {
    return m_sSuffix;
}

QString CDoubleSpinBox::specialValueText() const {
    return m_sSpecialValueText;
}

bool CDoubleSpinBox::wrapping() const {
    return m_bWrapping;
}

CDoubleSpinBox::ButtonSymbols CDoubleSpinBox::buttonSymbols() const {
    const qt3::SpinWidget* spinWidget = m_pPrivate->m_pSpinWidget;
    return spinWidget && spinWidget->buttonSymbols() == qt3::SpinWidget::PlusMinus ? PlusMinus
                                                                                   : UpDownArrows;
}

const QValidator* CDoubleSpinBox::validator() const {
    return m_pEditor ? m_pEditor->validator() : nullptr;
}

QString CDoubleSpinBox::text() const {
    return m_pEditor ? m_pEditor->text() : QString();
}

QString CDoubleSpinBox::cleanText() const {
    return numberWithoutAffixes(text(), {prefix(), suffix()});
}

QRect CDoubleSpinBox::upRect() const {
    return m_pPrivate->m_pSpinWidget ? m_pPrivate->m_pSpinWidget->upRect() : QRect();
}

QRect CDoubleSpinBox::downRect() const {
    return m_pPrivate->m_pSpinWidget ? m_pPrivate->m_pSpinWidget->downRect() : QRect();
}

QSize CDoubleSpinBox::sizeHint() const {
    if (!m_pEditor || !m_pPrivate->m_pSpinWidget)
        return qt3::Widget::sizeHint();
    const int height = m_pEditor->sizeHint().height(); // first: it gives the editor its final font
    return qt3::sizeAround(m_pPrivate->m_pSpinWidget, QSize(longestTextWidth(), height));
}

int CDoubleSpinBox::longestTextWidth() const {
    CDoubleSpinBox* self = const_cast<CDoubleSpinBox*>(this); // the mapping is not const
    const QWidget* editor = m_pEditor;
    const int blanks = 2 * qt3::textWidth(editor, " ");
    int width = c_nMinTextWidth;
    for (const double end : {minValue(), maxValue()}) {
        const QString shown = prefix() + self->mapValueToText(end) + suffix();
        width = std::max(width, qt3::textWidth(editor, shown) + blanks);
    }
    if (!specialValueText().isEmpty())
        width = std::max(width, qt3::textWidth(editor, specialValueText()) + blanks);
    return width;
}

QSize CDoubleSpinBox::minimumSizeHint() const {
    const qt3::SpinWidget* spinWidget = m_pPrivate->m_pSpinWidget;
    if (!m_pEditor || !spinWidget)
        return qt3::Widget::minimumSizeHint();
    return QSize(
        m_pEditor->sizeHint().width() + downRect().width(),
        std::max(m_pEditor->minimumSizeHint().height(), spinWidget->minimumSizeHint().height()));
}

void CDoubleSpinBox::setMinValue(double minimum) {
    CRangeControl::setMinValue(minimum);
}

void CDoubleSpinBox::setMaxValue(double maximum) {
    CRangeControl::setMaxValue(maximum);
}

void CDoubleSpinBox::setLineStep(double step) {
    setSteps(step, pageStep());
}

void CDoubleSpinBox::setSpecialValueText(const QString& special) {
    m_sSpecialValueText = special;
    updateDisplay();
}

void CDoubleSpinBox::setWrapping(bool on) {
    m_bWrapping = on;
    updateDisplay();
}

void CDoubleSpinBox::setButtonSymbols(ButtonSymbols symbols) {
    qt3::SpinWidget* spinWidget = m_pPrivate->m_pSpinWidget;
    if (!spinWidget || symbols == buttonSymbols())
        return;
    spinWidget->setButtonSymbols(symbols == PlusMinus ? qt3::SpinWidget::PlusMinus
                                                      : qt3::SpinWidget::UpDownArrows);
    spinWidget->update();
}

void CDoubleSpinBox::setValidator(const QValidator* newValidator) {
    if (m_pEditor)
        m_pEditor->setValidator(newValidator);
}

void CDoubleSpinBox::setValue(double dValue) {
    m_bEdited = false;
    CRangeControl::setValue(withoutRoundingDust(dValue));
    updateDisplay();
}

void CDoubleSpinBox::setPrefix(const QString& text) {
    m_sPrefix = text;
    updateDisplay();
}

void CDoubleSpinBox::setSuffix(const QString& text) {
    m_sSuffix = text;
    updateDisplay();
}

void CDoubleSpinBox::stepUp() {
    if (m_bEdited)
        interpretText();
    if (wrapping() && value() + lineStep() > maxValue()) {
        setValue(minValue());
        return;
    }
    addLine();
    setValue(value());
}

void CDoubleSpinBox::stepDown() {
    if (m_bEdited)
        interpretText();
    if (wrapping() && value() - lineStep() < minValue()) {
        setValue(maxValue());
        return;
    }
    subtractLine();
    setValue(value());
}

void CDoubleSpinBox::setEnabled(bool enabled) {
    qt3::Widget::setEnabled(enabled);
    updateDisplay();
}

void CDoubleSpinBox::selectAll() {
    if (!m_pEditor)
        return;
    const StAffixes affixes = {prefix(), suffix()};
    if (affixes.isEmpty() || currentValueText() == specialValueText()) {
        m_pEditor->selectAll();
        return;
    }
    const int before = qt3::length(affixes.sPrefix);
    m_pEditor->setSelection(before, qt3::length(text()) - before - qt3::length(affixes.sSuffix));
}

void CDoubleSpinBox::textChanged() {
    m_bEdited = true;
    m_pPrivate->m_bPainted = false;
}

QString CDoubleSpinBox::currentValueText() {
    if (value() == minValue() && !specialValueText().isEmpty())
        return specialValueText();
    return prefix() + mapValueToText(value()) + suffix();
}

double CDoubleSpinBox::mapTextToValue(bool* ok) {
    bool bNumber = false;
    double number = numberOrZero(text(), &bNumber);
    if (!bNumber && !(prefix().isEmpty() && suffix().isEmpty()))
        number = numberOrZero(cleanText(), &bNumber);
    if (ok)
        *ok = bNumber;
    return number;
}

QString CDoubleSpinBox::mapValueToText(double v) {
    return numberText(v);
}

void CDoubleSpinBox::updateDisplay() {
    if (m_pEditor)
        showCurrentText();
    m_bEdited = false;
    enableButtons();
}

void CDoubleSpinBox::showCurrentText() {
    const QString shown = currentValueText();
    const bool bSelect =
        m_pPrivate->m_bSelect && isVisible() && (hasFocus() || m_pEditor->hasFocus());
    if (!bSelect && isPainted(shown))
        return;
    m_pEditor->setUpdatesEnabled(false);
    m_pEditor->setText(shown); // pending until updateDisplay() ends
    if (bSelect) {
        // Selecting reads what has just been shown. That could go on for ever: a text may read as
        // another value, whose text reads as this one, or as a still larger one.
        m_bEdited = m_bEdited && !m_pPrivate->isGoingRound();
        selectAll();
    } else if (!suffix().isEmpty()) {
        m_pEditor->setCursorPosition(cursorPositionIn(text()));
    }
    m_pEditor->setUpdatesEnabled(true);
    qt3::repaint(m_pEditor, false);
    m_pPrivate->m_bPainted = m_pEditor == m_pPrivate->m_pOwnEditor;
}

// Each change rebuilds the display twice, and the second time finds nothing to do.
bool CDoubleSpinBox::isPainted(const QString& shown) const {
    return m_pPrivate->m_bPainted && m_pEditor->text() == shown && !m_pEditor->hasSelectedText() &&
           m_pEditor->cursorPosition() == cursorPositionIn(shown);
}

// Before the suffix.
int CDoubleSpinBox::cursorPositionIn(const QString& shown) const {
    const int end = qt3::length(shown);
    return shown.endsWith(suffix()) ? end - qt3::length(suffix()) : end;
}

void CDoubleSpinBox::enableButtons() {
    qt3::SpinWidget* spinWidget = m_pPrivate->m_pSpinWidget;
    if (!spinWidget)
        return;
    spinWidget->setUpEnabled(isEnabled() && (wrapping() || value() < maxValue()));
    spinWidget->setDownEnabled(isEnabled() && (wrapping() || value() > minValue()));
}

void CDoubleSpinBox::interpretText() {
    bool ok = true;
    const double newValue =
        isSpecialText(text(), specialValueText()) ? minValue() : mapTextToValue(&ok);
    if (ok)
        setValue(newValue);
    updateDisplay();
}

void CDoubleSpinBox::valueChange() {
    m_pPrivate->m_vChanges.push_back(CRangeControl::value());
    m_pPrivate->m_bSelect = hasFocus();
    updateDisplay();
    m_pPrivate->m_bSelect = false;
    m_pPrivate->m_vChanges.pop_back();
    emit valueChanged(value());
    emit valueChanged(currentValueText());
}

void CDoubleSpinBox::rangeChange() {
    updateDisplay();
}

bool CDoubleSpinBox::eventFilter(QObject* watched, QEvent* event) {
    // An editor that is being destroyed is no line edit any more, but still sends events.
    const qt3::LineEdit* editor = dynamic_cast<qt3::LineEdit*>(watched);
    if (!event || !editor || editor != m_pEditor)
        return qt3::Widget::eventFilter(watched, event);
    if (event->type() == QEvent::KeyPress)
        return filterKey(static_cast<QKeyEvent*>(event));
    if (m_bEdited && (event->type() == QEvent::FocusOut || event->type() == QEvent::Hide))
        interpretText();
    return false;
}

bool CDoubleSpinBox::filterKey(QKeyEvent* event) {
    switch (intentOf(event)) {
    case KeyIntent::Leave:
        if (m_bEdited)
            interpretText();
        QApplication::sendEvent(this, event); // this widget's place in the tab order counts
        return true;
    case KeyIntent::StepUp:
        stepUp();
        return true;
    case KeyIntent::StepDown:
        stepDown();
        return true;
    case KeyIntent::Interpret:
        interpretText();
        return false;
    case KeyIntent::Pass:
        break;
    }
    return false;
}

void CDoubleSpinBox::wheelEvent(QWheelEvent* event) {
    static qt3::WheelSteps wheel;
    if (!event)
        return;
    event->accept();
    const int steps = wheel.take(this, qt3::delta(event));
    for (int i = 0; i < steps; ++i)
        stepUp();
    for (int i = 0; i > steps; --i)
        stepDown();
}

void CDoubleSpinBox::resizeEvent(QResizeEvent*) {
    if (m_pPrivate->m_pSpinWidget)
        m_pPrivate->m_pSpinWidget->resize(width(), height());
}

void CDoubleSpinBox::leaveEvent(QEvent*) {}

void CDoubleSpinBox::styleChange(QStyle& style) {
    if (m_pPrivate->m_pSpinWidget)
        m_pPrivate->m_pSpinWidget->arrange();
    qt3::Widget::styleChange(style);
}

} // namespace TEVU
