#ifndef RUQLIB2IMAGE_IIMAGE_H
#define RUQLIB2IMAGE_IIMAGE_H

#include <ruqlib2core/CValueMap.h>
#include <ruqlib2image/CSize.h>
#include <ruqlib2image/Export.h>

#include <cstddef>

namespace TEVU {

/// What every image offers, wherever its pixels are: type, size, and a header of named values.
class RUQLIB2IMAGE_EXPORT IImage {
public:
    /// The type of a pixel.
    /// \code
    /// TEVU::CImage image(TEVU::IImage::CType::eUInt16, TEVU::CSize(640, 480));
    /// if (image.Type() == TEVU::IImage::CType::eUInt16) …
    /// \endcode
    class RUQLIB2IMAGE_EXPORT CType {
    public:
        enum EnType {
            eUInt8,
            eUInt16,
            eInt16,
            eInt32,
            eFloat32,
            eRGB8 ///< Three bytes: red, green, blue.
        };

        CType(EnType type);

        EnType Enumerator() const; ///< For a switch.
        std::size_t BytesPerPixel() const;
        const char* Name() const; ///< The enumerator without its e: "UInt8".

        friend bool operator==(const CType& a, const CType& b) { return a.m_nType == b.m_nType; }
        friend bool operator!=(const CType& a, const CType& b) { return !(a == b); }

    private:
        EnType m_nType;
    };

    virtual ~IImage();

    virtual CType Type() const = 0;
    virtual CSize Size() const = 0;

    /// Read and written by name with COrunHeaderTools; entries of the application's own are
    /// welcome.
    virtual CValueMap& Header() = 0;
    virtual const CValueMap& Header() const = 0;

protected:
    IImage() = default;
    IImage(const IImage&) = default;
    IImage& operator=(const IImage&) = default;
};

} // namespace TEVU

#endif
