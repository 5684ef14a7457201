#include "Form.h"
#include "Recorder.h"
#include "Translation.h"

#include <gtest/gtest.h>

namespace {

using support::Lines;

const char* const c_sClass = "TEVU::CHeaderFieldsWidget";

TEST(HeaderLanguage, IsSetAnewOnRequest) {
    Form form;
    const Lines empty(c_englishLabels.size());
    form.setCaption("");
    for (qt3::GroupBox* group : {form.groupBox1, form.groupBox2})
        group->setTitle("");
    for (qt3::Label* label : {form.textLabel1, form.textLabel1_3, form.textLabel1_3_2,
                              form.textLabel2, form.textLabel2_2, form.textLabel2_2_2})
        label->setText("");
    ASSERT_EQ(labels(form), empty);

    form.languageChange();

    EXPECT_EQ(labels(form), c_englishLabels);
}

TEST(HeaderLanguage, ResetsTheUnitsAndTheirChoice) {
    Form form;
    form.SetUnit("cm");
    form.comboUnit->setCurrentItem(0);

    form.languageChange();

    EXPECT_EQ(units(form), (Lines{"m", "mm", "um", "nm"}));
    EXPECT_EQ(shownUnit(form), "um");
}

TEST(HeaderLanguage, DoesNotTouchTheUnitThatTheFieldsAreIn) {
    Form form;
    form.SetUnit("mm");

    form.languageChange();

    EXPECT_EQ(shownUnit(form), "um");
    EXPECT_EQ(factorToMetres(form), "0.001");
}

TEST(HeaderLanguage, DoesNotTouchTheFields) {
    Form form;
    setSpacingFields(form, {"1", "2", "3"});
    form.creatorLine->setText("Ada");

    form.languageChange();

    EXPECT_EQ(spacingFields(form), (Fields{"1", "2", "3"}));
    EXPECT_EQ(qt3::ascii(form.creatorLine->text()), "Ada");
}

const support::Translation::Texts c_german{{"Header Fields", "Kopf"},
                                           {"Spacing", "Abstand"},
                                           {"x:", "X:"},
                                           {"y:", "Y:"},
                                           {"z:", "Z:"},
                                           {"Description", "Beschreibung"},
                                           {"Creator:", "Urheber:"},
                                           {"Description:", "Inhalt:"},
                                           {"History:", "Verlauf:"}};
const Lines c_germanLabels{
    "Kopf", "Abstand", "X:", "Y:", "Z:", "Beschreibung", "Urheber:", "Inhalt:", "Verlauf:"};

TEST(HeaderLanguage, IsThatOfTheApplication) {
    const support::Translation german(c_sClass, c_german);

    const Form form;

    EXPECT_EQ(labels(form), c_germanLabels);
}

TEST(HeaderLanguage, FollowsTheApplication) {
    const Form form;
    {
        const support::Translation german(c_sClass, c_german);
        EXPECT_EQ(labels(form), c_germanLabels);
    }
    EXPECT_EQ(labels(form), c_englishLabels);
}

class TranslatedUnit : public testing::TestWithParam<const char*> {};

TEST_P(TranslatedUnit, MakesTheConstructorThrow) {
    const support::Translation wrong(c_sClass, {{GetParam(), "unit"}});

    EXPECT_EQ(thrownText([] { const Form form; }),
              "Error configuring dialog: Unit string mismatch.");
}

INSTANTIATE_TEST_SUITE_P(, TranslatedUnit, testing::Values("m", "mm", "um", "nm"),
                         [](const testing::TestParamInfo<const char*>& row) {
                             return std::string("Of_") + row.param;
                         });

TEST(HeaderLanguage, TakesUnitsThatATranslationOnlySwaps) {
    const support::Translation swapped(c_sClass, {{"um", "nm"}, {"nm", "um"}});

    Form form;

    EXPECT_EQ(units(form), (Lines{"m", "mm", "nm", "um"}));
    EXPECT_EQ(shownUnit(form), "nm");
    EXPECT_EQ(factorToMetres(form), "1e-09"); // by its text, not by its place
}

TEST(HeaderLanguage, ThatChangesAUnitLaterMakesTheUsersChoiceOfItThrow) {
    Form form;
    const support::Translation wrong(c_sClass, {{"nm", "Nanometer"}});

    EXPECT_EQ(units(form), (Lines{"m", "mm", "um", "Nanometer"}));
    EXPECT_EQ(thrownText([&] { form.onComboUnitTextChanged(form.comboUnit->text(3)); }),
              "Invalid unit selected.");
}

} // namespace
