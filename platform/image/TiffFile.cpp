#include "TiffFile.h"

#include <ruqlib2core/CException.h>

#include <cstdio>
#include <cstring>

namespace TEVU {

namespace {

std::string formatted(const char* format, va_list arguments) {
    char text[1000];
    std::vsnprintf(text, sizeof text, format, arguments);
    return text;
}

using Options = std::unique_ptr<TIFFOpenOptions, decltype(&TIFFOpenOptionsFree)>;

} // namespace

CTiffFile::CTiffFile(const std::string& path, const char* mode) : m_pTiff(nullptr) {
    const Options options(TIFFOpenOptionsAlloc(), &TIFFOpenOptionsFree);
    TIFFOpenOptionsSetErrorHandlerExtR(options.get(), &CTiffFile::noteError, this);
    TIFFOpenOptionsSetWarningHandlerExtR(options.get(), &CTiffFile::noteWarning, this);
    m_pTiff = TIFFOpenExt(path.c_str(), mode, options.get());
    Check(m_pTiff, "it cannot be opened");
    try {
        if (mode[0] == 'r')
            checkDirectory();
    } catch (...) {
        TIFFClose(m_pTiff);
        throw;
    }
}

CTiffFile::~CTiffFile() {
    TIFFClose(m_pTiff);
}

std::uint64_t CTiffFile::ByteCount() const {
    return TIFFGetSizeProc(m_pTiff)(TIFFClientdata(m_pTiff));
}

bool CTiffFile::NextDirectory() {
    if (TIFFLastDirectory(m_pTiff))
        return false;
    // It refuses a directory that it has seen before: the chain of a damaged file may be a circle.
    Check(TIFFReadDirectory(m_pTiff), "its list of pages is damaged");
    checkDirectory();
    return true;
}

void CTiffFile::GoToDirectory(std::uint64_t offset) {
    Check(TIFFSetSubDirectory(m_pTiff, offset), "its list of pages is damaged");
    checkDirectory();
}

void CTiffFile::ReadAt(std::uint64_t offset, unsigned char* bytes, std::uint64_t count) const {
    const auto size = static_cast<tmsize_t>(count);
    TIFFGetSeekProc(m_pTiff)(TIFFClientdata(m_pTiff), offset, SEEK_SET);
    Check(TIFFGetReadProc(m_pTiff)(TIFFClientdata(m_pTiff), bytes, size) == size,
          "it is truncated");
}

void CTiffFile::Check(bool succeeded, const char* otherwise) const {
    if (!succeeded)
        throw CException("libtiff", m_sFirstError.empty() ? otherwise : m_sFirstError);
}

std::string CTiffFile::Text(std::uint32_t tag) const {
    const char* text = nullptr;
    return TIFFGetField(m_pTiff, tag, &text) && text ? text : "";
}

std::uint16_t CTiffFile::Number(std::uint32_t tag) const {
    std::uint16_t number = 0;
    TIFFGetFieldDefaulted(m_pTiff, tag, &number);
    return number;
}

int CTiffFile::noteError(TIFF*, void* self, const char*, const char* format, va_list arguments) {
    auto* file = static_cast<CTiffFile*>(self);
    if (file->m_sFirstError.empty())
        file->m_sFirstError = formatted(format, arguments);
    return 1; // it has been dealt with: the handlers that print are not called
}

int CTiffFile::noteWarning(TIFF*, void* self, const char*, const char* format, va_list) {
    // libtiff goes on without a tag whose value it could not read. The other reasons for that are
    // slips of the program that wrote the file; this one means that a piece of the file is gone.
    if (std::strstr(format, "IO error during reading"))
        static_cast<CTiffFile*>(self)->m_bTagsCutOff = true;
    return 1;
}

std::uint64_t CTiffFile::numberAt(std::uint64_t offset, unsigned bytes) const {
    unsigned char raw[8] = {};
    ReadAt(offset, raw, bytes);
    std::uint64_t number = 0;
    for (unsigned at = 0; at < bytes; ++at)
        number = number << 8 | raw[TIFFIsBigEndian(m_pTiff) ? at : bytes - 1 - at];
    return number;
}

std::uint64_t CTiffFile::directoryEnd() const {
    const std::uint64_t begin = TIFFCurrentDirOffset(m_pTiff);
    if (TIFFIsBigTIFF(m_pTiff))
        return begin + 8 + numberAt(begin, 8) * 20 + 8;
    return begin + 2 + numberAt(begin, 2) * 12 + 4;
}

void CTiffFile::checkDirectory() const {
    // Where the place of the next page is cut off, libtiff takes this page for the last one.
    if (directoryEnd() > ByteCount())
        throw CException("libtiff", "it is truncated: the end of a directory is missing");
    if (m_bTagsCutOff)
        throw CException("libtiff", "it is truncated: the value of a tag is missing");
}

} // namespace TEVU
