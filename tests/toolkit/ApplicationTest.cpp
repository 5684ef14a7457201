#include <qt3/Application.h>

#include "Events.h"

#include <gtest/gtest.h>

#include <qwidget.h>

#include <memory>

TEST(ApplicationTest, WithoutAnyWindowThereIsNoMainWidget) {
    EXPECT_EQ(qt3::mainWidget(), nullptr);
}

TEST(ApplicationTest, MainWidgetIsTheOneThatWasSet) {
    QWidget main;
    QWidget active;
    qt3::setMainWidget(&main);
    support::show(&active);
    EXPECT_EQ(qt3::mainWidget(), &main);
}

TEST(ApplicationTest, WithoutOneSetItIsTheActiveWindow) {
    QWidget window;
    support::show(&window);
    EXPECT_EQ(qt3::mainWidget(), &window);
}

TEST(ApplicationTest, DestroyedMainWidgetIsForgotten) {
    std::unique_ptr<QWidget> main(new QWidget);
    qt3::setMainWidget(main.get());
    main.reset();
    EXPECT_EQ(qt3::mainWidget(), nullptr);
}

TEST(ApplicationTest, NullUnsetsTheMainWidget) {
    QWidget main;
    qt3::setMainWidget(&main);
    qt3::setMainWidget(nullptr);
    EXPECT_EQ(qt3::mainWidget(), nullptr);
}
