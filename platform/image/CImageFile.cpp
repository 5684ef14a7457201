#include <ruqlib2image/CImageFile.h>

#include "DescriptionLines.h"
#include "TiffFile.h"
#include "TiffHeader.h"
#include "TiffPage.h"

#include <ruqlib2core/CException.h>
#include <ruqlib2core/ReplaceFile.h>

#include <algorithm>
#include <climits>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <new>
#include <vector>

#ifndef _WIN32
#include <unistd.h>
#endif

namespace TEVU {

namespace {

constexpr std::size_t c_nStripBytes = std::size_t(256) * 1024;

/// Classic TIFF counts bytes with 32 bits. The margin is for what stands beside the pixels.
constexpr std::uint64_t c_nMaxClassicBytes = 0xFFFFFFFF - 1024 * 1024;

/// What a page needs beside its pixels, and a strip: directory, resolutions, offset and length.
constexpr std::uint64_t c_nPageOverhead = 512;
constexpr std::uint64_t c_nStripOverhead = 16;

[[noreturn]] void fail(const std::string& cause) {
    throw CException("CImageFile", cause);
}

/// Runs \a action; whatever goes wrong becomes an exception that names the file.
template <class Action>
auto naming(const char* place, const std::string& failure, const std::string& path, Action action) {
    const std::string message = failure + " \"" + path + "\": ";
    try {
        return action();
    } catch (const CException& exception) {
        throw CException(place, message + exception.Message(), &exception);
    } catch (const std::bad_alloc&) {
        throw CException(place, message + "there is not enough memory");
    }
}

void checkOrdinary(const std::string& path) {
    std::error_code error;
    const std::filesystem::file_status status =
        std::filesystem::status(std::filesystem::u8path(path), error);
    if (status.type() == std::filesystem::file_type::not_found)
        fail("there is no such file");
    if (status.type() == std::filesystem::file_type::none)
        fail(error.message());
    if (!std::filesystem::is_regular_file(status))
        fail("it is no ordinary file");
}

/// In bytes; the greatest number where the system does not tell.
double physicalMemory() {
#ifdef _SC_PHYS_PAGES
    return double(sysconf(_SC_PHYS_PAGES)) * double(sysconf(_SC_PAGESIZE));
#else
    return double(SIZE_MAX);
#endif
}

bool isPreview(const CTiffFile& file) {
    std::uint32_t kind = 0;
    TIFFGetFieldDefaulted(file, TIFFTAG_SUBFILETYPE, &kind);
    return kind & (FILETYPE_REDUCEDIMAGE | FILETYPE_MASK);
}

std::string describe(const CTiffPage& page) {
    return std::to_string(page.Width()) + " x " + std::to_string(page.Height()) + " " +
           page.Type().Name();
}

void checkAlike(const CTiffPage& first, const CTiffPage& other, std::size_t number) {
    if (describe(first) != describe(other))
        fail("its pages differ: page 1 has " + describe(first) + " pixels, page " +
             std::to_string(number) + " has " + describe(other));
}

std::vector<CTiffPage> pagesOf(CTiffFile& file) {
    std::vector<CTiffPage> pages;
    do {
        if (isPreview(file))
            continue;
        pages.emplace_back(file);
        checkAlike(pages.front(), pages.back(), pages.size());
    } while (file.NextDirectory());
    if (pages.empty())
        fail("it has only previews and masks");
    return pages;
}

/// The slices of the image. A single page may have more of them behind its own pixels.
std::size_t countSlices(const CTiffFile& file, const std::vector<CTiffPage>& pages,
                        const StTiffHeader& header) {
    if (pages.size() > 1)
        return pages.size();
    const StDescription description = parseDescription(header.m_sImageDescription);
    return pages.front().CountSlices(file, description.m_nImages);
}

CImage emptyImage(const CTiffPage& page, std::size_t slices) {
    const double bytes =
        double(page.Width()) * page.Height() * double(page.Type().BytesPerPixel()) * double(slices);
    if (bytes > physicalMemory() || slices > INT_MAX)
        fail("it is too large for the memory");
    const int width = static_cast<int>(page.Width());
    const int height = static_cast<int>(page.Height());
    if (slices == 1)
        return CImage(page.Type(), CSize(width, height));
    return CImage(page.Type(), CSize(width, height, static_cast<int>(slices)));
}

std::optional<float> resolution(const CTiffFile& file, std::uint32_t tag) {
    float pixels = 0;
    return TIFFGetField(file, tag, &pixels) ? std::optional<float>(pixels) : std::nullopt;
}

std::string packet(const CTiffFile& file) {
    std::uint32_t size = 0;
    const char* bytes = nullptr;
    return TIFFGetField(file, TIFFTAG_XMLPACKET, &size, &bytes) && bytes ? std::string(bytes, size)
                                                                         : std::string();
}

/// Of the current page, but for the number of pages.
StTiffHeader readHeader(const CTiffFile& file) {
    StTiffHeader header;
    header.m_fXResolution = resolution(file, TIFFTAG_XRESOLUTION);
    header.m_fYResolution = resolution(file, TIFFTAG_YRESOLUTION);
    header.m_nResolutionUnit = file.Number(TIFFTAG_RESOLUTIONUNIT);
    header.m_sArtist = file.Text(TIFFTAG_ARTIST);
    header.m_sImageDescription = file.Text(TIFFTAG_IMAGEDESCRIPTION);
    header.m_sXmp = packet(file);
    return header;
}

CImage readTiff(const std::string& path) {
    // m: not mapped into memory, where a file that shrinks meanwhile would end the process.
    CTiffFile file(path, "rm");
    const std::vector<CTiffPage> pages = pagesOf(file);
    file.GoToDirectory(pages.front().Offset());
    StTiffHeader header = readHeader(file);
    const std::size_t slices = countSlices(file, pages, header);
    CImage image = emptyImage(pages.front(), slices);
    header.m_nPages = static_cast<unsigned>(slices);
    applyTiffHeader(header, image);
    const std::size_t sliceBytes = image.ByteCount() / slices;
    for (std::size_t slice = 0; slice < slices; ++slice) {
        unsigned char* pixels = image.Data() + slice * sliceBytes;
        if (slice >= pages.size()) {
            pages.front().ReadSliceBehind(file, slice, pixels);
            continue;
        }
        file.GoToDirectory(pages[slice].Offset());
        pages[slice].Decode(file, pixels);
    }
    return image;
}

/// How an image is laid out in a file.
struct StLayout {
    explicit StLayout(const CImage& image);

    std::uint32_t m_nWidth;
    std::uint32_t m_nHeight;
    std::uint32_t m_nPages;
    std::size_t m_nRowBytes;
    std::uint32_t m_nRowsPerStrip;
};

StLayout::StLayout(const CImage& image)
    : m_nWidth(static_cast<std::uint32_t>(image.Size()[0])),
      m_nHeight(static_cast<std::uint32_t>(image.Size()[1])),
      m_nPages(static_cast<std::uint32_t>(image.Size()[2])),
      m_nRowBytes(m_nWidth * image.Type().BytesPerPixel()),
      m_nRowsPerStrip(static_cast<std::uint32_t>(
          std::clamp<std::size_t>(c_nStripBytes / m_nRowBytes, 1, m_nHeight))) {}

bool needsBigTiff(const CImage& image, const StLayout& layout, const StTiffHeader& header) {
    const std::uint64_t strips = layout.m_nHeight / layout.m_nRowsPerStrip + 1;
    return image.ByteCount() + header.m_sArtist.size() + header.m_sImageDescription.size() +
               header.m_sXmp.size() +
               layout.m_nPages * (c_nPageOverhead + strips * c_nStripOverhead) >
           c_nMaxClassicBytes;
}

template <class... Values>
void setTag(const CTiffFile& file, std::uint32_t tag, Values... values) {
    file.Check(TIFFSetField(file, tag, values...), "a tag cannot be written");
}

int sampleFormat(const IImage::CType& type) {
    switch (type.Enumerator()) {
    case IImage::CType::eInt16:
    case IImage::CType::eInt32:
        return SAMPLEFORMAT_INT;
    case IImage::CType::eFloat32:
        return SAMPLEFORMAT_IEEEFP;
    default:
        return SAMPLEFORMAT_UINT;
    }
}

void setPixelTags(const CTiffFile& file, const StLayout& layout, const IImage::CType& type) {
    const bool isRgb = type == IImage::CType::eRGB8;
    const int samples = isRgb ? 3 : 1;
    setTag(file, TIFFTAG_IMAGEWIDTH, layout.m_nWidth);
    setTag(file, TIFFTAG_IMAGELENGTH, layout.m_nHeight);
    setTag(file, TIFFTAG_SAMPLESPERPIXEL, samples);
    setTag(file, TIFFTAG_BITSPERSAMPLE, static_cast<int>(type.BytesPerPixel()) / samples * 8);
    setTag(file, TIFFTAG_SAMPLEFORMAT, sampleFormat(type));
    setTag(file, TIFFTAG_PHOTOMETRIC, isRgb ? PHOTOMETRIC_RGB : PHOTOMETRIC_MINISBLACK);
    setTag(file, TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG);
    setTag(file, TIFFTAG_COMPRESSION, COMPRESSION_NONE);
    setTag(file, TIFFTAG_ORIENTATION, ORIENTATION_TOPLEFT);
    setTag(file, TIFFTAG_ROWSPERSTRIP, layout.m_nRowsPerStrip);
}

void setResolutionTags(const CTiffFile& file, const StTiffHeader& header) {
    if (!header.m_fXResolution)
        return;
    setTag(file, TIFFTAG_XRESOLUTION, double(*header.m_fXResolution));
    setTag(file, TIFFTAG_YRESOLUTION, double(*header.m_fYResolution));
    setTag(file, TIFFTAG_RESOLUTIONUNIT, static_cast<int>(header.m_nResolutionUnit));
}

void setPacket(const CTiffFile& file, const std::string& packet) {
    if (packet.size() > UINT32_MAX)
        fail("the header is too large");
    setTag(file, TIFFTAG_XMLPACKET, static_cast<std::uint32_t>(packet.size()), packet.data());
}

/// Those of the whole image, which the first page carries.
void setHeaderTags(const CTiffFile& file, const StTiffHeader& header) {
    if (!header.m_sArtist.empty())
        setTag(file, TIFFTAG_ARTIST, header.m_sArtist.c_str());
    if (!header.m_sImageDescription.empty())
        setTag(file, TIFFTAG_IMAGEDESCRIPTION, header.m_sImageDescription.c_str());
    if (!header.m_sXmp.empty())
        setPacket(file, header.m_sXmp);
}

/// Appends all pixels, and tells where they begin.
///
/// The pages lie one behind the other, without directories between them: ImageJ takes the first page
/// and expects the others right behind it, as soon as the description has its lines.
std::uint64_t writePixels(const CTiffFile& file, const CImage& image) {
    const std::uint64_t begin = file.ByteCount();
    TIFFGetSeekProc(file)(TIFFClientdata(file), static_cast<toff_t>(begin), SEEK_SET);
    // The argument is not const, because reading has the same type of function.
    auto* pixels = const_cast<unsigned char*>(image.Data());
    const auto bytes = static_cast<tmsize_t>(image.ByteCount());
    file.Check(TIFFGetWriteProc(file)(TIFFClientdata(file), pixels, bytes) == bytes,
               "the pixels cannot be written");
    return begin;
}

/// Points the strips of the page that is being written to pixels that are in the file already.
void setStrips(const CTiffFile& file, const StLayout& layout, std::uint64_t begin) {
    std::uint64_t* offsets = nullptr;
    std::uint64_t* counts = nullptr;
    file.Check(TIFFSetupStrips(file) && TIFFGetField(file, TIFFTAG_STRIPOFFSETS, &offsets) &&
                   TIFFGetField(file, TIFFTAG_STRIPBYTECOUNTS, &counts),
               "the list of strips cannot be written");
    for (std::uint32_t row = 0; row < layout.m_nHeight; row += layout.m_nRowsPerStrip) {
        *offsets++ = begin + row * layout.m_nRowBytes;
        *counts++ = std::min(layout.m_nRowsPerStrip, layout.m_nHeight - row) * layout.m_nRowBytes;
    }
}

void writeTiff(const CImage& image, const std::string& path) {
    const StLayout layout(image);
    const StTiffHeader header = tiffHeaderOf(image, layout.m_nPages);
    CTiffFile file(path, needsBigTiff(image, layout, header) ? "w8" : "w");
    const std::uint64_t begin = writePixels(file, image);
    for (std::uint32_t page = 0; page < layout.m_nPages; ++page) {
        setPixelTags(file, layout, image.Type());
        setResolutionTags(file, header);
        if (layout.m_nPages > 1)
            setTag(file, TIFFTAG_SUBFILETYPE, FILETYPE_PAGE);
        if (page == 0)
            setHeaderTags(file, header);
        setStrips(file, layout, begin + page * (image.ByteCount() / layout.m_nPages));
        file.Check(TIFFWriteDirectory(file), "a page cannot be written");
    }
    file.Finish();
}

bool isProtected(const std::filesystem::path& file) {
#ifdef _WIN32
    // Not tried: another program that has the file open for a moment does not protect it.
    std::error_code error;
    const auto permissions = std::filesystem::status(file, error).permissions();
    return (permissions & std::filesystem::perms::owner_write) == std::filesystem::perms::none;
#else
    return !std::ofstream(file, std::ios::app);
#endif
}

/// The new file will take the place of the old one, which its write protection would not prevent.
void checkNotProtected(const std::string& path) {
    const std::filesystem::path file = std::filesystem::u8path(path);
    std::error_code error;
    if (std::filesystem::is_regular_file(file, error) && isProtected(file))
        fail("the file is write-protected");
}

} // namespace

CImage CImageFile::Read(const std::string& path) {
    return naming("CImageFile::Read", "cannot read", path, [&] {
        checkOrdinary(path);
        return readTiff(path);
    });
}

void CImageFile::Write(const CImage& image, const std::string& path) {
    naming("CImageFile::Write", "cannot write", path, [&] {
        if (image.ByteCount() == 0)
            fail("an image without pixels cannot be stored");
        checkNotProtected(path);
        ReplaceFile(path, [&](const std::string& newFile) { writeTiff(image, newFile); });
    });
}

} // namespace TEVU
