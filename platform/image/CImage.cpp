#include <ruqlib2image/CImage.h>

#include <ruqlib2core/CException.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <utility>

namespace TEVU {

namespace {

/// A quarter of the address space: beyond it no allocation can succeed, and it keeps differences of
/// pointers into the pixels representable.
constexpr std::size_t c_nMaxBytes = SIZE_MAX / 4;

std::string describe(const IImage::CType& type, const CSize& size) {
    std::string text = std::to_string(size[0]);
    for (unsigned axis = 1; axis < size.Dimension(); ++axis)
        text += " x " + std::to_string(size[axis]);
    return text + " pixels of type " + type.Name();
}

[[noreturn]] void refuse(const IImage::CType& type, const CSize& size, const char* cause) {
    throw CException("CImage::CImage", "an image of " + describe(type, size) + " " + cause);
}

bool anyExtent(const CSize& size, bool (*test)(int)) {
    return test(size[0]) || test(size[1]) || test(size[2]);
}

std::size_t byteCount(const IImage::CType& type, const CSize& size) {
    if (anyExtent(size, [](int extent) { return extent < 0; }))
        refuse(type, size, "cannot be: an extent is negative");
    // Before the product, which may be too large in front of the factor 0.
    if (anyExtent(size, [](int extent) { return extent == 0; }))
        return 0;
    std::size_t bytes = type.BytesPerPixel();
    for (unsigned axis = 0; axis < size.Dimension(); ++axis) {
        const auto extent = static_cast<std::size_t>(size[axis]);
        if (bytes > c_nMaxBytes / extent)
            refuse(type, size, "is too large for the memory");
        bytes *= extent;
    }
    return bytes;
}

} // namespace

void CImage::StFree::operator()(unsigned char* pixels) const {
    std::free(pixels);
}

CImage::CImage(const CType& type, const CSize& size)
    : m_Type(type), m_Size(size), m_nByteCount(byteCount(type, size)),
      m_pHeader(std::make_unique<CValueMap>()) {
    if (m_nByteCount == 0)
        return;
    // calloc, because the system hands out zeroed pages without touching them.
    m_pPixels.reset(static_cast<unsigned char*>(std::calloc(m_nByteCount, 1)));
    if (!m_pPixels)
        refuse(type, size, "is too large for the memory");
}

CImage::CImage(const CImage& other) : CImage(other.m_Type, other.m_Size) {
    if (m_nByteCount > 0)
        std::memcpy(Data(), other.Data(), m_nByteCount);
    *m_pHeader = *other.m_pHeader;
}

CImage::CImage(CImage&& other) : CImage(other.m_Type, CSize(0)) {
    swap(other);
}

CImage& CImage::operator=(const CImage& other) {
    CImage copy(other);
    swap(copy);
    return *this;
}

CImage& CImage::operator=(CImage&& other) {
    CImage taken(std::move(other));
    swap(taken);
    return *this;
}

CImage::~CImage() = default;

IImage::CType CImage::Type() const {
    return m_Type;
}

CSize CImage::Size() const {
    return m_Size;
}

CValueMap& CImage::Header() {
    return *m_pHeader;
}

const CValueMap& CImage::Header() const {
    return *m_pHeader;
}

unsigned char* CImage::Data() {
    return m_pPixels.get();
}

const unsigned char* CImage::Data() const {
    return m_pPixels.get();
}

std::size_t CImage::ByteCount() const {
    return m_nByteCount;
}

void CImage::swap(CImage& other) noexcept {
    std::swap(m_Type, other.m_Type);
    std::swap(m_Size, other.m_Size);
    std::swap(m_nByteCount, other.m_nByteCount);
    std::swap(m_pPixels, other.m_pPixels);
    std::swap(m_pHeader, other.m_pHeader);
}

} // namespace TEVU
