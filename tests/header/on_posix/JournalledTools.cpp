#include "JournalledTools.h"

// A program's own definition of a function goes before that of the shared library, for all callers.
namespace TEVU {

bool COrunHeaderTools::GetSpacing(const IImage& image, double& x, double& y, double& z) {
    return journal::GetSpacing(image, x, y, z);
}

void COrunHeaderTools::SetSpacing(IImage& image, double x, double y, double z) {
    journal::SetSpacing(image, x, y, z);
}

bool COrunHeaderTools::GetCreator(const IImage& image, std::string& creator) {
    return journal::GetCreator(image, creator);
}

void COrunHeaderTools::SetCreator(IImage& image, const char* text, unsigned int length) {
    journal::SetCreator(image, text, length);
}

bool COrunHeaderTools::GetDescription(const IImage& image, std::string& description) {
    return journal::GetDescription(image, description);
}

void COrunHeaderTools::SetDescription(IImage& image, const char* text, unsigned int length) {
    journal::SetDescription(image, text, length);
}

bool COrunHeaderTools::GetHistory(const IImage& image, std::string& history) {
    return journal::GetHistory(image, history);
}

void COrunHeaderTools::ReplaceHistory(IImage& image, const char* text, unsigned int length) {
    journal::ReplaceHistory(image, text, length);
}

void COrunHeaderTools::AddToHistory(IImage& image, const CValueString& entry) {
    journal::AddToHistory(image, entry);
}

} // namespace TEVU
