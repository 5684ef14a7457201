#include "Boxes.h"

using support::FileRequest;
using support::Message;

namespace {

Message notPermitted(const std::string& verb, const std::string& path) {
    return {"Unable to " + verb + " file",
            "Cannot " + verb + " file. Please check permissions:\n" + path,
            {"Cancel", "Retry"},
            "Retry",
            "Cancel"};
}

} // namespace

Message unreadable(const std::string& path) {
    return notPermitted("read", path);
}

Message unwritable(const std::string& path) {
    return notPermitted("write", path);
}

Message notAscii(const std::string& path) {
    return {"Not an ASCII filename",
            "Not an ASCII filename, it contains special (unicode) characters.\n"
            "Non-ASCII filenames are not supported (yet), please change the name of the file: " +
                path,
            {"OK"},
            "OK"};
}

Message wrongType(const std::string& missingExtension) {
    return {"Wrong filetype specified.",
            "Append extension '" + missingExtension + "'?",
            {"Yes", "No", "Cancel"},
            "Yes",
            "Cancel"};
}

Message existing(const std::string& word, const std::string& path) {
    return {word + " File", word + "\n'" + path + "'?", {"Yes", "No", "Cancel"}, "Yes", "Cancel"};
}

FileRequest openIn(const std::string& folder) {
    return {"opendialog", "Choose a file...", folder, "", {}, "open"};
}

FileRequest openSeveralIn(const std::string& folder) {
    return {"opendialog", "Select one or more files...", folder, "", {}, "open several"};
}

FileRequest saveIn(const std::string& folder, const std::string& fileName) {
    return {"savedialog", "Specify a filename...", folder, fileName, {}, "save"};
}
