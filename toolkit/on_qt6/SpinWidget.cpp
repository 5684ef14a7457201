#include <qt3/SpinWidget.h>

#include <qt3/Events.h>
#include <qt3/WheelSteps.h>

#include <qpainter.h>
#include <qstyleoption.h>

namespace qt3 {

namespace {

constexpr int c_nFirstDelay = 300;
constexpr int c_nReturnDelay = 500;
constexpr int c_nRepeatDelay = 101;

} // namespace

SpinWidget::SpinWidget(QWidget* parent, const char* name) : Widget(parent, name) {
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    arrange();
}

SpinWidget::~SpinWidget() = default;

void SpinWidget::setEditWidget(QWidget* widget) {
    m_pEditor = widget;
    if (widget) {
        if (widget->parentWidget() != this)
            widget->setParent(this);
        setFocusProxy(widget);
        widget->installEventFilter(this);
    }
    arrange();
    update();
}

QWidget* SpinWidget::editWidget() const {
    return m_pEditor;
}

QRect SpinWidget::upRect() const {
    return m_hUpRect;
}

QRect SpinWidget::downRect() const {
    return m_hDownRect;
}

void SpinWidget::setUpEnabled(bool on) {
    setButtonEnabled(&m_bUpEnabled, on);
}

void SpinWidget::setDownEnabled(bool on) {
    setButtonEnabled(&m_bDownEnabled, on);
}

void SpinWidget::setButtonEnabled(bool* flag, bool on) {
    if (*flag == on)
        return;
    *flag = on;
    if (!isEnabled())
        m_bUpEnabled = m_bDownEnabled = false;
    const bool bHeldEnabled = m_eHeld == Up ? m_bUpEnabled : m_bDownEnabled;
    if (m_bOnHeld && !bHeldEnabled)
        letGo();
    update();
}

bool SpinWidget::isUpEnabled() const {
    return m_bUpEnabled;
}

bool SpinWidget::isDownEnabled() const {
    return m_bDownEnabled;
}

void SpinWidget::setButtonSymbols(ButtonSymbols symbols) {
    m_eSymbols = symbols;
}

SpinWidget::ButtonSymbols SpinWidget::buttonSymbols() const {
    return m_eSymbols;
}

void SpinWidget::arrange() {
    const QStyleOptionSpinBox option = styleOption();
    const auto rectFor = [&](QStyle::SubControl part) {
        return style()->subControlRect(QStyle::CC_SpinBox, &option, part, this);
    };
    m_hUpRect = rectFor(QStyle::SC_SpinBoxUp);
    m_hDownRect = rectFor(QStyle::SC_SpinBoxDown);
    if (m_pEditor)
        m_pEditor->setGeometry(rectFor(QStyle::SC_SpinBoxEditField));
}

void SpinWidget::stepUp() {
    emit stepUpPressed();
}

void SpinWidget::stepDown() {
    emit stepDownPressed();
}

bool SpinWidget::event(QEvent* event) {
    if (event->type() == QEvent::HoverEnter || event->type() == QEvent::HoverMove)
        setHovered(buttonAt(static_cast<QHoverEvent*>(event)->position().toPoint()));
    else if (event->type() == QEvent::HoverLeave)
        setHovered(None);
    else if (event->type() == QEvent::WindowDeactivate)
        letGo();
    return Widget::event(event);
}

// Some styles show in the frame that the editor has the focus.
bool SpinWidget::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
        update();
    return Widget::eventFilter(watched, event);
}

void SpinWidget::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        letGo();
        return;
    }
    const Button before = m_eHeld;
    m_eHeld = buttonAt(qt3::pos(event));
    m_bOnHeld = m_eHeld != None;
    update();
    if (m_eHeld == None)
        m_repeat.stop();
    else if (m_eHeld != before) // the same button pressed twice without a release is one press
        stepAndRepeat(c_nFirstDelay);
}

void SpinWidget::mouseMoveEvent(QMouseEvent* event) {
    if (m_eHeld == None || !event->buttons().testFlag(Qt::LeftButton))
        return;
    const bool bOnHeld = rectOf(m_eHeld).contains(qt3::pos(event));
    if (bOnHeld && !m_bOnHeld)
        m_repeat.start(c_nReturnDelay, Qt::PreciseTimer, this);
    else if (!bOnHeld)
        m_repeat.stop();
    m_bOnHeld = bOnHeld;
    update();
}

void SpinWidget::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        letGo();
}

void SpinWidget::paintEvent(QPaintEvent*) {
    const QStyleOptionSpinBox option = styleOption();
    QPainter painter(this);
    style()->drawComplexControl(QStyle::CC_SpinBox, &option, &painter, this);
}

void SpinWidget::resizeEvent(QResizeEvent*) {
    arrange();
}

void SpinWidget::styleChange(QStyle& style) {
    arrange();
    Widget::styleChange(style);
}

void SpinWidget::timerEvent(QTimerEvent* event) {
    if (event->timerId() == m_repeat.timerId())
        stepAndRepeat(c_nRepeatDelay);
    else
        Widget::timerEvent(event);
}

void SpinWidget::wheelEvent(QWheelEvent* event) {
    static WheelSteps wheel;
    event->accept();
    const int steps = wheel.take(this, qt3::delta(event));
    for (int i = 0; i < steps; ++i)
        stepUp();
    for (int i = 0; i > steps; --i)
        stepDown();
}

SpinWidget::Button SpinWidget::buttonAt(const QPoint& pos) const {
    if (m_bDownEnabled && m_hDownRect.contains(pos))
        return Down;
    return m_bUpEnabled && m_hUpRect.contains(pos) ? Up : None;
}

QRect SpinWidget::rectOf(Button button) const {
    return button == Up ? m_hUpRect : m_hDownRect;
}

void SpinWidget::setHovered(Button button) {
    if (m_eHovered == button)
        return;
    m_eHovered = button;
    update();
}

void SpinWidget::letGo() {
    m_repeat.stop();
    m_eHeld = None;
    m_bOnHeld = false;
    update();
}

// The next delay begins when the step is done, however long its slots take. They may disable the
// button, open a dialog, or destroy this widget.
void SpinWidget::stepAndRepeat(int delay) {
    const Pointer<SpinWidget> self(this);
    m_repeat.stop();
    if (m_eHeld == Up)
        stepUp();
    else
        stepDown();
    if (self && m_bOnHeld)
        m_repeat.start(delay, Qt::PreciseTimer, this);
}

QStyleOptionSpinBox SpinWidget::styleOption() const {
    QStyleOptionSpinBox option;
    option.initFrom(this);
    option.frame = true;
    option.buttonSymbols =
        m_eSymbols == PlusMinus ? QAbstractSpinBox::PlusMinus : QAbstractSpinBox::UpDownArrows;
    option.stepEnabled.setFlag(QAbstractSpinBox::StepUpEnabled, m_bUpEnabled);
    option.stepEnabled.setFlag(QAbstractSpinBox::StepDownEnabled, m_bDownEnabled);
    option.subControls = QStyle::SC_SpinBoxFrame | QStyle::SC_SpinBoxEditField |
                         QStyle::SC_SpinBoxUp | QStyle::SC_SpinBoxDown;
    const Button active = m_bOnHeld ? m_eHeld : m_eHovered;
    if (active != None)
        option.activeSubControls = active == Up ? QStyle::SC_SpinBoxUp : QStyle::SC_SpinBoxDown;
    option.state.setFlag(QStyle::State_Sunken, m_bOnHeld);
    return option;
}

QSize sizeAround(const SpinWidget* widget, const QSize& contents) {
    const QStyleOptionSpinBox option = widget->styleOption();
    return widget->style()->sizeFromContents(QStyle::CT_SpinBox, &option, contents, widget);
}

} // namespace qt3
