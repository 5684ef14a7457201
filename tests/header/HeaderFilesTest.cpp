#include "Form.h"
#include "ImageHeaders.h"
#include "ModalDriver.h"
#include "Programs.h"
#include "TempDir.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <ruqlib2core/CValueMap.h>
#include <ruqlib2image/CImage.h>
#include <ruqlib2image/CImageFile.h>
#include <ruqlib2image/COrunHeaderTools.h>

namespace {

using TEVU::CImage;
using TEVU::CImageFile;
using TEVU::COrunHeaderTools;

/// Real files, and a user who edits their headers. Programs that know nothing of this library make
/// the files and look at what has become of them.
class HeaderFiles : public testing::Test {
protected:
    HeaderFiles() { support::show(&m_form); }

    std::string file(const char* name) const { return m_dir.path(name); }

    /// What another program prints that is run in the folder of the files.
    std::string run(const std::string& command) const {
        return programs::run(m_dir.path(), command);
    }

    static std::string nameIn(const std::string& path) {
        return std::filesystem::path(path).filename().string();
    }

    /// A page of 8 by 6 pixels of 254 dots an inch: 100 micrometres each way.
    std::string makePage() const {
        run("convert -size 8x6 gradient:black-white -depth 8 -density 254 -units PixelsPerInch "
            "page.tif");
        return file("page.tif");
    }

    /// Three such pages of 1 micrometre each way, 2 micrometres apart.
    std::string makeStack() const {
        run("convert -size 8x6 gradient:black-white -depth 8 '(' +clone -negate ')' "
            "'(' +clone -flip ')' -density 10000 -units PixelsPerCentimeter "
            "-set comment 'unit=um\nspacing=2.0\n' stack.tif");
        return file("stack.tif");
    }

    /// The pixels of a file, page by page, as another program reads them.
    std::string pixels(const std::string& path) const {
        return run("identify -format '%wx%h %#\n' " + nameIn(path));
    }

    /// The dots per centimetre as another program reads them, page by page.
    std::string resolution(const std::string& path) const {
        return run("identify -units PixelsPerCentimeter -format '%x %y\n' " + nameIn(path));
    }

    void chooseUnit(std::initializer_list<int> keys) {
        support::giveFocus(m_form.comboUnit);
        for (const int nKey : keys)
            support::keyClick(m_form.comboUnit, nKey);
    }

    void save(CImage& image, const std::string& path) {
        EXPECT_TRUE(m_form.WriteAttributesToImage(image));
        CImageFile::Write(image, path);
    }

    const support::TempDir m_dir;
    Form m_form;
};

TEST_F(HeaderFiles, SpacingOfAPageIsShownEditedAndSaved) {
    const std::string page = makePage();
    CImage image = CImageFile::Read(page);
    m_form.ReadAttributesFromImage(image);
    EXPECT_EQ(shownUnit(m_form), "um");
    EXPECT_EQ(spacingFields(m_form), (Fields{"100", "100", ""}));

    retype(m_form.xSpacingLine, "50");
    save(image, file("saved.tif"));

    EXPECT_EQ(resolution(file("saved.tif")), "200 100\n");
    EXPECT_EQ(pixels(file("saved.tif")), pixels(page));
}

TEST_F(HeaderFiles, HistoryTellsTheNewSpacing) {
    CImage image = CImageFile::Read(makePage());
    m_form.ReadAttributesFromImage(image);

    retype(m_form.xSpacingLine, "50");
    save(image, file("saved.tif"));

    EXPECT_EQ(historyOf(CImageFile::Read(file("saved.tif"))),
              "ChangeSpacing((0.0001,0.0001)->(5e-05,0.0001))");
}

TEST_F(HeaderFiles, UnitChosenBeforeTheEditIsTheUnitOfTheEdit) {
    CImage image = CImageFile::Read(makePage());
    m_form.ReadAttributesFromImage(image);

    chooseUnit({Qt::Key_Up});
    EXPECT_EQ(spacingFields(m_form), (Fields{"0.1", "0.1", ""}));
    retype(m_form.ySpacingLine, "0.25");
    save(image, file("saved.tif"));

    EXPECT_EQ(resolution(file("saved.tif")), "100 40\n");
    EXPECT_EQ(historyOf(CImageFile::Read(file("saved.tif"))),
              "ChangeSpacing((0.0001,0.0001)->(0.0001,0.00025))");
}

TEST_F(HeaderFiles, TextsTypedAreTextsSaved) {
    CImage image = CImageFile::Read(makePage());
    m_form.ReadAttributesFromImage(image);

    retype(m_form.creatorLine, "Ada");
    support::giveFocus(m_form.descriptionText);
    support::typeText(m_form.descriptionText, "grey\nramp"); // Return is not taken
    support::giveFocus(m_form.historyText);
    support::typeText(m_form.historyText, "Made");
    save(image, file("saved.tif"));

    const std::string info = run("tiffinfo saved.tif");
    EXPECT_NE(info.find("Artist: Ada\n"), std::string::npos) << info;
    EXPECT_NE(info.find("ImageDescription: greyramp\n"), std::string::npos) << info;
    const CImage again = CImageFile::Read(file("saved.tif"));
    Form form;
    form.ReadAttributesFromImage(again);
    EXPECT_EQ(qt3::ascii(form.creatorLine->text()), "Ada");
    EXPECT_EQ(qt3::ascii(form.descriptionText->text()), "greyramp");
    EXPECT_EQ(qt3::ascii(form.historyText->text()), "Made");
}

TEST_F(HeaderFiles, UntouchedPageKeepsItsSpacingAndGetsNoEntry) {
    const std::string page = makePage();
    CImage image = CImageFile::Read(page);
    m_form.ReadAttributesFromImage(image);

    save(image, file("saved.tif"));

    EXPECT_EQ(resolution(file("saved.tif")), resolution(page));
    EXPECT_EQ(pixels(file("saved.tif")), pixels(page));
    EXPECT_EQ(historyOf(CImageFile::Read(file("saved.tif"))), "");
}

TEST_F(HeaderFiles, SpacingOfAStackIsShownEditedAndSaved) {
    const std::string stack = makeStack();
    CImage image = CImageFile::Read(stack);
    m_form.ReadAttributesFromImage(image);
    EXPECT_EQ(shownUnit(m_form), "um");
    EXPECT_EQ(spacingFields(m_form), (Fields{"1", "1", "2"}));

    chooseUnit({Qt::Key_End});
    EXPECT_EQ(spacingFields(m_form), (Fields{"1000", "1000", "2000"}));
    retype(m_form.zSpacingLine, "1000");
    save(image, file("saved.tif"));

    const CImage again = CImageFile::Read(file("saved.tif"));
    EXPECT_EQ(historyOf(again), "ChangeSpacing((1e-06,1e-06,2e-06)->(1e-06,1e-06,1e-06))");
    EXPECT_EQ(resolution(file("saved.tif")), "10000 10000\n10000 10000\n10000 10000\n");
    EXPECT_EQ(pixels(file("saved.tif")), pixels(stack));
    Form form;
    form.ReadAttributesFromImage(again);
    EXPECT_EQ(shownUnit(form), "um");
    EXPECT_EQ(spacingFields(form), (Fields{"1", "1", "1"}));
}

TEST_F(HeaderFiles, FeaturesOfAFileGoWithTheOldSpacingOnlyIfTheUserAgrees) {
    CImage withFeatures = CImageFile::Read(makePage());
    withFeatures.Header().SetEntry(COrunHeaderTools::c_sTagFeatures, new TEVU::CValueMap);
    CImageFile::Write(withFeatures, file("features.tif"));
    CImage image = CImageFile::Read(file("features.tif"));
    m_form.ReadAttributesFromImage(image);
    retype(m_form.xSpacingLine, "50");
    support::ModalDriver driver;
    driver.expectWarning({"Remove computed features?"}).answer("No");
    driver.expectWarning({"Remove computed features?"}).answer("Yes");

    EXPECT_FALSE(m_form.WriteAttributesToImage(image));
    EXPECT_TRUE(image.Header().HasEntry(COrunHeaderTools::c_sTagFeatures));
    save(image, file("saved.tif"));

    const CImage again = CImageFile::Read(file("saved.tif"));
    EXPECT_FALSE(again.Header().HasEntry(COrunHeaderTools::c_sTagFeatures));
    EXPECT_EQ(resolution(file("saved.tif")), "200 100\n");
}

} // namespace
