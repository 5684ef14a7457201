#ifndef RUQGUI_CAVAILABLEIMAGES_H
#define RUQGUI_CAVAILABLEIMAGES_H

#include <map>
#include <qt3/Export.h>
#include <ruqlib2image/CSize.h>
#include <ruqlib2image/IImage.h>
#include <string>
#include <vector>

namespace TEVU {

class CImage;
class CValue;
class CValueMap;

/// The open images of an application by name, filtered by pixel type and size: for a choice of input
/// images in a dialog.
///
/// \code
/// TEVU::CAvailableImages available(true, false);
/// available.addAllowedType(TEVU::IImage::CType::eUInt8);
/// for (const auto& [name, image] : available(input))
///     combo->insertItem(name.c_str());
/// \endcode
/// The input has a CValueVector under "input/documents/available". Its elements point to the images'
/// records (CValuePointer<CValueMap>), with "label" (a string, the name), "content"
/// (CValuePointer<CImage>), and perhaps "index" (a CValueLong), which is appended to the name after a
/// blank unless it is 1.
///
/// Invariants:
/// 1. The images are not owned, and never null.
/// 2. Names are not empty. Of several images with the same name, the last one counts.
/// 3. A filter that is on and has nothing to allow lets nothing through.
class RUQGUI_EXPORT CAvailableImages {
public:
    CAvailableImages(bool checkType, bool checkSize);
    CAvailableImages(const CAvailableImages& other);
    CAvailableImages& operator=(const CAvailableImages&) = delete;
    ~CAvailableImages();

    void addAllowedType(const IImage::CType& type);
    void addAllowedSize(const CSize& size);

    /// The images of \a input that pass, by name. Without a list of images in the input, the result of
    /// the call before is returned again. Elements of another form are left out.
    /// \throws CExBadParam for a pointer that holds another type than it claims; then the next call
    ///         without a list returns what had been found until then.
    std::map<std::string, const CImage*> operator()(const CValueMap& input);

private:
    bool checkWhiteList(const CImage* image) const;
    void addImage(const CValue* element);

    bool m_bCheckType;
    bool m_bCheckSize;
    std::vector<IImage::CType> m_vAllowedTypes;       ///< In the order added.
    std::vector<CSize> m_vAllowedSizes;               ///< In the order added.
    std::map<std::string, const CImage*> m_mapImages; ///< The last result.
};

} // namespace TEVU

#endif
