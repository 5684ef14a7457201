#ifndef RUQGUI_GALLERY_PREVIEW_H
#define RUQGUI_GALLERY_PREVIEW_H

#include <string>

namespace TEVU {
class CImage;
}

/// A picture of the middle page of an image, scaled to fit a square of that many pixels, as the bytes
/// of a PPM file. Grey values are stretched from the smallest to the largest one of the page.
std::string previewOf(const TEVU::CImage& image, int pixels);

/// A small stack of spots with spacing, creator, description and history, to play with.
TEVU::CImage sampleImage();

#endif
