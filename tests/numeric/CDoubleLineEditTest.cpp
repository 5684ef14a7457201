#include "CDoubleLineEdit.h"

#include "Events.h"
#include "Output.h"
#include "Recorder.h"

#include <gtest/gtest.h>
#include <limits>
#include <memory>
#include <qt3/MetaObject.h>
#include <qwidget.h>

using support::Lines;

namespace {

// Opens what is protected.
class Edit : public TEVU::CDoubleLineEdit {
public:
    using TEVU::CDoubleLineEdit::CDoubleLineEdit;
    using TEVU::CDoubleLineEdit::TextToValue;
    using TEVU::CDoubleLineEdit::ValidateInput;
    using TEVU::CDoubleLineEdit::ValueToText;

    std::string shown() const { return support::text(text()); }

    double stored() {
        const QString typed = text();
        setText("none");
        const double value = TextToValue(nullptr);
        setText(typed);
        return value;
    }
};

void type(Edit* edit, const char* text) {
    edit->selectAll();
    support::typeText(edit, text);
}

class CDoubleLineEdit : public testing::Test {
protected:
    CDoubleLineEdit() : m_edit(2.5, 3, &m_window, "edit") {
        m_recorder.tap(&m_edit, "textChanged(const QString&)", "edit");
        support::show(&m_window);
    }

    QWidget m_window;
    Edit m_edit;
    support::Recorder m_recorder;
};

} // namespace

TEST_F(CDoubleLineEdit, ShowsItsValueRightAligned) {
    EXPECT_EQ(m_edit.shown(), "2.500");
    EXPECT_EQ(int(m_edit.alignment()), int(Qt::AlignRight));
    EXPECT_EQ(std::string(m_edit.name()), "edit");
}

TEST_F(CDoubleLineEdit, WithoutNumbersStartsEmptyAtZeroWithTwoDecimals) {
    const Output output;
    Edit edit(&m_window, "plain");

    EXPECT_EQ(edit.shown(), "");
    EXPECT_EQ(int(edit.alignment()), int(Qt::AlignRight));
    EXPECT_EQ(std::string(edit.name()), "plain");
    EXPECT_EQ(edit.Value(), 0.0);
    EXPECT_EQ(edit.shown(), "0.00");
    EXPECT_EQ(output.text(), "0\n");
}

TEST_F(CDoubleLineEdit, AnswersToItsNameAndSlots) {
    EXPECT_EQ(qt3::className(&m_edit), "TEVU::CDoubleLineEdit");
    EXPECT_EQ(qt3::superClassName(&m_edit), "QLineEdit");
    EXPECT_EQ(qt3::furtherEntries(&m_edit), 0);
    EXPECT_TRUE(qt3::signalTable(&m_edit).empty());

    const std::vector<qt3::Method> slotList = qt3::slotTable(&m_edit);
    ASSERT_EQ(slotList.size(), 4u);
    EXPECT_EQ(slotList[0].signature, "Value()");
    EXPECT_EQ(slotList[1].signature, "SetValue(double)");
    EXPECT_EQ(slotList[2].signature, "SetToDouble()");
    EXPECT_EQ(slotList[3].signature, "ValidateInput()");
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(slotList[i].access, qt3::Method::Public) << i;
    EXPECT_EQ(slotList[3].access, qt3::Method::Protected);
}

TEST_F(CDoubleLineEdit, SetValueStoresAllDigitsAndShowsTheDecimals) {
    m_edit.SetValue(1.23456);

    EXPECT_EQ(m_edit.shown(), "1.235");
    EXPECT_EQ(m_edit.stored(), 1.23456);
}

TEST_F(CDoubleLineEdit, SetValueSaysTheTextOnceAndOnlyIfItDiffers) {
    m_edit.SetValue(1.0);
    m_edit.SetValue(1.0000001);

    EXPECT_EQ(m_recorder.take(), Lines{"edit.textChanged(\"1.000\")"});
}

TEST_F(CDoubleLineEdit, SampleNumberHasTheDecimalsOfTheField) {
    Edit edit(0.0, 4, &m_window, "edit");

    edit.SetToDouble();

    EXPECT_EQ(edit.shown(), "14.4400");
    EXPECT_EQ(edit.stored(), 14.44);
}

TEST_F(CDoubleLineEdit, PrecisionZeroShowsWholeNumbersWithoutAPoint) {
    Edit edit(2.5, 0, &m_window, "edit");

    EXPECT_EQ(edit.shown(), "2"); // an exact tie goes to the even digit
    edit.SetValue(1234567.8);
    EXPECT_EQ(edit.shown(), "1234568");
}

TEST_F(CDoubleLineEdit, PrecisionBeyondWhatAFieldHoldsIsCutOff) {
    const Edit edit(0.5, std::numeric_limits<int>::max(), &m_window, "edit");

    EXPECT_EQ(edit.shown().size(), 32767u);
    EXPECT_EQ(edit.shown().substr(0, 4), "0.50");
    EXPECT_EQ(support::text(edit.ValueToText(0.5)).size(), 2u + 32767u);
}

TEST_F(CDoubleLineEdit, ValueTextHasNoExponentAndNoGroups) {
    EXPECT_EQ(support::text(m_edit.ValueToText(1e9)), "1000000000.000");
    EXPECT_EQ(support::text(m_edit.ValueToText(1e-9)), "0.000");
    EXPECT_EQ(support::text(m_edit.ValueToText(-0.5)), "-0.500");
}

TEST_F(CDoubleLineEdit, ReturnShowsTheDecimalsAndThenSaysTheTypedText) {
    type(&m_edit, "7.12345");
    m_recorder.take();

    support::typeText(&m_edit, "\n");

    EXPECT_EQ(m_recorder.take(),
              (Lines{"edit.textChanged(\"7.123\")", "edit.textChanged(\"7.12345\")"}));
    EXPECT_EQ(m_edit.shown(), "7.123");
    EXPECT_EQ(m_edit.stored(), 7.12345);
}

TEST_F(CDoubleLineEdit, EnterIsReturn) {
    type(&m_edit, "4");

    support::keyClick(&m_edit, Qt::Key_Enter, support::Modifier::None, "\r");

    EXPECT_EQ(m_edit.shown(), "4.000");
}

TEST_F(CDoubleLineEdit, ReturnOnAnUnchangedFieldStillSaysItsText) {
    support::typeText(&m_edit, "\n");

    EXPECT_EQ(m_recorder.take(), Lines{"edit.textChanged(\"2.500\")"});
}

TEST_F(CDoubleLineEdit, LettersCanBeTypedAndGiveWayToTheLastValueOnReturn) {
    type(&m_edit, "abc");
    EXPECT_EQ(m_edit.shown(), "abc");
    m_recorder.take();

    support::typeText(&m_edit, "\n");

    EXPECT_EQ(m_recorder.take(),
              (Lines{"edit.textChanged(\"2.500\")", "edit.textChanged(\"abc\")"}));
    EXPECT_EQ(m_edit.shown(), "2.500");
    EXPECT_EQ(m_edit.stored(), 2.5);
}

TEST_F(CDoubleLineEdit, TypingAloneAndLeavingReadNothing) {
    QLineEdit other(&m_window);
    support::giveFocus(&m_edit);
    type(&m_edit, "7");

    support::giveFocus(&other);

    EXPECT_EQ(m_edit.shown(), "7");
    EXPECT_EQ(m_edit.stored(), 2.5);
}

TEST_F(CDoubleLineEdit, ValidateInputTellsWhetherTheTextWasANumber) {
    struct StRow {
        const char* sText;
        bool bNumber;
        const char* sShown;
    };
    for (const StRow& row : {StRow{"3", true, "3.000"}, StRow{"", false, "3.000"},
                             StRow{"x", false, "3.000"}, StRow{"-1e2", true, "-100.000"},
                             StRow{"1e", false, "-100.000"}, // to the validator it is one
                             StRow{" 4", true, "4.000"}, StRow{"4,5", false, "4.000"}}) {
        SCOPED_TRACE(row.sText);
        m_edit.setText(row.sText);
        EXPECT_EQ(m_edit.ValidateInput(), row.bNumber);
        EXPECT_EQ(m_edit.shown(), row.sShown);
    }
}

TEST_F(CDoubleLineEdit, SetTextWithoutFlagShowsTheStoredValueAndReadsNothing) {
    m_edit.setText("7");
    m_recorder.take();

    m_edit.SetText(nullptr);

    EXPECT_EQ(m_recorder.take(), Lines{"edit.textChanged(\"2.500\")"});
    EXPECT_EQ(m_edit.shown(), "2.500");
}

TEST_F(CDoubleLineEdit, SetTextOverwritesItsFlag) {
    bool ok = false;
    m_edit.setText("7");
    m_edit.SetText(&ok);
    EXPECT_TRUE(ok);
    EXPECT_EQ(m_edit.shown(), "7.000");

    m_edit.setText("x");
    m_edit.SetText(&ok);
    EXPECT_FALSE(ok);
    EXPECT_EQ(m_edit.shown(), "7.000");
}

TEST_F(CDoubleLineEdit, TextToValueFallsBackToTheStoredValue) {
    bool ok = true;
    m_edit.setText("x");
    EXPECT_EQ(m_edit.TextToValue(&ok), 2.5);
    EXPECT_FALSE(ok);

    m_edit.setText("8");
    EXPECT_EQ(m_edit.TextToValue(&ok), 8.0);
    EXPECT_TRUE(ok);
}

TEST_F(CDoubleLineEdit, ValueIsTheRoundedNumberWhileTheStoredOneKeepsItsDigits) {
    const Output output;
    Edit edit(0.0, 2, &m_window, "edit");
    edit.setText("1.23456");

    EXPECT_EQ(edit.Value(), 1.23);
    EXPECT_EQ(edit.shown(), "1.23");
    EXPECT_EQ(edit.stored(), 1.23456);
    EXPECT_EQ(output.text(), "1.23\n");
}

TEST_F(CDoubleLineEdit, ValueOfGarbageIsTheStoredNumberUnrounded) {
    const Output output;
    m_edit.SetValue(1.23456789);
    m_edit.setText("x");

    EXPECT_EQ(m_edit.Value(), 1.23456789);
    EXPECT_EQ(m_edit.shown(), "1.235");
    EXPECT_EQ(output.text(), "1.23457\n");
}

TEST_F(CDoubleLineEdit, EveryCallOfValueWritesOneLine) {
    const Output output;

    m_edit.Value();
    m_edit.Value();
    m_edit.SetValue(1e7);
    m_edit.Value();

    EXPECT_EQ(output.text(), "2.5\n2.5\n1e+07\n");
}

TEST_F(CDoubleLineEdit, CopyIsAFieldOfItsOwn) {
    m_edit.SetValue(1.23456);
    Edit copy(m_edit);

    EXPECT_EQ(copy.shown(), "1.235");
    EXPECT_EQ(copy.stored(), 1.23456);
    EXPECT_EQ(copy.parentWidget(), &m_window);
    EXPECT_EQ(int(copy.alignment()), int(Qt::AlignRight));

    copy.SetValue(9.0);
    EXPECT_EQ(m_edit.shown(), "1.235");
    type(&copy, "6\n");
    EXPECT_EQ(copy.shown(), "6.000");
    EXPECT_EQ(m_edit.shown(), "1.235");
}

TEST_F(CDoubleLineEdit, AssignmentTakesOverValueAndDecimals) {
    Edit other(7.0, 1, &m_window, "other");

    other = m_edit;

    EXPECT_EQ(other.shown(), "2.500");
    type(&other, "6\n");
    EXPECT_EQ(other.shown(), "6.000");
    EXPECT_EQ(m_edit.shown(), "2.500");
}

TEST_F(CDoubleLineEdit, OriginalAndCopyEndInEitherOrder) {
    const Output output;
    auto original = std::make_unique<Edit>(1.0, 1, nullptr, "original");
    auto copy = std::make_unique<Edit>(*original);
    original.reset();
    EXPECT_EQ(copy->Value(), 1.0);

    auto copyOfCopy = std::make_unique<Edit>(*copy);
    copyOfCopy.reset();
    EXPECT_EQ(copy->Value(), 1.0);
}
