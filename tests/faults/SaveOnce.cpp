// Saves once, between two marks in the trace of its system calls: getppid(), which nothing else here
// calls. Prints "saved" when the library says that what it was given is stored.

#include <ruqlib2core/CException.h>
#include <ruqlib2core/CRegistry.h>
#include <ruqlib2core/CValueString.h>
#include <ruqlib2image/CImageFile.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <sstream>
#include <string>
#include <unistd.h>

using namespace TEVU;

namespace {

// The registry throws nothing: it writes a line when it could not write.
bool savesSetting(const std::string& path) {
    ::setenv("RUQ_REGISTRY", path.c_str(), 1);
    std::ostringstream lines;
    std::streambuf* const before = std::cerr.rdbuf(lines.rdbuf());
    ::getppid();
    CRegistry::Obj().SetEntry("key", new CValueString("after"));
    ::getppid();
    std::cerr.rdbuf(before);
    return lines.str().find("not written") == std::string::npos;
}

bool savesImage(const std::string& path) {
    CImage image(IImage::CType::eUInt8, CSize(64, 64));
    std::fill_n(image.Data(), image.ByteCount(), static_cast<unsigned char>(2));
    ::getppid();
    try {
        CImageFile::Write(image, path);
    } catch (const CException&) {
        return false;
    }
    ::getppid();
    return true;
}

} // namespace

int main(int count, char** arguments) {
    if (count != 3)
        return 2;
    const bool setting = std::string(arguments[1]) == "registry";
    if (setting ? savesSetting(arguments[2]) : savesImage(arguments[2]))
        std::puts("saved");
}
