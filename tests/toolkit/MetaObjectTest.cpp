#include <qt3/MetaObject.h>

#include "Specimens.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

using specimen::CTables;
using specimen::Lines;

namespace {

/// Each method as "access signature [parameter names]".
Lines lines(const std::vector<qt3::Method>& table) {
    const char* const accesses[] = {"private", "protected", "public"};
    Lines result;
    for (const qt3::Method& method : table) {
        std::string line = std::string(accesses[method.access]) + ' ' + method.signature;
        for (const std::string& name : method.parameterNames)
            line += ' ' + name;
        result.push_back(line);
    }
    return result;
}

} // namespace

TEST(MetaObjectTest, SlotsComeInDeclaredOrderWithAccessAndNames) {
    const CTables object;
    EXPECT_EQ(lines(qt3::slotTable(&object)),
              (Lines{"public first(int) value", "public second()", "public third(QString) byValue",
                     "protected fourth(QString,double) text number", "private fifth()"}));
}

TEST(MetaObjectTest, SignalsAreATableOfTheirOwn) {
    const CTables object;
    EXPECT_EQ(lines(qt3::signalTable(&object)),
              (Lines{"public happened(int,QString) count reason", "public ended()"}));
}

TEST(MetaObjectTest, FurtherEntriesAreThoseOfTheClassItself) {
    EXPECT_EQ(qt3::furtherEntries(std::make_unique<CTables>().get()), 0);
    EXPECT_EQ(qt3::furtherEntries(std::make_unique<specimen::CDescribed>().get()), 3);
    EXPECT_EQ(qt3::furtherEntries(std::make_unique<specimen::CDerived>().get()), 0);
}

TEST(MetaObjectTest, ClassNamesAreQualified) {
    const CTables object;
    EXPECT_EQ(qt3::className(&object), "specimen::CTables");
    EXPECT_EQ(qt3::superClassName(&object), "QWidget");
}

TEST(MetaObjectTest, NothingIsAboveAnObject) {
    const QObject object;
    EXPECT_EQ(qt3::superClassName(&object), "");
}

TEST(MetaObjectTest, PlainSignatureDropsBlanksAndConstReferences) {
    EXPECT_EQ(qt3::plainSignature("f( const QString& , int )"), "f(QString,int)");
    EXPECT_EQ(qt3::plainSignature("f()"), "f()");
    EXPECT_EQ(qt3::plainSignature("f(const char*)"), "f(const char*)");
    EXPECT_EQ(qt3::plainSignature("f(QMap<int,bool>,QString&)"), "f(QMap<int,bool>,QString&)");
}
