#ifndef RUQLIB2IMAGE_TIFFFILE_H
#define RUQLIB2IMAGE_TIFFFILE_H

#include <cstdarg>
#include <cstdint>
#include <fstream>
#include <memory>
#include <string>

#include <tiffio.h>

namespace TEVU {

/// An open TIFF file, and what libtiff has to say about it: every failure is a CException with the
/// cause that libtiff reports first, and nothing is printed.
class CTiffFile {
public:
    /// The modes are those of TIFFOpen().
    CTiffFile(const std::string& path, const char* mode);
    CTiffFile(const CTiffFile&) = delete;
    CTiffFile& operator=(const CTiffFile&) = delete;
    ~CTiffFile();

    operator TIFF*() const { return m_pTiff; }

    std::uint64_t ByteCount() const; ///< The length of the file.

    /// To be called when everything has been written: throws when any of it has not. libtiff itself
    /// goes on after a place in the file that it could not go to.
    void Finish();

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
    static tmsize_t readBytes(thandle_t self, void* bytes, tmsize_t count);
    static tmsize_t writeBytes(thandle_t self, void* bytes, tmsize_t count);
    static toff_t seek(thandle_t self, toff_t offset, int from);
    static int keepOpen(thandle_t self);
    static toff_t size(thandle_t self);

    void openFile(const std::string& path, const char* mode);
    void openTiff(const std::string& path, const char* mode);
    std::uint64_t position(std::int64_t offset, std::ios::seekdir from);
    static int noteError(TIFF*, void* self, const char* module, const char* format, va_list);
    static int noteWarning(TIFF*, void* self, const char* module, const char* format, va_list);

    void checkDirectory() const;
    std::uint64_t directoryEnd() const;
    std::uint64_t numberAt(std::uint64_t offset, unsigned bytes) const;

    std::filebuf m_file;
    bool m_bFailed = false; ///< A write or a change of the place in the file.
    TIFF* m_pTiff;
    std::string m_sFirstError;
    bool m_bTagsCutOff = false; ///< The file ends before a value of the directory.
};

} // namespace TEVU

#endif
