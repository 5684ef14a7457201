#include "ImagesPanel.h"

#include "FilterPanel.h"
#include "Form.h"
#include "ImageText.h"
#include "Paths.h"
#include "Preview.h"

#include <CFileDialog.h>
#include <qt3/PushButton.h>
#include <qt3/Text.h>
#include <ruqlib2core/CException.h>
#include <ruqlib2image/CImageFile.h>

using TEVU::CFileDialog;
using TEVU::CImage;

namespace {

const char* const c_sSample = "sample";

} // namespace

ImagesPanel::ImagesPanel(QWidget* parent, const char* name, const FilterPanel& filter)
    : qt3::Widget(parent, name), m_filter(filter) {
    qt3::GroupBox* const box = boxIn(this, "Open images that pass the filter");
    auto* column = columnIn(box);
    auto* button = new qt3::PushButton("Open &images...", box, "openImages");
    connect(button, SIGNAL(clicked()), this, SLOT(open()));
    column->addWidget(button);
    m_pList = addPane(box, column, "images", 0);
    m_pCount = addText(box, column, "", "imagesCount");
    m_pMessages = addPane(box, column, "imagesMessages", 3);
    m_pMessages->setText("The samples exist only in memory");

    m_images.Add(c_sSample, sampleImage());
    m_images.Add(c_sSample, CImage(TEVU::IImage::CType::eUInt16, TEVU::CSize(640, 480)));
    connect(&m_filter, SIGNAL(changed()), this, SLOT(list()));
    list();
}

void ImagesPanel::load(const std::vector<std::string>& paths) {
    std::string messages;
    for (const std::string& path : paths) {
        try {
            m_images.Add(lastPart(path), TEVU::CImageFile::Read(path));
            messages += "Opened " + lastPart(path) + '\n';
        } catch (const TEVU::CException& error) {
            messages += error.Message() + '\n';
        }
    }
    m_pMessages->setText(qt3::fromAscii(messages));
    list();
}

void ImagesPanel::open() {
    CFileDialog dialog(this);
    if (dialog.GetOpenFileNames(c_sTiffFilter, CFileDialog::UseWorkingDir) > 0)
        load(dialog.FilePaths());
}

void ImagesPanel::list() {
    std::string lines;
    const auto images = m_filter.Available()(m_images.Input());
    for (const auto& [name, image] : images)
        lines += name + "  (" + captionOf(*image) + ")\n";
    m_pList->setText(qt3::fromAscii(lines));
    m_pCount->setText(qt3::fromAscii(std::to_string(images.size()) + " of " +
                                     std::to_string(m_images.Count()) + " open images"));
}
