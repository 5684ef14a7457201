#include "Form.h"
#include "ImageHeaders.h"
#include "Looks.h"

#include <gtest/gtest.h>
#include <memory>
#include <qt3/WidgetFunctions.h>

namespace {

using TEVU::CImage;

TEST(CopyOfTheHeaderForm, HasTheSameParentAndName) {
    QWidget parent;
    const Form original(&parent, "header");

    const Form copy(original);

    EXPECT_EQ(copy.parentWidget(), &parent);
    EXPECT_EQ(qt3::name(&copy), "header");
}

TEST(CopyOfTheHeaderForm, TakesOverWhatTheToolkitTells) {
    QWidget parent;
    Form original(&parent);
    original.setGeometry(5, 6, 600, 700);
    original.setEnabled(false);
    original.setCaption("Kopf");

    const Form copy(original);

    EXPECT_EQ(copy.geometry(), QRect(5, 6, 600, 700));
    EXPECT_FALSE(copy.isEnabled());
    EXPECT_EQ(qt3::ascii(copy.caption()), "Kopf");
}

TEST(CopyOfTheHeaderForm, PointsToTheFieldsOfItsOriginal) {
    Form original;

    Form copy(original);

    EXPECT_EQ(copy.groupBox1, original.groupBox1);
    EXPECT_EQ(copy.xSpacingLine, original.xSpacingLine);
    EXPECT_EQ(copy.ySpacingLine, original.ySpacingLine);
    EXPECT_EQ(copy.zSpacingLine, original.zSpacingLine);
    EXPECT_EQ(copy.comboUnit, original.comboUnit);
    EXPECT_EQ(copy.groupBox2, original.groupBox2);
    EXPECT_EQ(copy.creatorLine, original.creatorLine);
    EXPECT_EQ(copy.descriptionText, original.descriptionText);
    EXPECT_EQ(copy.historyText, original.historyText);
    EXPECT_EQ(copy.CHeaderFieldsWidgetLayout, original.CHeaderFieldsWidgetLayout);
    EXPECT_EQ(copy.spacer1, original.spacer1);
    EXPECT_EQ(support::childWidgets(&original), (Fields{"groupBox1", "groupBox2"}));
    EXPECT_EQ(support::childWidgets(&copy), Fields{});
}

TEST(CopyOfTheHeaderForm, WritesIntoTheFieldsOfItsOriginal) {
    Form original;
    Form copy(original);

    copy.SetTextX(1.5);

    EXPECT_EQ(spacingFields(original)[0], "1.5");
}

TEST(CopyOfTheHeaderForm, HasTheUnitOfItsOriginalAndThenItsOwn) {
    Form original;
    original.SetUnit("mm");
    Form copy(original);

    original.onComboUnitTextChanged("nm");

    EXPECT_EQ(factorToMetres(copy), "0.001");
    EXPECT_EQ(factorToMetres(original), "1e-09");
}

TEST(CopyOfTheHeaderForm, HasItsOwnStoredSpacing) {
    Form original;
    original.ReadAttributesFromImage(makeImage(2, {1e-6, 1e-6, 1.0}));
    Form copy(original);
    original.ReadAttributesFromImage(makeImage(2, {2e-6, 1e-6, 1.0}));
    CImage image = makeImage(2, {5.0, 5.0, 1.0});

    EXPECT_TRUE(original.WriteAttributesToImage(image));
    EXPECT_EQ(historyOf(image), "");
    EXPECT_TRUE(copy.WriteAttributesToImage(image)); // the fields now differ from what it has read

    EXPECT_EQ(historyOf(image), "ChangeSpacing((5,5)->(2e-06,1e-06))");
}

TEST(CopyOfTheHeaderForm, LeavesTheUsersUnitChangesToItsOriginal) {
    Form original;
    support::show(&original);
    setSpacingFields(original, {"1", "2", "3"});
    Form copy(original);

    support::giveFocus(original.comboUnit);
    support::keyClick(original.comboUnit, Qt::Key_Down);

    EXPECT_EQ(spacingFields(original), (Fields{"1000", "2000", "3000"}));
    EXPECT_EQ(factorToMetres(copy), "1e-06");
}

/// Counts the events that its filter is asked about.
class CountingForm : public Form {
public:
    bool eventFilter(QObject* watched, QEvent* event) override {
        ++m_nCalls;
        return Form::eventFilter(watched, event);
    }

    int m_nCalls = 0;
};

TEST(CopyOfTheHeaderForm, LeavesTheFilteringToItsOriginal) {
    CountingForm original;
    support::show(&original);
    CountingForm copy(original);
    original.m_nCalls = 0;
    copy.m_nCalls = 0;

    support::giveFocus(original.historyText);
    support::keyClick(original.historyText, Qt::Key_Return, support::Modifier::None, "\r");

    EXPECT_GT(original.m_nCalls, 0);
    EXPECT_EQ(copy.m_nCalls, 0);
    EXPECT_EQ(qt3::ascii(original.historyText->text()), "");
}

TEST(CopyOfTheHeaderForm, FiltersTheFieldsOfItsOriginalWhenInstalled) {
    QWidget parent;
    auto original = std::make_unique<Form>(&parent);
    Form copy(*original);
    qt3::TextEdit* history = original->historyText;
    history->removeEventFilter(original.get());
    history->installEventFilter(&copy);
    support::show(&parent);

    support::giveFocus(history);
    support::keyClick(history, Qt::Key_Return, support::Modifier::None, "\r");

    EXPECT_EQ(qt3::ascii(history->text()), "");
}

TEST(CopyOfTheHeaderForm, MayGoFirst) {
    QWidget parent;
    Form original(&parent);
    setSpacingFields(original, {"1", "2", "3"});
    support::show(&parent);
    auto copy = std::make_unique<Form>(original);

    copy.reset();

    support::giveFocus(original.comboUnit);
    support::keyClick(original.comboUnit, Qt::Key_Down);
    EXPECT_EQ(spacingFields(original), (Fields{"1000", "2000", "3000"}));
    support::giveFocus(original.historyText);
    support::keyClick(original.historyText, Qt::Key_Return, support::Modifier::None, "\r");
    EXPECT_EQ(qt3::ascii(original.historyText->text()), "");
}

TEST(CopyOfTheHeaderForm, MayGoLast) {
    QWidget parent;
    auto original = std::make_unique<Form>(&parent, "header");
    auto copy = std::make_unique<Form>(*original);

    original.reset();
    EXPECT_EQ(support::childWidgets(&parent), Fields{"header"});
    copy.reset();

    EXPECT_EQ(support::childWidgets(&parent), Fields{});
}

TEST(AssignedHeaderForm, PointsToTheFieldsOfTheOtherAndKeepsItsOwnChildren) {
    Form source;
    Form target;

    Form& result = (target = source);

    EXPECT_EQ(&result, &target);
    EXPECT_EQ(target.xSpacingLine, source.xSpacingLine);
    EXPECT_EQ(target.historyText, source.historyText);
    EXPECT_EQ(support::childWidgets(&target), (Fields{"groupBox1", "groupBox2"}));
    EXPECT_EQ(support::childWidgets(&source), (Fields{"groupBox1", "groupBox2"}));
}

TEST(AssignedHeaderForm, TakesOverTheUnit) {
    Form source;
    source.SetUnit("nm");
    Form target;

    target = source;

    EXPECT_EQ(factorToMetres(target), "1e-09");
}

TEST(AssignedHeaderForm, TakesOverTheStoredSpacing) {
    Form source;
    source.ReadAttributesFromImage(makeImage(2, {1e-6, 1e-6, 1.0}));
    Form target;
    target = source;
    CImage image = makeImage(2, {5.0, 5.0, 1.0});

    EXPECT_TRUE(target.WriteAttributesToImage(image));

    EXPECT_EQ(historyOf(image), "");
}

TEST(AssignedHeaderForm, MayBeAssignedToItself) {
    Form form;
    form.SetUnit("nm");
    Form& same = form;

    form = same;

    EXPECT_EQ(factorToMetres(form), "1e-09");
    EXPECT_EQ(support::childWidgets(&form), (Fields{"groupBox1", "groupBox2"}));
}

TEST(AssignedHeaderForm, AndItsSourceMayGoInEitherOrder) {
    for (const bool bSourceFirst : {true, false}) {
        QWidget parent;
        auto source = std::make_unique<Form>(&parent, "source");
        auto target = std::make_unique<Form>(&parent, "target");
        *target = *source;

        (bSourceFirst ? source : target).reset();
        EXPECT_EQ(support::childWidgets(&parent).size(), 1u);
        (bSourceFirst ? target : source).reset();

        EXPECT_EQ(support::childWidgets(&parent), Fields{});
    }
}

} // namespace
