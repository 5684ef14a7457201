#include "StoredImage.h"

#include <ruqlib2core/CException.h>
#include <ruqlib2image/CImageFile.h>

#include <algorithm>

using namespace TEVU;

namespace {

const char* const c_sName = "image.tif";

} // namespace

StoredImage::StoredImage() {
    Save(1);
}

std::string StoredImage::Path() const {
    return std::filesystem::path(m_folder.Path(c_sName)).lexically_normal().generic_string();
}

void StoredImage::Save(int pixel) const {
    SaveAs(Path(), pixel);
}

void StoredImage::SaveAs(const std::string& path, int pixel) {
    CImage image(IImage::CType::eUInt8, CSize(64, 64));
    std::fill_n(image.Data(), image.ByteCount(), static_cast<unsigned char>(pixel));
    CImageFile::Write(image, path);
}

int StoredImage::PixelOf(const std::string& path) {
    const CImage image = CImageFile::Read(path);
    const unsigned char first = *image.Data();
    const auto same = std::count(image.Data(), image.Data() + image.ByteCount(), first);
    return static_cast<std::size_t>(same) == std::size_t(64) * 64 ? first : -1;
}

std::string StoredImage::Complaint(bool saved) const {
    try {
        const int pixel = Pixel();
        if (pixel == 2 || (!saved && pixel == 1))
            return ComplaintAfterTheNextSave();
        return std::string(saved ? "saved" : "not saved") + ", and the pixel is " +
               std::to_string(pixel);
    } catch (const CException& failure) {
        return failure.Message();
    }
}

std::string StoredImage::ComplaintAfterTheNextSave() const {
    try {
        Save(3);
    } catch (const CException& failure) {
        return failure.Message();
    }
    if (Pixel() != 3)
        return "the next save stored another image";
    for (const std::string& name : m_folder.Names()) {
        if (name != c_sName)
            return "left behind: " + name;
    }
    return "";
}

bool StoredImage::IsNewFile(const std::string& path) const {
    return path.compare(0, Path().size(), Path()) == 0 && path != Path();
}
