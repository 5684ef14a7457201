#include "ImageHeaderPage.h"

#include "Events.h"
#include "LeastWidth.h"
#include "Options.h"
#include "SignalLog.h"
#include "System.h"
#include "TempDir.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <qt3/Application.h>
#include <qt3/Text.h>
#include <qt3/TextEdit.h>
#include <ruqlib2image/CImage.h>
#include <ruqlib2image/CImageFile.h>

using TEVU::CImage;
using TEVU::CSize;

namespace {

/// The page in a window.
class ImageHeaderPageTest : public testing::Test {
protected:
    ImageHeaderPageTest() {
        support::setVariable("RUQ_REGISTRY", m_dir.path("registry.json"));
        qt3::setMainWidget(&m_window);
        m_pPage = new ImageHeaderPage(&m_window, m_log);
        support::show(&m_window);
    }

    ~ImageHeaderPageTest() override { qt3::setMainWidget(nullptr); }

    std::string message() {
        return qt3::ascii(support::child<qt3::TextEdit>(m_pPage, "message")->text());
    }

    const support::TempDir m_dir;
    QWidget m_window;
    SignalLog m_log{&m_window, "log"};
    ImageHeaderPage* m_pPage;
};

} // namespace

TEST_F(ImageHeaderPageTest, LongPathsDoNotWidenIt) {
    const std::string folder = std::string(100, 'd');
    std::filesystem::create_directory(m_dir.path(folder));
    const std::string path = m_dir.path(folder + '/' + std::string(100, 'f') + ".tif");
    TEVU::CImageFile::Write(CImage(TEVU::IImage::CType::eRGB8, CSize(4, 3)), path);
    const int width = leastWidth(m_pPage);

    EXPECT_TRUE(m_pPage->load(path));
    EXPECT_EQ(message(), "Opened " + path);
    EXPECT_LE(leastWidth(m_pPage), width);

    EXPECT_FALSE(m_pPage->load(path + ".gone"));
    EXPECT_NE(message().find(path + ".gone"), std::string::npos) << message();
    EXPECT_LE(leastWidth(m_pPage), width);
}
