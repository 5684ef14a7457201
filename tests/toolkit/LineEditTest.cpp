#include <qt3/LineEdit.h>

#include "Events.h"
#include "Recorder.h"

#include <qt3/DoubleValidator.h>
#include <qt3/Text.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>

using qt3::ascii;
using qt3::fromAscii;
using support::Lines;

namespace {

void focus(qt3::LineEdit& field) {
    support::show(&field);
    support::giveFocus(&field);
}

/// Accepts one word and its beginnings.
class CVocabulary : public QValidator {
public:
    explicit CVocabulary(QObject* parent) : QValidator(parent) {}

    State validate(QString& text, int&) const override {
        return m_sWord.rfind(ascii(text), 0) == 0 ? Acceptable : Invalid;
    }

    mutable std::string m_sWord;
};

} // namespace

TEST(LineEditTest, HasParentNameAndText) {
    QWidget parent;
    const qt3::LineEdit field(fromAscii("text"), &parent, "field");
    EXPECT_EQ(field.parentWidget(), &parent);
    EXPECT_STREQ(field.name(), "field");
    EXPECT_EQ(ascii(field.text()), "text");
}

TEST(LineEditTest, BackgroundColorIsThatOfAField) {
    qt3::LineEdit field(nullptr);
    const QColor red(255, 0, 0);
    field.setPaletteBackgroundColor(red);
    EXPECT_EQ(qt3::colorGroup(&field, QPalette::Active).base(), red);
}

TEST(LineEditTest, SelectsTheGivenPart) {
    qt3::LineEdit field(fromAscii("x 2.5 mm"), nullptr);
    field.setSelection(2, 3);
    EXPECT_EQ(ascii(field.selectedText()), "2.5");
}

TEST(LineEditTest, SelectionOfNegativeLengthDeselects) {
    qt3::LineEdit field(fromAscii("12345"), nullptr);
    field.selectAll();
    field.setSelection(3, -2);
    EXPECT_FALSE(field.hasSelectedText());
}

TEST(LineEditTest, SelectionFromBeyondTheEndDeselects) {
    qt3::LineEdit field(fromAscii("12345"), nullptr);
    field.selectAll();
    field.setSelection(9, 1);
    EXPECT_FALSE(field.hasSelectedText());
}

TEST(LineEditTest, TooLongSelectionIsCut) {
    qt3::LineEdit field(fromAscii("12345"), nullptr);
    field.setSelection(3, 100);
    EXPECT_EQ(ascii(field.selectedText()), "45");
}

TEST(LineEditTest, EditThatLeavesARejectedTextIsUndone) {
    qt3::LineEdit field(fromAscii("auto"), nullptr);
    qt3::DoubleValidator validator(&field);
    field.setValidator(&validator);
    focus(field);
    field.setCursorPosition(4);
    support::Recorder recorder;
    recorder.tap(&field, "textChanged(const QString&)", "field");

    support::keyClick(&field, Qt::Key_Backspace);
    support::typeText(&field, "x");

    EXPECT_EQ(ascii(field.text()), "auto");
    EXPECT_EQ(field.cursorPosition(), 4);
    EXPECT_EQ(recorder.take(), Lines());
}

TEST(LineEditTest, EditThatMakesARejectedTextANumberIsTold) {
    qt3::LineEdit field(fromAscii("5x"), nullptr);
    qt3::DoubleValidator validator(&field);
    field.setValidator(&validator);
    focus(field);
    field.setCursorPosition(2);
    support::Recorder recorder;
    recorder.tap(&field, "textChanged(const QString&)", "field");

    support::keyClick(&field, Qt::Key_Backspace);

    EXPECT_EQ(ascii(field.text()), "5");
    EXPECT_EQ(recorder.take(), (Lines{"field.textChanged(\"5\")"}));
}

TEST(LineEditTest, TypingReplacesASelectedRejectedText) {
    qt3::LineEdit field(fromAscii("auto"), nullptr);
    qt3::DoubleValidator validator(&field);
    field.setValidator(&validator);
    focus(field);
    field.selectAll();

    support::typeText(&field, "12");

    EXPECT_EQ(ascii(field.text()), "12");
}

TEST(LineEditTest, RefusedKeyDropsTheSelectionAndLeavesTheCursor) {
    qt3::LineEdit field(fromAscii("123456"), nullptr);
    qt3::DoubleValidator validator(&field);
    field.setValidator(&validator);
    focus(field);
    support::keyClick(&field, Qt::Key_End);
    support::keyClick(&field, Qt::Key_Left);
    support::keyClick(&field, Qt::Key_Left, support::Modifier::Shift);
    support::keyClick(&field, Qt::Key_Left, support::Modifier::Shift);

    support::typeText(&field, "x");

    EXPECT_FALSE(field.hasSelectedText());
    EXPECT_EQ(field.cursorPosition(), 3);
    support::typeText(&field, "0");
    EXPECT_EQ(ascii(field.text()), "1230456");
}

TEST(LineEditTest, SelectionReplacedByTheSameTextIsTold) {
    qt3::LineEdit field(fromAscii("5"), nullptr);
    qt3::DoubleValidator validator(&field);
    field.setValidator(&validator);
    focus(field);
    field.selectAll();
    support::Recorder recorder;
    recorder.tap(&field, "textChanged(const QString&)", "field");

    support::typeText(&field, "5");

    EXPECT_EQ(recorder.take(), (Lines{"field.textChanged(\"5\")"}));
}

TEST(LineEditTest, ValidatorThatHasComeToAcceptTheTextIsAskedAboutTheNextKey) {
    qt3::LineEdit field(nullptr);
    const CVocabulary validator(&field);
    field.setValidator(&validator);
    field.setText(fromAscii("auto"));
    validator.m_sWord = "auto";
    focus(field);

    support::typeText(&field, "x");

    EXPECT_EQ(ascii(field.text()), "auto");
}

TEST(LineEditTest, UnfinishedExponentMayBeConfirmed) {
    qt3::LineEdit field(nullptr);
    qt3::DoubleValidator validator(&field);
    field.setValidator(&validator);
    focus(field);
    support::Recorder recorder;
    recorder.tap(&field, "returnPressed()", "field");

    support::typeText(&field, "1e\n");

    EXPECT_EQ(recorder.take(), (Lines{"field.returnPressed()"}));
}

TEST(LineEditCopyTest, CopyTakesOverTheField) {
    QWidget parent;
    qt3::LineEdit original(&parent, "field");
    qt3::DoubleValidator validator(&parent);
    original.setMaxLength(8);
    original.setAlignment(Qt::AlignRight);
    original.setFrame(false);
    original.setReadOnly(true);
    original.setValidator(&validator);
    original.setText(fromAscii("1.25"));

    const qt3::LineEdit copy(original);

    EXPECT_EQ(ascii(copy.text()), "1.25");
    EXPECT_EQ(copy.maxLength(), 8);
    EXPECT_EQ(copy.alignment(), original.alignment());
    EXPECT_FALSE(copy.frame());
    EXPECT_TRUE(copy.isReadOnly());
    EXPECT_EQ(copy.validator(), &validator);
    EXPECT_STREQ(copy.name(), "field");
    EXPECT_EQ(copy.parentWidget(), &parent);
}

TEST(LineEditCopyTest, CopyOutlivesOriginalAndValidator) {
    std::unique_ptr<qt3::LineEdit> original(new qt3::LineEdit(nullptr));
    original->setValidator(new qt3::DoubleValidator(original.get()));
    qt3::LineEdit copy(*original);
    original.reset();
    focus(copy);
    support::typeText(&copy, "free");
    EXPECT_EQ(ascii(copy.text()), "free");
}

TEST(LineEditCopyTest, AssignmentKeepsTheParent) {
    QWidget parent;
    const qt3::LineEdit original(fromAscii("new"), nullptr, "original");
    qt3::LineEdit target(fromAscii("old"), &parent, "target");
    target = original;
    EXPECT_EQ(ascii(target.text()), "new");
    EXPECT_EQ(target.parentWidget(), &parent);
}
