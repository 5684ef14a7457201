#include "Benchmarks.h"
#include "Stage.h"

#include <CRangeSlider.h>
#include <memory>
#include <qimage.h>
#include <qslider.h>
#include <qstyle.h>
#include <qstyleoption.h>
#include <vector>

namespace bench {

namespace {

using TEVU::CRangeSlider;

const int c_nMax = 100;
const int c_nLength = 200;

/// A range slider in a window, shown at its natural thickness.
struct OwnSlider : Stage {
    explicit OwnSlider(int max = c_nMax)
        : m_slider(Qt::Horizontal, max / 5, max / 5 * 4, 0, max, &m_window, "slider") {
        m_slider.setGeometry(10, 10, c_nLength, m_slider.sizeHint().height());
        listenTo(&m_slider, &CRangeSlider::ValueChanged);
        show();
    }

    CRangeSlider m_slider;
    int m_nCount = 0;
};

struct PlainSlider : Stage {
    explicit PlainSlider(int max = c_nMax) : m_slider(Qt::Horizontal, &m_window) {
        m_slider.setRange(0, max);
        m_slider.setValue(max / 5);
        m_slider.setGeometry(10, 10, c_nLength, m_slider.sizeHint().height());
        listenTo(&m_slider, &QSlider::valueChanged);
        show();
    }

    QRect handle() const {
        QStyleOptionSlider option;
        option.initFrom(&m_slider);
        option.orientation = Qt::Horizontal;
        option.maximum = m_slider.maximum();
        option.sliderPosition = m_slider.sliderPosition();
        return m_slider.style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle,
                                                &m_slider);
    }

    QSlider m_slider;
    int m_nCount = 0;
};

StSides painted(StSides sides, QWidget* own, QWidget* beside) {
    requirePainting(sides.own, own);
    requirePainting(sides.beside, beside);
    return sides;
}

/// Both ends change each time; a hundred ranges in turn.
StSides setting(int max) {
    const auto own = std::make_shared<OwnSlider>(max);
    const auto beside = std::make_shared<PlainSlider>(max);
    const int step = max / 100;
    const auto setOwn = [own, step] {
        const int i = ++own->m_nCount;
        own->m_slider.SetRange(i * 7 % 50 * step, (50 + i * 3 % 50) * step);
        paintWhatIsDue();
    };
    const auto setBeside = [beside, step] {
        beside->m_slider.setValue(++beside->m_nCount * 7 % 100 * step);
        paintWhatIsDue();
    };
    return painted({setOwn, setBeside}, &own->m_slider, &beside->m_slider);
}

/// To and fro over 60 pixels, three at a time, beginning at \a grip.
template <class Side>
Operation moves(const std::shared_ptr<Side>& side, const QPoint& grip) {
    QWidget* const slider = &side->m_slider;
    sendMouse(slider, QEvent::MouseButtonPress, grip);
    return [side, slider, grip] {
        const int i = ++side->m_nCount % 40;
        const int offset = 3 * (i < 20 ? i : 40 - i);
        sendMouse(slider, QEvent::MouseMove, grip + QPoint(offset, 0));
        paintWhatIsDue();
    };
}

/// \param ownGrip the middle of what is dragged
StSides dragging(const std::function<QPoint(const CRangeSlider&)>& ownGrip) {
    const auto own = std::make_shared<OwnSlider>();
    const auto beside = std::make_shared<PlainSlider>();
    return painted({moves(own, ownGrip(own->m_slider)), moves(beside, beside->handle().center())},
                   &own->m_slider, &beside->m_slider);
}

/// The lower handle ends where the bar of [20, 80] begins.
QPoint lowerHandle(const CRangeSlider& slider) {
    const int handle = slider.height();
    const int begin = handle + (c_nLength - 2 * handle) / 5;
    return QPoint(begin - handle / 2, handle / 2);
}

const int c_nGreatest = 2147483646; // that is the greatest bound with a count of values in int

/// Tenths of the bound, which lie on the same pixels whatever it is.
Operation settingTenths(int max) {
    const auto own = std::make_shared<OwnSlider>(max);
    const int tenth = max / 10;
    own->m_nCount = 1; // the first range is in force already
    const Operation set = [own, tenth] {
        const int i = ++own->m_nCount;
        own->m_slider.SetRange(i * 7 % 5 * tenth, (5 + i * 3 % 5) * tenth);
        paintWhatIsDue();
    };
    requirePainting(set, &own->m_slider);
    return set;
}

Operation draggingWithin(int max) {
    const auto own = std::make_shared<OwnSlider>(max);
    const Operation move = moves(own, lowerHandle(own->m_slider));
    requirePainting(move, &own->m_slider);
    return move;
}

std::unique_ptr<CRangeSlider> newOwn(QWidget* parent) {
    return std::make_unique<CRangeSlider>(Qt::Horizontal, 20, 80, 0, c_nMax, parent, "slider");
}

std::unique_ptr<QSlider> newPlain(QWidget* parent) {
    auto slider = std::make_unique<QSlider>(Qt::Horizontal, parent);
    slider->setObjectName("slider");
    slider->setRange(0, c_nMax);
    slider->setValue(20);
    return slider;
}

StSides makingAndDestroying() {
    const auto parent = std::make_shared<QWidget>();
    return {[parent] { newOwn(parent.get()); }, [parent] { newPlain(parent.get()); }};
}

/// Pictures as large as that of a slider, to be given back one by one.
std::vector<QImage> sparePictures(int height) {
    std::vector<QImage> pictures(1000);
    for (QImage& picture : pictures)
        picture = QImage(c_nLength, height, QImage::Format_RGB32);
    return pictures;
}

/// Shown, because the size that a widget has before is nobody's. What counts is what a slider takes
/// beside the pixels of its picture: for each one a picture as large is given back.
StSides keeping() {
    const auto window = std::make_shared<Stage>();
    window->show();
    const auto sliders = std::make_shared<std::vector<std::unique_ptr<QWidget>>>();
    const auto keep = [window, sliders](std::unique_ptr<QWidget> slider) {
        slider->setGeometry(10, 10, c_nLength, slider->sizeHint().height());
        slider->show();
        paintWhatIsDue();
        sliders->push_back(std::move(slider));
    };
    sliders->reserve(10000);
    const int height = newOwn(&window->m_window)->height();
    const auto spare = std::make_shared<std::vector<QImage>>(sparePictures(height));
    return {[=] {
                keep(newOwn(&window->m_window));
                spare->pop_back();
            },
            [=] { keep(newPlain(&window->m_window)); }};
}

} // namespace

void addSliders() {
    compareTimeInStyles({"CRangeSlider.SetRange, shown : QSlider.setValue", 0.85, 100,
                         [] { return setting(c_nMax); }},
                        0.40);
    compareTimeInStyles({"CRangeSlider.SetRange, bound of 2e9 : QSlider.setValue", 0.85, 100,
                         [] { return setting(2000000000); }},
                        0.40);
    compareTimeInStyles({"CRangeSlider, move of a drag : QSlider, the same", 0.75, 100,
                         [] { return dragging(lowerHandle); }},
                        0.42);
    const auto bar = [](const CRangeSlider& slider) { return slider.rect().center(); };
    compareTimeInStyles({"CRangeSlider, move of its bar : QSlider, move of a drag", 0.75, 100,
                         [bar] { return dragging(bar); }},
                        0.42);
    compareTimeInStyles({"CRangeSlider.SetRange, in [0, 2^31-2] : in [0, 10]", 1.1, 100,
                         [] {
                             return StSides{settingTenths(c_nGreatest), settingTenths(10)};
                         }},
                        1.1);
    compareTimeInStyles({"CRangeSlider, move of a drag, in [0, 2^31-2] : in [0, 100]", 1.1, 100,
                         [] {
                             return StSides{draggingWithin(c_nGreatest), draggingWithin(c_nMax)};
                         }},
                        1.1);
    compareTimeInStyles({"CRangeSlider, make and destroy : QSlider", 1.2, 100, makingAndDestroying},
                        1.2);
    compareHeap({"CRangeSlider, heap beside its picture : QSlider", 1.15, 100, keeping});
}

} // namespace bench
