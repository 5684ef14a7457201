#include "Options.h"

#include <gtest/gtest.h>
#include <stdexcept>

namespace {

std::string complaintAbout(const std::vector<std::string>& arguments) {
    try {
        parseOptions(arguments);
    } catch (const std::runtime_error& error) {
        return error.what();
    }
    return "";
}

} // namespace

TEST(OptionsTest, NothingIsAskedForWithoutArguments) {
    const Options options = parseOptions({});

    EXPECT_TRUE(options.m_images.empty());
    EXPECT_EQ(options.m_sPage, "");
    EXPECT_EQ(options.m_sScreenshots, "");
}

TEST(OptionsTest, EachOptionTakesTheArgumentBehindIt) {
    const Options options =
        parseOptions({"--page", "Files", "--image", "a b.tif", "--screenshots", "shots"});

    EXPECT_EQ(options.m_images, std::vector<std::string>{"a b.tif"});
    EXPECT_EQ(options.m_sPage, "Files");
    EXPECT_EQ(options.m_sScreenshots, "shots");
}

TEST(OptionsTest, TheLastOneOfSeveralCounts) {
    EXPECT_EQ(parseOptions({"--page", "Files", "--page", "Sliders"}).m_sPage, "Sliders");
}

TEST(OptionsTest, SeveralImagesStayInTheirOrder) {
    EXPECT_EQ(parseOptions({"--image", "b.tif", "--page", "Data", "--image", "a.tif"}).m_images,
              (std::vector<std::string>{"b.tif", "a.tif"}));
}

TEST(OptionsTest, WhatIsUnknownIsNamed) {
    EXPECT_EQ(complaintAbout({"--imgae", "a.tif"}), "Unknown option '--imgae'. Try --help.");
    EXPECT_EQ(complaintAbout({"a.tif"}), "Unknown option 'a.tif'. Try --help.");
}

TEST(OptionsTest, AMissingOrEmptyValueIsAComplaint) {
    EXPECT_EQ(complaintAbout({"--image"}), "Option '--image' needs a value. Try --help.");
    EXPECT_EQ(complaintAbout({"--page", ""}), "Option '--page' needs a value. Try --help.");
}

TEST(OptionsTest, HelpIsFoundAnywhere) {
    EXPECT_TRUE(asksForHelp({"--page", "Files", "--help"}));
    EXPECT_TRUE(asksForHelp({"-h"}));
    EXPECT_FALSE(asksForHelp({"--page", "help"}));
}

TEST(OptionsTest, HelpNamesEveryOptionAndEveryPage) {
    const std::string text = usage({"Image header", "Files"});

    for (const char* word :
         {"--image", "--page", "--screenshots", "--help", "\"Image header\"", "\"Files\""})
        EXPECT_NE(text.find(word), std::string::npos) << word;
}
