#include <qt3/TextEdit.h>

#include "Events.h"
#include "Looks.h"
#include "Recorder.h"
#include "Specimens.h"

#include <qt3/Text.h>

#include <gtest/gtest.h>

#include <qapplication.h>
#include <qclipboard.h>

#include <memory>

using qt3::ascii;
using qt3::fromAscii;
using specimen::CPastingEdit;
using specimen::Lines;
using support::Modifier;

namespace {

std::string textAfterSetting(const std::string& text) {
    qt3::TextEdit edit(nullptr);
    edit.setText(fromAscii(text));
    return ascii(edit.text());
}

/// A focused edit, and what the user has copied.
struct StPasting {
    CPastingEdit edit;

    explicit StPasting(const std::string& clipboard) {
        support::setClipboard(fromAscii(clipboard));
        support::show(&edit);
        support::giveFocus(&edit);
    }
};

} // namespace

TEST(TextEditTest, HasParentAndName) {
    QWidget parent;
    const qt3::TextEdit edit(&parent, "edit");
    EXPECT_EQ(edit.parentWidget(), &parent);
    EXPECT_STREQ(edit.name(), "edit");
}

TEST(TextEditTest, MarkupStaysAsWritten) {
    EXPECT_EQ(textAfterSetting("<b>bold</b> &amp;"), "<b>bold</b> &amp;");
}

TEST(TextEditTest, TextIsGivenBackExactly) {
    EXPECT_EQ(textAfterSetting("two\nlines\n"), "two\nlines\n");
    EXPECT_EQ(textAfterSetting(""), "");
    EXPECT_EQ(textAfterSetting("a\xa0"
                               "b \t"),
              "a\xa0"
              "b \t");
}

TEST(TextEditTest, CarriageReturnBeforeLineFeedIsDropped) {
    EXPECT_EQ(textAfterSetting("a\r\nb"), "a\nb");
}

TEST(TextEditTest, SettingTheSameTextIsToldToo) {
    qt3::TextEdit edit(nullptr);
    edit.setText(fromAscii("same"));
    support::Recorder recorder;
    recorder.tap(&edit, "textChanged()", "edit");
    edit.setText(fromAscii("same"));
    EXPECT_EQ(recorder.take(), (Lines{"edit.textChanged()"}));
}

TEST(TextEditTest, SettingTheSameTextLeavesTheCursorOfAReadOnlyEdit) {
    qt3::TextEdit edit(nullptr);
    support::show(&edit);
    support::giveFocus(&edit);
    edit.setText("abc");
    support::sendKey(&edit, Qt::Key_Right, Modifier::None, "");
    edit.setReadOnly(true);
    support::Recorder recorder;
    recorder.tap(&edit, "textChanged()", "edit");

    edit.setText("abc");
    EXPECT_EQ(recorder.take(), Lines());
    EXPECT_EQ(support::cursorOf(&edit), 1);

    edit.setText("abd");
    EXPECT_EQ(recorder.take(), Lines{"edit.textChanged()"});
    EXPECT_EQ(support::cursorOf(&edit), 0);
}

TEST(TextEditTest, SettingTheSameTextMovesTheCursorWhereTheUserHasEdited) {
    qt3::TextEdit edit(nullptr);
    support::show(&edit);
    support::giveFocus(&edit);
    support::sendKey(&edit, Qt::Key_A, Modifier::None, "a");
    edit.setReadOnly(true);
    ASSERT_EQ(support::cursorOf(&edit), 1);

    edit.setText("a");

    EXPECT_EQ(support::cursorOf(&edit), 0);
}

TEST(TextEditTest, KeyThatFindsNothingToDeleteIsAnEditToo) {
    for (const int key : {Qt::Key_Backspace, Qt::Key_Delete}) {
        qt3::TextEdit edit(nullptr);
        support::show(&edit);
        support::giveFocus(&edit);
        edit.setText("a");
        if (key == Qt::Key_Delete)
            support::sendKey(&edit, Qt::Key_Right, Modifier::None, "");
        support::sendKey(&edit, key, Modifier::None, key == Qt::Key_Delete ? "\x7f" : "\b");
        support::sendKey(&edit, Qt::Key_Right, Modifier::None, "");
        edit.setReadOnly(true);
        ASSERT_EQ(support::cursorOf(&edit), 1);

        edit.setText("a");

        EXPECT_EQ(support::cursorOf(&edit), 0) << key;
    }
}

TEST(TextEditTest, TypedMarkupStaysAsTyped) {
    qt3::TextEdit edit(nullptr);
    support::show(&edit);
    support::giveFocus(&edit);
    support::typeText(&edit, "<i>x</i>");
    EXPECT_EQ(ascii(edit.text()), "<i>x</i>");
}

TEST(TextEditPasteTest, ControlVPastesOnce) {
    StPasting pasting("abc");
    support::keyClick(&pasting.edit, Qt::Key_V, Modifier::Control, "\x16");
    EXPECT_EQ(pasting.edit.m_vCalls, (Lines{"paste"}));
    EXPECT_EQ(ascii(pasting.edit.text()), "abc");
}

TEST(TextEditPasteTest, ShiftInsertPastesOnce) {
    StPasting pasting("abc");
    support::keyClick(&pasting.edit, Qt::Key_Insert, Modifier::Shift);
    EXPECT_EQ(pasting.edit.m_vCalls, (Lines{"paste"}));
    EXPECT_EQ(ascii(pasting.edit.text()), "abc");
}

TEST(TextEditPasteTest, PlainClassReachesTheOverrideOnce) {
    StPasting pasting("abc");
    QTextEdit* const plain = &pasting.edit;
    plain->paste();
    EXPECT_EQ(pasting.edit.m_vCalls, (Lines{"paste"}));
    EXPECT_EQ(ascii(pasting.edit.text()), "abc");
}

TEST(TextEditPasteTest, ContextMenuPastesOnce) {
    StPasting pasting("abc");
    ASSERT_TRUE(support::chooseInContextMenu(pasting.edit.viewport(), QPoint(5, 5), Qt::Key_P));
    EXPECT_EQ(pasting.edit.m_vCalls, (Lines{"paste"}));
    EXPECT_EQ(ascii(pasting.edit.text()), "abc");
}

TEST(TextEditPasteTest, MiddleButtonPastesTheSelectionOnce) {
    if (!QApplication::clipboard()->supportsSelection())
        GTEST_SKIP() << "this display has no selection";
    StPasting pasting("clipboard");
    QApplication::clipboard()->setText(fromAscii("sel\rected"), QClipboard::Selection);
    support::mouseClick(pasting.edit.viewport(), QPoint(5, 5), support::Button::Middle);
    EXPECT_EQ(pasting.edit.m_vCalls, (Lines{"paste"}));
    EXPECT_EQ(ascii(pasting.edit.text()), "sel\nected");
}

TEST(TextEditPasteTest, EmptyClipboardReachesTheOverride) {
    StPasting pasting("");
    QApplication::clipboard()->clear();
    support::keyClick(&pasting.edit, Qt::Key_V, Modifier::Control, "\x16");
    EXPECT_EQ(pasting.edit.m_vCalls, (Lines{"paste"}));
    EXPECT_EQ(ascii(pasting.edit.text()), "");
}

TEST(TextEditPasteTest, MiddleButtonReachesTheOverrideAlsoWithoutASelection) {
    if (!QApplication::clipboard()->supportsSelection())
        GTEST_SKIP() << "this display has no selection";
    StPasting pasting("clipboard");
    QApplication::clipboard()->clear(QClipboard::Selection);
    support::mouseClick(pasting.edit.viewport(), QPoint(5, 5), support::Button::Middle);
    EXPECT_EQ(pasting.edit.m_vCalls, (Lines{"paste"}));
    EXPECT_EQ(ascii(pasting.edit.text()), "");
}

TEST(TextEditPasteTest, CarriageReturnsBecomeLineBreaks) {
    StPasting pasting("a\r\nb\rc\nd");
    pasting.edit.paste();
    EXPECT_EQ(ascii(pasting.edit.text()), "a\nb\nc\nd");
}

TEST(TextEditPasteTest, DropIsNoPaste) {
    StPasting pasting("clipboard");
    support::drop(pasting.edit.viewport(), QPoint(5, 5), "dropped\ntext");
    EXPECT_EQ(pasting.edit.m_vCalls, Lines());
    EXPECT_EQ(ascii(pasting.edit.text()), "dropped\ntext");
}

TEST(TextEditPasteTest, PastedMarkupStaysAsCopied) {
    StPasting pasting("<b>x</b>\r\n");
    pasting.edit.paste();
    EXPECT_EQ(ascii(pasting.edit.text()), "<b>x</b>\n");
}

TEST(TextEditPasteTest, PasteReplacesTheSelection) {
    StPasting pasting("new\r");
    pasting.edit.setText(fromAscii("old"));
    pasting.edit.selectAll();
    pasting.edit.paste();
    EXPECT_EQ(ascii(pasting.edit.text()), "new\n");
}

TEST(TextEditPasteTest, EmptyClipboardReplacesTheSelectionToo) {
    StPasting pasting("");
    QApplication::clipboard()->clear();
    pasting.edit.setText(fromAscii("old"));
    support::keyClick(&pasting.edit, Qt::Key_Right, Modifier::Shift);
    pasting.edit.paste();
    EXPECT_EQ(ascii(pasting.edit.text()), "ld");
}

TEST(TextEditPasteTest, EmptyClipboardLeavesAReadOnlySelection) {
    StPasting pasting("");
    QApplication::clipboard()->clear();
    pasting.edit.setText(fromAscii("old"));
    pasting.edit.selectAll();
    pasting.edit.setReadOnly(true);
    pasting.edit.paste();
    EXPECT_EQ(ascii(pasting.edit.text()), "old");
}

TEST(TextEditPasteTest, ReadOnlyEditKeepsItsText) {
    StPasting pasting("a\rb");
    pasting.edit.setText(fromAscii("kept"));
    pasting.edit.setReadOnly(true);
    pasting.edit.paste();
    support::keyClick(&pasting.edit, Qt::Key_V, Modifier::Control, "\x16");
    EXPECT_EQ(ascii(pasting.edit.text()), "kept");
}

TEST(TextEditCopyTest, CopyTakesOverTextAndReadOnlyState) {
    QWidget parent;
    std::unique_ptr<qt3::TextEdit> original(new qt3::TextEdit(&parent, "edit"));
    original->setText(fromAscii("<i>text</i>\n"));
    original->setReadOnly(true);

    const qt3::TextEdit copy(*original);
    original.reset();

    EXPECT_EQ(ascii(copy.text()), "<i>text</i>\n");
    EXPECT_TRUE(copy.isReadOnly());
    EXPECT_STREQ(copy.name(), "edit");
    EXPECT_EQ(copy.parentWidget(), &parent);
}

TEST(TextEditCopyTest, AssignmentTakesOverTheText) {
    qt3::TextEdit original(nullptr);
    original.setText(fromAscii("<new>"));
    qt3::TextEdit target(nullptr);
    target = original;
    EXPECT_EQ(ascii(target.text()), "<new>");
}
