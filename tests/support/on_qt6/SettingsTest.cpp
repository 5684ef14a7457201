#include <QSettings>
#include <gtest/gtest.h>

TEST(SettingsTest, ThoseOfTheUsersToolkitAreOutOfReach) {
    QSettings settings(QSettings::UserScope, "QtProject");
    ASSERT_EQ(settings.fileName(), "/dev/null/QtProject.conf");

    settings.setValue("test", 1);
    settings.sync();

    EXPECT_EQ(settings.status(), QSettings::AccessError);
}
