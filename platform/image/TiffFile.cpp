#include "TiffFile.h"

#include <ruqlib2core/CException.h>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <system_error>
#include <thread>

namespace TEVU {

namespace {

std::string formatted(const char* format, va_list arguments) {
    char text[1000];
    std::vsnprintf(text, sizeof text, format, arguments);
    return text;
}

CTiffFile* fileOf(thandle_t self) {
    return static_cast<CTiffFile*>(self);
}

/// Whether the file that was to be opened is one that another program has open and does not share; on Windows.
bool isHeldByAnother() {
#ifdef _WIN32
    const unsigned long sharingViolation = 32;
    return _doserrno == sharingViolation;
#else
    return false;
#endif
}

using Options = std::unique_ptr<TIFFOpenOptions, decltype(&TIFFOpenOptionsFree)>;

} // namespace

CTiffFile::CTiffFile(const std::string& path, const char* mode) : m_pTiff(nullptr) {
    openFile(path, mode);
    openTiff(path, mode);
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

void CTiffFile::openFile(const std::string& path, const char* mode) {
    const auto how = mode[0] == 'r' ? std::ios::in : std::ios::in | std::ios::out | std::ios::trunc;
    int error = 0;
    // For a second, as long as replacing a file is tried: nobody shares it while it is being replaced.
    for (int attempt = 0; attempt < 100; ++attempt) {
        if (m_file.open(std::filesystem::u8path(path), how | std::ios::binary))
            return;
        error = errno;
        if (!isHeldByAnother())
            break;
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    throw CException("CTiffFile", "it cannot be opened: " + std::generic_category().message(error));
}

void CTiffFile::openTiff(const std::string& path, const char* mode) {
    const Options options(TIFFOpenOptionsAlloc(), &TIFFOpenOptionsFree);
    TIFFOpenOptionsSetErrorHandlerExtR(options.get(), &CTiffFile::noteError, this);
    TIFFOpenOptionsSetWarningHandlerExtR(options.get(), &CTiffFile::noteWarning, this);
    m_pTiff = TIFFClientOpenExt(path.c_str(), mode, this, &readBytes, &writeBytes, &seek, &keepOpen,
                                &size, nullptr, nullptr, options.get());
    Check(m_pTiff, "it cannot be opened");
}

tmsize_t CTiffFile::readBytes(thandle_t self, void* bytes, tmsize_t count) {
    return fileOf(self)->m_file.sgetn(static_cast<char*>(bytes), count);
}

tmsize_t CTiffFile::writeBytes(thandle_t self, void* bytes, tmsize_t count) {
    CTiffFile* const file = fileOf(self);
    const tmsize_t written = file->m_file.sputn(static_cast<const char*>(bytes), count);
    file->m_bFailed = file->m_bFailed || written != count;
    return written;
}

toff_t CTiffFile::seek(thandle_t self, toff_t offset, int from) {
    const auto direction =
        from == SEEK_SET ? std::ios::beg : (from == SEEK_CUR ? std::ios::cur : std::ios::end);
    return fileOf(self)->position(static_cast<std::int64_t>(offset), direction);
}

int CTiffFile::keepOpen(thandle_t) {
    return 0; // m_file closes itself
}

toff_t CTiffFile::size(thandle_t self) {
    CTiffFile* const file = fileOf(self);
    const std::uint64_t here = file->position(0, std::ios::cur);
    const std::uint64_t end = file->position(0, std::ios::end);
    file->position(static_cast<std::int64_t>(here), std::ios::beg);
    return end;
}

std::uint64_t CTiffFile::position(std::int64_t offset, std::ios::seekdir from) {
    const std::streamoff reached = m_file.pubseekoff(offset, from);
    m_bFailed = m_bFailed || reached < 0;
    return static_cast<std::uint64_t>(reached);
}

void CTiffFile::Finish() {
    Check(TIFFFlush(m_pTiff) && m_file.pubsync() == 0 && !m_bFailed, "it cannot be written");
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
