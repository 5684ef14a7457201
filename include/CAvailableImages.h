#ifndef RUQGUI_CAVAILABLEIMAGES_H
#define RUQGUI_CAVAILABLEIMAGES_H

#include <cstddef>
#include <map>
#include <qt3/Export.h>
#include <ruqlib2image/CSize.h>
#include <ruqlib2image/IImage.h>
#include <string>
#include <unordered_map>
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
/// 1. The images are not owned, and never null. They are looked at during a call only.
/// 2. Names are not empty. Of several images with the same name, the last one counts.
/// 3. A filter that is on and has nothing to allow lets nothing through.
///
/// The time for an image hardly depends on how many types and sizes are allowed. What is kept for the
/// next call is smaller than what is returned, a tenth of it when names have beginnings in common.
class RUQGUI_EXPORT CAvailableImages {
public:
    /// \param checkType and \a checkSize: whether only images of an allowed type, of an allowed size pass
    CAvailableImages(bool checkType, bool checkSize);
    CAvailableImages(const CAvailableImages& other);
    CAvailableImages& operator=(const CAvailableImages&) = delete;
    ~CAvailableImages();

    void addAllowedType(const IImage::CType& type); ///< For the calls to come.
    void addAllowedSize(const CSize& size);         ///< As addAllowedType(); of the same dimension.

    /// The images of \a input that pass, by name. Without a list of images in the input, the result of
    /// the call before is returned again, also when its images are there no more. Elements of another
    /// form are left out; none is an error.
    /// \throws nothing of its own: pointers are unwrapped once their type is known, so that
    ///         UnwrapPointer() has nothing to refuse. After std::bad_alloc a call without a list returns
    ///         some of the images, or none.
    std::map<std::string, const CImage*> operator()(const CValueMap& input);

private:
    using Images = std::map<std::string, const CImage*>;

    /// A result as it is kept: of each name only what it does not share with the name before.
    class CKeptImages {
    public:
        void Keep(const Images& images);
        void Clear();
        Images All() const;

    private:
        std::vector<const CImage*> m_vImages; ///< In the order of their names.
        std::string m_sNames; ///< For each: two lengths, shared and own; the own bytes.
    };

    bool isAllowed(const CSize& size) const;
    bool checkWhiteList(const CImage* image) const;
    const CImage* imageIn(const CValue* element, std::string& name) const;

    bool m_bCheckType;
    bool m_bCheckSize;
    std::vector<IImage::CType> m_vAllowedTypes; ///< In the order added, each once.
    std::vector<CSize> m_vAllowedSizes;         ///< In the order added, each once.
    CKeptImages m_mapImages;                    ///< The last result.

    /// Where in m_vAllowedSizes to look, by the sizes' hashes. Empty while there are few.
    std::unordered_multimap<std::size_t, std::size_t> m_mapAllowedSizes;
};

} // namespace TEVU

#endif
