#include <qt3/ComboBox.h>

#include "Events.h"
#include "Specimens.h"

#include <qt3/Text.h>
#include <qt3/WidgetFunctions.h>

#include <gtest/gtest.h>

using qt3::ascii;
using qt3::fromAscii;
using specimen::CListener;
using specimen::Lines;

namespace {

/// A box with units, as the header editor has one.
struct StUnits {
    qt3::ComboBox box{false, nullptr, "comboUnit"};

    StUnits() {
        for (const char* unit : {"m", "mm", "um"})
            box.insertItem(fromAscii(unit));
    }

    Lines items() {
        Lines texts;
        for (int i = 0; i < box.count(); ++i)
            texts.push_back(ascii(box.text(i)));
        return texts;
    }
};

} // namespace

TEST(ComboBoxTest, HasItsNameAndIsNotEditable) {
    const StUnits units;
    EXPECT_EQ(qt3::name(&units.box), "comboUnit");
    EXPECT_FALSE(units.box.editable());
}

TEST(ComboBoxTest, ItemsAreAppendedAndTheFirstIsCurrent) {
    StUnits units;
    EXPECT_EQ(units.items(), (Lines{"m", "mm", "um"}));
    EXPECT_EQ(units.box.currentItem(), 0);
}

TEST(ComboBoxTest, ItemIsInsertedAtItsIndex) {
    StUnits units;
    units.box.insertItem(fromAscii("km"), 0);
    EXPECT_EQ(units.items(), (Lines{"km", "m", "mm", "um"}));
}

TEST(ComboBoxTest, KnownTextIsSelected) {
    StUnits units;
    units.box.setCurrentText(fromAscii("um"));
    EXPECT_EQ(units.box.currentItem(), 2);
}

TEST(ComboBoxTest, UnknownTextRenamesTheCurrentItem) {
    StUnits units;
    units.box.setCurrentItem(1);
    units.box.setCurrentText(fromAscii("inch"));
    EXPECT_EQ(units.items(), (Lines{"m", "inch", "um"}));
    EXPECT_EQ(units.box.currentItem(), 1);
    EXPECT_EQ(ascii(units.box.currentText()), "inch");
}

TEST(ComboBoxTest, TextOfOtherCaseIsUnknown) {
    StUnits units;
    units.box.setCurrentText(fromAscii("MM"));
    EXPECT_EQ(units.items(), (Lines{"MM", "mm", "um"}));
}

TEST(ComboBoxTest, ItemOutOfRangeChangesNothing) {
    StUnits units;
    units.box.setCurrentItem(1);
    units.box.setCurrentItem(3);
    units.box.setCurrentItem(-1);
    EXPECT_EQ(units.box.currentItem(), 1);
}

TEST(ComboBoxTest, ClearedBoxIsAtItemZeroWithoutText) {
    StUnits units;
    units.box.setCurrentItem(2);
    units.box.clear();
    EXPECT_EQ(units.box.count(), 0);
    EXPECT_EQ(units.box.currentItem(), 0);
    EXPECT_EQ(ascii(units.box.currentText()), "");
}

TEST(ComboBoxTest, RefilledBoxIsAtItemZero) {
    StUnits units;
    units.box.setCurrentItem(2);
    units.box.clear();
    units.box.insertItem(fromAscii("x"));
    units.box.insertItem(fromAscii("y"));
    EXPECT_EQ(ascii(units.box.currentText()), "x");
}

TEST(ComboBoxTest, ChoiceByTheUserIsToldWithItsText) {
    StUnits units;
    CListener listener;
    ASSERT_TRUE(qt3::connectActivated(&units.box, &listener, SLOT(hear(const QString&))));
    support::show(&units.box);
    support::giveFocus(&units.box);

    support::keyClick(&units.box, Qt::Key_Down);
    support::keyClick(&units.box, Qt::Key_Down);

    EXPECT_EQ(listener.m_vTexts, (Lines{"mm", "um"}));
}

TEST(ComboBoxTest, ChoiceFromCodeIsNotTold) {
    StUnits units;
    CListener listener;
    qt3::connectActivated(&units.box, &listener, SLOT(hear(const QString&)));
    units.box.setCurrentItem(1);
    units.box.setCurrentText(fromAscii("um"));
    units.box.setCurrentText(fromAscii("inch"));
    EXPECT_EQ(listener.m_vTexts, Lines());
}
