#include "TiffHeader.h"

#include "DescriptionLines.h"
#include "HeaderKeys.h"
#include "HeaderText.h"

#include <ruqlib2image/COrunHeaderTools.h>

#include <algorithm>
#include <cmath>

namespace TEVU {

namespace {

constexpr double c_dCentimetre = 0.01;
constexpr double c_dInch = 0.0254;
constexpr double c_dUnknownSpacing = 1.0;

/// A fraction of two 32-bit numbers holds everything between to six digits and more.
constexpr double c_dMinResolution = 1e-9;
constexpr double c_dMaxResolution = 4e9;

/// Resolutions pass through single precision and a fraction; what is closer is the same.
constexpr double c_dTolerance = 2e-6;

const std::string c_sPacketBegin = "<?xpacket begin=\"\" id=\"W5M0MpCehiHzreSzNTczkc9d\"?>\n"
                                   "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\">\n"
                                   "<rdf:RDF "
                                   "xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\">\n"
                                   "<rdf:Description rdf:about=\"\" "
                                   "xmlns:ruq=\"urn:ruqlib2:image:header\">\n";
const std::string c_sElementBegin = "<ruq:Header>";
const std::string c_sElementEnd = "</ruq:Header>";
const std::string c_sPacketEnd = "\n</rdf:Description>\n</rdf:RDF>\n</x:xmpmeta>\n"
                                 "<?xpacket end=\"w\"?>";

struct StSpacing {
    double m_dX;
    double m_dY;
    double m_dZ;
};

std::optional<StSpacing> spacingOf(const IImage& image) {
    StSpacing spacing{};
    if (!COrunHeaderTools::GetSpacing(image, spacing.m_dX, spacing.m_dY, spacing.m_dZ))
        return std::nullopt;
    return spacing;
}

std::optional<float> resolution(double spacing) {
    const double pixels = c_dCentimetre / spacing;
    if (!(pixels >= c_dMinResolution && pixels <= c_dMaxResolution))
        return std::nullopt;
    return static_cast<float>(pixels);
}

std::optional<double> resolutionUnit(const StTiffHeader& tags, const StDescription& description) {
    if (tags.m_nResolutionUnit == StTiffHeader::eCentimetre)
        return c_dCentimetre;
    if (tags.m_nResolutionUnit == StTiffHeader::eInch)
        return c_dInch;
    // Without a unit of its own the resolution is an aspect ratio, unless the lines name one.
    return description.m_dUnit;
}

bool isUsable(std::optional<float> resolution) {
    return resolution && std::isfinite(*resolution) && *resolution > 0;
}

/// The distance between pages; \a planeUnit is the unit of a spacing= line without unit= beside it.
double pageDistance(const StTiffHeader& tags, const StDescription& description, double planeUnit) {
    const double distance = std::fabs(description.m_dPages.value_or(0));
    if (tags.m_nPages == 1 || distance == 0)
        return c_dUnknownSpacing;
    return distance * description.m_dUnit.value_or(planeUnit);
}

/// What a program that knows only the tags makes of them.
std::optional<StSpacing> spacingOf(const StTiffHeader& tags) {
    const StDescription description = parseDescription(tags.m_sImageDescription);
    const bool hasX = isUsable(tags.m_fXResolution);
    const bool hasY = isUsable(tags.m_fYResolution);
    if (!hasX && !hasY) {
        if (!description.m_dUnit || !description.m_dPages)
            return std::nullopt;
        const double unit = *description.m_dUnit;
        return StSpacing{unit, unit, pageDistance(tags, description, unit)};
    }
    const std::optional<double> unit = resolutionUnit(tags, description);
    if (!unit)
        return std::nullopt;
    const double x = *unit / double(hasX ? *tags.m_fXResolution : *tags.m_fYResolution);
    const double y = *unit / double(hasY ? *tags.m_fYResolution : *tags.m_fXResolution);
    return StSpacing{x, y, pageDistance(tags, description, *unit)};
}

bool isClose(double a, double b) {
    return std::fabs(a - b) <= c_dTolerance * std::max(std::fabs(a), std::fabs(b));
}

bool sayTheSame(const std::optional<StSpacing>& a, const std::optional<StSpacing>& b) {
    if (!a || !b)
        return !a && !b;
    return isClose(a->m_dX, b->m_dX) && isClose(a->m_dY, b->m_dY) && isClose(a->m_dZ, b->m_dZ);
}

/// TIFF ends a text at its first NUL.
std::string upToNul(const std::string& text) {
    return text.substr(0, text.find('\0'));
}

void setResolution(const StSpacing& spacing, StTiffHeader& tags) {
    const std::optional<float> x = resolution(spacing.m_dX);
    const std::optional<float> y = resolution(spacing.m_dY);
    if (!x || !y)
        return;
    tags.m_fXResolution = x;
    tags.m_fYResolution = y;
    tags.m_nResolutionUnit = StTiffHeader::eCentimetre;
    if (tags.m_nPages > 1 && std::isfinite(spacing.m_dZ) && spacing.m_dZ > 0)
        tags.m_sImageDescription =
            describePages(tags.m_nPages, spacing.m_dZ / c_dCentimetre, tags.m_sImageDescription);
}

/// The tags but for the packet.
StTiffHeader plainTagsOf(const IImage& image, unsigned pages) {
    StTiffHeader tags;
    tags.m_nPages = pages;
    COrunHeaderTools::GetCreator(image, tags.m_sArtist);
    tags.m_sArtist = upToNul(tags.m_sArtist);
    COrunHeaderTools::GetDescription(image, tags.m_sImageDescription);
    tags.m_sImageDescription = upToNul(tags.m_sImageDescription);
    if (const std::optional<StSpacing> spacing = spacingOf(image))
        setResolution(*spacing, tags);
    return tags;
}

std::optional<CValueMap> headerInPacket(const std::string& xmp) {
    const std::size_t begin = xmp.find(c_sElementBegin);
    if (begin == std::string::npos)
        return std::nullopt;
    const std::size_t textBegin = begin + c_sElementBegin.size();
    const std::size_t end = xmp.find(c_sElementEnd, textBegin);
    return parseHeaderText(xmp.substr(textBegin, end - textBegin));
}

void setText(IImage& image, void (*set)(IImage&, const char*, unsigned), const char* key,
             const std::string& text) {
    if (text.empty())
        image.Header().RemoveEntry(key);
    else
        set(image, text.data(), static_cast<unsigned>(text.size()));
}

void setSpacing(IImage& image, const std::optional<StSpacing>& spacing) {
    if (spacing)
        COrunHeaderTools::SetSpacing(image, spacing->m_dX, spacing->m_dY, spacing->m_dZ);
    else
        image.Header().RemoveEntry(c_sKeySpacing);
}

void forgetDistanceOfSinglePage(IImage& image) {
    std::optional<StSpacing> spacing = spacingOf(image);
    if (!spacing)
        return;
    spacing->m_dZ = c_dUnknownSpacing;
    setSpacing(image, spacing);
}

} // namespace

StTiffHeader tiffHeaderOf(const IImage& image, unsigned pages) {
    StTiffHeader tags = plainTagsOf(image, pages);
    if (image.Header().Size() > 0)
        tags.m_sXmp = c_sPacketBegin + c_sElementBegin + headerText(image.Header()) +
                      c_sElementEnd + c_sPacketEnd;
    return tags;
}

void applyTiffHeader(const StTiffHeader& tags, IImage& image) {
    image.Header() = headerInPacket(tags.m_sXmp).value_or(CValueMap());
    if (tags.m_nPages == 1)
        forgetDistanceOfSinglePage(image);
    const StTiffHeader expected = plainTagsOf(image, tags.m_nPages);
    if (!sayTheSame(spacingOf(expected), spacingOf(tags)))
        setSpacing(image, spacingOf(tags));
    if (tags.m_sArtist != expected.m_sArtist)
        setText(image, COrunHeaderTools::SetCreator, c_sKeyCreator, tags.m_sArtist);
    if (tags.m_sImageDescription != expected.m_sImageDescription)
        setText(image, COrunHeaderTools::SetDescription, c_sKeyDescription,
                parseDescription(tags.m_sImageDescription).m_sText);
}

} // namespace TEVU
