#ifndef RUQLIB2IMAGE_TIFFHEADER_H
#define RUQLIB2IMAGE_TIFFHEADER_H

#include <optional>
#include <string>

namespace TEVU {

class IImage;

/// What the tags of a TIFF file say about an image, beside its pixels.
struct StTiffHeader {
    enum EnUnit { eNoUnit = 1, eInch = 2, eCentimetre = 3 }; ///< As ResolutionUnit has it.

    unsigned m_nPages = 1;
    std::optional<float> m_fXResolution; ///< Pixels in a unit.
    std::optional<float> m_fYResolution;
    unsigned m_nResolutionUnit = eInch;
    std::string m_sArtist;           ///< Empty when there is none.
    std::string m_sImageDescription; ///< The same.
    std::string m_sXmp;              ///< The same.
};

/// The tags for a file that holds \a image in \a pages pages.
///
/// What other programs understand goes into the tags that they know: the spacing in the plane into
/// the resolution, the distance between pages into lines of the description (see
/// parseDescription()), creator and description into Artist and ImageDescription up to their first
/// NUL. The whole header, exactly as it is, goes into an XMP packet, the place for what no tag is
/// made for; only pointers are left out, and the z spacing of a single page reads as 1.0. A spacing
/// whose resolution TIFF cannot express is in the packet only.
StTiffHeader tiffHeaderOf(const IImage& image, unsigned pages);

/// Sets the header of \a image, which has none yet, from the tags of a file.
///
/// What the packet holds counts as long as the tags say the same. A tag that another program has
/// changed since wins.
void applyTiffHeader(const StTiffHeader& tags, IImage& image);

} // namespace TEVU

#endif
