#ifndef RUQGUI_TESTS_HEADER_IMAGEHEADERS_H
#define RUQGUI_TESTS_HEADER_IMAGEHEADERS_H

#include <gtest/gtest.h>
#include <ruqlib2image/CImage.h>
#include <ruqlib2image/COrunHeaderTools.h>
#include <string>
#include <vector>

// Images whose headers go into the form and come out of it.

/// Pixel distances along x, y and z.
using Metres = std::vector<double>;

inline TEVU::CImage makeImage(unsigned int dimension) {
    const TEVU::CSize sizes[] = {TEVU::CSize(4), TEVU::CSize(4, 3), TEVU::CSize(4, 3, 2)};
    return TEVU::CImage(TEVU::IImage::CType::eUInt8, sizes[dimension - 1]);
}

inline TEVU::CImage makeImage(unsigned int dimension, const Metres& spacing) {
    TEVU::CImage image = makeImage(dimension);
    TEVU::COrunHeaderTools::SetSpacing(image, spacing[0], spacing[1], spacing[2]);
    return image;
}

inline void setCreator(TEVU::CImage& image, const std::string& text) {
    TEVU::COrunHeaderTools::SetCreator(image, text.data(), static_cast<unsigned int>(text.size()));
}

inline void setDescription(TEVU::CImage& image, const std::string& text) {
    TEVU::COrunHeaderTools::SetDescription(image, text.data(),
                                           static_cast<unsigned int>(text.size()));
}

inline void setHistory(TEVU::CImage& image, const std::string& text) {
    TEVU::COrunHeaderTools::ReplaceHistory(image, text.data(),
                                           static_cast<unsigned int>(text.size()));
}

/// Creator, description and history.
inline std::vector<std::string> textsOf(const TEVU::CImage& image) {
    std::vector<std::string> texts{"none", "none", "none"};
    TEVU::COrunHeaderTools::GetCreator(image, texts[0]);
    TEVU::COrunHeaderTools::GetDescription(image, texts[1]);
    TEVU::COrunHeaderTools::GetHistory(image, texts[2]);
    return texts;
}

inline std::string historyOf(const TEVU::CImage& image) {
    return textsOf(image)[2];
}

inline void expectSpacing(const TEVU::CImage& image, const Metres& expected) {
    double spacing[3] = {-7.0, -7.0, -7.0};
    ASSERT_TRUE(TEVU::COrunHeaderTools::GetSpacing(image, spacing[0], spacing[1], spacing[2]));
    for (int nAxis = 0; nAxis < 3; ++nAxis)
        EXPECT_DOUBLE_EQ(spacing[nAxis], expected[static_cast<std::size_t>(nAxis)])
            << "axis " << nAxis;
}

inline bool hasSpacing(const TEVU::CImage& image) {
    double dX, dY, dZ;
    return TEVU::COrunHeaderTools::GetSpacing(image, dX, dY, dZ);
}

#endif
