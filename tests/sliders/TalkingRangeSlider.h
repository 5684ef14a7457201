#ifndef RUQGUI_TESTS_SLIDERS_TALKINGRANGESLIDER_H
#define RUQGUI_TESTS_SLIDERS_TALKINGRANGESLIDER_H

#include <CRangeSlider.h>
#include <Events.h>
#include <Recorder.h>
#include <functional>
#include <memory>
#include <qwidget.h>
#include <string>

/// A range and its bound, in the order of the constructor.
struct StStart {
    int lower;
    int upper;
    int min;
    int max;
};

/// Tells hooks, signals and paintings to one recorder, and opens what is protected.
class CTalkingRangeSlider : public TEVU::CRangeSlider {
public:
    CTalkingRangeSlider(Qt::Orientation orientation, const StStart& start, QWidget* parent)
        : CRangeSlider(orientation, start.lower, start.upper, start.min, start.max, parent,
                       "slider") {}

    void talkTo(support::Recorder* recorder) {
        m_pRecorder = recorder;
        recorder->tapAll(this, "slider");
    }

    std::string range() const {
        return std::to_string(Lower()) + ".." + std::to_string(Upper()) + " in " +
               std::to_string(Min()) + ".." + std::to_string(Max());
    }

    using CRangeSlider::hideEvent;
    using CRangeSlider::Length;
    using CRangeSlider::mousePressEvent;
    using CRangeSlider::mouseReleaseEvent;
    using CRangeSlider::RenderPrimitives;
    using CRangeSlider::resizeEvent;

    void mouseMoveEvent(QMouseEvent* event) override {
        if (m_bTellMoves)
            tell("mouseMoveEvent");
        CRangeSlider::mouseMoveEvent(event);
    }

    bool m_bTellMoves = false;
    bool m_bTellPaintings = true;

protected:
    void ValueChange() override { tell("ValueChange with " + range()); }
    void RangeChange() override { tell("RangeChange with " + range()); }

    void paintEvent(QPaintEvent* event) override {
        if (m_bTellPaintings)
            tell("paint");
        CRangeSlider::paintEvent(event);
    }

private:
    void tell(const std::string& line) {
        if (m_pRecorder)
            m_pRecorder->add(line);
    }

    support::Recorder* m_pRecorder = nullptr;
};

/// A slider on the screen, with room for 100 pixels between its handles.
struct StShownSlider {
    StShownSlider(Qt::Orientation orientation, const StStart& start, int length = 132)
        : m_bVertical(orientation == Qt::Vertical), m_slider(orientation, start, &m_window) {
        m_window.resize(500, 500);
        m_slider.move(10, 10);
        m_slider.resize(size(length));
        support::show(&m_window);
        m_slider.talkTo(&m_recorder);
    }

    /// Size or point by its coordinates along the long axis and across it.
    QSize size(int along, int across = 16) const {
        return m_bVertical ? QSize(across, along) : QSize(along, across);
    }
    QPoint at(int along, int across = 8) const {
        return m_bVertical ? QPoint(across, along) : QPoint(along, across);
    }

    void press(int along, support::Button button = support::Button::Left) {
        support::mousePress(&m_slider, at(along), button);
    }
    void move(int along) { support::mouseMove(&m_slider, at(along)); }
    void release(int along) { support::mouseRelease(&m_slider, at(along)); }

    support::Lines lines() { return m_recorder.take(); }

    bool m_bVertical;
    QWidget m_window;
    CTalkingRangeSlider m_slider;
    support::Recorder m_recorder;
};

/// What an announcement looks like: the hook, the signals, the picture. \a ends names the single
/// signals: "L", "U", "LU".
inline support::Lines announced(const CTalkingRangeSlider& slider, const std::string& ends) {
    const std::string lower = std::to_string(slider.Lower());
    const std::string upper = std::to_string(slider.Upper());
    support::Lines lines = {"ValueChange with " + slider.range(),
                            "slider.ValueChanged(" + lower + ", " + upper + ")"};
    if (ends.find('L') != std::string::npos)
        lines.push_back("slider.LowerChanged(" + lower + ")");
    if (ends.find('U') != std::string::npos)
        lines.push_back("slider.UpperChanged(" + upper + ")");
    lines.push_back("paint");
    return lines;
}

#endif
