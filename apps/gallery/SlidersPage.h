#ifndef RUQGUI_GALLERY_SLIDERSPAGE_H
#define RUQGUI_GALLERY_SLIDERSPAGE_H

#include <CRangeSlider.h>
#include <CRangeSliderSpinboxed.h>
#include <CSpinboxSlider.h>
#include <qt3/GroupBox.h>
#include <qt3/Layout.h>
#include <qt3/Widget.h>

class SignalLog;
struct Options;

/// Every slider in both orientations, straight and inverted, with their options.
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
    void setRangesEnabled(bool enabled);
    void setSliderMin(int min);
    void setSliderMax(int max);
    void setSliderStep(int step);
    void setSlidersEnabled(bool enabled);

private:
    void addNumber(qt3::GroupBox* box, qt3::VBoxLayout* column, const char* label, int value,
                   const char* slot, const char* name);
    QWidget* createRangeSliders(SignalLog& log);
    QWidget* createSpinboxed(SignalLog& log);
    QWidget* createSpinboxSliders(SignalLog& log);
    QWidget* createOptions();
    QWidget* createVertical(SignalLog& log);

    int m_nMin;
    int m_nMax;
    TEVU::CRangeSlider* m_sliders[2];
    TEVU::CRangeSliderSpinboxed* m_spinboxed[3];
    TEVU::CSpinboxSlider* m_spinboxSliders[4];
};

QWidget* createSlidersPage(QWidget* parent, SignalLog& log, const Options& options);

#endif
