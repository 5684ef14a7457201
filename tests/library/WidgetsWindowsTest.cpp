// What of the widgets' classes must be the library's own object, and no copy in the program; and what a program calls
// that includes Windows' own header, which makes macros of some of the names.

#include <windows.h>

#include "AllWidgets.h"
#include "LibraryFile.h"

#include <CFileDialog.h>

using namespace TEVU;

namespace {

LibraryFile library() {
    return LibraryFile("ruqgui.dll");
}

template <class Widget>
class WidgetsWindowsTest : public testing::Test {};
TYPED_TEST_SUITE(WidgetsWindowsTest, AllWidgets);

} // namespace

TYPED_TEST(WidgetsWindowsTest, MetaObjectIsTheOneInTheLibrary) {
    QWidget parent;
    const auto widget = make<TypeParam>(&parent);
    const std::string name = typeid(TypeParam).name(); // N4TEVU12CRangeSliderE

    EXPECT_EQ(widget->metaObject(), &TypeParam::staticMetaObject);
    EXPECT_EQ(library().Address("_Z" + name.substr(0, name.size() - 1) + "16staticMetaObjectE"),
              &TypeParam::staticMetaObject);
    EXPECT_EQ(qobject_cast<TypeParam*>(static_cast<QObject*>(widget.get())), widget.get());
}

TEST(ConstantsWindowsTest, OfTheDialogsAreThoseInTheLibrary) {
    EXPECT_EQ(&CFileDialog::UseWorkingDir,
              library().Address("_ZN4TEVU11CFileDialog13UseWorkingDirB5cxx11E"));
    EXPECT_EQ(&CHeaderFieldsWidget::m_cQtDoubleFormat,
              library().Address("_ZN4TEVU19CHeaderFieldsWidget17m_cQtDoubleFormatE"));
    EXPECT_EQ(&CHeaderFieldsWidget::m_nQtStringPrecision,
              library().Address("_ZN4TEVU19CHeaderFieldsWidget20m_nQtStringPrecisionE"));
}

TEST(NamesWindowsTest, ThatTheSystemHasTooAreTheLibrarysOwn) {
    const auto open = &CFileDialog::GetOpenFileName;
    const auto save = &CFileDialog::GetSaveFileName;

    EXPECT_NE(open, nullptr);
    EXPECT_NE(save, nullptr);
}
