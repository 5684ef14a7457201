#include "Preview.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <ruqlib2core/CValueString.h>
#include <ruqlib2image/CImage.h>
#include <ruqlib2image/COrunHeaderTools.h>
#include <vector>

using TEVU::CImage;
using TEVU::IImage;

namespace {

int extent(const IImage& image, unsigned int axis) {
    return axis < image.Size().Dimension() ? image.Size()[axis] : 1;
}

template <class Pixel>
double pixelAs(const unsigned char* data, std::size_t index) {
    Pixel pixel;
    std::memcpy(&pixel, data + index * sizeof(Pixel), sizeof(Pixel));
    return static_cast<double>(pixel);
}

double greyValue(const CImage& image, std::size_t index) {
    using Type = IImage::CType;
    if (image.Type() == Type::eUInt16)
        return pixelAs<std::uint16_t>(image.Data(), index);
    if (image.Type() == Type::eInt16)
        return pixelAs<std::int16_t>(image.Data(), index);
    if (image.Type() == Type::eInt32)
        return pixelAs<std::int32_t>(image.Data(), index);
    if (image.Type() == Type::eFloat32)
        return pixelAs<float>(image.Data(), index);
    return pixelAs<std::uint8_t>(image.Data(), index);
}

/// One page of an image, pixel by pixel.
class CPageView {
public:
    explicit CPageView(const CImage& image)
        : m_image(image), m_nWidth(extent(image, 0)), m_nHeight(extent(image, 1)),
          m_nFirst(static_cast<std::size_t>(extent(image, 2) / 2) * Count()) {
        if (!IsColor())
            FindRange();
    }

    int Width() const { return m_nWidth; }
    int Height() const { return m_nHeight; }

    void AppendRgb(std::string& bytes, int x, int y) const {
        const std::size_t index = m_nFirst +
                                  static_cast<std::size_t>(y) * static_cast<std::size_t>(m_nWidth) +
                                  static_cast<std::size_t>(x);
        if (IsColor())
            bytes.append(reinterpret_cast<const char*>(m_image.Data()) + 3 * index, 3);
        else
            bytes.append(3, static_cast<char>(Stretched(greyValue(m_image, index))));
    }

private:
    bool IsColor() const { return m_image.Type() == IImage::CType::eRGB8; }

    std::size_t Count() const {
        return static_cast<std::size_t>(m_nWidth) * static_cast<std::size_t>(m_nHeight);
    }

    void FindRange() {
        m_dLow = HUGE_VAL;
        m_dHigh = -HUGE_VAL;
        for (std::size_t index = m_nFirst; index < m_nFirst + Count(); ++index) {
            const double value = greyValue(m_image, index);
            if (!std::isfinite(value))
                continue;
            m_dLow = std::min(m_dLow, value);
            m_dHigh = std::max(m_dHigh, value);
        }
    }

    unsigned char Stretched(double value) const {
        if (!(value > m_dLow)) // also for what is no number
            return 0;
        return static_cast<unsigned char>(255.0 *
                                          std::min(1.0, (value - m_dLow) / (m_dHigh - m_dLow)));
    }

    const CImage& m_image;
    int m_nWidth;
    int m_nHeight;
    std::size_t m_nFirst;
    double m_dLow = 0.0;
    double m_dHigh = 1.0;
};

void paintSpots(CImage& image) {
    const int width = image.Size()[0], height = image.Size()[1], depth = image.Size()[2];
    unsigned char* pixel = image.Data();
    for (int z = 0; z < depth; ++z)
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x) {
                const double wave = std::sin(x * 0.21 + z * 0.3) * std::cos(y * 0.17 - z * 0.2);
                const double focus = 1.0 - std::abs(2.0 * z / (depth - 1) - 1.0) * 0.6;
                *pixel++ = static_cast<unsigned char>(255.0 * focus * wave * wave);
            }
}

} // namespace

std::string previewOf(const CImage& image, int pixels) {
    const CPageView page(image);
    const double scale = static_cast<double>(pixels) / std::max(page.Width(), page.Height());
    const int width = std::max(1, static_cast<int>(page.Width() * scale));
    // A row of pixels is shown as a band.
    const int height =
        std::max(page.Height() == 1 ? 24 : 1, static_cast<int>(page.Height() * scale));

    std::string bytes = "P6 " + std::to_string(width) + " " + std::to_string(height) + " 255\n";
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            page.AppendRgb(bytes, std::min(page.Width() - 1, static_cast<int>(x / scale)),
                           std::min(page.Height() - 1, static_cast<int>(y / scale)));
    return bytes;
}

CImage sampleImage() {
    using Tools = TEVU::COrunHeaderTools;
    const std::string creator = "ruqgui gallery";
    const std::string description = "A sample stack that exists only in memory until it is saved";
    CImage image(IImage::CType::eUInt8, TEVU::CSize(96, 96, 9));
    paintSpots(image);
    Tools::SetSpacing(image, 2e-7, 2e-7, 5e-7);
    Tools::SetCreator(image, creator.data(), static_cast<unsigned int>(creator.size()));
    Tools::SetDescription(image, description.data(), static_cast<unsigned int>(description.size()));
    Tools::AddToHistory(image, TEVU::CValueString("Create(96,96,9)"));
    return image;
}
