#ifndef RUQLIB2IMAGE_TIFFPAGE_H
#define RUQLIB2IMAGE_TIFFPAGE_H

#include <ruqlib2image/IImage.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace TEVU {

class CTiffFile;

/// One page of a TIFF file: what it holds, and how its samples become pixels of an image.
class CTiffPage {
public:
    /// Describes the page of the current directory. A CException names what is not supported, or
    /// what is wrong: pixel data that does not lie inside the file, for one.
    explicit CTiffPage(const CTiffFile& file);

    std::uint64_t Offset() const { return m_nOffset; } ///< Of its directory.
    std::uint32_t Width() const { return m_nWidth; }
    std::uint32_t Height() const { return m_nHeight; }
    IImage::CType Type() const { return m_Type; }

    /// Decodes the page, whose directory must be the current one, into Width() times Height()
    /// pixels. A CException when the data cannot be decoded.
    void Decode(const CTiffFile& file, unsigned char* pixels) const;

    /// ImageJ writes stacks that are too large for a classic TIFF as one page, whose description names
    /// the number of images; the others lie behind the page's own pixels. How many slices there are,
    /// given that the description says \a claimed: 1 for an ordinary page. A CException when the file
    /// ends before them.
    std::size_t CountSlices(const CTiffFile& file, std::uint64_t claimed) const;
    void ReadSliceBehind(const CTiffFile& file, std::size_t slice, unsigned char* pixels) const;

private:
    /// How a sample of the file becomes one of the image.
    enum EnConversion {
        eCopy,       ///< The same bytes.
        eScaleTo8,   ///< Unsigned, fewer than eight bits: black to black, white to white.
        eWidenTo16,  ///< Unsigned, nine to fifteen bits: the same number.
        ePalette,    ///< The number of a colour.
        eInt8To16,   ///< The same number.
        eFloat64To32 ///< The nearest number.
    };

    using Colour = std::array<unsigned char, 3>;

    /// A strip or a tile: the part of it that lies inside the page.
    struct StChunk {
        std::uint32_t m_nIndex;
        std::uint32_t m_nLeft;
        std::uint32_t m_nTop;
        std::uint32_t m_nColumns;
        std::uint32_t m_nRows;
        unsigned m_nPlane;
        std::size_t m_nBytes; ///< Of the whole chunk, decoded.
    };

    void readLayout(const CTiffFile& file);
    void chooseType(const CTiffFile& file);
    void chooseColours(const CTiffFile& file);
    void chooseGrey(const CTiffFile& file);
    void choosePalette(const CTiffFile& file);
    void readPalette(const CTiffFile& file);
    void take(IImage::CType type, EnConversion conversion);
    void dropAlpha(const CTiffFile& file, unsigned colours) const;
    void checkSize(const CTiffFile& file) const;
    void checkData(const CTiffFile& file) const;
    [[noreturn]] void refuseSamples() const;

    bool isUnsigned() const;
    std::size_t channels() const { return m_Type == IImage::CType::eRGB8 ? 3 : 1; }
    std::size_t samplesInChunk() const { return m_bPlanes ? 1 : m_nSamples; }
    std::size_t rowBytes() const; ///< Of a chunk.
    std::size_t chunksPerRow() const;
    std::size_t chunksPerColumn() const;

    std::vector<StChunk> chunks() const;
    void addPlane(unsigned plane, std::vector<StChunk>& chunks) const;
    bool isInPlace() const;
    bool hasPlainPixels(const CTiffFile& file) const;
    std::uint64_t pageBytes() const; ///< Of the pixels.
    void decodeChunk(const CTiffFile& file, const StChunk& chunk, unsigned char* bytes) const;
    void convertChunk(const StChunk& chunk, const unsigned char* bytes,
                      unsigned char* pixels) const;
    void convertRow(const unsigned char* row, std::size_t count, unsigned char* pixels) const;
    void copyRow(const unsigned char* row, std::size_t count, unsigned char* pixels) const;
    void invertRow(std::size_t count, unsigned char* pixels) const;

    std::uint64_t m_nOffset = 0;
    std::uint32_t m_nWidth = 0;
    std::uint32_t m_nHeight = 0;
    std::uint32_t m_nChunkWidth = 0;
    std::uint32_t m_nChunkHeight = 0;
    unsigned m_nBits = 0;    ///< Of a sample in the file.
    unsigned m_nFormat = 0;  ///< Of a sample in the file: SAMPLEFORMAT_…
    unsigned m_nSamples = 0; ///< Of a pixel in the file.
    unsigned m_nPhotometric = 0;
    bool m_bTiles = false;
    bool m_bPlanes = false; ///< Each sample of a pixel has strips or tiles of its own.
    std::vector<Colour> m_vPalette;
    IImage::CType m_Type = IImage::CType::eUInt8;
    EnConversion m_nConversion = eCopy;
};

} // namespace TEVU

#endif
