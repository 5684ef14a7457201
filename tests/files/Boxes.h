#ifndef RUQGUI_TESTS_FILES_BOXES_H
#define RUQGUI_TESTS_FILES_BOXES_H

#include <ModalDriver.h>
#include <string>

/// What the file dialog's boxes must look like.
support::Message unreadable(const std::string& path);
support::Message unwritable(const std::string& path);
support::Message notAscii(const std::string& path);
support::Message wrongType(const std::string& missingExtension);

/// About a file that is there; \a word is "Overwrite" or "Append".
support::Message existing(const std::string& word, const std::string& path);

/// What the file dialogs must look like. The save dialog holds a name at first, the others none.
support::FileRequest openIn(const std::string& folder);
support::FileRequest openSeveralIn(const std::string& folder);
support::FileRequest saveIn(const std::string& folder, const std::string& fileName);

#endif
