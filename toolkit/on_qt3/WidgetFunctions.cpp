#include <qt3/WidgetFunctions.h>

#include <qapplication.h>
#include <qdesktopwidget.h>
#include <qobject.h>
#include <qt3/Text.h>
#include <qtooltip.h>

namespace qt3 {
namespace {

/// Reaches the protected state of any widget; adds nothing to it.
class State : public QWidget {
public:
    static void clear(QWidget* widget, WState state) { (widget->*(&State::clearWState))(state); }
};

// An override is for changes that show: not for the same state, nor for one that waits for the parent.
void takeOverEnabled(QWidget* target, bool bEnabled) {
    const QWidget* const parent = target->parentWidget();
    if (target->isEnabledTo(target->parentWidget()) == bEnabled)
        return;
    if (parent && !parent->isEnabled())
        target->QWidget::setEnabled(bEnabled);
    else
        target->setEnabled(bEnabled);
}

} // namespace

std::string name(const QObject* object) {
    return object->name();
}

void repaint(QWidget* widget, bool erase) {
    widget->repaint(erase);
}

void setOpaque(QWidget*) {} // nothing is ever painted beneath

void clearPolished(QWidget* widget) {
    State::clear(widget, Qt::WState_Polished);
}

ColorGroup colorGroup(const QWidget* widget, QPalette::ColorGroup state) {
    const QPalette& palette = widget->palette();
    if (state == QPalette::Disabled)
        return palette.disabled();
    return state == QPalette::Active ? palette.active() : palette.inactive();
}

void setSizePolicy(QWidget* widget, SizeType horizontal, SizeType vertical) {
    QSizePolicy policy = widget->sizePolicy();
    policy.setHorData(horizontal);
    policy.setVerData(vertical);
    widget->setSizePolicy(policy);
}

int textWidth(const QWidget* widget, const QString& text) {
    return widget->fontMetrics().width(text);
}

void setToolTip(QWidget* widget, const QString& text) {
    QToolTip::remove(widget); // a second one would stay behind the first
    if (!text.isEmpty())
        QToolTip::add(widget, plainMarkup(text));
}

QRect availableGeometry(const QWidget* widget) {
    return QApplication::desktop()->availableGeometry(const_cast<QWidget*>(widget));
}

void takeOver(QWidget* target, const QWidget* source) {
    target->setMinimumSize(source->minimumSize());
    target->setMaximumSize(source->maximumSize());
    target->setSizePolicy(source->sizePolicy());
    target->setGeometry(source->geometry());
    if (source->ownPalette())
        target->setPalette(source->palette());
    else
        target->unsetPalette();
    if (source->ownFont())
        target->setFont(source->font());
    else
        target->unsetFont();
    target->setCaption(source->caption());
    takeOverEnabled(target, source->isEnabledTo(source->parentWidget()));
}

} // namespace qt3
