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

/// Calls \a visit with each element, in the order of the indices.
template <class Visit>
void forEach(const CValueVector& elements, const Visit& visit) {
    // The indices are nearly always 0, 1, 2 …; only with gaps the list of all of them is worth its memory.
    const auto count = static_cast<int>(elements.Size());
    int index = 0;
    for (; index < count; ++index) {
        const CValue* const element = elements.Entry(index, false);
        if (!element)
            break;
        visit(element);
    }
    if (index == count)
        return;
    const std::vector<CValue_Key> keys = elements.Keys();
    for (auto key = keys.begin() + index; key != keys.end(); ++key)
        visit(elements.Entry(*key, false));
}

std::size_t sharedBeginning(const std::string& a, const std::string& b) {
    const std::size_t end = std::min(a.size(), b.size());
    std::size_t shared = 0;
    while (shared < end && a[shared] == b[shared])
        ++shared;
    return shared;
}

/// Seven bits in a byte, the low ones first; the eighth says that more follow.
void appendLength(std::size_t length, std::string& bytes) {
    for (; length >= 128; length /= 128)
        bytes += static_cast<char>(length % 128 + 128);
    bytes += static_cast<char>(length);
}

std::size_t takeLength(std::string::const_iterator& byte) {
    std::size_t length = 0;
    for (unsigned shift = 0;; shift += 7) {
        const auto bits = static_cast<unsigned char>(*byte++);
        length |= static_cast<std::size_t>(bits % 128) << shift;
        if (bits < 128)
            return length;
    }
}

/// The same for sizes that are equal, also where a missing axis were to equal a flat one.
std::size_t hashOf(const CSize& size) {
    std::size_t hash = 0;
    for (unsigned axis = 0; axis < 3; ++axis) {
        const int extent = axis < size.Dimension() ? std::max(size[axis], 1) : 1;
        hash = hash * 1000003 + static_cast<std::size_t>(extent);
    }
    return hash;
}

const std::size_t c_nFewSizes = 8; ///< So many are compared faster than looked up.

} // namespace

void CAvailableImages::CKeptImages::Clear() {
    m_vImages.clear();
    m_sNames.clear();
}

void CAvailableImages::CKeptImages::Keep(const Images& images) {
    Clear();
    m_vImages.reserve(images.size());
    const std::string none;
    const std::string* before = &none;
    for (const auto& [name, image] : images) {
        const std::size_t shared = sharedBeginning(*before, name);
        appendLength(shared, m_sNames);
        appendLength(name.size() - shared, m_sNames);
        m_sNames.append(name, shared, std::string::npos);
        m_vImages.push_back(image); // last: should memory run out, no image is without a name
        before = &name;
    }
    m_vImages.shrink_to_fit(); // the result before may have been larger
    m_sNames.shrink_to_fit();
}

CAvailableImages::Images CAvailableImages::CKeptImages::All() const {
    Images images;
    std::string name;
    auto byte = m_sNames.begin();
    for (const CImage* const image : m_vImages) {
        name.resize(takeLength(byte));
        const auto own = static_cast<std::ptrdiff_t>(takeLength(byte));
        name.append(byte, byte + own);
        byte += own;
        images.emplace_hint(images.end(), name, image);
    }
    return images;
}

CAvailableImages::CAvailableImages(bool checkType, bool checkSize)
    : m_bCheckType(checkType), m_bCheckSize(checkSize) {}

CAvailableImages::CAvailableImages(const CAvailableImages& other) = default;
CAvailableImages::~CAvailableImages() = default;

void CAvailableImages::addAllowedType(const IImage::CType& type) {
    if (!contains(m_vAllowedTypes, type))
        m_vAllowedTypes.push_back(type);
}

void CAvailableImages::addAllowedSize(const CSize& size) {
    if (isAllowed(size))
        return;
    m_vAllowedSizes.push_back(size);
    if (m_vAllowedSizes.size() <= c_nFewSizes)
        return;
    for (std::size_t i = m_mapAllowedSizes.size(); i < m_vAllowedSizes.size(); ++i)
        m_mapAllowedSizes.emplace(hashOf(m_vAllowedSizes[i]), i);
}

bool CAvailableImages::isAllowed(const CSize& size) const {
    if (m_mapAllowedSizes.empty())
        return contains(m_vAllowedSizes, size);
    const auto places = m_mapAllowedSizes.equal_range(hashOf(size));
    return std::any_of(places.first, places.second,
                       [&](const auto& place) { return m_vAllowedSizes[place.second] == size; });
}

bool CAvailableImages::checkWhiteList(const CImage* image) const {
    if (!image)
        return false;
    if (m_bCheckType && !contains(m_vAllowedTypes, image->Type()))
        return false;
    return !m_bCheckSize || isAllowed(image->Size());
}

const CImage* CAvailableImages::imageIn(const CValue* element, std::string& name) const {
    const CValueMap* const record = pointerTo<CValueMap>(element);
    if (!record)
        return nullptr;
    const auto* const label = exactly<CValueString>(record->Entry(c_label, false));
    if (!label || label->String().empty())
        return nullptr;
    const CImage* const image = pointerTo<CImage>(record->Entry(c_content, false));
    if (!checkWhiteList(image))
        return nullptr;
    name = label->String();
    const bool bHasMore = record->Size() > 2; // than the two above; most have not, and need no look
    const auto* const index =
        bHasMore ? exactly<CValueLong>(record->Entry(c_index, false)) : nullptr;
    if (index && index->Long() != 1)
        name += ' ' + std::to_string(index->Long());
    return image;
}

std::map<std::string, const CImage*> CAvailableImages::operator()(const CValueMap& input) {
    const auto* const elements = exactly<CValueVector>(input.Entry(c_images, false));
    if (!elements)
        return m_mapImages.All(); // that of the call before
    m_mapImages.Clear();
    Images images;
    std::string name;
    auto place = images.end();
    forEach(*elements, [&](const CValue* element) {
        if (const CImage* const image = imageIn(element, name)) {
            place = images.insert_or_assign(place, name, image);
            ++place; // where the name of the next number belongs
        }
    });
    m_mapImages.Keep(images);
    return images;
}

} // namespace TEVU
