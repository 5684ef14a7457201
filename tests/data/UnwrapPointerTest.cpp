#include "UnwrapPointer.h"

#include <gtest/gtest.h>
#include <memory>
#include <regex>
#include <ruqlib2core/CExBadParam.h>
#include <ruqlib2core/CValueBool.h>
#include <ruqlib2core/CValueDouble.h>
#include <ruqlib2core/CValueLong.h>
#include <ruqlib2core/CValueMap.h>
#include <ruqlib2core/CValuePointer.h>
#include <ruqlib2core/CValueString.h>
#include <ruqlib2core/CValueVector.h>
#include <ruqlib2image/CImage.h>
#include <string>
#include <typeinfo>

using TEVU::CExBadParam;
using TEVU::CImage;
using TEVU::CValue;
using TEVU::CValueMap;
using TEVU::CValuePointer;
using TEVU::UnwrapPointer;

namespace {

class CDerivedMap : public CValueMap {};

/// Points to a map, but is of another kind.
class CDisguisedPointer : public CValuePointer<CValueMap> {
public:
    using CValuePointer<CValueMap>::CValuePointer;
    EnGenericType GenericType() const override { return eLong; }
};

/// Is of the pointer kind, but points to nothing.
class CSeemingPointer : public TEVU::CValueLong {
public:
    using TEVU::CValueLong::CValueLong;
    EnGenericType GenericType() const override { return ePointer; }
};

std::string mismatch(const std::type_info& requested, const std::type_info& actual) {
    return std::string("Requested type ('") + requested.name() +
           "') does not match actual type ('" + actual.name() + "')!";
}

/// The message of the exception that unwrapping throws; "" if it throws none.
template <class T>
std::string refusal(const CValue& value) {
    try {
        UnwrapPointer<T>(&value);
    } catch (const CExBadParam& exception) {
        return exception.Message();
    }
    return "";
}

CExBadParam thrown() {
    CImage image(TEVU::IImage::CType::eUInt8, TEVU::CSize(1));
    const CValuePointer<CImage> pointer(&image);
    try {
        UnwrapPointer<CValueMap>(&pointer);
    } catch (const CExBadParam& exception) {
        return exception;
    }
    ADD_FAILURE() << "nothing was thrown";
    return CExBadParam("", "", "", "", 0);
}

} // namespace

TEST(UnwrapPointer, NullValueYieldsNull) {
    EXPECT_EQ(UnwrapPointer<CValueMap>(nullptr), nullptr);
    EXPECT_EQ(UnwrapPointer<CImage>(nullptr), nullptr);
}

TEST(UnwrapPointer, HeldPointerComesBack) {
    CValueMap map;
    CImage image(TEVU::IImage::CType::eUInt8, TEVU::CSize(1));
    const CValuePointer<CValueMap> toMap(&map);
    const CValuePointer<CImage> toImage(&image);

    EXPECT_EQ(UnwrapPointer<CValueMap>(&toMap), &map);
    EXPECT_EQ(UnwrapPointer<CImage>(&toImage), &image);
}

TEST(UnwrapPointer, HeldNullPointerYieldsNull) {
    const CValuePointer<CValueMap> pointer(nullptr);

    EXPECT_EQ(UnwrapPointer<CValueMap>(&pointer), nullptr);
}

TEST(UnwrapPointer, PointedObjectStaysItsOwners) {
    CValueMap map;
    map.SetEntry("id", new TEVU::CValueLong(7));
    {
        const CValuePointer<CValueMap> pointer(&map);
        UnwrapPointer<CValueMap>(&pointer);
    }
    EXPECT_EQ(map.EntryLong("id", 0), 7);
}

TEST(UnwrapPointer, ForeignPointerIsRefusedWithBothTypes) {
    CValueMap map;
    CImage image(TEVU::IImage::CType::eUInt8, TEVU::CSize(1));

    EXPECT_EQ(refusal<CImage>(CValuePointer<CValueMap>(&map)),
              mismatch(typeid(CImage), typeid(CValueMap)));
    EXPECT_EQ(refusal<CValueMap>(CValuePointer<CImage>(&image)),
              mismatch(typeid(CValueMap), typeid(CImage)));
}

TEST(UnwrapPointer, ForeignNullPointerIsRefusedToo) {
    EXPECT_EQ(refusal<CImage>(CValuePointer<CValueMap>(nullptr)),
              mismatch(typeid(CImage), typeid(CValueMap)));
}

TEST(UnwrapPointer, RelatedTypesAreNotTheSame) {
    CDerivedMap derived;
    CValueMap map;

    EXPECT_EQ(refusal<CValueMap>(CValuePointer<CDerivedMap>(&derived)),
              mismatch(typeid(CValueMap), typeid(CDerivedMap)));
    EXPECT_EQ(refusal<CDerivedMap>(CValuePointer<CValueMap>(&map)),
              mismatch(typeid(CDerivedMap), typeid(CValueMap)));
}

TEST(UnwrapPointer, TypeIsTheStoredOneNotThatOfTheObject) {
    CDerivedMap derived;
    const CValuePointer<CValueMap> pointer(&derived);

    EXPECT_EQ(UnwrapPointer<CValueMap>(&pointer), &derived);
}

TEST(UnwrapPointer, ValueThatIsNoPointerIsRefusedWithItsOwnType) {
    using namespace TEVU;
    const std::string name = "text";

    EXPECT_EQ(refusal<CImage>(CValueBool(true)), mismatch(typeid(CImage), typeid(CValueBool)));
    EXPECT_EQ(refusal<CImage>(CValueLong(4)), mismatch(typeid(CImage), typeid(CValueLong)));
    EXPECT_EQ(refusal<CImage>(CValueDouble(4)), mismatch(typeid(CImage), typeid(CValueDouble)));
    EXPECT_EQ(refusal<CImage>(CValueString(name)), mismatch(typeid(CImage), typeid(CValueString)));
    EXPECT_EQ(refusal<CImage>(CValueVector()), mismatch(typeid(CImage), typeid(CValueVector)));
    EXPECT_EQ(refusal<CValueMap>(CValueMap()), mismatch(typeid(CValueMap), typeid(CValueMap)));
}

TEST(UnwrapPointer, KindOfTheValueDecidesToo) {
    CValueMap map;

    EXPECT_EQ(refusal<CValueMap>(CDisguisedPointer(&map)),
              mismatch(typeid(CValueMap), typeid(CDisguisedPointer)));
    EXPECT_EQ(refusal<CValueMap>(CSeemingPointer(4)),
              mismatch(typeid(CValueMap), typeid(CSeemingPointer)));
}

TEST(UnwrapPointer, RefusalNamesTheMessage) {
    EXPECT_EQ(thrown().Message(), mismatch(typeid(CValueMap), typeid(CImage)));
}

TEST(UnwrapPointer, RefusalNamesWhenTheLibraryWasBuilt) {
    const std::regex stamp(
        "(Jan|Feb|Mar|Apr|May|Jun|Jul|Aug|Sep|Oct|Nov|Dec) [ 123][0-9] 20[0-9]{2}"
        "-([01][0-9]|2[0-3]):[0-5][0-9]:[0-5][0-9]");

    EXPECT_TRUE(std::regex_match(thrown().BuildStamp(), stamp)) << thrown().BuildStamp();
}

TEST(UnwrapPointer, RefusalNamesTheFile) {
    EXPECT_EQ(thrown().File(), "ruqlib2core\\src\\Value/ValuePointer");
}

TEST(UnwrapPointer, RefusalNamesTheFunction) {
    EXPECT_EQ(thrown().Function(), "TEVU::UnwrapPointer");
}

TEST(UnwrapPointer, RefusalNamesTheLine) {
    EXPECT_EQ(thrown().Line(), 676);
}
