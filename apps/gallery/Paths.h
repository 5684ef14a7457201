#ifndef RUQGUI_GALLERY_PATHS_H
#define RUQGUI_GALLERY_PATHS_H

#include <string>

/// The path of a file that comes with the gallery. It is found from where the program is, so that the
/// installed folder can be moved.
std::string dataFile(const std::string& name);

/// What stands behind the last slash.
std::string lastPart(const std::string& path);

#endif
