#include "Options.h"

#include <algorithm>
#include <stdexcept>

namespace {

std::string* destination(Options& options, const std::string& name) {
    if (name == "--image")
        return &options.m_sImage;
    if (name == "--page")
        return &options.m_sPage;
    if (name == "--screenshots")
        return &options.m_sScreenshots;
    return nullptr;
}

} // namespace

bool asksForHelp(const std::vector<std::string>& arguments) {
    return std::any_of(arguments.begin(), arguments.end(), [](const std::string& argument) {
        return argument == "--help" || argument == "-h";
    });
}

Options parseOptions(const std::vector<std::string>& arguments) {
    Options options;
    for (auto argument = arguments.begin(); argument != arguments.end(); ++argument) {
        std::string* const value = destination(options, *argument);
        if (!value)
            throw std::runtime_error("Unknown option '" + *argument + "'. Try --help.");
        const std::string name = *argument;
        if (++argument == arguments.end() || argument->empty())
            throw std::runtime_error("Option '" + name + "' needs a value. Try --help.");
        *value = *argument;
    }
    return options;
}

std::string usage(const std::vector<std::string>& pageTitles) {
    std::string text = "Usage: gallery [--image FILE] [--page NAME] [--screenshots DIR] [--help]\n"
                       "\n"
                       "  --image FILE       open this TIFF file on the page \"Image header\"\n"
                       "  --page NAME        show this page first\n"
                       "  --screenshots DIR  write one PNG a page into DIR, then end\n"
                       "  --help             print this and end\n"
                       "\n"
                       "Pages:";
    for (const std::string& title : pageTitles)
        text += " \"" + title + "\"";
    return text + "\n";
}
