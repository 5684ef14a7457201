#include "Looks.h"

#include "Events.h"

#include <gtest/gtest.h>
#include <qlineedit.h>
#include <qpushbutton.h>
#include <qt3/Layout.h>
#include <qt3/Widget.h>
#include <qt3/WidgetFunctions.h>

TEST(Looks, ChildrenComeInTheOrderOfTheirMakingWithoutGrandchildren) {
    QWidget parent;
    qt3::Widget second(&parent, "second");
    const qt3::Widget grandchild(&second, "grandchild");
    const qt3::Widget first(&parent, "first");

    EXPECT_EQ(support::childWidgets(&parent), (std::vector<std::string>{"second", "first"}));
}

TEST(Looks, TellTheTwoSizePoliciesApart) {
    QWidget widget;
    widget.setSizePolicy(QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding));

    EXPECT_EQ(support::horizontalPolicy(&widget), QSizePolicy::Fixed);
    EXPECT_EQ(support::verticalPolicy(&widget), QSizePolicy::Expanding);
}

TEST(Looks, TellTheMarginOfALayout) {
    QWidget widget;
    qt3::VBoxLayout layout(&widget, 7, 3);

    EXPECT_EQ(support::margin(&layout), 7);
}

TEST(Looks, TellTheToolTipOfAWidgetOrOfWhatIsAroundIt) {
    QWidget parent;
    qt3::Widget child(&parent);
    EXPECT_EQ(support::toolTip(&child), "");

    qt3::setToolTip(&parent, "outer");
    EXPECT_NE(support::toolTip(&child).find("outer"), std::string::npos);

    qt3::setToolTip(&child, "inner");
    EXPECT_NE(support::toolTip(&child).find("inner"), std::string::npos);
    EXPECT_NE(support::toolTip(&parent).find("outer"), std::string::npos);
}

TEST(Looks, TellADialogFromAChild) {
    QWidget parent;
    const qt3::Widget child(&parent);
    const qt3::Widget dialog(&parent, "dialog", support::dialogFlag());

    EXPECT_FALSE(support::isDialog(&child));
    EXPECT_TRUE(support::isDialog(&dialog));
}

TEST(Looks, ButtonTextIsSetForOneStateOnly) {
    QPushButton button(nullptr);
    const QColor before = qt3::colorGroup(&button, QPalette::Active).buttonText();
    support::setButtonText(&button, QPalette::Disabled, QColor(1, 2, 3));
    EXPECT_EQ(qt3::colorGroup(&button, QPalette::Disabled).buttonText(), QColor(1, 2, 3));
    EXPECT_EQ(qt3::colorGroup(&button, QPalette::Active).buttonText(), before);
    EXPECT_NE(before, QColor(1, 2, 3));
}

TEST(Looks, TellCursorAndSelectionOfATextEdit) {
    qt3::TextEdit edit(nullptr);
    edit.setText("ab\ncd\nef");
    support::keepLinesWhole(&edit);
    support::giveFocus(&edit);
    EXPECT_EQ(support::cursorOf(&edit), 0);

    support::keyClick(&edit, Qt::Key_Down);
    support::keyClick(&edit, Qt::Key_Right);
    EXPECT_EQ(support::cursorOf(&edit), 4);

    support::keyClick(&edit, Qt::Key_Right, support::Modifier::Shift);
    support::keyClick(&edit, Qt::Key_Right, support::Modifier::Shift);
    EXPECT_EQ(support::selectionOf(&edit), "d\n");
}
