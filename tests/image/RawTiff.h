#ifndef RUQLIB2IMAGE_TESTS_RAWTIFF_H
#define RUQLIB2IMAGE_TESTS_RAWTIFF_H

#include <string>

/// Files that no program writes.
namespace raw_tiff {

enum EnByteOrder { eLittleEndian, eBigEndian };

/// A TIFF of one directory, whose entries a test spells out.
class CRawTiff {
public:
    explicit CRawTiff(EnByteOrder order = eLittleEndian) : m_nOrder(order) {}

    void add(unsigned tag, unsigned type, unsigned count, unsigned value) {
        const unsigned shortType = 3;
        put(m_sEntries, tag, 2);
        put(m_sEntries, type, 2);
        put(m_sEntries, count, 4);
        put(m_sEntries, value, type == shortType ? 2 : 4);
        put(m_sEntries, 0, type == shortType ? 2 : 0);
        ++m_nEntries;
    }

    /// Eight bytes of header, the directory, and \a data behind it.
    std::string content(unsigned next = 0, const std::string& data = std::string(64, 'x')) const {
        std::string bytes = m_nOrder == eBigEndian ? "MM" : "II";
        put(bytes, 42, 2);
        put(bytes, 8, 4);
        put(bytes, m_nEntries, 2);
        bytes += m_sEntries;
        put(bytes, next, 4);
        return bytes + data;
    }

private:
    void put(std::string& bytes, unsigned number, unsigned size) const {
        for (unsigned at = 0; at < size; ++at)
            bytes += static_cast<char>(number >> 8 * (m_nOrder == eBigEndian ? size - 1 - at : at));
    }

    EnByteOrder m_nOrder;
    std::string m_sEntries;
    unsigned m_nEntries = 0;
};

inline constexpr unsigned c_nShort = 3;
inline constexpr unsigned c_nLong = 4;

inline constexpr unsigned c_nPlain = 1;
inline constexpr unsigned c_nZip = 8;

/// A page in one strip, whose data follows the directory.
struct StPage {
    unsigned width = 8;
    unsigned height = 8;
    unsigned bits = 8;
    unsigned compression = c_nPlain;
    unsigned photometric = 1; ///< Black is zero.
    unsigned bytes = 64;      ///< Of the strip.
    unsigned format = 1;      ///< Unsigned.
};

inline CRawTiff page(const StPage& page) {
    const unsigned entries = 10;
    CRawTiff tiff;
    tiff.add(256, c_nLong, 1, page.width);
    tiff.add(257, c_nLong, 1, page.height);
    tiff.add(258, c_nShort, 1, page.bits);
    tiff.add(259, c_nShort, 1, page.compression);
    tiff.add(262, c_nShort, 1, page.photometric);
    tiff.add(273, c_nLong, 1, 8 + 2 + entries * 12 + 4);
    tiff.add(277, c_nShort, 1, 1);
    tiff.add(278, c_nLong, 1, page.height);
    tiff.add(279, c_nLong, 1, page.bytes);
    tiff.add(339, c_nShort, 1, page.format);
    return tiff;
}

inline CRawTiff page(unsigned width, unsigned height, unsigned compression, unsigned bytes) {
    StPage claimed;
    claimed.width = width;
    claimed.height = height;
    claimed.compression = compression;
    claimed.bytes = bytes;
    return page(claimed);
}

} // namespace raw_tiff

#endif
