#ifndef RUQLIB2IMAGE_DESCRIPTIONLINES_H
#define RUQLIB2IMAGE_DESCRIPTIONLINES_H

#include <optional>
#include <string>

namespace TEVU {

/// What an ImageDescription says.
struct StDescription {
    std::string m_sText;            ///< For people: without the block of lines for programs.
    std::optional<double> m_dUnit;  ///< What unit= names, in metres. Nothing for "pixel".
    std::optional<double> m_dPages; ///< What spacing= says: the distance between pages, in units.
    unsigned m_nImages = 0;         ///< What images= says in the block; 0 when there is none.
};

/// Takes an ImageDescription apart.
///
/// TIFF has no tag for the distance between pages. ImageJ writes it into the description as lines
/// "spacing=2.0" and "unit=micron", in a block of key=value lines that begins with "ImageJ=", and
/// others have followed. The block is the run of such lines at the front, with the empty line that
/// may end it. A text without the block stays whole, but its lines are heeded all the same.
StDescription parseDescription(const std::string& imageDescription);

/// \a text behind a block that says that \a pages pages lie \a centimetres apart.
/// parseDescription() gives back both, whatever the text.
std::string describePages(unsigned pages, double centimetres, const std::string& text);

} // namespace TEVU

#endif
