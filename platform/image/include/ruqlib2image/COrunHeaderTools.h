#ifndef RUQLIB2IMAGE_CORUNHEADERTOOLS_H
#define RUQLIB2IMAGE_CORUNHEADERTOOLS_H

#include <ruqlib2core/CValueString.h>
#include <ruqlib2image/Export.h>
#include <ruqlib2image/IImage.h>

#include <string>

namespace TEVU {

/// The well-known entries of an image's header, by name instead of by key.
///
/// A getter is false, and leaves its arguments alone, when the header has no such entry or one of
/// another type. A setter replaces what was there. Texts are bytes in any encoding, taken with
/// their length: NUL is a byte like the others, an empty text is a text, and a null pointer is
/// empty.
class RUQLIB2IMAGE_EXPORT COrunHeaderTools {
public:
    /// The key of a CValueMap with the features that were computed from the image.
    static const char* const c_sTagFeatures;

    /// The distance between neighbouring pixels along each axis, in metres. All three are kept,
    /// whatever the image's dimension and whatever the numbers.
    static bool GetSpacing(const IImage& image, double& x, double& y, double& z);
    static void SetSpacing(IImage& image, double x, double y, double z);

    static bool GetCreator(const IImage& image, std::string& creator);
    static void SetCreator(IImage& image, const char* text, unsigned int length);

    static bool GetDescription(const IImage& image, std::string& description);
    static void SetDescription(IImage& image, const char* text, unsigned int length);

    /// What was done to the image, one entry a line. A line feed stands between two entries, none
    /// behind the last.
    static bool GetHistory(const IImage& image, std::string& history);
    static void ReplaceHistory(IImage& image, const char* text, unsigned int length);

    /// Appends a line. Line breaks inside \a entry become blanks. A history that ends with a line
    /// feed gets no second one.
    static void AddToHistory(IImage& image, const CValueString& entry);
};

} // namespace TEVU

#endif
