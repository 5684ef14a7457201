// The widgets and dialogs of the library, as a program uses them that knows its headers only.

#include "AllWidgets.h"

#include <CAutoDialogPluginWrapper.h>
#include <CDoubleSpinBox.h>
#include <CDoubleSpinBoxValidator.h>
#include <CFileDialog.h>
#include <CValueMapFileVersionHandling.h>

#include <gtest/gtest.h>
#include <memory>
#include <type_traits>
#include <typeinfo>

using namespace TEVU;

namespace {

template <class Widget>
class WidgetsAcrossLibraries : public testing::Test {
protected:
    QWidget m_parent;
};

TYPED_TEST_SUITE(WidgetsAcrossLibraries, AllWidgets);

} // namespace

TYPED_TEST(WidgetsAcrossLibraries, AreWhatTheyAreForTheProgramAndForTheToolkit) {
    const auto widget = make<TypeParam>(&this->m_parent);
    QObject* const object = widget.get();

    EXPECT_EQ(dynamic_cast<TypeParam*>(object), widget.get());
    EXPECT_TRUE(typeid(*object) == typeid(TypeParam));
}

TYPED_TEST(WidgetsAcrossLibraries, CopiesAndOriginalsAreDestroyedInAnyOrder) {
    if constexpr (std::is_copy_constructible_v<TypeParam>) {
        auto original = make<TypeParam>(&this->m_parent);
        auto copy = std::make_unique<TypeParam>(*original);
        const auto assigned = make<TypeParam>(&this->m_parent);
        *assigned = *copy;
        original.reset();

        EXPECT_EQ(copy->parentWidget(), &this->m_parent);
        copy.reset();
        EXPECT_EQ(assigned->parentWidget(), &this->m_parent);
    } else {
        EXPECT_TRUE((std::is_same_v<TypeParam, CSpinboxSlider>)) << "the only one without copies";
    }
}

namespace {

class OwnDialog : public CAutoDialogPluginWrapper {
    CValue* GetDialogValue() override { return nullptr; }
    CValue* GetParameterValue() override { return nullptr; }
    bool SetParameterValue(CValueMap&) override { return false; }
};

class OwnRange : public CRangeControl {
public:
    OwnRange() : CRangeControl(0, 10, 1, 2, 5) {}
    int changes() const { return m_nChanges; }

protected:
    void valueChange() override { ++m_nChanges; }

private:
    int m_nChanges = 0;
};

} // namespace

TEST(DialogsAcrossLibraries, AreCopiedAndAssigned) {
    OwnDialog dialog;
    OwnDialog other(dialog);
    other = dialog;

    CFileDialog files;
    CFileDialog otherFiles(files);
    otherFiles = files;
    EXPECT_FALSE(otherFiles.WasFileSelected());

    CValueMapFileVersionHandling version("id", "1.0");
    CValueMapFileVersionHandling otherVersion("other", "2.0");
    otherVersion = CValueMapFileVersionHandling(version);
    EXPECT_EQ(otherVersion.m_sIdentifier, "id");
}

TEST(ClassesDerivedInTheProgram, AreCalledByTheLibrary) {
    OwnRange range;

    range.setValue(3);

    EXPECT_EQ(range.changes(), 1);
    EXPECT_EQ(OwnRange(range).value(), 3);
}

TEST(ClassesDerivedInTheProgram, FindTheValidatorsType) {
    CDoubleSpinBox box(nullptr, "box");
    CDoubleSpinBoxValidator validator(&box, "validator");
    QObject* const object = &validator;

    EXPECT_EQ(dynamic_cast<CDoubleSpinBoxValidator*>(object), &validator);
}

TEST(ConstantsOfTheLibraries, HaveTheirValuesInTheProgram) {
    EXPECT_EQ(CFileDialog::UseWorkingDir, "");
    EXPECT_EQ(CHeaderFieldsWidget::m_cQtDoubleFormat, 'g');
    EXPECT_EQ(CHeaderFieldsWidget::m_nQtStringPrecision, 10);
}
