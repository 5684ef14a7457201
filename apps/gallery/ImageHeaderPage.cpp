#include "ImageHeaderPage.h"

#include "Form.h"
#include "ImageText.h"
#include "Options.h"
#include "Preview.h"
#include "SignalLog.h"

#include <CFileDialog.h>
#include <qpixmap.h>
#include <qt3/Descendants.h>
#include <qt3/MessageBox.h>
#include <qt3/PushButton.h>
#include <qt3/Text.h>
#include <ruqlib2core/CException.h>
#include <ruqlib2image/CImage.h>
#include <ruqlib2image/CImageFile.h>

using TEVU::CFileDialog;
using TEVU::CImage;
using TEVU::CImageFile;

namespace {

const int c_nPreviewPixels = 256;

} // namespace

ImageHeaderPage::ImageHeaderPage(QWidget* parent, SignalLog& log)
    : qt3::Widget(parent, "imageHeaderPage"), m_log(log),
      m_pImage(std::make_unique<CImage>(sampleImage())), m_pFields(nullptr) {
    auto* column = new qt3::VBoxLayout(this, 8, 8);
    column->addWidget(createFileRow());
    column->addWidget(createImageRow(), 1);
    m_pMessage = addPane(this, column, "message", 2);

    showImage();
    say("A sample that exists only in memory. Open a TIFF file to edit its header.");
}

ImageHeaderPage::~ImageHeaderPage() = default;

QWidget* ImageHeaderPage::createFileRow() {
    auto* row = new qt3::Widget(this);
    auto* layout = new qt3::HBoxLayout(row, 0, 8);
    auto* label = new qt3::Label(row, "fileLabel");
    label->setText("Image:");
    m_pFile =
        new TEVU::CFileLineWidget("", c_sTiffFilter, TEVU::CFileLineWidget::eOpenFile, row, "file");
    connect(qt3::child<qt3::LineEdit>(m_pFile), SIGNAL(textChanged(const QString&)), this,
            SLOT(fileChanged(const QString&)));
    layout->addWidget(label);
    layout->addWidget(m_pFile, 1);

    const struct {
        const char* m_sText;
        const char* m_sName;
        const char* m_sSlot;
    } buttons[] = {{"&Open...", "open", SLOT(open())},
                   {"&Save", "save", SLOT(save())},
                   {"Save &As...", "saveAs", SLOT(saveAs())}};
    for (const auto& button : buttons) {
        auto* pushButton = new qt3::PushButton(button.m_sText, row, button.m_sName);
        connect(pushButton, SIGNAL(clicked()), this, button.m_sSlot);
        layout->addWidget(pushButton);
    }
    return row;
}

QWidget* ImageHeaderPage::createImageRow() {
    auto* row = new qt3::Widget(this);
    auto* layout = new qt3::HBoxLayout(row, 0, 8);
    m_pFieldsPlace = new qt3::Widget(row);
    m_pFieldsLayout = new qt3::VBoxLayout(m_pFieldsPlace, 0, 0);
    layout->addWidget(m_pFieldsPlace, 1);
    layout->addWidget(createPreview(row));
    return row;
}

QWidget* ImageHeaderPage::createPreview(QWidget* parent) {
    auto* box = new qt3::GroupBox("Preview", parent, "preview");
    auto* column = columnIn(box);
    m_pPicture = new qt3::Label(box, "picture");
    m_pPicture->setFixedSize(c_nPreviewPixels, c_nPreviewPixels);
    m_pPicture->setAlignment(Qt::AlignCenter);
    m_pCaption = new qt3::Label(box, "caption");
    m_pCaption->setAlignment(Qt::AlignCenter);
    column->addWidget(m_pPicture);
    column->addWidget(m_pCaption);
    return box;
}

bool ImageHeaderPage::load(const std::string& path) {
    try {
        m_pImage = std::make_unique<CImage>(CImageFile::Read(path));
    } catch (const TEVU::CException& error) {
        say(error.Message());
        return false;
    }
    m_sPath = path;
    showImage();
    m_pFile->setFilename(qt3::fromAscii(path));
    say("Opened " + path);
    return true;
}

// The form is made anew: the z field of one that has shown a two-dimensional image stays disabled.
void ImageHeaderPage::showImage() {
    delete m_pFields;
    m_pFields = new TEVU::CHeaderFieldsWidget(m_pFieldsPlace, "fields");
    m_pFieldsLayout->addWidget(m_pFields);
    m_pFields->ReadAttributesFromImage(*m_pImage);
    watchFields();
    m_pFields->show();
    showPreview();
}

void ImageHeaderPage::showPreview() {
    const std::string bytes = previewOf(*m_pImage, c_nPreviewPixels);
    QPixmap picture;
    picture.loadFromData(reinterpret_cast<const unsigned char*>(bytes.data()),
                         static_cast<unsigned int>(bytes.size()), "PPM");
    m_pPicture->setPixmap(picture);
    m_pCaption->setText(qt3::fromAscii(captionOf(*m_pImage)));
}

void ImageHeaderPage::watchFields() {
    m_log.watch(m_pFields, "fields");
    m_log.watch(m_pFields->xSpacingLine, "xSpacingLine");
    m_log.watch(m_pFields->ySpacingLine, "ySpacingLine");
    m_log.watch(m_pFields->zSpacingLine, "zSpacingLine");
    m_log.watch(m_pFields->comboUnit, "comboUnit");
    m_log.watch(m_pFields->creatorLine, "creatorLine");
    m_log.watch(m_pFields->descriptionText, "descriptionText");
    m_log.watch(m_pFields->historyText, "historyText");
}

void ImageHeaderPage::open() {
    CFileDialog dialog(this);
    if (dialog.GetOpenFileName(c_sTiffFilter, CFileDialog::UseWorkingDir) &&
        !load(dialog.FilePath()))
        complain("Unable to open image", qt3::ascii(m_pMessage->text()));
}

void ImageHeaderPage::fileChanged(const QString& path) {
    if (qt3::ascii(path) != m_sPath)
        load(qt3::ascii(path));
}

void ImageHeaderPage::save() {
    if (m_sPath.empty())
        saveAs();
    else
        saveTo(m_sPath);
}

void ImageHeaderPage::saveAs() {
    CFileDialog dialog(this);
    if (dialog.GetSaveFileName(m_sPath, c_sTiffFilter, CFileDialog::eOverwrite))
        saveTo(dialog.FilePath());
}

// A copy is written, so that what cannot be saved does not change the image shown either.
void ImageHeaderPage::saveTo(const std::string& path) {
    CImage edited(*m_pImage);
    if (!m_pFields->WriteAttributesToImage(edited)) {
        say("Not saved: the computed features were to be kept.");
        return;
    }
    try {
        CImageFile::Write(edited, path);
    } catch (const TEVU::CException& error) {
        complain("Unable to save image", error.Message());
        return;
    }
    if (load(path))
        say("Saved " + path);
}

void ImageHeaderPage::say(const std::string& message) {
    m_pMessage->setText(qt3::fromAscii(message));
}

void ImageHeaderPage::complain(const char* caption, const std::string& message) {
    say(message);
    qt3::MessageBox::warning(this, caption, qt3::fromAscii(message), qt3::MessageBox::Ok, 0);
}

QWidget* createImageHeaderPage(QWidget* parent, SignalLog& log, const Options& options) {
    auto* page = new ImageHeaderPage(parent, log);
    if (!options.m_images.empty())
        page->load(options.m_images.front());
    return page;
}
