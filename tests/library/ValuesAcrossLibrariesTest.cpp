// What crosses the border between this program and the libraries, or between two libraries: types, exceptions, virtual
// functions, copies. The program knows the libraries by their headers only.

#include <CAvailableImages.h>
#include <StUnit.h>
#include <UnwrapPointer.h>
#include <ruqlib2core/CExBadParam.h>
#include <ruqlib2core/CPluginBase.h>
#include <ruqlib2core/CString.h>
#include <ruqlib2core/CValueBool.h>
#include <ruqlib2core/CValueDouble.h>
#include <ruqlib2core/CValueLong.h>
#include <ruqlib2core/CValuePointer.h>
#include <ruqlib2core/CValueString.h>
#include <ruqlib2core/CValueVector.h>
#include <ruqlib2image/CImage.h>
#include <ruqlib2image/COrunHeaderTools.h>

#include <exception>
#include <gtest/gtest.h>
#include <memory>

using namespace TEVU;

namespace {

template <class Value>
class ValuesAcrossLibraries : public testing::Test {};

/// One of each kind.
template <class Value>
Value sample() {
    return Value(1);
}
template <>
CValueString sample() {
    return CValueString("text");
}
template <>
CValueMap sample() {
    CValueMap map;
    map.SetEntry("entry", new CValueLong(1));
    return map;
}
template <>
CValueVector sample() {
    CValueVector vector;
    vector.SetEntry(0, new CValueLong(1));
    return vector;
}
template <>
CValuePointer<CImage> sample() {
    return CValuePointer<CImage>(nullptr);
}

using Values = testing::Types<CValueBool, CValueLong, CValueDouble, CValueString, CValueMap,
                              CValueVector, CValuePointer<CImage>>;
TYPED_TEST_SUITE(ValuesAcrossLibraries, Values);

} // namespace

TYPED_TEST(ValuesAcrossLibraries, CopyOfTheLibraryHasTheTypeOfTheProgram) {
    const TypeParam original = sample<TypeParam>();
    CValueMap map;
    map.SetEntry("value", original.Clone());

    const std::unique_ptr<CValueMap> copied(map.Clone()); // made in the library, deleted here

    const CValue* const copy = copied->Entry("value", true);
    EXPECT_NE(dynamic_cast<const TypeParam*>(copy), nullptr);
    EXPECT_TRUE(typeid(*copy) == typeid(TypeParam));
    EXPECT_TRUE(copied->HasEntry("value", typeid(TypeParam)));
    EXPECT_EQ(copy->GenericType(), original.GenericType());
}

TYPED_TEST(ValuesAcrossLibraries, CopiesAndOriginalsAreDestroyedInAnyOrder) {
    auto first = std::make_unique<TypeParam>(sample<TypeParam>());
    auto copy = std::make_unique<TypeParam>(*first);
    first.reset();
    TypeParam assigned = sample<TypeParam>();
    assigned = *copy;
    copy.reset();

    EXPECT_EQ(assigned.GenericType(), sample<TypeParam>().GenericType());
}

namespace {

/// A value of the program's own, of which the library knows the base only.
class OwnValue : public CValueLong {
public:
    explicit OwnValue(int& copies) : CValueLong(7), m_nCopies(copies) {}
    CValueLong* Clone() const override {
        ++m_nCopies;
        return new OwnValue(m_nCopies);
    }

private:
    int& m_nCopies;
};

class ThrowingValue : public CValueLong {
public:
    ThrowingValue() : CValueLong(0) {}
    CValueLong* Clone() const override { throw std::string("of the program"); }
};

/// An image of the program's own.
class OwnImage : public IImage {
public:
    CType Type() const override { return CType::eUInt8; }
    CSize Size() const override { return CSize(1, 1); }
    CValueMap& Header() override { return m_header; }
    const CValueMap& Header() const override { return m_header; }

private:
    CValueMap m_header;
};

/// What \a run throws, if it is exactly that.
template <class Exception, class Run>
std::unique_ptr<Exception> thrownBy(Run run) {
    try {
        run();
    } catch (const Exception& exception) {
        EXPECT_TRUE(typeid(exception) == typeid(Exception));
        return std::make_unique<Exception>(exception);
    }
    return nullptr;
}

} // namespace

TEST(ClassesDerivedInTheProgram, AreCopiedByTheLibraryAsWhatTheyAre) {
    int copies = 0;
    CValueMap map;
    map.SetEntry("own", new OwnValue(copies));

    const CValueMap copy(map);

    EXPECT_EQ(copies, 1);
    EXPECT_TRUE(copy.HasEntry("own", typeid(OwnValue)));
    EXPECT_NE(dynamic_cast<const OwnValue*>(copy.Entry("own", true)), nullptr);
}

TEST(ClassesDerivedInTheProgram, AreImagesForTheLibrary) {
    OwnImage image;

    COrunHeaderTools::SetCreator(image, "creator", 7);

    std::string creator;
    EXPECT_TRUE(COrunHeaderTools::GetCreator(image, creator));
    EXPECT_EQ(creator, "creator");
    EXPECT_EQ(image.Header().Size(), 1u);
}

TEST(ExceptionsOfTheLibraries, AreCaughtByTheirTypesAndTheirBases) {
    const auto ofCore = thrownBy<CException>([] { CValueMap().EntryString("missing"); });
    const auto ofImages = thrownBy<CException>([] { CImage(IImage::CType::eUInt8, CSize(-1, 1)); });
    const CValueLong number(1);
    const auto unwrap = [&number] { UnwrapPointer<CImage>(&number); };
    const auto ofDialogs = thrownBy<CExBadParam>(unwrap);

    ASSERT_TRUE(ofCore && ofImages && ofDialogs);
    EXPECT_NE(ofCore->Message().find("missing"), std::string::npos);
    EXPECT_NE(ofImages->Message().find("-1"), std::string::npos) << ofImages->what();
    EXPECT_GT(ofDialogs->Line(), 0);
    EXPECT_THROW(unwrap(), CException);
    EXPECT_THROW(unwrap(), std::exception);
}

TEST(ExceptionsOfTheLibraries, OutliveTheirThrow) {
    std::exception_ptr kept;
    try {
        GetNewPluginInstance("no::plugin");
    } catch (...) {
        kept = std::current_exception();
    }

    EXPECT_TRUE(thrownBy<CException>([&kept] { std::rethrow_exception(kept); }));
}

TEST(ExceptionsOfTheProgram, PassThroughTheLibrary) {
    CValueMap map;
    map.SetEntry("throwing", new ThrowingValue);

    EXPECT_THROW(CValueMap copy(map), std::string);
}

TEST(ObjectsAcrossLibraries, KeepTheirContentsWhenCopiedAndAssigned) {
    const StUnit metre(1, 1000, "m");
    StUnit unit(0, 1, "other");
    unit = StUnit(metre);
    EXPECT_TRUE(unit(2));

    CImage image(IImage::CType::eUInt8, CSize(2, 1));
    *image.Data() = 5;
    CImage other(IImage::CType::eRGB8, CSize(1));
    other = CImage(image);
    EXPECT_EQ(*other.Data(), 5);
    EXPECT_EQ(other.Size(), CSize(2, 1));

    CValueMap record;
    record.SetEntry("label", new CValueString("image"));
    record.SetEntry("content", new CValuePointer<CImage>(&image));
    auto* const list = new CValueVector;
    list->SetEntry(0, new CValuePointer<CValueMap>(&record));
    CValueMap input;
    input.SetEntry("input/documents/available", list);
    auto available = std::make_unique<CAvailableImages>(true, false);
    available->addAllowedType(IImage::CType::eUInt8);
    CAvailableImages copy(*available);
    available.reset();
    EXPECT_EQ(copy(input).at("image"), &image);
}

TEST(ConstantsOfTheLibraries, HaveTheirValuesHere) {
    EXPECT_EQ(CString::NPOS, std::string::npos);
    EXPECT_STREQ(COrunHeaderTools::c_sTagFeatures, "features");
}
