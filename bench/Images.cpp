#include "Benchmarks.h"
#include "Comparison.h"

#include <CAvailableImages.h>
#include <benchmark/benchmark.h>
#include <memory>
#include <ruqlib2core/CValueMap.h>
#include <ruqlib2core/CValuePointer.h>
#include <ruqlib2core/CValueString.h>
#include <ruqlib2core/CValueVector.h>
#include <ruqlib2image/CImage.h>
#include <vector>

namespace bench {

namespace {

using Images = std::map<std::string, const TEVU::CImage*>;

const TEVU::CSize c_allowedSize(4, 4);
const TEVU::IImage::CType c_allowedType = TEVU::IImage::CType::eUInt8;

/// What an application hands over for so many open images. They are one and the same image, or in turn
/// it and another one, which no filter lets through.
class Input {
public:
    explicit Input(int count, bool withOthers = false)
        : m_image(c_allowedType, c_allowedSize),
          m_other(TEVU::IImage::CType::eUInt16, TEVU::CSize(5, 5)), m_bWithOthers(withOthers) {
        auto* const elements = new TEVU::CValueVector;
        m_map.SetEntry("input/documents/available", elements);
        m_vNames.reserve(static_cast<std::size_t>(count));
        m_vRecords.resize(static_cast<std::size_t>(count));
        for (int i = 0; i < count; ++i)
            add(elements, i);
    }

    const TEVU::CValueMap& map() const { return m_map; }

    Images bareMap() const {
        Images images;
        for (const std::string& name : m_vNames)
            images[name] = &m_image;
        return images;
    }

private:
    void add(TEVU::CValueVector* elements, int i) {
        TEVU::CValueMap& record = m_vRecords[static_cast<std::size_t>(i)];
        m_vNames.push_back("scan of the specimen " + std::to_string(i));
        record.SetEntry("label", new TEVU::CValueString(m_vNames.back()));
        TEVU::CImage* const image = m_bWithOthers && i % 2 == 1 ? &m_other : &m_image;
        record.SetEntry("content", new TEVU::CValuePointer<TEVU::CImage>(image));
        elements->SetEntry(i, new TEVU::CValuePointer<TEVU::CValueMap>(&record));
    }

    TEVU::CImage m_image;
    TEVU::CImage m_other;
    bool m_bWithOthers;
    TEVU::CValueMap m_map;
    std::vector<std::string> m_vNames;
    std::vector<TEVU::CValueMap> m_vRecords;
};

std::shared_ptr<TEVU::CAvailableImages> withFilters() {
    auto available = std::make_shared<TEVU::CAvailableImages>(true, true);
    available->addAllowedType(c_allowedType);
    available->addAllowedSize(c_allowedSize);
    return available;
}

/// With so many allowed types: there are few different ones, and the one that fits comes last.
std::shared_ptr<TEVU::CAvailableImages> withTypes(int count) {
    using Type = TEVU::IImage::CType;
    const Type others[] = {Type::eInt16, Type::eInt32, Type::eFloat32, Type::eRGB8};
    auto available = std::make_shared<TEVU::CAvailableImages>(true, false);
    for (int i = 0; i < count - 1; ++i)
        available->addAllowedType(others[i % 4]);
    available->addAllowedType(c_allowedType);
    return available;
}

/// With so many allowed sizes, of which the last one fits.
std::shared_ptr<TEVU::CAvailableImages> withSizes(int count) {
    auto available = std::make_shared<TEVU::CAvailableImages>(false, true);
    for (int i = 0; i < count - 1; ++i)
        available->addAllowedSize(TEVU::CSize(4, 10 + i));
    available->addAllowedSize(c_allowedSize);
    return available;
}

StSides listing(int count) {
    const auto input = std::make_shared<Input>(count);
    const auto available = withFilters();
    return {[=] { benchmark::DoNotOptimize((*available)(input->map())); },
            [=] { benchmark::DoNotOptimize(input->bareMap()); }};
}

/// The same images through a filter that allows so many, and through one that allows one.
StSides filtering(std::shared_ptr<TEVU::CAvailableImages> (*withAllowed)(int), int allowed) {
    const auto input = std::make_shared<Input>(1000, true);
    const auto many = withAllowed(allowed);
    const auto one = withAllowed(1);
    return {[=] { benchmark::DoNotOptimize((*many)(input->map())); },
            [=] { benchmark::DoNotOptimize((*one)(input->map())); }};
}

/// The object and its result, kept.
StSides keeping(int count) {
    struct StKept {
        std::shared_ptr<TEVU::CAvailableImages> pAvailable;
        Images images;
    };
    const auto input = std::make_shared<Input>(count);
    const auto kept = std::make_shared<std::vector<StKept>>();
    kept->reserve(100);
    return {[=] {
                const auto available = withFilters();
                kept->push_back({available, (*available)(input->map())});
            },
            [=] {
                kept->push_back({nullptr, input->bareMap()});
            }};
}

void add(const std::string& count, int number, int batch) {
    const std::string bare = " records : a bare map";
    compareTime(
        {"CAvailableImages, " + count + bare, 3.0, batch, [number] { return listing(number); }});
    compareHeap(
        {"CAvailableImages, heap, " + count + bare, 1.5, 1, [number] { return keeping(number); }});
}

void addFilters(int allowed) {
    const std::string number = "CAvailableImages, 1e3 records, " + std::to_string(allowed);
    compareTime({number + " allowed types : 1", 1.2, 5,
                 [allowed] { return filtering(withTypes, allowed); }});
    compareTime({number + " allowed sizes : 1", 1.2, 5,
                 [allowed] { return filtering(withSizes, allowed); }});
}

} // namespace

void addImages() {
    add("10", 10, 200);
    add("1e3", 1000, 5);
    add("1e5", 100000, 1);
    add("1e6", 1000000, 1);
    for (const int allowed : {1, 10, 100})
        addFilters(allowed);
}

} // namespace bench
