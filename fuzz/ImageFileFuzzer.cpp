#include "HeaderText.h"

#include <ruqlib2core/CException.h>
#include <ruqlib2image/CImageFile.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>

namespace {

using TEVU::CImage;
using TEVU::CImageFile;

/// Larger images are read, but not written: that would show nothing new, and take long.
constexpr std::size_t c_nMostWritten = 64 * 1024;

void demand(bool holds, const std::string& law) {
    if (holds)
        return;
    std::fprintf(stderr, "broken: %s\n", law.c_str());
    std::abort();
}

/// A folder of this process alone, which goes with it.
class Folder {
public:
    Folder() {
        std::string pattern = (std::filesystem::temp_directory_path() / "ruqgui-XXXXXX").string();
        demand(mkdtemp(pattern.data()), "a folder can be made");
        m_path = pattern;
    }
    ~Folder() {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    std::string file(const char* name) const { return (m_path / name).string(); }

private:
    std::filesystem::path m_path;
};

/// None for a file that is refused; the refusal names it.
std::optional<CImage> readOrRefused(const std::string& path) {
    try {
        return CImageFile::Read(path);
    } catch (const TEVU::CException& refusal) {
        const std::string reason = refusal.Message();
        demand(reason.find(path) != std::string::npos && reason.size() > path.size() + 10,
               "a refusal names the file and the cause");
        return {};
    }
}

std::size_t pixelsOf(const CImage& image) {
    std::size_t pixels = 1;
    for (unsigned axis = 0; axis < image.Size().Dimension(); ++axis)
        pixels *= static_cast<std::size_t>(image.Size()[axis]);
    return pixels;
}

void demandSame(const CImage& a, const CImage& b, const std::string& law) {
    demand(a.Type() == b.Type() && a.Size() == b.Size(), law + ": the same type and size");
    demand(std::memcmp(a.Data(), b.Data(), a.ByteCount()) == 0, law + ": the same pixels");
    const std::string header = TEVU::headerText(a.Header());
    const std::string other = TEVU::headerText(b.Header());
    demand(header == other, law + ": the same header\n" + header + '\n' + other);
}

void demandRoundTrip(const CImage& image, const std::string& path) {
    CImageFile::Write(image, path);
    const std::optional<CImage> again = readOrRefused(path);
    demand(again.has_value(), "what is written is read");
    demandSame(image, *again, "what is written is read");
}

void tryFile(const Folder& folder) {
    const std::string path = folder.file("given.tif");
    const std::optional<CImage> image = readOrRefused(path);
    if (!image)
        return;
    demand(image->ByteCount() > 0 &&
               image->ByteCount() == pixelsOf(*image) * image->Type().BytesPerPixel(),
           "an image is whole");
    if (image->ByteCount() > c_nMostWritten)
        return;
    const std::optional<CImage> again = readOrRefused(path);
    demand(again.has_value(), "a file reads the same twice");
    demandSame(*image, *again, "a file reads the same twice");
    demandRoundTrip(*image, folder.file("written.tif"));
}

} // namespace

/// The bytes are a TIFF file.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const Folder folder;
    std::ofstream(folder.file("given.tif"), std::ios::binary)
        .write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
    tryFile(folder);
    return 0;
}
