#include "Form.h"
#include "HeaderToolsJournal.h"
#include "ImageHeaders.h"
#include "ModalDriver.h"

#include <gtest/gtest.h>
#include <qt3/Application.h>
#include <ruqlib2core/CValueMap.h>
#include <ruqlib2core/CValueString.h>

namespace {

using support::Lines;
using support::ModalDriver;
using TEVU::CImage;
using TEVU::COrunHeaderTools;

const support::Message c_question{
    "Remove computed features?",
    "The pixel spacing was changed, but the image contains features based on the old values.\n\n"
    "Update spacing and remove all features?",
    {"Yes", "No"},
    {},
    ""};

class WriteOverFeatures : public testing::Test {
protected:
    WriteOverFeatures() {
        m_image.Header().SetEntry(COrunHeaderTools::c_sTagFeatures, new TEVU::CValueMap);
        m_form.ReadAttributesFromImage(m_image);
        setShownTexts(m_form, {"Ada", "a test", "Open"});
    }

    bool hasFeatures() const { return m_image.Header().HasEntry(COrunHeaderTools::c_sTagFeatures); }

    CImage m_image = makeImage(3, {1e-6, 1e-6, 1e-6});
    Form m_form;
    ModalDriver m_driver;
};

TEST_F(WriteOverFeatures, YesRemovesThemAndChangesTheSpacing) {
    setSpacingFields(m_form, {"2", "1", "1"});
    m_driver.expectWarning(c_question).answer("Yes");

    EXPECT_TRUE(m_form.WriteAttributesToImage(m_image));

    EXPECT_FALSE(hasFeatures());
    expectSpacing(m_image, {2e-6, 1e-6, 1e-6});
    EXPECT_EQ(
        textsOf(m_image),
        (Lines{"Ada", "a test", "Open\nChangeSpacing((1e-06,1e-06,1e-06)->(2e-06,1e-06,1e-06))"}));
}

TEST_F(WriteOverFeatures, YesRemovesNothingElse) {
    m_image.Header().SetEntry("other", new TEVU::CValueString("kept"));
    setSpacingFields(m_form, {"2", "1", "1"});
    m_driver.expectWarning(c_question).answer("Yes");

    m_form.WriteAttributesToImage(m_image);

    EXPECT_EQ(m_image.Header().EntryString("other"), "kept");
}

/// The ways to decline.
struct StRefusal {
    const char* sRow;
    void (*answer)(support::MessageStep& question);
};

void PrintTo(const StRefusal& row, std::ostream* out) {
    *out << row.sRow;
}

class DeclinedRemoval : public WriteOverFeatures, public testing::WithParamInterface<StRefusal> {};

TEST_P(DeclinedRemoval, KeepsFeaturesAndSpacingButTheTextsAreWritten) {
    setSpacingFields(m_form, {"2", "1", "1"});
    GetParam().answer(m_driver.expectWarning(c_question));

    EXPECT_FALSE(m_form.WriteAttributesToImage(m_image));

    EXPECT_TRUE(
        m_image.Header().HasEntry(COrunHeaderTools::c_sTagFeatures, typeid(TEVU::CValueMap)));
    expectSpacing(m_image, {1e-6, 1e-6, 1e-6});
    EXPECT_EQ(textsOf(m_image), (Lines{"Ada", "a test", "Open"}));
}

INSTANTIATE_TEST_SUITE_P(
    , DeclinedRemoval,
    testing::Values(StRefusal{"No", [](support::MessageStep& step) { step.answer("No"); }},
                    StRefusal{"Escape", [](support::MessageStep& step) { step.escape(); }},
                    StRefusal{"Close", [](support::MessageStep& step) { step.close(); }}),
    [](const testing::TestParamInfo<StRefusal>& row) { return row.param.sRow; });

TEST_F(WriteOverFeatures, DeclinedOnceAsksAgainTheNextTime) {
    setSpacingFields(m_form, {"2", "1", "1"});
    m_driver.expectWarning(c_question).answer("No");
    m_driver.expectWarning(c_question).answer("Yes");

    EXPECT_FALSE(m_form.WriteAttributesToImage(m_image));
    EXPECT_TRUE(m_form.WriteAttributesToImage(m_image));

    EXPECT_FALSE(hasFeatures());
}

TEST_F(WriteOverFeatures, AsksAfterTheTextsAndBeforeTheSpacing) {
    setSpacingFields(m_form, {"2", "1", "1"});
    HeaderToolsJournal journal;
    Lines before;
    m_driver.expectWarning(c_question).before([&] { before = journal.take(); }).answer("Yes");

    m_form.WriteAttributesToImage(m_image);

    EXPECT_EQ(before, (Lines{"GetSpacing", "SetCreator(Ada)", "SetCreator(Ada)",
                             "ReplaceHistory(Open)", "SetDescription(a test)"}));
    EXPECT_EQ(journal.take(),
              (Lines{"SetSpacing(2e-06,1e-06,1e-06)",
                     "AddToHistory(ChangeSpacing((1e-06,1e-06,1e-06)->(2e-06,1e-06,1e-06)))"}));
}

TEST_F(WriteOverFeatures, AsksWithTheMainWidgetAsParent) {
    QWidget mainWidget;
    qt3::setMainWidget(&mainWidget);
    setSpacingFields(m_form, {"2", "1", "1"});
    m_driver.expectWarning(c_question).under(&mainWidget).answer("No");

    m_form.WriteAttributesToImage(m_image);
    qt3::setMainWidget(nullptr);
}

TEST_F(WriteOverFeatures, AsksWithoutAParentWhenThereIsNoMainWidget) {
    setSpacingFields(m_form, {"2", "1", "1"});
    m_driver.expectWarning(c_question).under(nullptr).answer("No");

    m_form.WriteAttributesToImage(m_image);
}

TEST_F(WriteOverFeatures, DoesNotAskWithoutAChange) {
    EXPECT_TRUE(m_form.WriteAttributesToImage(m_image));

    EXPECT_EQ(m_driver.log(), Lines{});
    EXPECT_TRUE(hasFeatures());
}

TEST_F(WriteOverFeatures, DoesNotAskWhenOnlyZOfEqualSpacingsChanges) {
    setSpacingFields(m_form, {"1", "1", "9"});

    EXPECT_TRUE(m_form.WriteAttributesToImage(m_image));

    EXPECT_TRUE(hasFeatures());
    expectSpacing(m_image, {1e-6, 1e-6, 1e-6});
}

TEST_F(WriteOverFeatures, DoesNotAskForFeaturesThatAreNoMap) {
    m_image.Header().SetEntry(COrunHeaderTools::c_sTagFeatures, new TEVU::CValueString("text"));
    setSpacingFields(m_form, {"2", "1", "1"});

    EXPECT_TRUE(m_form.WriteAttributesToImage(m_image));

    EXPECT_EQ(m_driver.log(), Lines{});
    EXPECT_EQ(m_image.Header().EntryString(COrunHeaderTools::c_sTagFeatures), "text");
    expectSpacing(m_image, {2e-6, 1e-6, 1e-6});
}

TEST_F(WriteOverFeatures, DoesNotAskWhenThereAreNone) {
    m_image.Header().RemoveEntry(COrunHeaderTools::c_sTagFeatures);
    setSpacingFields(m_form, {"2", "1", "1"});

    EXPECT_TRUE(m_form.WriteAttributesToImage(m_image));

    EXPECT_EQ(m_driver.log(), Lines{});
    expectSpacing(m_image, {2e-6, 1e-6, 1e-6});
}

} // namespace
