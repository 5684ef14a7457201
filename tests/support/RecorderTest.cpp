#include "Recorder.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>
#include <qlineedit.h>
#include <qslider.h>

using support::Lines;

TEST(Recorder, SignalsAndCallsShareOneOrder) {
    QLineEdit edit(nullptr);
    support::Recorder recorder;
    recorder.tapAll(&edit, "edit");

    recorder.add("before");
    edit.setText("x");
    recorder.add("after");

    Lines lines = recorder.take();
    ASSERT_GE(lines.size(), 3u); // one of the toolkits tells more than the text
    EXPECT_EQ(lines.front(), "before");
    EXPECT_EQ(lines[1], "edit.textChanged(\"x\")");
    EXPECT_EQ(lines.back(), "after");
}

TEST(Recorder, TapWritesLabelNameAndArguments) {
    QSlider slider(nullptr);
    support::Recorder recorder;
    recorder.tap(&slider, "valueChanged(int)", "it");

    slider.setValue(3);
    slider.setValue(3);
    slider.setValue(4);

    EXPECT_EQ(recorder.take(), (Lines{"it.valueChanged(3)", "it.valueChanged(4)"}));
}

TEST(Recorder, TakingClears) {
    support::Recorder recorder;
    recorder.add("one");

    EXPECT_EQ(recorder.take(), Lines{"one"});
    EXPECT_EQ(recorder.take(), Lines{});
}

TEST(Recorder, AnUnknownSignalFailsTheTest) {
    QSlider slider(nullptr);
    support::Recorder recorder;

    EXPECT_NONFATAL_FAILURE(recorder.tap(&slider, "noSuchSignal()", "it"),
                            "no signal noSuchSignal()");
}
