#include <qt3/Dialog.h>

#include "Events.h"
#include "Looks.h"
#include "ModalDriver.h"

#include <qt3/ComboBox.h>
#include <qt3/Layout.h>
#include <qt3/LineEdit.h>
#include <qt3/MessageBox.h>
#include <qt3/MetaObject.h>
#include <qt3/Pointer.h>
#include <qt3/PushButton.h>
#include <qt3/SpinBox.h>
#include <qt3/Text.h>
#include <qt3/WidgetFunctions.h>

#include <gtest/gtest.h>

#include <functional>

using support::ModalDriver;

namespace {

/// A dialog with a field, OK as its default button, and Cancel.
struct StAsking {
    explicit StAsking(QWidget* parent = nullptr) : dialog(parent, "asking", true) {
        dialog.setCaption("Asking");
        auto* column = new qt3::VBoxLayout(&dialog, 8);
        for (QWidget* const child :
             std::initializer_list<QWidget*>{&field, &spinBox, &comboBox, &other, &ok, &cancel})
            column->addWidget(child);
        comboBox.insertItem("item");
        ok.setDefault(true);
        QObject::connect(&ok, SIGNAL(clicked()), &dialog, SLOT(accept()));
        QObject::connect(&cancel, SIGNAL(clicked()), &dialog, SLOT(reject()));
    }

    /// What exec() gives when the user does that.
    int answerTo(const std::function<void()>& user) {
        ModalDriver driver;
        driver.expectDialog({"asking", "Asking"}).act([&](QWidget*) { user(); });
        return dialog.exec();
    }

    qt3::Dialog dialog;
    qt3::LineEdit field{&dialog};
    qt3::SpinBox spinBox{&dialog};
    qt3::ComboBox comboBox{&dialog};
    qt3::PushButton other{"...", &dialog};
    qt3::PushButton ok{"OK", &dialog};
    qt3::PushButton cancel{"Cancel", &dialog};
};

/// Asks once more, as long as it is there.
class CAskingTwice : public qt3::Dialog {
public:
    explicit CAskingTwice(QWidget* parent) : qt3::Dialog(parent, "first", true) {}

    void accept() override {
        const qt3::Pointer<CAskingTwice> self(this);
        qt3::MessageBox::warning(this, "Second", "Sure?", qt3::MessageBox::Ok, 0);
        if (self)
            qt3::Dialog::accept();
        else
            endExecOfDestroyed();
    }
};

void enter(QWidget* widget) {
    support::giveFocus(widget);
    support::keyClick(widget, Qt::Key_Return, support::Modifier::None, "\r");
}

void escape(QWidget* widget) {
    support::giveFocus(widget);
    support::keyClick(widget, Qt::Key_Escape);
}

} // namespace

TEST(DialogTest, HasItsNameAndParentAndIsAWindow) {
    QWidget window;
    const StAsking asking(&window);
    EXPECT_EQ(qt3::name(&asking.dialog), "asking");
    EXPECT_EQ(asking.dialog.parentWidget(), &window);
    EXPECT_TRUE(support::isDialog(&asking.dialog));
    EXPECT_EQ(qt3::className(&asking.dialog), "QDialog");
}

TEST(DialogTest, IsModalOnlyIfItWasMadeSo) {
    EXPECT_TRUE(StAsking().dialog.isModal());
    const qt3::Dialog other(nullptr, "other");
    EXPECT_FALSE(other.isModal());
}

TEST(DialogTest, ButtonsAnswer) {
    StAsking asking;
    EXPECT_EQ(asking.answerTo([&] { support::mouseClick(&asking.ok); }), qt3::Dialog::Accepted);
    EXPECT_EQ(asking.answerTo([&] { support::mouseClick(&asking.cancel); }), qt3::Dialog::Rejected);
    EXPECT_FALSE(asking.dialog.isVisible());
}

TEST(DialogTest, ClosingIsACancel) {
    StAsking asking;
    EXPECT_EQ(asking.answerTo([&] { asking.dialog.close(); }), qt3::Dialog::Rejected);
}

TEST(DialogTest, EndsWhenItIsDestroyedUnderAnotherOne) {
    auto* const window = new QWidget;
    const qt3::Pointer<CAskingTwice> dialog = new CAskingTwice(window);
    ModalDriver driver;
    driver.expectDialog({"first", ""}).act([](QWidget* first) {
        static_cast<CAskingTwice*>(first)->accept();
    });
    driver.expectWarning({"Second", "Sure?"}).before([=] { delete window; });

    dialog->exec();

    EXPECT_FALSE(dialog);
}

TEST(DialogTest, EscapeIsACancelFromEveryField) {
    StAsking asking;
    for (QWidget* const widget : std::initializer_list<QWidget*>{
             &asking.field, &asking.spinBox, &asking.comboBox, &asking.other, &asking.ok})
        EXPECT_EQ(asking.answerTo([=] { escape(widget); }), qt3::Dialog::Rejected);
}

TEST(DialogTest, ReturnPressesTheDefaultButtonFromEveryField) {
    StAsking asking;
    for (QWidget* const widget :
         std::initializer_list<QWidget*>{&asking.field, &asking.spinBox, &asking.comboBox})
        EXPECT_EQ(asking.answerTo([=] { enter(widget); }), qt3::Dialog::Accepted);
}

TEST(DialogTest, ReturnPressesTheButtonWithTheFocus) {
    StAsking asking;
    EXPECT_EQ(asking.answerTo([&] { enter(&asking.cancel); }), qt3::Dialog::Rejected);
}
