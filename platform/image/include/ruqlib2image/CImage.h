#ifndef RUQLIB2IMAGE_CIMAGE_H
#define RUQLIB2IMAGE_CIMAGE_H

#include <ruqlib2image/IImage.h>

#include <cstddef>
#include <memory>

namespace TEVU {

/// An image in memory.
///
/// The pixels lie without gaps in the machine's byte order: along x first, then y, then z. Copies
/// are deep, of pixels and header.
///
/// Invariant: ByteCount() is the product of the three extents of Size() and of
/// Type().BytesPerPixel().
class RUQLIB2IMAGE_EXPORT CImage : public IImage {
public:
    /// All pixels zero, no header entries. An extent of 0 gives an image without pixels. A negative
    /// extent, or more bytes than there can be had, is a CException that names the size.
    CImage(const CType& type, const CSize& size);

    CImage(const CImage& other);
    CImage(CImage&& other); ///< The other one is left without pixels and header, its extents 0.
    CImage& operator=(const CImage& other); ///< All or nothing.
    CImage& operator=(CImage&& other);
    ~CImage() override;

    CType Type() const override;
    CSize Size() const override;
    CValueMap& Header() override;
    const CValueMap& Header() const override;

    /// The first of ByteCount() bytes; null when there is none. Valid until the image is assigned
    /// to.
    unsigned char* Data();
    const unsigned char* Data() const;
    std::size_t ByteCount() const;

private:
    struct StFree {
        void operator()(unsigned char* pixels) const;
    };

    void swap(CImage& other) noexcept;

    CType m_Type;
    CSize m_Size;
    std::size_t m_nByteCount;
    std::unique_ptr<unsigned char, StFree> m_pPixels;
    std::unique_ptr<CValueMap> m_pHeader; ///< Never null.
};

} // namespace TEVU

#endif
