#include "ImageText.h"

#include <charconv>

using TEVU::CSize;
using TEVU::IImage;

namespace {

std::string stripped(const std::string& text) {
    const auto first = text.find_first_not_of(' ');
    const auto last = text.find_last_not_of(' ');
    return first == std::string::npos ? "" : text.substr(first, last - first + 1);
}

/// At least one, without the blanks around them.
std::vector<std::string> parts(const std::string& text, char separator) {
    std::vector<std::string> all;
    std::size_t begin = 0;
    for (auto end = text.find(separator); end != std::string::npos;
         end = text.find(separator, begin)) {
        all.push_back(stripped(text.substr(begin, end - begin)));
        begin = end + 1;
    }
    all.push_back(stripped(text.substr(begin)));
    return all;
}

std::optional<int> extentFrom(const std::string& text) {
    int extent = 0;
    const char* const end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, extent);
    if (read.ec != std::errc() || read.ptr != end || extent < 0)
        return {};
    return extent;
}

} // namespace

const std::vector<IImage::CType>& allTypes() {
    using Type = IImage::CType;
    static const std::vector<Type> types = {Type::eUInt8, Type::eUInt16,  Type::eInt16,
                                            Type::eInt32, Type::eFloat32, Type::eRGB8};
    return types;
}

std::string textOf(const IImage::CType& type) {
    using Type = IImage::CType;
    if (type == Type::eUInt8)
        return "8-bit";
    if (type == Type::eUInt16)
        return "16-bit";
    if (type == Type::eInt16)
        return "16-bit signed";
    if (type == Type::eInt32)
        return "32-bit signed";
    return type == Type::eFloat32 ? "32-bit float" : "RGB";
}

std::string textOf(const CSize& size) {
    std::string text = std::to_string(size[0]);
    for (unsigned int axis = 1; axis < size.Dimension(); ++axis)
        text += " x " + std::to_string(size[axis]);
    return text;
}

std::string captionOf(const IImage& image) {
    return textOf(image.Size()) + ", " + textOf(image.Type());
}

std::optional<CSize> sizeFrom(const std::string& text) {
    std::vector<int> extents;
    for (const std::string& part : parts(text, 'x')) {
        const std::optional<int> extent = extentFrom(part);
        if (!extent)
            return {};
        extents.push_back(*extent);
    }
    if (extents.size() == 1)
        return CSize(extents[0]);
    if (extents.size() == 2)
        return CSize(extents[0], extents[1]);
    if (extents.size() == 3)
        return CSize(extents[0], extents[1], extents[2]);
    return {};
}

std::vector<std::string> listFrom(const std::string& text) {
    std::vector<std::string> list;
    for (const std::string& part : parts(text, ',')) {
        if (!part.empty())
            list.push_back(part);
    }
    return list;
}
