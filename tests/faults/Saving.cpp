#include "Saving.h"

#include <System.h>
#include <ruqlib2core/CException.h>
#include <ruqlib2core/CRegistry.h>
#include <ruqlib2core/CValueString.h>
#include <ruqlib2image/CImageFile.h>

#include <algorithm>
#include <iostream>
#include <sstream>

using namespace TEVU;

namespace {

// The registry throws nothing: it writes a line when it could not write.
bool savesSetting() {
    std::ostringstream lines;
    std::streambuf* const before = std::cerr.rdbuf(lines.rdbuf());
    CRegistry::Obj().SetEntry("key", new CValueString("after"));
    std::cerr.rdbuf(before);
    return lines.str().find("not written") == std::string::npos;
}

bool savesImage(const CImage& image, const std::string& path) {
    try {
        CImageFile::Write(image, path);
        return true;
    } catch (const CException&) {
        return false;
    }
}

} // namespace

bool savesOnce(const std::string& kind, const std::string& path, const std::function<void()>& begin,
               const std::function<void()>& end) {
    support::setVariable("RUQ_REGISTRY", path);
    CImage image(IImage::CType::eUInt8, CSize(64, 64));
    std::fill_n(image.Data(), image.ByteCount(), static_cast<unsigned char>(2));
    begin();
    const bool saved = kind == "registry" ? savesSetting() : savesImage(image, path);
    end();
    return saved;
}
