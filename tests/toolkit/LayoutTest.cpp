#include <qt3/Layout.h>

#include "Events.h"

#include <qt3/GroupBox.h>
#include <qt3/Label.h>
#include <qt3/LineEdit.h>
#include <qt3/Text.h>
#include <qt3/WidgetFunctions.h>

#include <gtest/gtest.h>

#include <qwidget.h>

#include <functional>

namespace {

/// A child that takes 20 by 10 pixels.
QWidget* block(QWidget* parent) {
    QWidget* const widget = new QWidget(parent);
    widget->setFixedSize(20, 10);
    return widget;
}

/// Where two blocks stand in a widget. It is no window itself: those have a least width on Windows.
struct StTwoBlocks {
    QWidget around;
    QWidget window{&around};
    QWidget* first = block(&window);
    QWidget* second = block(&window);

    void fill(QBoxLayout* layout) {
        layout->addWidget(first);
        layout->addWidget(second);
    }

    void arrange() {
        window.resize(window.layout()->minimumSize());
        around.resize(300, 200);
        support::show(&around);
    }
};

} // namespace

TEST(LayoutTest, BorderAndSpacingAreInPixels) {
    StTwoBlocks blocks;
    blocks.fill(new qt3::HBoxLayout(&blocks.window, 11, 6, "layout"));
    blocks.arrange();
    EXPECT_EQ(blocks.first->pos(), QPoint(11, 11));
    EXPECT_EQ(blocks.second->pos(), QPoint(11 + 20 + 6, 11));
    EXPECT_EQ(blocks.window.size(), QSize(11 + 20 + 6 + 20 + 11, 11 + 10 + 11));
}

TEST(LayoutTest, WithoutArgumentsThereIsNoRoomAtAll) {
    StTwoBlocks blocks;
    blocks.fill(new qt3::VBoxLayout(&blocks.window));
    blocks.arrange();
    EXPECT_EQ(blocks.first->pos(), QPoint(0, 0));
    EXPECT_EQ(blocks.second->pos(), QPoint(0, 10));
}

TEST(LayoutTest, SpacingNotGivenIsTheBorder) {
    StTwoBlocks blocks;
    blocks.fill(new qt3::HBoxLayout(&blocks.window, 7));
    blocks.arrange();
    EXPECT_EQ(blocks.second->x() - blocks.first->x(), 20 + 7);
}

TEST(LayoutTest, NestedLayoutHasNoMarginAndInheritsTheSpacing) {
    StTwoBlocks blocks;
    QLayout* const outer = new qt3::VBoxLayout(&blocks.window, 3, 5);
    blocks.fill(new qt3::HBoxLayout(outer));
    blocks.arrange();
    EXPECT_EQ(blocks.first->pos(), QPoint(3, 3));
    EXPECT_EQ(blocks.second->pos(), QPoint(3 + 20 + 5, 3));
}

TEST(LayoutTest, LayoutMadeAloneIsNestedLater) {
    StTwoBlocks blocks;
    qt3::VBoxLayout* const outer = new qt3::VBoxLayout(&blocks.window, 3, 5);
    qt3::HBoxLayout* const inner = new qt3::HBoxLayout(nullptr, 0, 6, "layout2");
    outer->addLayout(inner);
    blocks.fill(inner);
    blocks.arrange();
    EXPECT_EQ(blocks.second->pos(), QPoint(3 + 20 + 6, 3));
    EXPECT_EQ(qt3::name(inner), "layout2");
}

TEST(LayoutTest, SpacerPushesItsNeighbours) {
    StTwoBlocks blocks;
    qt3::HBoxLayout* const layout = new qt3::HBoxLayout(&blocks.window);
    layout->addWidget(blocks.first);
    layout->addItem(new qt3::SpacerItem(30, 5, QSizePolicy::Fixed, QSizePolicy::Minimum));
    layout->addWidget(blocks.second);
    blocks.arrange();
    EXPECT_EQ(blocks.second->x(), 20 + 30);
}

TEST(LayoutTest, MarginCanBeChanged) {
    StTwoBlocks blocks;
    qt3::HBoxLayout* const layout = new qt3::HBoxLayout(&blocks.window, 11, 6);
    blocks.fill(layout);
    qt3::setMargin(layout, 2);
    blocks.arrange();
    EXPECT_EQ(blocks.first->pos(), QPoint(2, 2));
}

TEST(GridLayoutTest, BorderAndSpacingAreInPixels) {
    StTwoBlocks blocks;
    qt3::GridLayout* const grid = new qt3::GridLayout(&blocks.window, 2, 2, 11, 6, "grid");
    grid->addWidget(blocks.first, 0, 0);
    grid->addWidget(blocks.second, 1, 1);
    blocks.arrange();
    EXPECT_EQ(blocks.first->pos(), QPoint(11, 11));
    EXPECT_EQ(blocks.second->pos(), QPoint(11 + 20 + 6, 11 + 10 + 6));
    EXPECT_EQ(qt3::name(grid), "grid");
}

TEST(GridLayoutTest, WithoutArgumentsThereIsNoRoomAtAll) {
    StTwoBlocks blocks;
    qt3::GridLayout* const grid = new qt3::GridLayout(&blocks.window);
    grid->addWidget(blocks.first, 0, 0);
    grid->addWidget(blocks.second, 0, 1);
    blocks.arrange();
    EXPECT_EQ(blocks.first->pos(), QPoint(0, 0));
    EXPECT_EQ(blocks.second->pos(), QPoint(20, 0));
}

TEST(GridLayoutTest, GrowsBeyondTheRowsAndColumnsGiven) {
    StTwoBlocks blocks;
    qt3::GridLayout* const grid = new qt3::GridLayout(&blocks.window, 1, 1);
    grid->addWidget(blocks.first, 0, 0);
    grid->addWidget(blocks.second, 3, 2);
    blocks.arrange();
    EXPECT_EQ(blocks.second->pos(), QPoint(20, 10));
}

TEST(GridLayoutTest, NestedHasNoMarginAndInheritsTheSpacing) {
    StTwoBlocks blocks;
    qt3::VBoxLayout* const outer = new qt3::VBoxLayout(&blocks.window, 3, 5);
    qt3::GridLayout* const grid = new qt3::GridLayout(outer, 1, 2);
    grid->addWidget(blocks.first, 0, 0);
    grid->addWidget(blocks.second, 0, 1);
    blocks.arrange();
    EXPECT_EQ(blocks.first->pos(), QPoint(3, 3));
    EXPECT_EQ(blocks.second->pos(), QPoint(3 + 20 + 5, 3));
}

TEST(GridLayoutTest, AWidgetCanTakeSeveralCells) {
    QWidget around;
    QWidget window(&around);
    qt3::GridLayout* const grid = new qt3::GridLayout(&window, 2, 2, 0, 4);
    grid->addWidget(block(&window), 0, 0);
    grid->addWidget(block(&window), 0, 1);
    QWidget* const wide = new QWidget(&window);
    grid->addMultiCellWidget(wide, 1, 1, 0, 1);
    wide->setMinimumHeight(8);
    window.resize(grid->minimumSize());
    support::show(&around);
    EXPECT_EQ(wide->geometry(), QRect(0, 14, 44, 8));
}

TEST(GridLayoutTest, AColumnThatStretchesTakesTheRoom) {
    QWidget around;
    QWidget window(&around);
    qt3::GridLayout* const grid = new qt3::GridLayout(&window, 1, 2);
    grid->setColStretch(1, 1);
    QWidget* const first = block(&window);
    QWidget* const second = new QWidget(&window);
    grid->addWidget(first, 0, 0);
    grid->addWidget(second, 0, 1);
    window.resize(100, 30);
    support::show(&around);
    EXPECT_EQ(second->x(), 20);
    EXPECT_EQ(second->width(), 80);
}

namespace {

/// A group box with a row inside, as the header editor has one.
struct StGroup {
    QWidget window;
    qt3::GroupBox box{&window, "groupBox1"};
    QWidget* first = block(&box);
    QWidget* second = block(&box);

    void fill() {
        qt3::HBoxLayout* const row = new qt3::HBoxLayout(box.layout());
        row->setAlignment(Qt::AlignTop);
        row->addWidget(first);
        row->addWidget(second);
        box.resize(box.minimumSizeHint());
        support::show(&window);
    }
};

} // namespace

TEST(GroupBoxTest, HasItsNameAndTitle) {
    StGroup group;
    group.box.setTitle(qt3::fromAscii("Spacing"));
    EXPECT_EQ(qt3::name(&group.box), "groupBox1");
    EXPECT_EQ(qt3::ascii(group.box.title()), "Spacing");
}

namespace {

/// How far a margin moves the row; the frame around it is the style's.
int rowOffset(const std::function<void(QLayout*)>& adjust) {
    StGroup bare;
    bare.box.setColumnLayout(0, Qt::Vertical);
    qt3::setMargin(bare.box.layout(), 0);
    bare.fill();
    StGroup adjusted;
    adjusted.box.setColumnLayout(0, Qt::Vertical);
    adjust(adjusted.box.layout());
    adjusted.fill();
    return adjusted.first->x() - bare.first->x();
}

} // namespace

TEST(GroupBoxTest, ColumnLayoutStartsWithMargin11) {
    EXPECT_EQ(rowOffset([](QLayout*) {}), 11);
}

TEST(GroupBoxTest, MarginOfTheColumnLayoutCanBeChanged) {
    EXPECT_EQ(rowOffset([](QLayout* layout) { qt3::setMargin(layout, 15); }), 15);
}

TEST(GroupBoxTest, ColumnLayoutStartsWithSpacing0) {
    StGroup group;
    group.box.setColumnLayout(0, Qt::Vertical);
    group.fill();
    EXPECT_EQ(group.second->x() - group.first->x(), 20);
}

TEST(GroupBoxTest, RowInsideInheritsTheSpacing) {
    StGroup group;
    group.box.setColumnLayout(0, Qt::Vertical);
    group.box.layout()->setSpacing(6);
    group.fill();
    EXPECT_EQ(group.second->x() - group.first->x(), 20 + 6);
}

TEST(GroupBoxTest, TitleHasRoomAboveTheRow) {
    StGroup group;
    group.box.setTitle(qt3::fromAscii("Spacing"));
    group.box.setColumnLayout(0, Qt::Vertical);
    group.fill();
    EXPECT_GE(group.first->y(), group.box.fontMetrics().height());
}

TEST(LabelTest, MarkupIsShownAsItIs) {
    qt3::Label plain(qt3::fromAscii("<b>x</b>"), nullptr, "label");
    qt3::Label shorter(qt3::fromAscii("x"), nullptr);
    EXPECT_EQ(qt3::name(&plain), "label");
    EXPECT_GT(plain.sizeHint().width(), 3 * shorter.sizeHint().width());
}

TEST(LabelTest, WithABuddyTheAmpersandMarksAKey) {
    QWidget window;
    qt3::LineEdit field(&window);
    qt3::Label marked(qt3::fromAscii("&Name:"), &window);
    qt3::Label plain(qt3::fromAscii("Name:"), &window);
    const int asTyped = marked.sizeHint().width();
    EXPECT_GT(asTyped, plain.sizeHint().width());
    marked.setBuddy(&field);
    EXPECT_EQ(marked.buddy(), &field);
    EXPECT_LT(marked.sizeHint().width(), asTyped);
}

TEST(LabelTest, TextStandsAtTheLeftInTheMiddleOfTheHeight) {
    qt3::Label label(nullptr);
    const int vertical = Qt::AlignTop | Qt::AlignBottom | Qt::AlignVCenter;
    const int horizontal = Qt::AlignRight | Qt::AlignHCenter;
    EXPECT_EQ(int(label.alignment()) & vertical, int(Qt::AlignVCenter));
    EXPECT_EQ(int(label.alignment()) & horizontal, 0);
}
