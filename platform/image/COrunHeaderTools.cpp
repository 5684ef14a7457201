#include <ruqlib2image/COrunHeaderTools.h>

#include "HeaderKeys.h"

#include <ruqlib2core/CValueDouble.h>
#include <ruqlib2core/CValueVector.h>

#include <algorithm>
#include <array>

namespace TEVU {

namespace {

bool getText(const IImage& image, const char* key, std::string& text) {
    if (!image.Header().HasEntry(key, typeid(CValueString)))
        return false;
    text = image.Header().EntryString(key);
    return true;
}

void setText(IImage& image, const char* key, const std::string& text) {
    image.Header().SetEntry(key, new CValueString(text));
}

std::string bytes(const char* text, unsigned int length) {
    return text ? std::string(text, length) : std::string();
}

std::string onOneLine(std::string text) {
    std::replace(text.begin(), text.end(), '\r', ' ');
    std::replace(text.begin(), text.end(), '\n', ' ');
    return text;
}

} // namespace

const char* const COrunHeaderTools::c_sTagFeatures = "features";

bool COrunHeaderTools::GetSpacing(const IImage& image, double& x, double& y, double& z) {
    const auto* spacing =
        dynamic_cast<const CValueVector*>(image.Header().Entry(c_sKeySpacing, false));
    std::array<const CValueDouble*, 3> axes{};
    for (int axis = 0; axis < 3; ++axis)
        if (!spacing ||
            !(axes[axis] = dynamic_cast<const CValueDouble*>(spacing->Entry(axis, false))))
            return false;
    x = axes[0]->Double();
    y = axes[1]->Double();
    z = axes[2]->Double();
    return true;
}

void COrunHeaderTools::SetSpacing(IImage& image, double x, double y, double z) {
    CValueVector spacing;
    spacing.SetEntry(0, new CValueDouble(x));
    spacing.SetEntry(1, new CValueDouble(y));
    spacing.SetEntry(2, new CValueDouble(z));
    image.Header().SetEntry(c_sKeySpacing, spacing.Clone());
}

bool COrunHeaderTools::GetCreator(const IImage& image, std::string& creator) {
    return getText(image, c_sKeyCreator, creator);
}

void COrunHeaderTools::SetCreator(IImage& image, const char* text, unsigned int length) {
    setText(image, c_sKeyCreator, bytes(text, length));
}

bool COrunHeaderTools::GetDescription(const IImage& image, std::string& description) {
    return getText(image, c_sKeyDescription, description);
}

void COrunHeaderTools::SetDescription(IImage& image, const char* text, unsigned int length) {
    setText(image, c_sKeyDescription, bytes(text, length));
}

bool COrunHeaderTools::GetHistory(const IImage& image, std::string& history) {
    return getText(image, c_sKeyHistory, history);
}

void COrunHeaderTools::ReplaceHistory(IImage& image, const char* text, unsigned int length) {
    setText(image, c_sKeyHistory, bytes(text, length));
}

void COrunHeaderTools::AddToHistory(IImage& image, const CValueString& entry) {
    std::string history;
    GetHistory(image, history);
    if (!history.empty() && history.back() != '\n')
        history += '\n';
    setText(image, c_sKeyHistory, history + onOneLine(entry.String()));
}

} // namespace TEVU
