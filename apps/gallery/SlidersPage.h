#ifndef RUQGUI_GALLERY_SLIDERSPAGE_H
#define RUQGUI_GALLERY_SLIDERSPAGE_H

#include <CRangeSlider.h>
#include <CRangeSliderSpinboxed.h>
#include <qt3/Widget.h>

class SignalLog;
struct Options;

/// Every slider in both orientations, straight and inverted, with the options of the range sliders.
class SlidersPage : public qt3::Widget {
    Q_OBJECT

public:
    SlidersPage(QWidget* parent, SignalLog& log);

private slots:
    void setNullRange(bool allowed);
    void setMin(int min);
    void setMax(int max);
    void moveDown();
    void moveUp();

private:
    QWidget* createRangeSliders(SignalLog& log);
    QWidget* createSpinboxed(SignalLog& log);
    QWidget* createSpinboxSliders(SignalLog& log);
    QWidget* createOptions();
    QWidget* createVertical(SignalLog& log);

    int m_nMin;
    int m_nMax;
    TEVU::CRangeSlider* m_sliders[2];
    TEVU::CRangeSliderSpinboxed* m_spinboxed[3];
};

QWidget* createSlidersPage(QWidget* parent, SignalLog& log, const Options& options);

#endif
