#ifndef RUQLIB2IMAGE_CIMAGEFILE_H
#define RUQLIB2IMAGE_CIMAGEFILE_H

#include <ruqlib2image/CImage.h>
#include <ruqlib2image/Export.h>

#include <string>

namespace TEVU {

/// Images from and to TIFF files.
///
/// One page is a two-dimensional image, several pages of the same size and type are a
/// three-dimensional one. Pages that are marked as previews or masks are skipped.
///
/// The header travels along, all of it but pointers. What other programs know goes into tags of its
/// own, from which it is read in their files, and in ours after they have changed it:
///
/// | header              | file                                                                  |
/// |---------------------|-----------------------------------------------------------------------|
/// | spacing, x and y    | XResolution, YResolution, ResolutionUnit                              |
/// | spacing, z          | lines "spacing=" and "unit=" at the front of ImageDescription         |
/// | creator             | Artist                                                                |
/// | description         | ImageDescription, without those lines                                 |
/// | everything, exactly | an XMP packet; a tag that says something else wins over it            |
///
/// A resolution without a unit is an aspect ratio and gives no spacing, unless a line "unit=" names
/// one. The z spacing of a single page is not stored and reads as 1.0, as does that of pages whose
/// file tells none.
class RUQLIB2IMAGE_EXPORT CImageFile {
public:
    /// The image in the file. Every failure is a CException that names \a path and the cause: a
    /// file that is missing, no TIFF, truncated, damaged or too large for the memory, pages that
    /// differ.
    ///
    /// All byte orders, layouts and compressions that libtiff decodes are read, BigTIFF too. What
    /// has no pixel type of its own is converted, as far as nothing is lost that counts:
    ///
    /// | file                                 | image                                            |
    /// |--------------------------------------|--------------------------------------------------|
    /// | 1 to 7 bits unsigned                 | UInt8, stretched to 0 … 255                      |
    /// | 9 to 15 bits unsigned                | UInt16, the same numbers                         |
    /// | 8 bits signed                        | Int16, the same numbers                          |
    /// | 64 bits floating-point               | Float32, the nearest numbers                     |
    /// | white as the smallest value          | inverted: brighter is greater                    |
    /// | palette                              | RGB8, the upper eight bits of the colours        |
    /// | YCbCr in JPEG                        | RGB8                                             |
    /// | a sample of transparency at the end  | dropped                                          |
    ///
    /// Everything else is refused by name, such as colours of 16 bits, CMYK, unsigned samples of 32
    /// bits, other additional samples. The Orientation tag is ignored: rows come as they are
    /// stored.
    static CImage Read(const std::string& path);

    /// Writes \a image to the file, which is replaced as a whole; on failure it is as it was. A
    /// replaced file keeps its permissions, and a link goes on pointing to it. Every failure is a
    /// CException that names \a path and the cause; an image without pixels is one.
    ///
    /// The pixels are not compressed. A one-dimensional image becomes one row. Files above 4 GB are
    /// BigTIFF.
    static void Write(const CImage& image, const std::string& path);
};

} // namespace TEVU

#endif
