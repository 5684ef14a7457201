#ifndef RUQGUI_GALLERY_DATAFOLDER_H
#define RUQGUI_GALLERY_DATAFOLDER_H

#include <string>

/// The path of a file that comes with the gallery. It is found from where the program is, so that the
/// installed folder can be moved.
std::string dataFile(const std::string& name);

#endif
