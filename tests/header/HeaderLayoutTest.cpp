#include "Form.h"
#include "Looks.h"

#include <gtest/gtest.h>

namespace {

TEST(HeaderLayout, StartsAtItsSizeUnlessItNeedsMore) {
    const Form form;

    EXPECT_EQ(form.size(), QSize(577, 579).expandedTo(form.minimumSizeHint()));
}

TEST(HeaderLayout, HasTheSameSizeAsAChild) {
    QWidget parent;
    const Form form(&parent);

    EXPECT_EQ(form.size(), QSize(577, 579).expandedTo(form.minimumSizeHint()));
}

struct StPolicy {
    const char* sChild;
    qt3::SizeType eHorizontal;
    qt3::SizeType eVertical;
};

void PrintTo(const StPolicy& row, std::ostream* out) {
    *out << row.sChild;
}

class HeaderSizePolicies : public testing::TestWithParam<StPolicy> {};

TEST_P(HeaderSizePolicies, AreSetForBothDirections) {
    Form form;

    const QWidget* child = support::child<QWidget>(&form, GetParam().sChild);

    EXPECT_EQ(support::horizontalPolicy(child), GetParam().eHorizontal);
    EXPECT_EQ(support::verticalPolicy(child), GetParam().eVertical);
}

INSTANTIATE_TEST_SUITE_P(
    , HeaderSizePolicies,
    testing::Values(StPolicy{"groupBox1", QSizePolicy::Preferred, QSizePolicy::Fixed},
                    StPolicy{"textLabel1", QSizePolicy::Preferred, QSizePolicy::Fixed},
                    StPolicy{"textLabel1_3", QSizePolicy::Preferred, QSizePolicy::Fixed},
                    StPolicy{"textLabel1_3_2", QSizePolicy::Preferred, QSizePolicy::Fixed},
                    StPolicy{"comboUnit", QSizePolicy::Fixed, QSizePolicy::Fixed},
                    StPolicy{"descriptionText", QSizePolicy::Expanding, QSizePolicy::Fixed}),
    [](const testing::TestParamInfo<StPolicy>& row) { return row.param.sChild; });

TEST(HeaderLayout, KeepsTheHeightForWidthOfTheSpacingGroup) {
    const Form form;
    const qt3::GroupBox untouched;

    EXPECT_EQ(form.groupBox1->sizePolicy().hasHeightForWidth(),
              untouched.sizePolicy().hasHeightForWidth());
}

TEST(HeaderLayout, HasItsMarginsAndSpacings) {
    Form form;

    EXPECT_EQ(qt3::name(form.CHeaderFieldsWidgetLayout), "CHeaderFieldsWidgetLayout");
    EXPECT_EQ(static_cast<QLayout*>(form.CHeaderFieldsWidgetLayout), form.layout());
    EXPECT_EQ(support::margin(form.CHeaderFieldsWidgetLayout), 11);
    EXPECT_EQ(form.CHeaderFieldsWidgetLayout->spacing(), 6);
    for (qt3::GroupBox* group : {form.groupBox1, form.groupBox2}) {
        EXPECT_EQ(support::margin(group->layout()), 11);
        EXPECT_EQ(group->layout()->spacing(), 6);
    }
    EXPECT_EQ(support::margin(form.groupBox1Layout), 0);
    EXPECT_EQ(form.groupBox1Layout->spacing(), 6);
    EXPECT_EQ(support::margin(form.groupBox2Layout), 0);
    EXPECT_EQ(form.groupBox2Layout->spacing(), 6);
}

TEST(HeaderLayout, AlignsTheFieldsToTheTop) {
    const Form form;

    EXPECT_TRUE(form.groupBox1Layout->alignment() == Qt::AlignTop);
    EXPECT_TRUE(form.groupBox2Layout->alignment() == Qt::AlignTop);
}

TEST(HeaderLayout, EndsWithARowThatHoldsASpacer) {
    Form form;

    EXPECT_EQ(qt3::name(form.layout2), "layout2");
    EXPECT_EQ(support::margin(form.layout2), 0);
    EXPECT_EQ(form.layout2->spacing(), 6);
    EXPECT_EQ(form.spacer1->sizeHint(), QSize(369, 16));
    EXPECT_EQ(form.spacer1->minimumSize(), QSize(0, 16)); // Expanding shrinks, Minimum does not
    EXPECT_EQ(form.layout2->sizeHint(), QSize(369, 16));
    support::show(&form);
    EXPECT_GT(form.layout2->geometry().top(), form.groupBox2->geometry().bottom());
}

TEST(HeaderLayout, PutsTheSpacingInARow) {
    Form form;
    support::show(&form);

    const QWidget* row[] = {form.textLabel1,   form.xSpacingLine,   form.textLabel1_3,
                            form.ySpacingLine, form.textLabel1_3_2, form.zSpacingLine,
                            form.comboUnit};
    for (std::size_t nItem = 1; nItem < std::size(row); ++nItem) {
        EXPECT_GT(row[nItem]->x(), row[nItem - 1]->geometry().right()) << qt3::name(row[nItem]);
        EXPECT_LT(row[nItem]->y(), row[nItem - 1]->geometry().bottom()) << qt3::name(row[nItem]);
    }
}

TEST(HeaderLayout, PutsTheTextsInAColumnBelowTheSpacing) {
    Form form;
    support::show(&form);

    const QWidget* column[] = {form.textLabel2,      form.creatorLine,    form.textLabel2_2,
                               form.descriptionText, form.textLabel2_2_2, form.historyText};
    EXPECT_GT(form.groupBox2->y(), form.groupBox1->geometry().bottom());
    for (std::size_t nItem = 1; nItem < std::size(column); ++nItem) {
        EXPECT_GT(column[nItem]->y(), column[nItem - 1]->geometry().bottom())
            << qt3::name(column[nItem]);
    }
}

TEST(HeaderLayout, GivesNewHeightToTheHistory) {
    Form form;
    support::show(&form);
    const int nDescription = form.descriptionText->height();
    const int nHistory = form.historyText->height();
    const int nSpacing = form.groupBox1->height();

    form.resize(form.width(), form.height() + 100);
    support::processEvents();

    EXPECT_EQ(form.groupBox1->height(), nSpacing);
    EXPECT_EQ(form.descriptionText->height(), nDescription);
    EXPECT_GT(form.historyText->height(), nHistory);
}

} // namespace
