#include "TiffPage.h"

#include "TiffFile.h"

#include <ruqlib2core/CException.h>

#include <algorithm>
#include <climits>
#include <cstring>

namespace TEVU {

namespace {

/// The most that a byte of a file may become. Blank facsimile pages, a bit for a row of 64 Ki
/// pixels, come close; what claims more is damaged or malicious.
constexpr double c_dMaxExpansion = 1 << 20;

[[noreturn]] void fail(const std::string& cause) {
    throw CException("CTiffPage", cause);
}

/// Compares before anything is allocated.
void checkExpansion(double bytes, const CTiffFile& file) {
    if (bytes > c_dMaxExpansion * static_cast<double>(file.ByteCount()))
        fail("it claims more pixels than a file of its length can hold");
}

std::string photometricName(unsigned photometric) {
    switch (photometric) {
    case PHOTOMETRIC_MASK:
        return "transparency masks";
    case PHOTOMETRIC_SEPARATED:
        return "CMYK colours";
    case PHOTOMETRIC_YCBCR:
        return "YCbCr colours without JPEG compression";
    case PHOTOMETRIC_CIELAB:
    case PHOTOMETRIC_ICCLAB:
    case PHOTOMETRIC_ITULAB:
        return "L*a*b* colours";
    case PHOTOMETRIC_CFA:
        return "raw camera data";
    case PHOTOMETRIC_LOGL:
    case PHOTOMETRIC_LOGLUV:
        return "logarithmic luminances";
    default:
        return "pixels of photometric interpretation " + std::to_string(photometric);
    }
}

std::string formatName(unsigned format) {
    switch (format) {
    case SAMPLEFORMAT_INT:
        return "signed";
    case SAMPLEFORMAT_IEEEFP:
        return "floating-point";
    case SAMPLEFORMAT_COMPLEXINT:
    case SAMPLEFORMAT_COMPLEXIEEEFP:
        return "complex";
    default:
        return "unsigned";
    }
}

template <class T>
T load(const unsigned char* from, std::size_t index) {
    T number;
    std::memcpy(&number, from + index * sizeof number, sizeof number);
    return number;
}

template <class T>
void store(T number, unsigned char* to, std::size_t index) {
    std::memcpy(to + index * sizeof number, &number, sizeof number);
}

/// Samples of one to fifteen bits lie one behind the other, the most significant bit first.
unsigned unpack(const unsigned char* row, std::size_t index, unsigned bits) {
    const std::size_t firstBit = index * bits;
    const unsigned char* byte = row + firstBit / 8;
    const unsigned needed = static_cast<unsigned>(firstBit % 8) + bits;
    unsigned window = 0;
    unsigned taken = 0;
    for (; taken < needed; taken += 8)
        window = window << 8 | *byte++;
    return window >> (taken - needed) & ((1u << bits) - 1);
}

unsigned unsignedSample(const unsigned char* row, std::size_t index, unsigned bits) {
    if (bits == 8)
        return row[index];
    return bits == 16 ? load<std::uint16_t>(row, index) : unpack(row, index, bits);
}

/// YCbCr inside JPEG comes out as RGB. A setting of the current directory, which reading it again
/// resets.
void decodeJpegToRgb(const CTiffFile& file) {
    if (file.Number(TIFFTAG_COMPRESSION) == COMPRESSION_JPEG &&
        file.Number(TIFFTAG_PHOTOMETRIC) == PHOTOMETRIC_YCBCR)
        TIFFSetField(file, TIFFTAG_JPEGCOLORMODE, JPEGCOLORMODE_RGB);
}

} // namespace

CTiffPage::CTiffPage(const CTiffFile& file) : m_nOffset(TIFFCurrentDirOffset(file)) {
    readLayout(file);
    chooseType(file);
    checkSize(file);
    checkData(file);
}

void CTiffPage::readLayout(const CTiffFile& file) {
    decodeJpegToRgb(file);
    TIFFGetField(file, TIFFTAG_IMAGEWIDTH, &m_nWidth);
    TIFFGetField(file, TIFFTAG_IMAGELENGTH, &m_nHeight);
    m_nBits = file.Number(TIFFTAG_BITSPERSAMPLE);
    m_nFormat = file.Number(TIFFTAG_SAMPLEFORMAT);
    m_nSamples = file.Number(TIFFTAG_SAMPLESPERPIXEL);
    m_nPhotometric = m_nSamples < 3 ? PHOTOMETRIC_MINISBLACK : PHOTOMETRIC_RGB;
    std::uint16_t photometric = 0;
    if (TIFFGetField(file, TIFFTAG_PHOTOMETRIC, &photometric))
        m_nPhotometric = photometric;
    m_bPlanes = m_nSamples > 1 && file.Number(TIFFTAG_PLANARCONFIG) == PLANARCONFIG_SEPARATE;
    m_bTiles = TIFFIsTiled(file);
    if (m_bTiles) {
        TIFFGetField(file, TIFFTAG_TILEWIDTH, &m_nChunkWidth);
        TIFFGetField(file, TIFFTAG_TILELENGTH, &m_nChunkHeight);
        return;
    }
    std::uint32_t rows = m_nHeight;
    TIFFGetFieldDefaulted(file, TIFFTAG_ROWSPERSTRIP, &rows);
    m_nChunkWidth = m_nWidth;
    m_nChunkHeight = std::min(rows, m_nHeight);
}

void CTiffPage::chooseType(const CTiffFile& file) {
    if (m_nFormat == SAMPLEFORMAT_VOID)
        m_nFormat = SAMPLEFORMAT_UINT;
    switch (m_nPhotometric) {
    case PHOTOMETRIC_MINISWHITE:
    case PHOTOMETRIC_MINISBLACK:
        return chooseGrey(file);
    case PHOTOMETRIC_PALETTE:
        return choosePalette(file);
    case PHOTOMETRIC_RGB:
        return chooseColours(file);
    case PHOTOMETRIC_YCBCR:
        if (file.Number(TIFFTAG_COMPRESSION) == COMPRESSION_JPEG)
            return chooseColours(file);
        break;
    }
    fail(photometricName(m_nPhotometric) + " are not supported");
}

void CTiffPage::chooseColours(const CTiffFile& file) {
    dropAlpha(file, 3);
    if (!isUnsigned() || m_nBits != 8)
        refuseSamples();
    take(IImage::CType::eRGB8, eCopy);
}

void CTiffPage::chooseGrey(const CTiffFile& file) {
    dropAlpha(file, 1);
    if (m_nPhotometric == PHOTOMETRIC_MINISWHITE && !isUnsigned())
        fail("white as the smallest value is not supported for " + formatName(m_nFormat) +
             " samples");
    const bool isInt = m_nFormat == SAMPLEFORMAT_INT;
    const bool isFloat = m_nFormat == SAMPLEFORMAT_IEEEFP;
    if (isUnsigned() && m_nBits >= 1 && m_nBits <= 8)
        take(IImage::CType::eUInt8, m_nBits == 8 ? eCopy : eScaleTo8);
    else if (isUnsigned() && m_nBits > 8 && m_nBits <= 16)
        take(IImage::CType::eUInt16, m_nBits == 16 ? eCopy : eWidenTo16);
    else if (isInt && (m_nBits == 8 || m_nBits == 16))
        take(IImage::CType::eInt16, m_nBits == 16 ? eCopy : eInt8To16);
    else if (isInt && m_nBits == 32)
        take(IImage::CType::eInt32, eCopy);
    else if (isFloat && (m_nBits == 32 || m_nBits == 64))
        take(IImage::CType::eFloat32, m_nBits == 32 ? eCopy : eFloat64To32);
    else
        refuseSamples();
}

void CTiffPage::choosePalette(const CTiffFile& file) {
    dropAlpha(file, 1);
    if (!isUnsigned() || m_nBits < 1 || m_nBits > 16)
        refuseSamples();
    take(IImage::CType::eRGB8, ePalette);
    readPalette(file);
}

void CTiffPage::readPalette(const CTiffFile& file) {
    const std::uint16_t* tables[3] = {};
    if (!TIFFGetField(file, TIFFTAG_COLORMAP, &tables[0], &tables[1], &tables[2]))
        fail("its palette is missing");
    m_vPalette.resize(std::size_t(1) << m_nBits);
    std::uint16_t brightest = 0;
    for (const std::uint16_t* table : tables)
        brightest = std::max(brightest, *std::max_element(table, table + m_vPalette.size()));
    // Colours have sixteen bits, but there are programs that write eight.
    const unsigned shift = brightest > 255 ? 8 : 0;
    for (std::size_t index = 0; index < m_vPalette.size(); ++index)
        for (std::size_t channel = 0; channel < 3; ++channel)
            m_vPalette[index][channel] =
                static_cast<unsigned char>(tables[channel][index] >> shift);
}

void CTiffPage::take(IImage::CType type, EnConversion conversion) {
    m_Type = type;
    m_nConversion = conversion;
}

void CTiffPage::dropAlpha(const CTiffFile& file, unsigned colours) const {
    if (m_nSamples == colours)
        return;
    std::uint16_t count = 0;
    const std::uint16_t* kinds = nullptr;
    TIFFGetFieldDefaulted(file, TIFFTAG_EXTRASAMPLES, &count, &kinds);
    const bool declared = count == 1 && kinds && kinds[0] != EXTRASAMPLE_UNSPECIFIED;
    // A fourth sample beside three colours is alpha in practice, even if the file does not say so.
    if (m_nSamples != colours + 1 || (colours == 1 && !declared))
        fail("pixels of " + std::to_string(m_nSamples) + " samples are not supported here");
}

void CTiffPage::refuseSamples() const {
    fail(formatName(m_nFormat) + " samples of " + std::to_string(m_nBits) +
         " bits are not supported" + (m_nPhotometric == PHOTOMETRIC_RGB ? " for colours" : ""));
}

bool CTiffPage::isUnsigned() const {
    return m_nFormat == SAMPLEFORMAT_UINT;
}

std::size_t CTiffPage::rowBytes() const {
    return (m_nChunkWidth * samplesInChunk() * m_nBits + 7) / 8;
}

std::size_t CTiffPage::chunksPerRow() const {
    return (std::size_t(m_nWidth) + m_nChunkWidth - 1) / m_nChunkWidth;
}

std::size_t CTiffPage::chunksPerColumn() const {
    return (std::size_t(m_nHeight) + m_nChunkHeight - 1) / m_nChunkHeight;
}

void CTiffPage::checkSize(const CTiffFile& file) const {
    if (m_nWidth == 0 || m_nHeight == 0 || m_nChunkWidth == 0 || m_nChunkHeight == 0)
        fail("it has a page without pixels");
    if (m_nWidth > INT_MAX || m_nHeight > INT_MAX)
        fail("its pages are too large");
    std::uint32_t depth = 1;
    if (TIFFGetField(file, TIFFTAG_IMAGEDEPTH, &depth) && depth != 1)
        fail("pages of more than one slice are not supported");
    checkExpansion(double(m_nWidth) * m_nHeight * double(m_Type.BytesPerPixel()), file);
    checkExpansion(double(rowBytes()) * m_nChunkHeight, file);
    // Each has a place in the file's list of them.
    if (double(chunksPerRow()) * double(chunksPerColumn()) > double(file.ByteCount()))
        fail("it is truncated or damaged: its list of strips or tiles is missing");
}

void CTiffPage::checkData(const CTiffFile& file) const {
    const std::uint64_t length = file.ByteCount();
    // Without compression a chunk may claim more than is needed, and some do for the last one.
    const bool isPlain = file.Number(TIFFTAG_COMPRESSION) == COMPRESSION_NONE;
    for (const StChunk& chunk : chunks()) {
        const std::uint64_t offset = TIFFGetStrileOffset(file, chunk.m_nIndex);
        std::uint64_t bytes = TIFFGetStrileByteCount(file, chunk.m_nIndex);
        if (isPlain)
            bytes = std::min<std::uint64_t>(bytes, chunk.m_nBytes);
        if (bytes == 0 || offset > length || bytes > length - offset)
            fail("it is truncated or damaged: pixel data lies outside the file");
    }
}

std::vector<CTiffPage::StChunk> CTiffPage::chunks() const {
    std::vector<StChunk> all;
    const std::size_t planes = m_bPlanes ? channels() : 1;
    for (unsigned plane = 0; plane < planes; ++plane)
        addPlane(plane, all);
    return all;
}

void CTiffPage::addPlane(unsigned plane, std::vector<StChunk>& chunks) const {
    const std::size_t perRow = chunksPerRow();
    const std::size_t count = perRow * chunksPerColumn();
    for (std::size_t at = 0; at < count; ++at) {
        StChunk chunk;
        chunk.m_nIndex = static_cast<std::uint32_t>(plane * count + at);
        chunk.m_nLeft = static_cast<std::uint32_t>(at % perRow * m_nChunkWidth);
        chunk.m_nTop = static_cast<std::uint32_t>(at / perRow * m_nChunkHeight);
        chunk.m_nColumns = std::min(m_nChunkWidth, m_nWidth - chunk.m_nLeft);
        chunk.m_nRows = std::min(m_nChunkHeight, m_nHeight - chunk.m_nTop);
        chunk.m_nPlane = plane;
        chunk.m_nBytes = rowBytes() * (m_bTiles ? m_nChunkHeight : chunk.m_nRows);
        chunks.push_back(chunk);
    }
}

void CTiffPage::Decode(const CTiffFile& file, unsigned char* pixels) const {
    decodeJpegToRgb(file);
    std::vector<unsigned char> bytes;
    for (const StChunk& chunk : chunks()) {
        if (isInPlace()) {
            decodeChunk(file, chunk, pixels + rowBytes() * chunk.m_nTop);
            continue;
        }
        bytes.resize(chunk.m_nBytes);
        decodeChunk(file, chunk, bytes.data());
        convertChunk(chunk, bytes.data(), pixels);
    }
}

std::uint64_t CTiffPage::pageBytes() const {
    return std::uint64_t(m_nWidth) * m_nHeight * m_Type.BytesPerPixel();
}

bool CTiffPage::hasPlainPixels(const CTiffFile& file) const {
    if (!isInPlace() || file.Number(TIFFTAG_COMPRESSION) != COMPRESSION_NONE)
        return false;
    std::uint64_t expected = TIFFGetStrileOffset(file, 0);
    for (const StChunk& chunk : chunks()) {
        if (TIFFGetStrileOffset(file, chunk.m_nIndex) != expected)
            return false;
        expected += chunk.m_nBytes;
    }
    return true;
}

std::size_t CTiffPage::CountSlices(const CTiffFile& file, std::uint64_t claimed) const {
    const std::uint64_t begin = TIFFGetStrileOffset(file, 0);
    // In such a file the directory comes first. Where one page was taken out of a stack, together with
    // its description, there is nothing behind it.
    const bool isStack = claimed > 1 && hasPlainPixels(file) && m_nOffset < begin &&
                         file.ByteCount() - begin >= 2 * pageBytes();
    if (!isStack)
        return 1;
    if ((file.ByteCount() - begin) / pageBytes() < claimed)
        fail("it is truncated: slices are missing");
    return static_cast<std::size_t>(claimed);
}

void CTiffPage::ReadSliceBehind(const CTiffFile& file, std::size_t slice,
                                unsigned char* pixels) const {
    file.ReadAt(TIFFGetStrileOffset(file, 0) + slice * pageBytes(), pixels, pageBytes());
    if (!TIFFIsByteSwapped(file))
        return;
    if (m_nBits == 16)
        TIFFSwabArrayOfShort(reinterpret_cast<std::uint16_t*>(pixels),
                             static_cast<tmsize_t>(pageBytes() / 2));
    if (m_nBits == 32)
        TIFFSwabArrayOfLong(reinterpret_cast<std::uint32_t*>(pixels),
                            static_cast<tmsize_t>(pageBytes() / 4));
}

bool CTiffPage::isInPlace() const {
    return !m_bTiles && !m_bPlanes && m_nConversion == eCopy && m_nSamples == channels() &&
           m_nPhotometric != PHOTOMETRIC_MINISWHITE;
}

void CTiffPage::decodeChunk(const CTiffFile& file, const StChunk& chunk,
                            unsigned char* bytes) const {
    const auto size = static_cast<tmsize_t>(chunk.m_nBytes);
    const tmsize_t decoded = m_bTiles ? TIFFReadEncodedTile(file, chunk.m_nIndex, bytes, size)
                                      : TIFFReadEncodedStrip(file, chunk.m_nIndex, bytes, size);
    file.Check(decoded == size, "its pixel data is damaged");
}

void CTiffPage::convertChunk(const StChunk& chunk, const unsigned char* bytes,
                             unsigned char* pixels) const {
    for (std::uint32_t row = 0; row < chunk.m_nRows; ++row) {
        const std::size_t first = std::size_t(chunk.m_nTop + row) * m_nWidth + chunk.m_nLeft;
        unsigned char* target = pixels + first * m_Type.BytesPerPixel();
        convertRow(bytes + row * rowBytes(), chunk.m_nColumns, target + chunk.m_nPlane);
        if (m_nPhotometric == PHOTOMETRIC_MINISWHITE)
            invertRow(chunk.m_nColumns, target);
    }
}

void CTiffPage::convertRow(const unsigned char* row, std::size_t count,
                           unsigned char* pixels) const {
    if (m_nConversion == eCopy)
        return copyRow(row, count, pixels);
    const unsigned white = (1u << std::min(m_nBits, 16u)) - 1;
    for (std::size_t pixel = 0; pixel < count; ++pixel) {
        const std::size_t at = pixel * samplesInChunk();
        switch (m_nConversion) {
        case eScaleTo8:
            pixels[pixel] = static_cast<unsigned char>(unpack(row, at, m_nBits) * 255 / white);
            break;
        case eWidenTo16:
            store(static_cast<std::uint16_t>(unpack(row, at, m_nBits)), pixels, pixel);
            break;
        case ePalette:
            store(m_vPalette[unsignedSample(row, at, m_nBits)], pixels, pixel);
            break;
        case eInt8To16:
            store(static_cast<std::int16_t>(load<std::int8_t>(row, at)), pixels, pixel);
            break;
        case eFloat64To32:
            store(static_cast<float>(load<double>(row, at)), pixels, pixel);
            break;
        case eCopy:
            break;
        }
    }
}

void CTiffPage::copyRow(const unsigned char* row, std::size_t count, unsigned char* pixels) const {
    const std::size_t bytesPerPixel = m_Type.BytesPerPixel();
    // One channel of a plane, or all channels of a pixel, without what follows them.
    const std::size_t size = m_bPlanes ? m_nBits / 8 : bytesPerPixel;
    const std::size_t step = samplesInChunk() * m_nBits / 8;
    for (std::size_t pixel = 0; pixel < count; ++pixel)
        std::memcpy(pixels + pixel * bytesPerPixel, row + pixel * step, size);
}

void CTiffPage::invertRow(std::size_t count, unsigned char* pixels) const {
    const unsigned white = m_nBits <= 8 ? 255 : (1u << m_nBits) - 1;
    for (std::size_t pixel = 0; pixel < count; ++pixel) {
        if (m_Type == IImage::CType::eUInt8)
            pixels[pixel] = static_cast<unsigned char>(white - pixels[pixel]);
        else
            store(static_cast<std::uint16_t>(white - load<std::uint16_t>(pixels, pixel)), pixels,
                  pixel);
    }
}

} // namespace TEVU
