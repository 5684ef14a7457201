#ifndef RUQGUI_TESTS_SLIDERS_RANGESLIDERMODEL_H
#define RUQGUI_TESTS_SLIDERS_RANGESLIDERMODEL_H

#include <functional>
#include <string>
#include <vector>

/// What a range slider has to do, a second time and without a widget: tests run it beside the real
/// one and compare. Numbers stay small in it, it does not care for overflow.
///
/// Positions are pixels along the long axis, and across it.
class CRangeSliderModel {
public:
    enum EnGrab { eNothing = 0, eLowerHandle = 1, eUpperHandle = 2, eBar = 3 };

    CRangeSliderModel(int lower, int upper, int min, int max, int length);

    void EnableNullRange(bool enable);
    void SetRange(int lower, int upper);
    void SetBound(int min, int max);
    void SetLower(int lower);
    void SetUpper(int upper);
    void Move(int distance);
    void SetMinValue(int min) { m_nMin = min; }
    void SetMaxValue(int max) { m_nMax = max; }

    void Press(int along, int across); ///< With the left button.
    void Drag(int along);
    void Release(int along);
    void Hide() { m_eGrab = eNothing; }

    EnGrab At(int along, int across) const; ///< In the picture rendered last.
    int PixelOf(int value) const;           ///< Where it would be rendered now.
    std::string State() const;

    /// Writes down hooks and signals as the tests' own slider does; and repaintings if wanted.
    void TellTo(std::vector<std::string>* lines, bool repaintings);

    // What a listener hears; empty ones are not called.
    std::function<void()> onValueChange;
    std::function<void()> onRangeChange;
    std::function<void(int, int)> onValueChanged;
    std::function<void(int)> onLowerChanged;
    std::function<void(int)> onUpperChanged;
    std::function<void()> onRepaint;

    int m_nLower;
    int m_nUpper;
    int m_nMin;
    int m_nMax;
    bool m_bNullRange = true;
    const int m_nHandle = 16;

private:
    int Count() const { return m_nUpper - m_nLower + 1; }
    void Announce(bool lowerChanged, bool upperChanged);
    void Render();
    void Redraw();

    int m_nLength;
    int m_nLeast = 0;
    int m_nGreatest;
    EnGrab m_eGrab = eNothing;
    int m_nGrabOffset = 0;
    int m_nLowerPixel = 0;
    int m_nBarPixels = 0;
};

#endif
