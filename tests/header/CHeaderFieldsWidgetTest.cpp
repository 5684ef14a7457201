#include "CHeaderFieldsWidget.h"

#include "Form.h"
#include "Looks.h"
#include "Recorder.h"

#include <gtest/gtest.h>
#include <limits>
#include <qt3/MetaObject.h>
#include <qvalidator.h>

namespace {

using support::Lines;

const char* const c_sClass = "TEVU::CHeaderFieldsWidget";

// What the form is made of.

TEST(CHeaderFieldsWidget, WithoutANameIsCalledAfterItsClass) {
    const Form form;

    EXPECT_EQ(qt3::name(&form), "CHeaderFieldsWidget");
}

TEST(CHeaderFieldsWidget, TakesNameAndParent) {
    QWidget parent;
    const Form form(&parent, "header");

    EXPECT_EQ(qt3::name(&form), "header");
    EXPECT_EQ(form.parentWidget(), &parent);
    EXPECT_FALSE(support::isDialog(&form));
}

TEST(CHeaderFieldsWidget, PassesItsFlagsOn) {
    QWidget parent;
    const Form form(&parent, "header", support::dialogFlag());

    EXPECT_TRUE(support::isDialog(&form));
}

TEST(CHeaderFieldsWidget, ExportsHowItWritesNumbers) {
    const char cFormat = Form::m_cQtDoubleFormat;
    const int nPrecision = Form::m_nQtStringPrecision;

    EXPECT_EQ(cFormat, 'g');
    EXPECT_EQ(nPrecision, 10);
}

TEST(CHeaderFieldsWidget, MakesItsChildrenInOrder) {
    Form form;

    EXPECT_EQ(support::childWidgets(&form), (Lines{"groupBox1", "groupBox2"}));
    EXPECT_EQ(support::childWidgets(form.groupBox1),
              (Lines{"textLabel1", "xSpacingLine", "textLabel1_3", "ySpacingLine", "textLabel1_3_2",
                     "zSpacingLine", "comboUnit"}));
    EXPECT_EQ(support::childWidgets(form.groupBox2),
              (Lines{"textLabel2", "creatorLine", "textLabel2_2", "descriptionText",
                     "textLabel2_2_2", "historyText"}));
}

struct StChild {
    const char* sName;
    const char* sClass;
    QWidget* (*member)(const Form&);
};

void PrintTo(const StChild& row, std::ostream* out) {
    *out << row.sName;
}

template <auto member>
QWidget* field(const Form& form) {
    return form.*member;
}

class HeaderChildren : public testing::TestWithParam<StChild> {};

TEST_P(HeaderChildren, AreOfTheirClassAndReachedByTheirMember) {
    Form form;

    QWidget* child = support::child<QWidget>(&form, GetParam().sName);

    ASSERT_NE(child, nullptr);
    EXPECT_EQ(child, GetParam().member(form));
    EXPECT_TRUE(child->inherits(GetParam().sClass));
}

INSTANTIATE_TEST_SUITE_P(
    , HeaderChildren,
    testing::Values(StChild{"groupBox1", "QGroupBox", field<&Form::groupBox1>},
                    StChild{"textLabel1", "QLabel", field<&Form::textLabel1>},
                    StChild{"xSpacingLine", "QLineEdit", field<&Form::xSpacingLine>},
                    StChild{"textLabel1_3", "QLabel", field<&Form::textLabel1_3>},
                    StChild{"ySpacingLine", "QLineEdit", field<&Form::ySpacingLine>},
                    StChild{"textLabel1_3_2", "QLabel", field<&Form::textLabel1_3_2>},
                    StChild{"zSpacingLine", "QLineEdit", field<&Form::zSpacingLine>},
                    StChild{"comboUnit", "QComboBox", field<&Form::comboUnit>},
                    StChild{"groupBox2", "QGroupBox", field<&Form::groupBox2>},
                    StChild{"textLabel2", "QLabel", field<&Form::textLabel2>},
                    StChild{"creatorLine", "QLineEdit", field<&Form::creatorLine>},
                    StChild{"textLabel2_2", "QLabel", field<&Form::textLabel2_2>},
                    StChild{"descriptionText", "QTextEdit", field<&Form::descriptionText>},
                    StChild{"textLabel2_2_2", "QLabel", field<&Form::textLabel2_2_2>},
                    StChild{"historyText", "QTextEdit", field<&Form::historyText>}),
    [](const testing::TestParamInfo<StChild>& row) { return row.param.sName; });

TEST(CHeaderFieldsWidget, HasItsTexts) {
    const Form form;

    EXPECT_EQ(labels(form), c_englishLabels);
}

TEST(CHeaderFieldsWidget, FreshOneShowsMicrometresAndEmptyFields) {
    Form form;

    EXPECT_EQ(units(form), (Lines{"m", "mm", "um", "nm"}));
    EXPECT_EQ(form.comboUnit->currentItem(), 2);
    EXPECT_EQ(shownUnit(form), "um");
    EXPECT_EQ(spacingFields(form), (Fields{"", "", ""}));
    EXPECT_EQ(qt3::ascii(form.creatorLine->text()), "");
    EXPECT_EQ(qt3::ascii(form.descriptionText->text()), "");
    EXPECT_EQ(qt3::ascii(form.historyText->text()), "");
    EXPECT_TRUE(form.zSpacingLine->isEnabled());
}

TEST(CHeaderFieldsWidget, FreshOneTakesItsFieldsToBeInMicrometres) {
    Form form;

    EXPECT_EQ(factorToMetres(form), "1e-06");
}

TEST(CHeaderFieldsWidget, OffersOnlyTheUnitsOfTheTable) {
    const Form form;

    // An editable box has a field inside.
    EXPECT_EQ(support::child<QLineEdit>(form.comboUnit), nullptr);
}

// The validators.

std::vector<qt3::LineEdit*> spacingLines(const Form& form) {
    return {form.xSpacingLine, form.ySpacingLine, form.zSpacingLine};
}

TEST(HeaderValidators, AllowNumbersFromZeroWithTenDecimals) {
    Form form;

    for (const qt3::LineEdit* line : spacingLines(form)) {
        const auto* validator = dynamic_cast<const QDoubleValidator*>(line->validator());
        ASSERT_NE(validator, nullptr) << qt3::name(line);
        EXPECT_EQ(validator->bottom(), 0.0);
        EXPECT_EQ(validator->top(), std::numeric_limits<double>::max());
        EXPECT_EQ(validator->decimals(), 10);
        EXPECT_EQ(validator->parent(), &form);
    }
}

TEST(HeaderValidators, AreOneForEachField) {
    Form form;

    EXPECT_NE(form.xSpacingLine->validator(), form.ySpacingLine->validator());
    EXPECT_NE(form.ySpacingLine->validator(), form.zSpacingLine->validator());
    EXPECT_NE(form.zSpacingLine->validator(), form.xSpacingLine->validator());
}

TEST(HeaderValidators, LeaveTheCreatorAlone) {
    const Form form;

    EXPECT_EQ(form.creatorLine->validator(), nullptr);
}

TEST(HeaderValidators, LetNoLetterBeTyped) {
    Form form;
    support::show(&form);

    for (qt3::LineEdit* line : spacingLines(form)) {
        support::giveFocus(line);
        support::typeText(line, "1x2.5um");
    }

    EXPECT_EQ(spacingFields(form), (Fields{"12.5", "12.5", "12.5"}));
}

// The meta-object.

Lines signatures(const std::vector<qt3::Method>& methods) {
    Lines lines;
    for (const qt3::Method& method : methods)
        lines.push_back(method.signature);
    return lines;
}

TEST(HeaderMetaObject, NamesTheClassAndTheToolkitsWidgetAboveIt) {
    const Form form;

    EXPECT_EQ(qt3::className(&form), c_sClass);
    EXPECT_EQ(qt3::superClassName(&form), "QWidget");
    EXPECT_TRUE(form.inherits(c_sClass));
}

TEST(HeaderMetaObject, ListsTheSlotsInOrder) {
    const Form form;

    Lines expected;
    for (const char* sSlot :
         {"onComboUnitTextChanged(const QString&)", "SetUnit(QString)", "SetTextX(double)",
          "SetTextY(double)", "SetTextZ(double)", "languageChange()"})
        expected.push_back(qt3::plainSignature(sSlot));
    EXPECT_EQ(signatures(qt3::slotTable(&form)), expected);
}

TEST(HeaderMetaObject, ProtectsOnlyTheLanguageChange) {
    const Form form;

    for (const qt3::Method& slot : qt3::slotTable(&form)) {
        const auto eExpected =
            slot.signature == "languageChange()" ? qt3::Method::Protected : qt3::Method::Public;
        EXPECT_EQ(slot.access, eExpected) << slot.signature;
    }
}

TEST(HeaderMetaObject, HasNoSignals) {
    const Form form;

    EXPECT_EQ(signatures(qt3::signalTable(&form)), Lines{});
}

} // namespace
