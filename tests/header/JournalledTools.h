#ifndef RUQGUI_TESTS_HEADER_JOURNALLEDTOOLS_H
#define RUQGUI_TESTS_HEADER_JOURNALLEDTOOLS_H

#include <ruqlib2image/COrunHeaderTools.h>
#include <string>

/// Called in place of the header tools of these names. They note the call and call the tool.
namespace journal {

bool GetSpacing(const TEVU::IImage& image, double& x, double& y, double& z);
void SetSpacing(TEVU::IImage& image, double x, double y, double z);
bool GetCreator(const TEVU::IImage& image, std::string& creator);
void SetCreator(TEVU::IImage& image, const char* text, unsigned int length);
bool GetDescription(const TEVU::IImage& image, std::string& description);
void SetDescription(TEVU::IImage& image, const char* text, unsigned int length);
bool GetHistory(const TEVU::IImage& image, std::string& history);
void ReplaceHistory(TEVU::IImage& image, const char* text, unsigned int length);
void AddToHistory(TEVU::IImage& image, const TEVU::CValueString& entry);

} // namespace journal

#endif
