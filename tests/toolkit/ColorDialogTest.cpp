#include <qt3/ColorDialog.h>

#include "ModalDriver.h"

#include <gtest/gtest.h>
#include <memory>
#include <qwidget.h>

using support::ModalDriver;

namespace {

QColor choose(const QColor& initial, QWidget* parent = nullptr) {
    return qt3::ColorDialog::getColor(initial, parent, "Choose color");
}

} // namespace

TEST(ColorDialog, BeginsWithTheInitialColorUnderItsName) {
    QWidget window(nullptr);
    ModalDriver driver;
    driver.expectColorDialog({"Choose color", "#0a141e"}).under(&window).accept();

    EXPECT_EQ(choose(QColor(10, 20, 30), &window), QColor(10, 20, 30));
}

TEST(ColorDialog, GivesTheColorChosen) {
    ModalDriver driver;
    driver.expectColorDialog({}).accept(QColor(1, 2, 3));

    EXPECT_EQ(choose(QColor(255, 255, 255)), QColor(1, 2, 3));
}

TEST(ColorDialog, GivesAnInvalidColorWhenItsParentIsDestroyed) {
    auto window = std::make_unique<QWidget>(nullptr);
    auto* page = new QWidget(window.get());
    ModalDriver driver;
    driver.expectColorDialog({}).under(page).before([&] { window.reset(); });

    EXPECT_FALSE(choose(QColor(255, 255, 255), page).isValid());

    EXPECT_FALSE(window);
}

TEST(ColorDialog, GivesAnInvalidColorWithoutAChoice) {
    ModalDriver driver;
    driver.expectColorDialog({}).cancel();
    driver.expectColorDialog({}).escape();
    driver.expectColorDialog({}).close();

    EXPECT_FALSE(choose(QColor(255, 255, 255)).isValid());
    EXPECT_FALSE(choose(QColor(255, 255, 255)).isValid());
    EXPECT_FALSE(choose(QColor(255, 255, 255)).isValid());
}
