#include "CAvailableImages.h"

#include "UnwrapPointer.h"

#include <algorithm>
#include <ruqlib2core/CValueLong.h>
#include <ruqlib2core/CValueMap.h>
#include <ruqlib2core/CValuePointer.h>
#include <ruqlib2core/CValueString.h>
#include <ruqlib2core/CValueVector.h>
#include <ruqlib2image/CImage.h>
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

template <class T>
bool contains(const std::vector<T>& list, const T& wanted) {
    return std::find(list.begin(), list.end(), wanted) != list.end();
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
    m_vAllowedTypes.push_back(type);
}

void CAvailableImages::addAllowedSize(const CSize& size) {
    m_vAllowedSizes.push_back(size);
}

bool CAvailableImages::checkWhiteList(const CImage* image) const {
    if (!image)
        return false;
    if (m_bCheckType && !contains(m_vAllowedTypes, image->Type()))
        return false;
    return !m_bCheckSize || contains(m_vAllowedSizes, image->Size());
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
    m_mapImages.clear();
    for (const CValue_Key& key : elements->Keys())
        addImage(elements->Entry(key, false));
    return m_mapImages;
}

} // namespace TEVU
