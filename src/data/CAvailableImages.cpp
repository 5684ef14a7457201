#include "CAvailableImages.h"

#include "UnwrapPointer.h"

#include <algorithm>
#include <ruqlib2core/CValueLong.h>
#include <ruqlib2core/CValueMap.h>
#include <ruqlib2core/CValuePointer.h>
#include <ruqlib2core/CValueString.h>
#include <ruqlib2core/CValueVector.h>
#include <ruqlib2image/CImage.h>
#include <tuple>
#include <typeinfo>

namespace TEVU {

namespace {

// Made once: keys cost an allocation each.
const CValue_Key c_images("input/documents/available");
const CValue_Key c_label("label");
const CValue_Key c_content("content");
const CValue_Key c_index("index");

template <class Kind>
const Kind* exactly(const CValue* value) {
    return value && typeid(*value) == typeid(Kind) ? static_cast<const Kind*>(value) : nullptr;
}

template <class T>
T* pointerTo(const CValue* value) {
    return exactly<CValuePointer<T>>(value) ? UnwrapPointer<T>(value) : nullptr;
}

bool isBefore(const CSize& a, const CSize& b) {
    const auto key = [](const CSize& size) {
        return std::make_tuple(size.Dimension(), size[0], size[1], size[2]);
    };
    return key(a) < key(b);
}

std::string nameOf(const CValueMap& record) {
    const auto* const label = exactly<CValueString>(record.Entry(c_label, false));
    if (!label || label->String().empty())
        return std::string();
    const auto* const index = exactly<CValueLong>(record.Entry(c_index, false));
    if (!index || index->Long() == 1)
        return label->String();
    return label->String() + ' ' + std::to_string(index->Long());
}

} // namespace

CAvailableImages::CAvailableImages(bool checkType, bool checkSize)
    : m_bCheckType(checkType), m_bCheckSize(checkSize) {}

CAvailableImages::CAvailableImages(const CAvailableImages& other) = default;
CAvailableImages::~CAvailableImages() = default;

void CAvailableImages::addAllowedType(const IImage::CType& type) {
    if (std::find(m_vAllowedTypes.begin(), m_vAllowedTypes.end(), type) == m_vAllowedTypes.end())
        m_vAllowedTypes.push_back(type);
}

void CAvailableImages::addAllowedSize(const CSize& size) {
    m_vAllowedSizes.push_back(size);
}

// Sizes are looked up in order, so that many of them do not make each image dearer.
bool CAvailableImages::checkWhiteList(const CImage* image) const {
    if (!image)
        return false;
    if (m_bCheckType && std::find(m_vAllowedTypes.begin(), m_vAllowedTypes.end(), image->Type()) ==
                            m_vAllowedTypes.end())
        return false;
    return !m_bCheckSize || std::binary_search(m_vAllowedSizes.begin(), m_vAllowedSizes.end(),
                                               image->Size(), isBefore);
}

void CAvailableImages::addImage(const CValue* element) {
    const CValueMap* const record = pointerTo<CValueMap>(element);
    if (!record)
        return;
    const CImage* const image = pointerTo<CImage>(record->Entry(c_content, false));
    std::string name = nameOf(*record);
    if (!name.empty() && checkWhiteList(image))
        m_mapImages[std::move(name)] = image;
}

std::map<std::string, const CImage*> CAvailableImages::operator()(const CValueMap& input) {
    const auto* const elements = exactly<CValueVector>(input.Entry(c_images, false));
    if (!elements)
        return m_mapImages; // kept: that of the call before
    std::sort(m_vAllowedSizes.begin(), m_vAllowedSizes.end(), isBefore);
    m_mapImages.clear();
    for (const CValue_Key& key : elements->Keys())
        addImage(elements->Entry(key, false));
    return m_mapImages;
}

} // namespace TEVU
