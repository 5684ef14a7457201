#include <ruqlib2image/IImage.h>

namespace TEVU {

namespace {

struct StTypeRow {
    std::size_t m_nBytes;
    const char* m_sName;
};

/// In the order of the enumerators.
const StTypeRow c_TypeRows[] = {
    {1, "UInt8"}, {2, "UInt16"}, {2, "Int16"}, {4, "Int32"}, {4, "Float32"}, {3, "RGB8"},
};

} // namespace

IImage::CType::CType(EnType type) : m_nType(type) {}

IImage::CType::EnType IImage::CType::Enumerator() const {
    return m_nType;
}

std::size_t IImage::CType::BytesPerPixel() const {
    return c_TypeRows[m_nType].m_nBytes;
}

const char* IImage::CType::Name() const {
    return c_TypeRows[m_nType].m_sName;
}

IImage::~IImage() = default;

} // namespace TEVU
