#include "Form.h"
#include "Recorder.h"

#include <gtest/gtest.h>
#include <qevent.h>
#include <qt3/WidgetFunctions.h>

namespace {

using support::Lines;

/// Notes what its event filter swallows.
class FilterRecordingForm : public Form {
public:
    bool eventFilter(QObject* watched, QEvent* event) override {
        const bool bSwallowed = Form::eventFilter(watched, event);
        if (bSwallowed)
            m_recorder.add(qt3::name(watched) +
                           (event->type() == QEvent::KeyPress ? " press" : "?"));
        return bSwallowed;
    }

    support::Recorder m_recorder;
};

TEST(HeaderEventFilter, TakesNoLineBreakTypedIntoTheTextBoxes) {
    Form form;
    support::show(&form);

    for (qt3::TextEdit* box : {form.descriptionText, form.historyText}) {
        support::giveFocus(box);
        support::typeText(box, "a");
        support::keyClick(box, Qt::Key_Return, support::Modifier::None, "\r");
        support::typeText(box, "b");
        support::keyClick(box, Qt::Key_Enter, support::Modifier::None, "\r");
        support::typeText(box, "c");
        EXPECT_EQ(qt3::ascii(box->text()), "abc") << qt3::name(box);
    }
}

TEST(HeaderEventFilter, SwallowsOnlyThePressOfReturnAndEnter) {
    FilterRecordingForm form;
    support::show(&form);

    for (qt3::TextEdit* box : {form.descriptionText, form.historyText}) {
        support::giveFocus(box);
        support::typeText(box, "x y.");
        for (const int nKey : {Qt::Key_Tab, Qt::Key_Backspace, Qt::Key_Return, Qt::Key_Enter})
            support::keyClick(box, nKey);
    }

    EXPECT_EQ(form.m_recorder.take(), (Lines{"descriptionText press", "descriptionText press",
                                             "historyText press", "historyText press"}));
}

TEST(HeaderEventFilter, MakesNoDifferenceForModifiers) {
    FilterRecordingForm form;
    support::show(&form);

    support::giveFocus(form.historyText);
    support::keyClick(form.historyText, Qt::Key_Return, support::Modifier::Shift, "\r");
    support::keyClick(form.historyText, Qt::Key_Return, support::Modifier::Control);

    EXPECT_EQ(form.m_recorder.take(), (Lines{"historyText press", "historyText press"}));
    EXPECT_EQ(qt3::ascii(form.historyText->text()), "");
}

TEST(HeaderEventFilter, LetsReturnReachTheCreator) {
    FilterRecordingForm form;
    support::show(&form);
    support::Recorder recorder;
    recorder.tap(form.creatorLine, "returnPressed()", "creator");
    form.creatorLine->installEventFilter(&form);

    support::giveFocus(form.creatorLine);
    support::keyClick(form.creatorLine, Qt::Key_Return, support::Modifier::None, "\r");
    support::keyClick(form.creatorLine, Qt::Key_Enter, support::Modifier::None, "\r");

    EXPECT_EQ(form.m_recorder.take(), Lines{});
    EXPECT_EQ(recorder.take(), (Lines{"creator.returnPressed()", "creator.returnPressed()"}));
}

TEST(HeaderEventFilter, KeepsTheLineBreaksOfPastedText) {
    Form form;
    support::show(&form);
    support::setClipboard("one\ntwo");

    for (qt3::TextEdit* box : {form.descriptionText, form.historyText}) {
        support::giveFocus(box);
        box->paste();
        EXPECT_EQ(qt3::ascii(box->text()), "one\ntwo") << qt3::name(box);
    }
}

TEST(HeaderEventFilter, PassesWhatIsNoEvent) {
    Form form;

    EXPECT_FALSE(form.eventFilter(form.historyText, nullptr));
    EXPECT_FALSE(form.eventFilter(nullptr, nullptr));
}

// Plain text.

TEST(HeaderTexts, KeepWhatLooksLikeMarkup) {
    Form form;
    const char* const sMarkup = "<b>bold</b> &amp; <br>\n<qt>x</qt>";

    form.descriptionText->setText(sMarkup);
    form.historyText->setText(sMarkup);

    EXPECT_EQ(qt3::ascii(form.descriptionText->text()), sMarkup);
    EXPECT_EQ(qt3::ascii(form.historyText->text()), sMarkup);
}

} // namespace
