#ifndef RUQGUI_GALLERY_OPTIONS_H
#define RUQGUI_GALLERY_OPTIONS_H

#include <string>
#include <vector>

/// What the gallery was asked for on the command line.
struct Options {
    std::vector<std::string> m_images; ///< TIFF files to open; none for the built-in samples.
    std::string m_sPage;        ///< Title of the page to show first; empty for the first one.
    std::string m_sScreenshots; ///< Folder for one picture a page; empty to open the window.
};

/// Whether --help is among the arguments; it is answered without a display.
bool asksForHelp(const std::vector<std::string>& arguments);

/// \throws std::runtime_error with a sentence for the user about an unknown or incomplete option.
Options parseOptions(const std::vector<std::string>& arguments);

/// What --help prints.
std::string usage(const std::vector<std::string>& pageTitles);

#endif
