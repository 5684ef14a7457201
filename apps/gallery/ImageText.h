#ifndef RUQGUI_GALLERY_IMAGETEXT_H
#define RUQGUI_GALLERY_IMAGETEXT_H

#include <optional>
#include <ruqlib2image/IImage.h>
#include <string>
#include <vector>

// Images, their types and sizes as a user reads and types them.

/// For a file dialog.
inline const char* const c_sTiffFilter = "TIFF images (*.tif *.tiff);;All files (*.*)";

/// All pixel types, in the order of their enumerators.
const std::vector<TEVU::IImage::CType>& allTypes();

/// "16-bit signed".
std::string textOf(const TEVU::IImage::CType& type);

/// "96 x 96 x 9".
std::string textOf(const TEVU::CSize& size);

/// "96 x 96 x 9, 8-bit".
std::string captionOf(const TEVU::IImage& image);

/// One to three extents with an x between them; none for any other text.
std::optional<TEVU::CSize> sizeFrom(const std::string& text);

/// The parts of a text between commas, without the blanks around them; no empty ones.
std::vector<std::string> listFrom(const std::string& text);

#endif
