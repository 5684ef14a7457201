#include "TempDir.h"

#include "OrdinaryUser.h"

#include <filesystem>
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>
#include <memory>

using support::TempDir;

TEST(TempDir, IsAFolderOfItsOwn) {
    const TempDir first;
    const TempDir second;

    EXPECT_NE(first.path(), second.path());
    EXPECT_TRUE(std::filesystem::is_directory(first.path()));
    EXPECT_TRUE(std::filesystem::is_empty(first.path()));
}

TEST(TempDir, FilesAreWrittenAndRead) {
    const TempDir dir;

    const std::string path = dir.writeFile("a.txt", std::string("x\0\ny", 4));

    EXPECT_EQ(path, dir.path() + "/a.txt");
    EXPECT_TRUE(dir.exists("a.txt"));
    EXPECT_EQ(dir.read("a.txt"), std::string("x\0\ny", 4));
    EXPECT_EQ(dir.read("b.txt"), "");
}

TEST(TempDir, FoldersAreMadeWithThoseAbove) {
    const TempDir dir;

    dir.makeFolder("a/b");
    dir.writeFile("a/b/c");

    EXPECT_TRUE(dir.exists("a/b/c"));
}

TEST(TempDir, LinksPointToTheirTarget) {
    NOT_ON_WINDOWS(noLinks);
    const TempDir dir;
    dir.writeFile("file", "content");

    dir.makeLink("link", dir.path("file"));

    EXPECT_EQ(dir.read("link"), "content");
}

TEST(TempDir, WhatCannotBeWrittenFailsTheTest) {
    const TempDir dir;

    EXPECT_NONFATAL_FAILURE(dir.writeFile("missing/a.txt"), "missing/a.txt");
}

TEST(TempDir, RemovingTakesAFolderWithItsFiles) {
    const TempDir dir;
    dir.makeFolder("a/b");
    dir.writeFile("a/b/c");

    dir.remove("a");

    EXPECT_FALSE(dir.exists("a"));
}

TEST(TempDir, GoesAlthoughPermissionsWereTakenAway) {
    RUN_AS_ORDINARY_USER();
    auto dir = std::make_unique<TempDir>();
    const std::string path = dir->path();
    dir->makeFolder("a/b");
    dir->writeFile("a/b/c");
    dir->setPermissions("a/b/c", 0000);
    dir->setPermissions("a/b", 0000);
    dir->setPermissions("a", 0500);

    dir.reset();

    EXPECT_FALSE(std::filesystem::exists(path));
}

TEST(TempDir, RemovingDoesNotFollowLinks) {
    NOT_ON_WINDOWS(noLinks);
    const TempDir other;
    other.writeFile("kept");
    auto dir = std::make_unique<TempDir>();
    dir->makeLink("link", other.path());

    dir.reset();

    EXPECT_TRUE(other.exists("kept"));
}
