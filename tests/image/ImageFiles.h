#ifndef RUQLIB2IMAGE_TESTS_IMAGEFILES_H
#define RUQLIB2IMAGE_TESTS_IMAGEFILES_H

#include "Programs.h"

#include <TempDir.h>
#include <ruqlib2core/CException.h>
#include <ruqlib2image/CImageFile.h>

#include <cstring>
#include <gmock/gmock.h>
#include <string>
#include <vector>

/// What the tests of image files share.
namespace image_files {

template <class T>
std::vector<T> pixelsOf(const TEVU::CImage& image) {
    std::vector<T> pixels(image.ByteCount() / sizeof(T));
    if (!pixels.empty())
        std::memcpy(pixels.data(), image.Data(), pixels.size() * sizeof(T));
    return pixels;
}

inline std::vector<unsigned char> bytesOf(const std::string& content) {
    return {content.begin(), content.end()};
}

/// An image whose bytes all differ from their neighbours, along every axis.
inline TEVU::CImage patterned(const TEVU::IImage::CType& type, const TEVU::CSize& size) {
    TEVU::CImage image(type, size);
    unsigned state = 1;
    for (std::size_t at = 0; at < image.ByteCount(); ++at) {
        state = state * 1103515245 + 12345;
        image.Data()[at] = static_cast<unsigned char>(state >> 16);
    }
    return image;
}

/// The message of the exception, or a text that says that there was none.
inline std::string refusal(const std::string& path) {
    try {
        TEVU::CImageFile::Read(path);
    } catch (const TEVU::CException& exception) {
        return exception.Message();
    }
    return "no exception";
}

/// A folder, and commands that run in it.
class CImageFiles : public testing::Test {
protected:
    std::string run(const std::string& command) const { return programs::run(dir.path(), command); }
    TEVU::CImage read(const std::string& name) const {
        return TEVU::CImageFile::Read(dir.path(name));
    }
    void write(const TEVU::CImage& image, const std::string& name) const {
        TEVU::CImageFile::Write(image, dir.path(name));
    }

    const support::TempDir dir;
};

} // namespace image_files

#endif
