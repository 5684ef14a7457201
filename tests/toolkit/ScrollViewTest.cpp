#include <qt3/ScrollView.h>

#include "Events.h"

#include <qt3/Layout.h>
#include <qt3/LineEdit.h>
#include <qt3/Widget.h>
#include <qt3/WidgetFunctions.h>

#include <gtest/gtest.h>

#include <vector>

namespace {

const int c_nFields = 30;

/// A view over a column of fields that is 300 pixels wide and 900 high.
struct StView {
    StView() {
        auto* column = new qt3::VBoxLayout(child, 0, 6);
        for (int i = 0; i < c_nFields; ++i) {
            fields.push_back(new qt3::LineEdit(child));
            fields.back()->setFixedHeight(24);
            fields.back()->setMinimumWidth(300);
            column->addWidget(fields.back());
        }
        column->addSpacing(6);
        view.setResizePolicy(qt3::ScrollView::AutoOneFit);
        view.addChild(child);
    }

    void show(int width, int height) {
        view.resize(width, height);
        support::show(&view);
    }

    /// Whether the whole field is to be seen.
    bool sees(const QWidget* field) const {
        return view.viewport()->rect().contains(
            QRect(view.viewport()->mapFromGlobal(field->mapToGlobal(QPoint(0, 0))), field->size()));
    }

    qt3::ScrollView view{nullptr, "view"};
    qt3::Widget* child = new qt3::Widget(view.viewport(), "child");
    std::vector<qt3::LineEdit*> fields;
};

} // namespace

TEST(ScrollViewTest, HasItsNameAndOwnsItsChild) {
    const StView view;
    EXPECT_EQ(qt3::name(&view.view), "view");
    EXPECT_EQ(support::child<qt3::Widget>(const_cast<qt3::ScrollView*>(&view.view), "child"),
              view.child);
}

TEST(ScrollViewTest, ChildFillsAViewThatIsLarger) {
    StView view;
    view.show(500, 1000);
    EXPECT_EQ(view.child->size(), view.view.viewport()->size());
    EXPECT_EQ(view.view.viewport()->size(),
              view.view.size() - QSize(2 * view.view.frameWidth(), 2 * view.view.frameWidth()));
}

TEST(ScrollViewTest, ChildKeepsTheHeightThatItNeedsAndScrolls) {
    StView view;
    view.show(500, 200);
    EXPECT_EQ(view.child->height(), 30 * c_nFields);
    EXPECT_EQ(view.child->width(), view.view.viewport()->width());
    EXPECT_LT(view.view.viewport()->width(), 500 - 2 * view.view.frameWidth()); // the scroll bar
    EXPECT_TRUE(view.sees(view.fields.front()));
    EXPECT_FALSE(view.sees(view.fields.back()));
}

TEST(ScrollViewTest, FieldThatTabLeadsToIsScrolledIntoView) {
    StView view;
    view.show(500, 200);
    support::giveFocus(view.fields.front());
    for (int i = 1; i < c_nFields; ++i) {
        support::keyClick(view.fields[i - 1], Qt::Key_Tab, support::Modifier::None, "\t");
        ASSERT_TRUE(view.fields[i]->hasFocus()) << i;
        EXPECT_TRUE(view.sees(view.fields[i])) << i;
    }
}

TEST(ScrollViewTest, TabLeadsToTheFieldsOnly) {
    StView view;
    view.show(500, 200);
    support::giveFocus(view.fields.back());
    support::keyClick(view.fields.back(), Qt::Key_Tab, support::Modifier::None, "\t");
    EXPECT_TRUE(view.fields.front()->hasFocus());
}

TEST(ScrollViewTest, FrameCanBeLeftOut) {
    StView view;
    view.view.setFrameStyle(QFrame::NoFrame);
    view.show(500, 1000);
    EXPECT_EQ(view.view.viewport()->size(), view.view.size());
}
