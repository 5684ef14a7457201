#include "Stage.h"

#include <Events.h>
#include <algorithm>
#include <iterator>
#include <qapplication.h>
#include <qlineedit.h>

namespace differential {

namespace {

const QRect c_whole(0, 0, 400, 300);

QWidget* newNeighbour(QWidget* parent) {
    auto* const neighbour = new QLineEdit(parent);
    neighbour->setGeometry(0, 280, 20, 20);
    neighbour->show();
    return neighbour;
}

} // namespace

Stage::Stage()
    : m_pBefore(newNeighbour(&m_window)), m_pRecorder(std::make_unique<support::Recorder>()),
      m_events([this](const QObject* widget) { return !isOwn(widget); }) {
    m_window.resize(c_whole.size());
    support::show(&m_window);
}

Stage::~Stage() {
    clear();
}

void Stage::set() {
    m_pRecorder = std::make_unique<support::Recorder>();
    m_vNames.clear();
    name(m_pBefore, "before");
    newPlace();
}

void Stage::newPlace() {
    m_pPlace = new QWidget(&m_window);
    m_pPlace->setGeometry(c_whole);
    m_pPlace->show();
    m_pBefore->setFocus();
}

void Stage::clear() {
    delete static_cast<QWidget*>(m_pPlace);
    support::processEvents();
}

void Stage::addNeighbourBehind() {
    m_pBehind = newNeighbour(m_pPlace);
    name(m_pBehind, "behind");
}

void Stage::name(QWidget* widget, const std::string& label) {
    m_vNames.emplace_back(widget, label);
}

std::string Stage::focus() const {
    for (const QWidget* widget = qApp->focusWidget(); widget; widget = widget->parentWidget()) {
        for (const auto& [named, label] : m_vNames) {
            if (named == widget)
                return label;
        }
    }
    return qApp->focusWidget() ? "?" : "-";
}

QWidget* Stage::focusWidget() const {
    QWidget* const focused = qApp->focusWidget();
    return focused && focused != &m_window ? focused : nullptr;
}

void Stage::withFocusRescued(const std::function<void()>& change) {
    const qt3::Pointer<QWidget> before = qApp->focusWidget();
    change();
    const QWidget* const after = qApp->focusWidget();
    if (!after || after != before || !after->isVisible() || !after->isEnabled())
        m_pBefore->setFocus();
}

bool Stage::isOwn(const QObject* widget) const {
    const QWidget* const own[] = {&m_window, m_pPlace, m_pBefore, m_pBehind};
    return std::find(std::begin(own), std::end(own), widget) != std::end(own);
}

void Stage::settle() {
    QApplication::sendPostedEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace differential
