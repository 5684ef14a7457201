#include "OrdinaryUser.h"

#include "ModalDriver.h"
#include "TempDir.h"

#include <fstream>
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>
#include <qt3/FileDialog.h>
#include <qt3/MessageBox.h>
#include <unistd.h>

TEST(OrdinaryUser, IsNotTheSuperuser) {
    RUN_AS_ORDINARY_USER();

    EXPECT_FALSE(support::isSuperuser());
}

TEST(OrdinaryUser, PermissionsMeanSomething) {
    RUN_AS_ORDINARY_USER();
    const support::TempDir dir;
    const std::string path = dir.writeFile("it", "x");

    dir.setPermissions("it", 0000);
    EXPECT_NE(access(path.c_str(), R_OK), 0);
    dir.setPermissions("it", 0400);
    EXPECT_EQ(access(path.c_str(), R_OK), 0);
    EXPECT_NE(access(path.c_str(), W_OK), 0);
}

TEST(OrdinaryUser, DialogsOpenAsEver) {
    RUN_AS_ORDINARY_USER();
    const support::TempDir dir;
    const std::string path = dir.writeFile("it.png");
    dir.setPermissions("it.png", 0000);
    support::ModalDriver driver;
    driver.expectFileDialog({"opendialog"}).choose(path);
    driver.expectMessage({}).before([&] { dir.setPermissions("it.png", 0400); }).answer("OK");

    const QString chosen =
        qt3::FileDialog::getOpenFileName(path.c_str(), "All (*)", nullptr, "opendialog", "Open");
    qt3::MessageBox::warning(nullptr, "Caption", chosen, qt3::MessageBox::Ok, 0);

    EXPECT_EQ(access(path.c_str(), R_OK), 0);
}

TEST(OrdinaryUser, HasAHomeToWriteTo) {
    RUN_AS_ORDINARY_USER();

    std::ofstream file(std::string(std::getenv("HOME")) + "/ruqgui-test-file");
    EXPECT_TRUE(file);
    std::remove((std::string(std::getenv("HOME")) + "/ruqgui-test-file").c_str());
}

TEST(OrdinaryUser, TestThatFailsThereFailsHere) {
    NOT_ON_WINDOWS(noPermissions);
    if (support::isRerun())
        FAIL() << "on purpose";
    if (!support::isSuperuser())
        GTEST_SKIP() << "there is no other user to become";

    const support::Outcome outcome = support::runCurrentTestAsOrdinaryUser();

    EXPECT_FALSE(outcome.passed);
    EXPECT_NE(outcome.output.find("on purpose"), std::string::npos) << outcome.output;
}
