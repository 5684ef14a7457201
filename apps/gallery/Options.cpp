#include "Options.h"

#include <algorithm>
#include <stdexcept>

namespace {

/// False for an option that there is not.
bool keep(const std::string& name, const std::string& value, Options& options) {
    if (name == "--image")
        options.m_images.push_back(value);
    else if (name == "--page")
        options.m_sPage = value;
    else if (name == "--screenshots")
        options.m_sScreenshots = value;
    else
        return false;
    return true;
}

bool isOption(const std::string& name) {
    Options unused;
    return keep(name, "", unused);
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
        const std::string name = *argument;
        if (!isOption(name))
            throw std::runtime_error("Unknown option '" + name + "'. Try --help.");
        if (++argument == arguments.end() || argument->empty())
            throw std::runtime_error("Option '" + name + "' needs a value. Try --help.");
        keep(name, *argument, options);
    }
    return options;
}

std::string usage(const std::vector<std::string>& pageTitles) {
    std::string text =
        "Usage: gallery [--image FILE]... [--page NAME] [--screenshots DIR] [--help]\n"
        "\n"
        "  --image FILE       open this TIFF file: the first one on the page\n"
        "                     \"Image header\", all of them on the page \"Data\"\n"
        "  --page NAME        show this page first\n"
        "  --screenshots DIR  write one PNG a page into DIR, then end\n"
        "  --help             print this and end\n"
        "\n"
        "Pages:";
    for (const std::string& title : pageTitles)
        text += " \"" + title + "\"";
    return text + "\n";
}
