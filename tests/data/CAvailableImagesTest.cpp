#include "CAvailableImages.h"

#include <algorithm>
#include <deque>
#include <gtest/gtest.h>
#include <limits>
#include <map>
#include <memory>
#include <random>
#include <ruqlib2core/CValueBool.h>
#include <ruqlib2core/CValueDouble.h>
#include <ruqlib2core/CValueLong.h>
#include <ruqlib2core/CValueMap.h>
#include <ruqlib2core/CValuePointer.h>
#include <ruqlib2core/CValueString.h>
#include <ruqlib2core/CValueVector.h>
#include <ruqlib2image/CImage.h>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

using TEVU::CAvailableImages;
using TEVU::CImage;
using TEVU::CSize;
using TEVU::CValue;
using TEVU::CValueLong;
using TEVU::CValueMap;
using TEVU::CValuePointer;
using TEVU::CValueString;
using TEVU::CValueVector;
using Type = TEVU::IImage::CType;

namespace {

using Images = std::map<std::string, const CImage*>;

const char c_available[] = "input/documents/available";

CValueString* string(const std::string& value) {
    return new CValueString(value);
}

/// The same values, but of classes of their own.
class COtherString : public CValueString {
public:
    using CValueString::CValueString;
    COtherString* Clone() const override { return new COtherString(*this); }
};

class COtherLong : public CValueLong {
public:
    using CValueLong::CValueLong;
    COtherLong* Clone() const override { return new COtherLong(*this); }
};

class COtherVector : public CValueVector {
public:
    using CValueVector::CValueVector;
    COtherVector* Clone() const override { return new COtherVector(*this); }
};

template <class T>
class COtherPointer : public CValuePointer<T> {
public:
    using CValuePointer<T>::CValuePointer;
    COtherPointer* Clone() const override { return new COtherPointer(*this); }
};

/// An application's open images: the records, and the input that points to them.
class Documents {
public:
    Documents() { m_input.SetEntry(c_available, new CValueVector); }

    CValueMap& addRecord() {
        m_records.emplace_back();
        addElement(new CValuePointer<CValueMap>(&m_records.back()));
        return m_records.back();
    }

    CValueMap& add(const std::string& label, CImage* image) {
        CValueMap& record = addRecord();
        record.SetEntry("label", string(label));
        record.SetEntry("content", new CValuePointer<CImage>(image));
        return record;
    }

    CValueMap& add(const std::string& label, CImage* image, long index) {
        CValueMap& record = add(label, image);
        record.SetEntry("index", new CValueLong(index));
        return record;
    }

    void addElement(CValue* owned) { setElement(m_nNext, owned); }

    void setElement(int index, CValue* owned) {
        static_cast<CValueVector*>(m_input.Entry(c_available, true))->SetEntry(index, owned);
        m_nNext = index + 1;
    }

    CValueMap& input() { return m_input; }

private:
    std::deque<CValueMap> m_records; // they do not move
    CValueMap m_input;
    int m_nNext = 0;
};

class AvailableImages : public testing::Test {
protected:
    Images all() { return CAvailableImages(false, false)(m_documents.input()); }

    CImage m_small{Type::eUInt8, CSize(2, 3)};
    CImage m_deep{Type::eUInt16, CSize(2, 3)};
    CImage m_large{Type::eUInt8, CSize(4, 5)};
    Documents m_documents;
};

using ImageFilter = AvailableImages;

} // namespace

static_assert(std::is_copy_constructible_v<CAvailableImages>);
static_assert(!std::is_copy_assignable_v<CAvailableImages>);

TEST_F(AvailableImages, EachImageIsFoundUnderItsLabel) {
    m_documents.add("b", &m_small);
    m_documents.add("a", &m_deep);
    EXPECT_EQ(all(), (Images{{"a", &m_deep}, {"b", &m_small}}));
}

TEST_F(AvailableImages, NamesAreOrderedByTheirBytes) {
    for (const char* label : {"b", "\xe4", "B", "a", "10", "9"})
        m_documents.add(label, &m_small);
    std::vector<std::string> names;
    for (const auto& entry : all())
        names.push_back(entry.first);
    EXPECT_EQ(names, (std::vector<std::string>{"10", "9", "B", "a", "b", "\xe4"}));
}

TEST_F(AvailableImages, WithoutAListTheResultBeforeComesAgain) {
    m_documents.add("a", &m_small);
    CAvailableImages available(false, false);
    const Images first = available(m_documents.input());
    CValueMap misnamed;
    misnamed.SetEntry("available", new CValueVector);
    CValueMap mistyped;
    mistyped.SetEntry(c_available, new CValueMap);

    EXPECT_EQ(available(CValueMap()), first);
    EXPECT_EQ(available(misnamed), first);
    EXPECT_EQ(available(mistyped), first);
    EXPECT_EQ(first, (Images{{"a", &m_small}}));
}

TEST_F(AvailableImages, WithoutAListTheFirstResultIsEmpty) {
    EXPECT_EQ(CAvailableImages(false, false)(CValueMap()), Images{});
}

TEST_F(AvailableImages, ResultBeforeComesUnfilteredAgain) {
    m_documents.add("a", &m_small);
    CAvailableImages available(true, false);
    available.addAllowedType(Type::eUInt8);
    available(m_documents.input());
    available.addAllowedType(Type::eUInt16);
    EXPECT_EQ(available(CValueMap()), (Images{{"a", &m_small}}));
}

TEST_F(AvailableImages, NamesOfEveryLengthComeAgainAsTheyWere) {
    using namespace std::string_literals;
    std::string longest(70000, 'a');
    const std::string labels[] = {"a",     "a\0"s,        "a\0b"s,    "\0"s,         "b",
                                  longest, longest + "a", "\xff\x80", "\xff\x80\x80"};
    for (const std::string& label : labels)
        m_documents.add(label, &m_small);
    for (const std::size_t length : {126u, 127u, 128u, 129u, 255u, 256u, 16383u, 16384u, 16385u}) {
        m_documents.add(std::string(length, 'c'), &m_deep);
        m_documents.add(std::string(length, 'c') + 'd', &m_small);
    }
    CAvailableImages available(false, false);
    const Images first = available(m_documents.input());
    EXPECT_EQ(first.size(), 9u + 18u);
    EXPECT_EQ(available(CValueMap()), first);
    EXPECT_EQ(CAvailableImages(available)(CValueMap()), first);
}

TEST_F(AvailableImages, SmallerResultReplacesALargerOneAndTheOtherWayRound) {
    Documents few;
    few.add("few", &m_small);
    for (int i = 0; i < 100; ++i)
        m_documents.add("of many", &m_deep, i);
    CAvailableImages available(false, false);
    const Images many = available(m_documents.input());
    EXPECT_EQ(many.size(), 100u);
    available(few.input());
    EXPECT_EQ(available(CValueMap()), (Images{{"few", &m_small}}));
    available(m_documents.input());
    EXPECT_EQ(available(CValueMap()), many);
}

TEST_F(AvailableImages, EmptyListEmptiesTheResult) {
    m_documents.add("a", &m_small);
    CAvailableImages available(false, false);
    available(m_documents.input());
    EXPECT_EQ(available(Documents().input()), Images{});
    EXPECT_EQ(available(CValueMap()), Images{});
}

TEST_F(AvailableImages, NewListReplacesTheResultBefore) {
    m_documents.add("a", &m_small);
    Documents later;
    later.add("b", &m_deep);
    CAvailableImages available(false, false);
    available(m_documents.input());
    EXPECT_EQ(available(later.input()), (Images{{"b", &m_deep}}));
}

TEST_F(AvailableImages, ResultIsTheCallersOwn) {
    m_documents.add("a", &m_small);
    CAvailableImages available(false, false);
    Images result = available(m_documents.input());
    result.clear();
    EXPECT_EQ(available(CValueMap()), (Images{{"a", &m_small}}));
}

TEST_F(AvailableImages, ElementThatIsNoPointerToARecordIsLeftOut) {
    CValueMap map;
    map.SetEntry("label", string("a"));
    map.SetEntry("content", new CValuePointer<CImage>(&m_small));
    m_documents.addElement(map.Clone());
    m_documents.addElement(new CValuePointer<CImage>(&m_small));
    m_documents.addElement(string("a"));
    m_documents.addElement(new CValueVector);
    m_documents.addElement(new CValuePointer<CValueMap>(nullptr));
    m_documents.add("kept", &m_small);
    EXPECT_EQ(all(), (Images{{"kept", &m_small}}));
}

TEST_F(AvailableImages, RecordWithoutAStringAsLabelIsLeftOut) {
    m_documents.addRecord().SetEntry("content", new CValuePointer<CImage>(&m_small));
    m_documents.add("a", &m_small).SetEntry("label", new CValueLong(3));
    m_documents.add("kept", &m_small);
    EXPECT_EQ(all(), (Images{{"kept", &m_small}}));
}

TEST_F(AvailableImages, RecordWithoutAPointerToAnImageIsLeftOut) {
    CValueMap map;
    m_documents.addRecord().SetEntry("label", string("none"));
    m_documents.add("text", &m_small).SetEntry("content", string("image"));
    m_documents.add("map", &m_small).SetEntry("content", new CValuePointer<CValueMap>(&map));
    m_documents.add("interface", &m_small)
        .SetEntry("content", new CValuePointer<TEVU::IImage>(&m_small));
    m_documents.add("null", nullptr);
    m_documents.add("kept", &m_small);
    EXPECT_EQ(all(), (Images{{"kept", &m_small}}));
}

TEST_F(AvailableImages, EmptyLabelIsLeftOutEvenWithAnIndex) {
    m_documents.add("", &m_small);
    m_documents.add("", &m_small, 2);
    m_documents.add(" ", &m_small);
    EXPECT_EQ(all(), (Images{{" ", &m_small}}));
}

TEST_F(AvailableImages, IndexOtherThanOneFollowsTheLabelAfterABlank) {
    m_documents.add("a", &m_small, 1);
    m_documents.add("a", &m_deep, 2);
    m_documents.add("b", &m_small, 0);
    m_documents.add("c", &m_small, -1);
    m_documents.add("d", &m_small, 1234567);
    m_documents.add("e", &m_small, std::numeric_limits<long>::min());
    EXPECT_EQ(all(), (Images{{"a", &m_small},
                             {"a 2", &m_deep},
                             {"b 0", &m_small},
                             {"c -1", &m_small},
                             {"d 1234567", &m_small},
                             {"e " + std::to_string(std::numeric_limits<long>::min()), &m_small}}));
}

TEST_F(AvailableImages, RecordMayHoldMore) {
    m_documents.add("a", &m_small).SetEntry("path", string("/scans/a.tif"));
    m_documents.add("b", &m_small, 2).SetEntry("path", string("/scans/b.tif"));
    CAvailableImages available(false, false);
    EXPECT_EQ(available(m_documents.input()), (Images{{"a", &m_small}, {"b 2", &m_small}}));
}

TEST_F(AvailableImages, IndexOfAnotherTypeAddsNothing) {
    m_documents.add("a", &m_small).SetEntry("index", string("2"));
    m_documents.add("b", &m_small).SetEntry("index", new TEVU::CValueDouble(2));
    m_documents.add("c", &m_small).SetEntry("index", new TEVU::CValueBool(false));
    EXPECT_EQ(all(), (Images{{"a", &m_small}, {"b", &m_small}, {"c", &m_small}}));
}

TEST_F(AvailableImages, ValuesOfDerivedClassesAreOfAnotherType) {
    CValueMap derivedList;
    derivedList.SetEntry(c_available, new COtherVector);
    CValueMap record;
    record.SetEntry("label", string("record"));
    record.SetEntry("content", new CValuePointer<CImage>(&m_small));
    m_documents.addElement(new COtherPointer<CValueMap>(&record));
    m_documents.add("label", &m_small).SetEntry("label", new COtherString(std::string("label")));
    m_documents.add("content", &m_small).SetEntry("content", new COtherPointer<CImage>(&m_small));
    m_documents.add("index", &m_small).SetEntry("index", new COtherLong(2));

    CAvailableImages available(false, false);
    EXPECT_EQ(available(m_documents.input()), (Images{{"index", &m_small}}));
    EXPECT_EQ(available(derivedList), (Images{{"index", &m_small}}));
}

TEST_F(AvailableImages, LaterImageOfTheSameNameReplacesTheEarlier) {
    m_documents.add("a", &m_small);
    m_documents.add("a", &m_deep);
    m_documents.add("a 2", &m_small);
    m_documents.add("a", &m_large, 2);
    EXPECT_EQ(all(), (Images{{"a", &m_deep}, {"a 2", &m_large}}));
}

TEST_F(AvailableImages, LaterIsByNumberNotByTextAndGapsDoNotMatter) {
    CValueMap records[2];
    for (CValueMap& record : records)
        record.SetEntry("label", string("a"));
    records[0].SetEntry("content", new CValuePointer<CImage>(&m_small));
    records[1].SetEntry("content", new CValuePointer<CImage>(&m_deep));
    m_documents.setElement(9, new CValuePointer<CValueMap>(&records[0]));
    m_documents.setElement(100, new CValuePointer<CValueMap>(&records[1]));
    EXPECT_EQ(all(), (Images{{"a", &m_deep}}));
}

TEST_F(AvailableImages, ElementsBehindAGapAreFound) {
    CImage* const images[] = {&m_small, &m_deep, &m_large, &m_small};
    const int indices[] = {0, 1, 3, 1000000000};
    std::deque<CValueMap> records;
    for (int i = 0; i < 4; ++i) {
        records.emplace_back();
        records.back().SetEntry("label", string(i == 2 ? "last" : "a"));
        records.back().SetEntry("index", new CValueLong(i));
        records.back().SetEntry("content", new CValuePointer<CImage>(images[i]));
        m_documents.setElement(indices[i], new CValuePointer<CValueMap>(&records.back()));
    }
    EXPECT_EQ(all(),
              (Images{{"a 0", &m_small}, {"a", &m_deep}, {"last 2", &m_large}, {"a 3", &m_small}}));
}

TEST_F(AvailableImages, LaterImageThatDoesNotPassReplacesNothing) {
    m_documents.add("a", &m_small);
    m_documents.add("a", &m_deep);
    CAvailableImages available(true, false);
    available.addAllowedType(Type::eUInt8);
    EXPECT_EQ(available(m_documents.input()), (Images{{"a", &m_small}}));
}

TEST_F(ImageFilter, WithoutFiltersEveryImagePassesWhateverIsAllowed) {
    m_documents.add("a", &m_small);
    CAvailableImages available(false, false);
    available.addAllowedType(Type::eFloat32);
    available.addAllowedSize(CSize(7));
    EXPECT_EQ(available(m_documents.input()), (Images{{"a", &m_small}}));
}

TEST_F(ImageFilter, NothingAllowedLetsNothingThrough) {
    m_documents.add("a", &m_small);
    EXPECT_EQ(CAvailableImages(true, false)(m_documents.input()), Images{});
    EXPECT_EQ(CAvailableImages(false, true)(m_documents.input()), Images{});
    EXPECT_EQ(CAvailableImages(true, true)(m_documents.input()), Images{});
}

TEST_F(ImageFilter, OnlyAllowedTypesPass) {
    CImage colored(Type::eRGB8, CSize(2, 3));
    m_documents.add("small", &m_small);
    m_documents.add("deep", &m_deep);
    m_documents.add("colored", &colored);
    CAvailableImages available(true, false);
    available.addAllowedType(Type::eRGB8);
    available.addAllowedType(Type::eUInt8);
    available.addAllowedType(Type::eRGB8);
    EXPECT_EQ(available(m_documents.input()), (Images{{"small", &m_small}, {"colored", &colored}}));
}

TEST_F(ImageFilter, OnlyAllowedSizesPass) {
    CImage turned(Type::eUInt8, CSize(3, 2));
    CImage flat(Type::eUInt8, CSize(2, 3, 1));
    m_documents.add("small", &m_small);
    m_documents.add("large", &m_large);
    m_documents.add("turned", &turned);
    m_documents.add("flat", &flat); // of another dimension
    CAvailableImages available(false, true);
    available.addAllowedSize(CSize(3, 2));
    available.addAllowedSize(CSize(2, 3));
    EXPECT_EQ(available(m_documents.input()), (Images{{"small", &m_small}, {"turned", &turned}}));
}

TEST_F(ImageFilter, AmongManyAllowedSizesOnlyEqualOnesPass) {
    CImage flat(Type::eUInt8, CSize(2, 3, 1));
    CImage empty(Type::eUInt8, CSize(2, 3, 0));
    CImage line(Type::eUInt8, CSize(2));
    m_documents.add("small", &m_small);
    m_documents.add("large", &m_large);
    m_documents.add("flat", &flat);
    m_documents.add("empty", &empty);
    m_documents.add("line", &line);
    CAvailableImages available(false, true);
    for (int i = 1; i <= 1000; ++i) {
        available.addAllowedSize(CSize(7, i));
        available.addAllowedSize(CSize(2, 3, 1));
    }
    EXPECT_EQ(available(m_documents.input()), (Images{{"flat", &flat}}));

    available.addAllowedSize(CSize(2));
    available.addAllowedSize(CSize(2, 3, 0));
    EXPECT_EQ(available(m_documents.input()),
              (Images{{"flat", &flat}, {"empty", &empty}, {"line", &line}}));

    CAvailableImages copy(available);
    copy.addAllowedSize(CSize(4, 5));
    EXPECT_EQ(copy(m_documents.input()).size(), 4u);
    EXPECT_EQ(available(m_documents.input()).size(), 3u);
}

TEST_F(ImageFilter, TypeAndSizeBothHaveToFit) {
    m_documents.add("both", &m_small);
    m_documents.add("type only", &m_large);
    m_documents.add("size only", &m_deep);
    CAvailableImages available(true, true);
    available.addAllowedType(Type::eUInt8);
    available.addAllowedSize(CSize(2, 3));
    EXPECT_EQ(available(m_documents.input()), (Images{{"both", &m_small}}));
}

TEST_F(ImageFilter, WhatIsAllowedBetweenTwoCallsCounts) {
    m_documents.add("a", &m_small);
    m_documents.add("b", &m_large);
    CAvailableImages available(false, true);
    available.addAllowedSize(CSize(4, 5));
    EXPECT_EQ(available(m_documents.input()), (Images{{"b", &m_large}}));
    available.addAllowedSize(CSize(2, 3));
    EXPECT_EQ(available(m_documents.input()), (Images{{"a", &m_small}, {"b", &m_large}}));
}

TEST_F(ImageFilter, CopyHasFiltersAndResultOfItsOwn) {
    m_documents.add("a", &m_small);
    m_documents.add("b", &m_deep);
    CAvailableImages original(true, true);
    original.addAllowedType(Type::eUInt8);
    original.addAllowedSize(CSize(2, 3));
    original(m_documents.input());

    CAvailableImages copy(original);
    original.addAllowedType(Type::eUInt16);
    original(m_documents.input());

    EXPECT_EQ(copy(CValueMap()), (Images{{"a", &m_small}}));
    EXPECT_EQ(copy(m_documents.input()), (Images{{"a", &m_small}}));
    EXPECT_EQ(original(CValueMap()), (Images{{"a", &m_small}, {"b", &m_deep}}));
}

namespace {

/// How an entry stands in a map.
enum class As { Missing, WrongType, Foreign, Null, Right };

/// What a random element says, apart from how it is written down.
struct StElement {
    As record;
    As label;
    std::string sLabel;
    As content;
    CImage* image;
    As index;
    long nIndex;
};

struct StInput {
    As list;
    std::vector<StElement> elements;
};

struct StFilter {
    bool bType;
    bool bSize;
    std::vector<Type> types;
    std::vector<CSize> sizes;
};

/// What the images should be, from the rules alone.
class Model {
public:
    explicit Model(const StFilter& filter) : m_filter(filter) {}

    Images operator()(const StInput& input) {
        if (input.list != As::Right)
            return m_images;
        m_images.clear();
        for (const StElement& element : input.elements) {
            if (isComplete(element) && passes(*element.image))
                m_images[name(element)] = element.image;
        }
        return m_images;
    }

private:
    static bool isComplete(const StElement& element) {
        return element.record == As::Right && element.label == As::Right &&
               element.content == As::Right && !element.sLabel.empty();
    }

    static std::string name(const StElement& element) {
        const bool numbered = element.index == As::Right && element.nIndex != 1;
        return element.sLabel + (numbered ? " " + std::to_string(element.nIndex) : "");
    }

    template <class T>
    static bool has(const std::vector<T>& list, const T& wanted) {
        return std::count(list.begin(), list.end(), wanted) > 0;
    }

    bool passes(const CImage& image) const {
        return (!m_filter.bType || has(m_filter.types, image.Type())) &&
               (!m_filter.bSize || has(m_filter.sizes, image.Size()));
    }

    StFilter m_filter;
    Images m_images;
};

class Chance {
public:
    int below(int bound) { return static_cast<int>(m_generator() % static_cast<unsigned>(bound)); }
    bool oneIn(int count) { return below(count) == 0; }

    As as() {
        const As wrong[] = {As::Missing, As::WrongType, As::Foreign, As::Null};
        return oneIn(6) ? wrong[below(4)] : As::Right;
    }

    template <class T>
    const T& of(const std::vector<T>& list) {
        return list[static_cast<std::size_t>(below(static_cast<int>(list.size())))];
    }

private:
    std::mt19937 m_generator{20240131};
};

template <class T, class Foreign>
void setPointer(CValueMap* map, const char* key, As as, T* target, Foreign* foreign) {
    if (as == As::WrongType)
        map->SetEntry(key, new CValueLong(1));
    else if (as == As::Foreign)
        map->SetEntry(key, new CValuePointer<Foreign>(foreign));
    else if (as != As::Missing)
        map->SetEntry(key, new CValuePointer<T>(as == As::Null ? nullptr : target));
}

CValueMap record(const StElement& element, CValueMap* foreign) {
    CValueMap map;
    if (element.label == As::Right)
        map.SetEntry("label", string(element.sLabel));
    else if (element.label != As::Missing)
        map.SetEntry("label", new CValueLong(1));
    setPointer(&map, "content", element.content, element.image, foreign);
    if (element.index == As::Right)
        map.SetEntry("index", new CValueLong(element.nIndex));
    else if (element.index != As::Missing)
        map.SetEntry("index", string("2"));
    return map;
}

/// The same as a value map.
class WrittenInput {
public:
    explicit WrittenInput(const StInput& input) {
        CValueVector list;
        int index = 0;
        for (const StElement& element : input.elements)
            writeElement(element, index++, &list);
        if (input.list == As::Right)
            m_input.SetEntry(c_available, list.Clone());
        else if (input.list != As::Missing)
            m_input.SetEntry(c_available, new CValueMap);
    }

    const CValueMap& map() const { return m_input; }

private:
    void writeElement(const StElement& element, int index, CValueVector* list) {
        m_records.push_back(record(element, &m_foreign));
        CValueMap holder;
        setPointer(&holder, "element", element.record, &m_records.back(), element.image);
        if (const CValue* value = holder.Entry("element", false))
            list->SetEntry(index, value->Clone());
    }

    std::deque<CValueMap> m_records; // they do not move
    CValueMap m_foreign;
    CValueMap m_input;
};

/// Random inputs over few images and few labels, so that names meet.
class RandomInputs {
public:
    RandomInputs() {
        for (const Type& type : m_types) {
            for (const CSize& size : m_sizes)
                m_images.push_back(std::make_unique<CImage>(type, size));
        }
    }

    StFilter filter() {
        StFilter filter{m_chance.oneIn(2), m_chance.oneIn(2), {}, {}};
        for (int i = m_chance.below(3); i > 0; --i)
            filter.types.push_back(m_chance.of(m_types));
        for (int i = m_chance.below(4); i > 0; --i)
            filter.sizes.push_back(m_chance.of(m_sizes));
        for (int i = m_chance.oneIn(2) ? 20 : 0; i > 0; --i) // of more than a few
            filter.sizes.emplace_back(m_chance.below(6), m_chance.below(3), m_chance.below(2));
        return filter;
    }

    StInput input() {
        StInput input{m_chance.as(), {}};
        for (int i = m_chance.below(6); i > 0; --i)
            input.elements.push_back(element());
        return input;
    }

private:
    StElement element() {
        return {m_chance.as(),
                m_chance.as(),
                m_chance.of(m_labels),
                m_chance.as(),
                m_chance.of(m_images).get(),
                m_chance.as(),
                m_chance.below(5) - 1};
    }

    Chance m_chance;
    const std::vector<Type> m_types{Type::eUInt8, Type::eUInt16, Type::eFloat32, Type::eRGB8};
    const std::vector<CSize> m_sizes{CSize(4), CSize(4, 1), CSize(4, 1, 1), CSize(1, 4),
                                     CSize(2, 2, 1)};
    const std::vector<std::string> m_labels{"", "a", "a 2", "a 0", "b", "\xe4", " "};
    std::vector<std::unique_ptr<CImage>> m_images;
};

CAvailableImages made(const StFilter& filter) {
    CAvailableImages available(filter.bType, filter.bSize);
    for (const Type& type : filter.types)
        available.addAllowedType(type);
    for (const CSize& size : filter.sizes)
        available.addAllowedSize(size);
    return available;
}

} // namespace

TEST(AvailableImagesAgainstModel, AnyInputGivesWhatTheRulesSay) {
    const int filters = 10000;
    const int inputsEach = 10;
    RandomInputs random;
    int found = 0;
    for (int i = 0; i < filters * inputsEach && !testing::Test::HasFailure();) {
        const StFilter filter = random.filter();
        Model model(filter);
        CAvailableImages available = made(filter);
        for (int j = 0; j < inputsEach; ++j, ++i) {
            const StInput input = random.input();
            const Images expected = model(input);
            EXPECT_EQ(available(WrittenInput(input).map()), expected) << "input " << i;
            found += !expected.empty();
        }
    }
    EXPECT_GT(found, filters); // else the inputs would show nothing
}
