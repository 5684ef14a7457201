#ifndef RUQLIB2IMAGE_TIFFFILE_H
#define RUQLIB2IMAGE_TIFFFILE_H

#include <cstdarg>
#include <cstdint>
#include <memory>
#include <string>

#include <tiffio.h>

namespace TEVU {

/// An open TIFF file, and what libtiff has to say about it: every failure is a CException with the
/// cause that libtiff reports first, and nothing is printed.
class CTiffFile {
public:
    /// As TIFFOpen() does it.
    CTiffFile(const std::string& path, const char* mode);
    CTiffFile(const CTiffFile&) = delete;
    CTiffFile& operator=(const CTiffFile&) = delete;
    ~CTiffFile();

    operator TIFF*() const { return m_pTiff; }

    std::uint64_t ByteCount() const; ///< The length of the file.

    /// The first directory is current after opening. False when there is no further one.
    bool NextDirectory();
    void GoToDirectory(std::uint64_t offset); ///< As TIFFCurrentDirOffset() gave it.

    /// Reads \a count bytes of the file as they are.
    void ReadAt(std::uint64_t offset, unsigned char* bytes, std::uint64_t count) const;

    /// Throws with the cause that libtiff has reported, or \a otherwise when it was silent, unless
    /// \a succeeded.
    void Check(bool succeeded, const char* otherwise) const;

    std::string Text(std::uint32_t tag) const; ///< Empty when there is none.

    /// A tag with one 16-bit value. Its default when it is missing, and 0 when it has none.
    std::uint16_t Number(std::uint32_t tag) const;

private:
    static int noteError(TIFF*, void* self, const char* module, const char* format, va_list);
    static int noteWarning(TIFF*, void* self, const char* module, const char* format, va_list);

    void checkDirectory() const;
    std::uint64_t directoryEnd() const;
    std::uint64_t numberAt(std::uint64_t offset, unsigned bytes) const;

    TIFF* m_pTiff;
    std::string m_sFirstError;
    bool m_bTagsCutOff = false; ///< The file ends before a value of the directory.
};

} // namespace TEVU

#endif
