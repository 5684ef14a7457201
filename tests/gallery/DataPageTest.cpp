#include "DataPage.h"

#include "Events.h"
#include "LeastWidth.h"
#include "ModalDriver.h"
#include "Options.h"
#include "SignalLog.h"
#include "System.h"
#include "TempDir.h"
#include "Warnings.h"

#include <gtest/gtest.h>
#include <qt3/Application.h>
#include <qt3/CheckBox.h>
#include <qt3/ComboBox.h>
#include <qt3/Label.h>
#include <qt3/LineEdit.h>
#include <qt3/PushButton.h>
#include <qt3/Text.h>
#include <qt3/TextEdit.h>
#include <ruqlib2core/CException.h>
#include <ruqlib2core/CPluginBase.h>
#include <ruqlib2core/CValueBool.h>
#include <ruqlib2core/CValueDouble.h>
#include <ruqlib2core/CValueLong.h>
#include <ruqlib2core/CValueMap.h>
#include <ruqlib2core/CValueString.h>
#include <ruqlib2core/CValueVector.h>
#include <ruqlib2image/CImage.h>
#include <ruqlib2image/CImageFile.h>

using TEVU::CImage;
using TEVU::CSize;
using TEVU::CValueMap;
using Type = TEVU::IImage::CType;

namespace {

const char c_plugin[] = "plugwdgt_orunparamdlg::autodlg";

/// The page in a window, used as a user does.
class DataPageTest : public testing::Test {
protected:
    DataPageTest() {
        support::setVariable("RUQ_REGISTRY", m_dir.path("registry.json"));
        qt3::setMainWidget(&m_window);
    }

    ~DataPageTest() override { qt3::setMainWidget(nullptr); }

    void open(const std::vector<std::string>& images = {}) {
        Options options;
        options.m_images = images;
        m_pPage = createDataPage(&m_window, m_log, options);
        m_pPage->resize(900, 600);
        m_window.resize(900, 600);
        support::show(&m_window);
    }

    std::string makeImage(const std::string& name, const Type& type, const CSize& size) const {
        TEVU::CImageFile::Write(CImage(type, size), m_dir.path(name));
        return m_dir.path(name);
    }

    void click(const char* name) {
        support::mouseClick(support::child<qt3::PushButton>(&m_window, name));
    }

    /// By its text.
    qt3::CheckBox* box(const std::string& text) {
        for (QObject* object : qt3::descendants(&m_window)) {
            auto* const box = dynamic_cast<qt3::CheckBox*>(object);
            if (box && qt3::ascii(box->text()) == text)
                return box;
        }
        ADD_FAILURE() << "no box " << text;
        return nullptr;
    }

    void tick(const std::string& text, bool on = true) { box(text)->setChecked(on); }

    void typeSizes(const char* sizes) {
        support::child<qt3::LineEdit>(&m_window, "sizes")->setText(sizes);
    }

    std::string label(const char* name) {
        return qt3::ascii(support::child<qt3::Label>(&m_window, name)->text());
    }

    std::string pane(const char* name) {
        return qt3::ascii(support::child<qt3::TextEdit>(&m_window, name)->text());
    }

    void loadSample(int index) {
        support::child<qt3::ComboBox>(&m_window, "samples")->setCurrentItem(index);
        const support::Warnings warnings; // the toolkit's own lines are not ours
        testing::internal::CaptureStderr();
        click("loadSample");
        m_sConsole = testing::internal::GetCapturedStderr();
    }

    const support::TempDir m_dir;
    QWidget m_window;
    SignalLog m_log{&m_window, "log"};
    QWidget* m_pPage = nullptr;
    support::ModalDriver m_user;
    std::string m_sConsole;
};

const char c_sample[] = "sample  (96 x 96 x 9, 8-bit)\n";
const char c_sample2[] = "sample 2  (640 x 480, 16-bit)\n";

const char c_notice[] = ": Future version of gallery settings file format  detected.\n"
                        "Some features my be unsupported";

/// A plug-in without a dialog, whose user enters one parameter, or cancels.
template <bool cancels>
class CQuickPlugin : public TEVU::CPluginBase {
public:
    void Init(TEVU::CValue*, CValueMap&) override {}
    void Setup(CValueMap&) override {}
    void Execute(CValueMap& setup) override {
        auto* const filter = new CValueMap;
        filter->SetEntry("radius", new TEVU::CValueDouble(0.5));
        auto* const list = new TEVU::CValueVector;
        list->SetEntry(0, new TEVU::CValueString("a.tif"));
        auto& parameters = dynamic_cast<CValueMap&>(*setup.Entry("parameters", true));
        parameters.SetEntry("filter", filter);
        parameters.SetEntry("references", list);
        parameters.SetEntry("results", new TEVU::CValueVector);
        parameters.SetEntry("smallest", new TEVU::CValueLong(8));
        parameters.SetEntry("show", new TEVU::CValueBool(true));
        setup.SetEntry("cancelled", new TEVU::CValueBool(cancels));
    }
};

template <bool cancels>
TEVU::CPluginBase* createQuick() {
    return new CQuickPlugin<cancels>;
}

TEVU::CPluginBase* createNone() {
    throw TEVU::CException("test", "the library is not here");
}

support::Message formatError(const std::string& text) {
    return {"Format error of gallery settings", text};
}

support::Message notice(const std::string& file) {
    return {"Future version of gallery settings file format  detected", "File " + file + c_notice};
}

} // namespace

TEST_F(DataPageTest, SamplesOfAllowedTypesAreListed) {
    open();
    EXPECT_EQ(pane("images"), c_sample);
    EXPECT_EQ(label("imagesCount"), "1 of 2 open images");

    tick("16-bit");
    EXPECT_EQ(pane("images"), std::string(c_sample) + c_sample2);
    tick("8-bit", false);
    EXPECT_EQ(pane("images"), c_sample2);
    tick("16-bit", false);
    EXPECT_EQ(pane("images"), "");
    tick("Only these types:", false);
    EXPECT_EQ(label("imagesCount"), "2 of 2 open images");
}

TEST_F(DataPageTest, ImagesOfAllowedSizesAreListed) {
    open();
    tick("Only these types:", false);
    tick("Only these sizes:");
    EXPECT_EQ(pane("images"), std::string(c_sample) + c_sample2);
    typeSizes("640x480");
    EXPECT_EQ(pane("images"), c_sample2);
    typeSizes("");
    EXPECT_EQ(pane("images"), "");
}

TEST_F(DataPageTest, TextThatIsNoSizeIsNamed) {
    open();
    typeSizes("96 x 96 x 9, 640 by 480");
    EXPECT_EQ(label("sizesMessage"), "This is no size: 640 by 480");
    typeSizes("96 x 96 x 9, 640 x 480");
    EXPECT_EQ(label("sizesMessage"), "Separate sizes by commas");
}

TEST_F(DataPageTest, ImagesFromTheCommandLineAreListedUnderTheirNames) {
    m_dir.makeFolder("other");
    open({makeImage("a.tif", Type::eUInt8, CSize(4, 3)),
          makeImage("other/a.tif", Type::eUInt8, CSize(5, 3, 2))});
    EXPECT_EQ(pane("images"),
              std::string("a.tif  (4 x 3, 8-bit)\na.tif 2  (5 x 3 x 2, 8-bit)\n") + c_sample);
    EXPECT_EQ(pane("imagesMessages"), "Opened a.tif\nOpened a.tif\n");
}

TEST_F(DataPageTest, FileThatIsNoImageIsToldAndTheOthersAreOpened) {
    open({m_dir.writeFile("broken.tif", "II*"), makeImage("a.tif", Type::eUInt8, CSize(4, 3))});
    EXPECT_EQ(label("imagesCount"), "2 of 3 open images");
    EXPECT_NE(pane("imagesMessages").find("broken.tif"), std::string::npos);
    EXPECT_NE(pane("imagesMessages").find("Opened a.tif"), std::string::npos);
}

TEST_F(DataPageTest, ImagesOpenedInTheDialogAreListed) {
    const std::string a = makeImage("a.tif", Type::eUInt16, CSize(4, 3));
    const std::string b = makeImage("b.tif", Type::eUInt8, CSize(2, 2));
    open();
    m_user.expectFileDialog({}).chooseSeveral({a, b});
    click("openImages");
    EXPECT_EQ(pane("images"), std::string("b.tif  (2 x 2, 8-bit)\n") + c_sample);
    tick("16-bit");
    EXPECT_EQ(label("imagesCount"), "4 of 4 open images");

    m_user.expectFileDialog({}).cancel();
    click("openImages");
    EXPECT_EQ(label("imagesCount"), "4 of 4 open images");
}

TEST_F(DataPageTest, SampleOfTheSameVersionLoadsSilently) {
    open();
    loadSample(0);
    EXPECT_EQ(m_sConsole, "");
    EXPECT_EQ(label("settingsMessage"), "Loaded same-version.settings. Without its stamp:");
    EXPECT_EQ(pane("settingsEntries"),
              "check sizes = false\ncheck types = true\n"
              "sizes = \"96 x 96 x 9, 640 x 480\"\ntypes = \"8-bit, 16-bit\"\n");
    EXPECT_EQ(label("imagesCount"), "2 of 2 open images");
}

TEST_F(DataPageTest, SampleOfAnOlderVersionLoadsSilently) {
    open();
    loadSample(1);
    EXPECT_EQ(m_sConsole, "");
    EXPECT_TRUE(box("Only these sizes:")->isChecked());
    EXPECT_EQ(pane("images"), c_sample);
}

TEST_F(DataPageTest, SampleOfAFutureVersionLoadsWithANotice) {
    open();
    m_user.expectInformation(notice("future-version.settings")).under(&m_window).answer("OK");
    loadSample(2);
    EXPECT_EQ(m_sConsole, std::string("gallery: File future-version.settings") + c_notice + '\n');
    EXPECT_EQ(pane("images"), c_sample2);
}

TEST_F(DataPageTest, SampleOfACompatibleFamilyLoadsIfTheUserWantsIt) {
    open();
    const std::string question =
        "File compatible-family.settings: not a gallery settings file, but "
        "of type 'ruqgui gallery:session:3'. Load anyway?";
    m_user.expectInformation(formatError(question)).answer("Cancel");
    loadSample(3);
    EXPECT_EQ(label("settingsMessage"), "Not loaded: compatible-family.settings. It holds:");
    EXPECT_EQ(pane("images"), c_sample);

    m_user.expectInformation(formatError(question)).answer("OK");
    loadSample(3);
    EXPECT_EQ(label("settingsMessage"), "Loaded compatible-family.settings. Without its stamp:");
    EXPECT_EQ(pane("settingsEntries"), "check types = true\npage = \"Data\"\ntypes = \"16-bit\"\n");
    EXPECT_EQ(pane("images"), c_sample2);
}

TEST_F(DataPageTest, SampleOfACompatibleFutureShowsBothBoxes) {
    open();
    m_user.expectInformation({"Format error of gallery settings"}).answer("OK");
    m_user.expectInformation(notice("compatible-future.settings")).answer("OK");
    loadSample(4);
    EXPECT_EQ(label("imagesCount"), "2 of 2 open images");
}

TEST_F(DataPageTest, ForeignSampleIsRefused) {
    open();
    m_user
        .expectWarning(formatError("Failed to load foreign.settings: not a gallery settings file, "
                                   "but of type 'scanner:profile:1'."))
        .answer("OK");
    loadSample(5);
    EXPECT_EQ(label("settingsMessage"), "Not loaded: foreign.settings. It holds:");
    EXPECT_EQ(pane("settingsEntries"), "id = \"scanner:profile:1\"\nversion = \"1.2\"\n"
                                       "voltage = 120\n");
    EXPECT_EQ(pane("images"), c_sample);
}

TEST_F(DataPageTest, SampleWithoutAStampLoadsSilently) {
    open();
    loadSample(6);
    EXPECT_EQ(m_sConsole, "");
    EXPECT_EQ(pane("images"), "");
    EXPECT_TRUE(box("RGB")->isChecked());
}

TEST_F(DataPageTest, SavedSettingsAreStampedAndLoadAgain) {
    open();
    tick("RGB");
    typeSizes("1 x 2");
    m_user.expectFileDialog({}).choose(m_dir.path("mine.settings"));
    click("saveSettings");
    EXPECT_EQ(m_dir.read("mine.settings"),
              "check sizes = false\ncheck types = true\nid = \"ruqgui gallery:settings:1\"\n"
              "sizes = \"1 x 2\"\ntypes = \"8-bit, RGB\"\nversion = \"1.2\"\n");

    tick("RGB", false);
    typeSizes("");
    m_user.expectFileDialog({}).choose(m_dir.path("mine.settings"));
    click("loadSettings");
    EXPECT_TRUE(box("RGB")->isChecked());
    EXPECT_FALSE(box("16-bit")->isChecked());
    EXPECT_EQ(qt3::ascii(support::child<qt3::LineEdit>(&m_window, "sizes")->text()), "1 x 2");
}

TEST_F(DataPageTest, FileThatIsNoSettingsFileIsTold) {
    open();
    m_user.expectFileDialog({}).choose(m_dir.writeFile("broken.settings", "nonsense\n"));
    click("loadSettings");
    EXPECT_EQ(label("settingsMessage"), "Not loaded: broken.settings");
    EXPECT_EQ(pane("settingsEntries"),
              m_dir.path("broken.settings") + ": this is no entry: nonsense");
}

TEST_F(DataPageTest, LongNamesAndSizesDoNotWidenIt) {
    open();
    const int width = leastWidth(m_pPage);
    const std::string name = std::string(200, 'n') + ".settings";
    m_user.expectFileDialog({}).choose(m_dir.writeFile(name, "no settings"));

    click("loadSettings");
    typeSizes(std::string(200, 's').c_str());

    EXPECT_EQ(label("settingsMessage"), "Not loaded: " + name);
    EXPECT_LE(leastWidth(m_pPage), width);
}

TEST_F(DataPageTest, EditedParametersAreShown) {
    TEVU::RegisterPlugin(c_plugin, createQuick<false>);
    open();
    click("editParameters");
    const std::string edited =
        "filter/radius: 0.5\nreferences/0: \"a.tif\"\nresults: none\nshow: on\nsmallest: 8\n";
    EXPECT_EQ(label("parametersMessage"), "Edited:");
    EXPECT_EQ(pane("parameters"), edited);

    TEVU::RegisterPlugin(c_plugin, createQuick<true>);
    click("editParameters");
    EXPECT_EQ(label("parametersMessage"), "Cancelled. Still:");
    EXPECT_EQ(pane("parameters"), edited);
}

TEST_F(DataPageTest, ParametersAreEditedInTheGeneratedDialog) {
    open();
    m_user.expectDialog({"autodlg", "Find pores"}).act([](QWidget* dialog) {
        support::child<qt3::LineEdit>(dialog, "comment")->setText("typed");
        support::mouseClick(support::child<qt3::PushButton>(dialog, "ok"));
    });
    click("editParameters");
    EXPECT_EQ(label("parametersMessage"), "Edited:");
    EXPECT_NE(pane("parameters").find("comment: \"typed\"\n"), std::string::npos)
        << pane("parameters");
}

TEST_F(DataPageTest, MissingPluginIsToldInThePage) {
    TEVU::RegisterPlugin(c_plugin, createNone);
    open();
    click("editParameters");
    EXPECT_EQ(label("parametersMessage"), "There is no dialog:");
    EXPECT_NE(pane("parameters").find("the library is not here"), std::string::npos);
}
