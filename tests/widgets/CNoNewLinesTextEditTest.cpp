#include "CNoNewLinesTextEdit.h"

#include "Events.h"
#include "Recorder.h"

#include <gtest/gtest.h>
#include <memory>
#include <qapplication.h>
#include <qclipboard.h>
#include <qt3/MetaObject.h>
#include <qt3/Text.h>
#include <string>
#include <vector>

using qt3::ascii;
using qt3::fromAscii;
using support::Lines;
using support::Modifier;
using TEVU::CNoNewLinesTextEdit;

namespace {

void controlV(QWidget* edit) {
    support::keyClick(edit, Qt::Key_V, Modifier::Control, "\x16");
}

class NoNewLines : public testing::Test {
protected:
    NoNewLines() {
        m_window.resize(200, 100);
        m_edit.setGeometry(0, 0, 200, 100);
        support::show(&m_window);
        support::giveFocus(&m_edit);
    }

    static void copy(const std::string& text) { support::setClipboard(fromAscii(text)); }

    static void copyNothing() {
        QApplication::clipboard()->clear();
        support::processEvents();
    }

    void set(const std::string& text) { m_edit.setText(fromAscii(text)); }
    std::string text() const { return ascii(m_edit.text()); }

    QWidget m_window;
    CNoNewLinesTextEdit m_edit{&m_window, "title"};
};

} // namespace

TEST_F(NoNewLines, StartsAsThePlainEditDoes) {
    const qt3::TextEdit plain(&m_window, "title");
    const CNoNewLinesTextEdit edit(&m_window, "title");
    EXPECT_EQ(edit.parentWidget(), &m_window);
    EXPECT_STREQ(edit.name(), "title");
    EXPECT_EQ(ascii(edit.text()), "");
    EXPECT_EQ(edit.isReadOnly(), plain.isReadOnly());
    EXPECT_EQ(edit.isUndoRedoEnabled(), plain.isUndoRedoEnabled());
    EXPECT_EQ(edit.tabChangesFocus(), plain.tabChangesFocus());
    EXPECT_EQ(edit.frameStyle(), plain.frameStyle());
    EXPECT_EQ(edit.focusPolicy(), plain.focusPolicy());
    EXPECT_EQ(edit.sizePolicy(), plain.sizePolicy());
}

TEST_F(NoNewLines, AnswersToItsNameAndItsOneSlot) {
    EXPECT_EQ(qt3::className(&m_edit), "TEVU::CNoNewLinesTextEdit");
    EXPECT_EQ(qt3::superClassName(&m_edit), "QTextEdit");
    EXPECT_EQ(qt3::furtherEntries(&m_edit), 0);
    EXPECT_TRUE(qt3::signalTable(&m_edit).empty());
    const std::vector<qt3::Method> slotList = qt3::slotTable(&m_edit);
    ASSERT_EQ(slotList.size(), 1u);
    EXPECT_EQ(slotList[0].signature, "paste()");
    EXPECT_EQ(slotList[0].access, qt3::Method::Public);
}

TEST_F(NoNewLines, PastedLineBreaksAreDeletedNotReplaced) {
    struct StRow {
        const char* sName;
        const char* sPasted;
        const char* sText;
    };
    for (const StRow& row : {
             StRow{"carriage return and line feed", "x\r\ny", "xy"},
             StRow{"line feed", "a\nb", "ab"},
             StRow{"carriage return", "a\rb", "ab"},
             StRow{"the other way round", "a\n\rb", "ab"},
             StRow{"several of each", "a\r\r\n\n\r\nb\n\n\nc", "abc"},
             StRow{"at the front", "\r\n\ra", "a"},
             StRow{"at the end", "a\n\r\n", "a"},
             StRow{"nothing else", "\r\n\n\r", ""},
             StRow{"blanks stay", " a \r\n b ", " a  b "},
             StRow{"tabs stay", "a\t\n\tb", "a\t\tb"},
             StRow{"no line break at all", "plain", "plain"},
             StRow{"markup stays as copied", "<b>x</b>\n&amp;<br>", "<b>x</b>&amp;<br>"},
             StRow{"letters beyond ASCII stay", "\xe4\n\xf6", "\xe4\xf6"},
         }) {
        SCOPED_TRACE(row.sName);
        copy(row.sPasted);
        set("");
        m_edit.paste();
        EXPECT_EQ(text(), row.sText);
    }
}

TEST_F(NoNewLines, ControlVIsAPaste) {
    copy("x\r\ny\rz");
    controlV(&m_edit);
    EXPECT_EQ(text(), "xyz");
}

TEST_F(NoNewLines, ShiftInsertIsAPaste) {
    copy("x\r\ny\rz");
    support::keyClick(&m_edit, Qt::Key_Insert, Modifier::Shift);
    EXPECT_EQ(text(), "xyz");
}

TEST_F(NoNewLines, ContextMenuIsAPaste) {
    copy("x\r\ny\rz");
    ASSERT_TRUE(support::chooseInContextMenu(m_edit.viewport(), QPoint(5, 5), Qt::Key_P));
    EXPECT_EQ(text(), "xyz");
}

TEST_F(NoNewLines, CallThroughTheBaseIsAPaste) {
    copy("x\r\ny\rz");
    qt3::TextEdit* const base = &m_edit;
    base->paste();
    EXPECT_EQ(text(), "xyz");
}

TEST_F(NoNewLines, CallThroughTheToolkitsClassIsAPaste) {
    copy("x\r\ny\rz");
    QTextEdit* const plain = &m_edit;
    plain->paste();
    EXPECT_EQ(text(), "xyz");
}

TEST_F(NoNewLines, MiddleButtonIsAPasteOfTheSelection) {
    if (!QApplication::clipboard()->supportsSelection())
        GTEST_SKIP() << "this display has no selection";
    copy("clipboard");
    QApplication::clipboard()->setText(fromAscii("x\r\ny\rz"), QClipboard::Selection);
    support::mouseClick(m_edit.viewport(), QPoint(5, 5), support::Button::Middle);
    EXPECT_EQ(text(), "xyz");
}

TEST_F(NoNewLines, MiddleButtonCleansTheTextAlsoWithoutASelection) {
    if (!QApplication::clipboard()->supportsSelection())
        GTEST_SKIP() << "this display has no selection";
    set("a\nb");
    QApplication::clipboard()->clear(QClipboard::Selection);
    support::mouseClick(m_edit.viewport(), QPoint(5, 5), support::Button::Middle);
    EXPECT_EQ(text(), "ab");
}

TEST_F(NoNewLines, PasteGoesToTheCursor) {
    set("ab");
    support::keyClick(&m_edit, Qt::Key_Right);
    copy("x\ny");
    controlV(&m_edit);
    EXPECT_EQ(text(), "axyb");
}

TEST_F(NoNewLines, PasteReplacesTheSelection) {
    set("old\ntext");
    m_edit.selectAll();
    copy("new\r");
    controlV(&m_edit);
    EXPECT_EQ(text(), "new");
}

TEST_F(NoNewLines, LineBreaksFromBeforeGoWithThePaste) {
    set("a\nb\n");
    copy("x");
    m_edit.paste();
    EXPECT_EQ(text(), "xab");
}

TEST_F(NoNewLines, TypedLineBreaksStayUntilThePaste) {
    support::typeText(&m_edit, "a\nb\n");
    EXPECT_EQ(text(), "a\nb\n");
    support::keyClick(&m_edit, Qt::Key_Enter, Modifier::None, "\r");
    support::typeText(&m_edit, "c");
    EXPECT_EQ(text(), "a\nb\n\nc");
    copy("x\n");
    controlV(&m_edit);
    EXPECT_EQ(text(), "abcx");
}

TEST_F(NoNewLines, EmptyClipboardStillCleansTheText) {
    copyNothing();
    set("a\nb\n\nc");
    m_edit.paste();
    EXPECT_EQ(text(), "abc");
    set("a\nb");
    controlV(&m_edit);
    EXPECT_EQ(text(), "ab");
    set("a\nb");
    support::keyClick(&m_edit, Qt::Key_Insert, Modifier::Shift);
    EXPECT_EQ(text(), "ab");
}

// A paste replaces the selection, even if by nothing: so the toolkit has it.
TEST_F(NoNewLines, EmptyClipboardReplacesTheSelectedTextToo) {
    copyNothing();
    set("a\nb\nc");
    support::keyClick(&m_edit, Qt::Key_Right, Modifier::Shift);
    m_edit.paste();
    EXPECT_EQ(text(), "bc");
}

TEST_F(NoNewLines, PasteOfNothingTellsTheRewrittenTextOnce) {
    copyNothing();
    set("same");
    support::Recorder recorder;
    recorder.tap(&m_edit, "textChanged()", "edit");
    m_edit.paste();
    EXPECT_EQ(recorder.take(), Lines{"edit.textChanged()"});
    controlV(&m_edit);
    EXPECT_EQ(recorder.take(), Lines{"edit.textChanged()"});
}

TEST_F(NoNewLines, PasteTellsTheInsertedAndThenTheCleanedText) {
    copy("x\ny");
    qt3::SignalTap tap;
    Lines texts;
    ASSERT_TRUE(
        tap.listen(&m_edit, "textChanged()", [&](const std::string&) { texts.push_back(text()); }));
    m_edit.paste();
    EXPECT_EQ(texts, (Lines{"x\ny", "xy"}));
}

TEST_F(NoNewLines, CursorIsAtTheStartAfterThePaste) {
    copy("abc");
    controlV(&m_edit);
    support::typeText(&m_edit, "x");
    EXPECT_EQ(text(), "xabc");
}

TEST_F(NoNewLines, PasteCannotBeUndone) {
    support::typeText(&m_edit, "typed");
    copy("a\nb");
    controlV(&m_edit);
    m_edit.undo();
    EXPECT_EQ(text(), "typedab");
}

TEST_F(NoNewLines, ReadOnlyEditTakesNothingInButIsCleanedByACall) {
    set("kept\ntext");
    m_edit.setReadOnly(true);
    copy("x");
    m_edit.paste();
    EXPECT_EQ(text(), "kepttext");
}

TEST_F(NoNewLines, TextSetByCodeKeepsItsLineBreaks) {
    set("a\nb");
    EXPECT_EQ(text(), "a\nb");
    m_edit.append("c\nd");
    EXPECT_EQ(text(), "a\nb\nc\nd");
}

TEST_F(NoNewLines, DroppedTextKeepsItsLineBreaks) {
    set("a\nb");
    support::drop(m_edit.viewport(), QPoint(5, 5), "x\ny");
    EXPECT_EQ(text(), "x\nya\nb");
}

TEST_F(NoNewLines, CopyHasTheTextAndPastesIntoItself) {
    set("a\nb");
    CNoNewLinesTextEdit copied(m_edit);
    EXPECT_EQ(ascii(copied.text()), "a\nb");
    EXPECT_EQ(copied.parentWidget(), &m_window);
    EXPECT_STREQ(copied.name(), "title");
    copy("x\ny");
    copied.paste();
    EXPECT_EQ(ascii(copied.text()), "xyab");
    EXPECT_EQ(text(), "a\nb");
}

TEST_F(NoNewLines, CopyOutlivesItsOriginal) {
    auto original = std::make_unique<CNoNewLinesTextEdit>(&m_window, "original");
    original->setText("text");
    CNoNewLinesTextEdit copied(*original);
    original.reset();
    copy("a\nb");
    copied.paste();
    EXPECT_EQ(ascii(copied.text()), "abtext");
}

TEST_F(NoNewLines, AssignmentTakesOverTheText) {
    set("a\nb");
    CNoNewLinesTextEdit target(&m_window, "target");
    EXPECT_EQ(&(target = m_edit), &target);
    EXPECT_EQ(ascii(target.text()), "a\nb");
}
