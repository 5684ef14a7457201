#ifndef RUQGUI_TESTS_DIFFERENTIAL_EVENTCOUNT_H
#define RUQGUI_TESTS_DIFFERENTIAL_EVENTCOUNT_H

#include <cstdint>
#include <functional>
#include <qobject.h>

namespace differential {

/// Counts the events that reach the widgets in question, those that the toolkit sends by itself included.
class EventCount : public QObject {
public:
    explicit EventCount(std::function<bool(const QObject*)> isInQuestion);

    std::uint64_t all() const { return m_nAll; }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::function<bool(const QObject*)> m_isInQuestion;
    std::uint64_t m_nAll = 0;
};

} // namespace differential

#endif
