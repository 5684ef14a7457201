#ifndef RUQGUI_GALLERY_OPENIMAGES_H
#define RUQGUI_GALLERY_OPENIMAGES_H

#include <deque>
#include <ruqlib2core/CValueMap.h>
#include <ruqlib2image/CImage.h>
#include <string>

namespace TEVU {
class CValueVector;
}

/// The open images of an application, and the value map by which it hands them to CAvailableImages.
class OpenImages {
public:
    OpenImages();
    OpenImages(const OpenImages&) = delete;
    OpenImages& operator=(const OpenImages&) = delete;

    /// Keeps the image; the second one of a label has the index 2, and so on.
    void Add(const std::string& label, TEVU::CImage image);

    const TEVU::CValueMap& Input() const { return m_input; }
    std::size_t Count() const { return m_documents.size(); }

private:
    struct StDocument {
        std::string sLabel;
        TEVU::CImage image;
        TEVU::CValueMap record;
    };

    std::deque<StDocument> m_documents; ///< They do not move: the input points to them.
    TEVU::CValueMap m_input;
    TEVU::CValueVector* m_pElements; ///< Of the input.
};

#endif
