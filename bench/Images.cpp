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

/// What an application hands over for so many open images, which are one and the same here.
class Input {
public:
    explicit Input(int count) : m_image(TEVU::IImage::CType::eUInt8, TEVU::CSize(4, 4)) {
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
        record.SetEntry("content", new TEVU::CValuePointer<TEVU::CImage>(&m_image));
        elements->SetEntry(i, new TEVU::CValuePointer<TEVU::CValueMap>(&record));
    }

    TEVU::CImage m_image;
    TEVU::CValueMap m_map;
    std::vector<std::string> m_vNames;
    std::vector<TEVU::CValueMap> m_vRecords;
};

std::shared_ptr<TEVU::CAvailableImages> withFilters() {
    auto available = std::make_shared<TEVU::CAvailableImages>(true, true);
    available->addAllowedType(TEVU::IImage::CType::eUInt8);
    available->addAllowedSize(TEVU::CSize(4, 4));
    return available;
}

StSides listing(int count) {
    const auto input = std::make_shared<Input>(count);
    const auto available = withFilters();
    return {[=] { benchmark::DoNotOptimize((*available)(input->map())); },
            [=] { benchmark::DoNotOptimize(input->bareMap()); }};
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

} // namespace

void addImages() {
    add("10", 10, 200);
    add("1e3", 1000, 5);
    add("1e5", 100000, 1);
    add("1e6", 1000000, 1);
}

} // namespace bench
