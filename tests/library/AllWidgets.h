#ifndef RUQGUI_TESTS_LIBRARY_ALLWIDGETS_H
#define RUQGUI_TESTS_LIBRARY_ALLWIDGETS_H

#include <CColorPushButton.h>
#include <CDoubleLineEdit.h>
#include <CDoubleSpinBox.h>
#include <CFileLineWidget.h>
#include <CHeaderFieldsWidget.h>
#include <CNoNewLinesTextEdit.h>
#include <CRangeSlider.h>
#include <CRangeSliderSpinboxed.h>
#include <CSpinboxSlider.h>

#include <gtest/gtest.h>
#include <memory>
#include <qcolor.h>

/// Every widget of the library, for suites that run over all of them, and how one is made.
using AllWidgets =
    testing::Types<TEVU::CColorPushButton, TEVU::CDoubleLineEdit, TEVU::CDoubleSpinBox,
                   TEVU::CFileLineWidget, TEVU::CHeaderFieldsWidget, TEVU::CNoNewLinesTextEdit,
                   TEVU::CRangeSlider, TEVU::CRangeSliderSpinboxed, TEVU::CSpinboxSlider>;

template <class Widget>
std::unique_ptr<Widget> make(QWidget* parent) {
    return std::make_unique<Widget>(parent, "widget");
}
template <>
inline std::unique_ptr<TEVU::CColorPushButton> make(QWidget* parent) {
    return std::make_unique<TEVU::CColorPushButton>(QColor(1, 2, 3), parent, "widget");
}
template <>
inline std::unique_ptr<TEVU::CFileLineWidget> make(QWidget* parent) {
    return std::make_unique<TEVU::CFileLineWidget>(
        QString(), QString(), TEVU::CFileLineWidget::eOpenFile, parent, "widget");
}
template <>
inline std::unique_ptr<TEVU::CRangeSlider> make(QWidget* parent) {
    return std::make_unique<TEVU::CRangeSlider>(Qt::Horizontal, 1, 2, 0, 3, parent, "widget");
}

#endif
