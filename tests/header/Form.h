#ifndef RUQGUI_TESTS_HEADER_FORM_H
#define RUQGUI_TESTS_HEADER_FORM_H

#include "CHeaderFieldsWidget.h"
#include "Events.h"
#include "Recorder.h"

#include <gtest/gtest.h>
#include <qt3/Text.h>
#include <string>
#include <vector>

/// The header form with what only its subclasses see.
class Form : public TEVU::CHeaderFieldsWidget {
public:
    using CHeaderFieldsWidget::CHeaderFieldsWidget;
    using CHeaderFieldsWidget::languageChange;

    using CHeaderFieldsWidget::CHeaderFieldsWidgetLayout;
    using CHeaderFieldsWidget::groupBox1Layout;
    using CHeaderFieldsWidget::groupBox2Layout;
    using CHeaderFieldsWidget::layout2;
    using CHeaderFieldsWidget::spacer1;
};

/// Three spacing fields as the user sees them.
using Fields = std::vector<std::string>;

inline Fields spacingFields(const TEVU::CHeaderFieldsWidget& form) {
    return {qt3::ascii(form.xSpacingLine->text()), qt3::ascii(form.ySpacingLine->text()),
            qt3::ascii(form.zSpacingLine->text())};
}

inline void setSpacingFields(TEVU::CHeaderFieldsWidget& form, const Fields& texts) {
    form.xSpacingLine->setText(qt3::fromAscii(texts[0]));
    form.ySpacingLine->setText(qt3::fromAscii(texts[1]));
    form.zSpacingLine->setText(qt3::fromAscii(texts[2]));
}

/// Creator, description and history as the user sees them.
inline std::vector<std::string> shownTexts(const Form& form) {
    return {qt3::ascii(form.creatorLine->text()), qt3::ascii(form.descriptionText->text()),
            qt3::ascii(form.historyText->text())};
}

inline void setShownTexts(Form& form, const std::vector<std::string>& texts) {
    form.creatorLine->setText(qt3::fromAscii(texts[0]));
    form.descriptionText->setText(qt3::fromAscii(texts[1]));
    form.historyText->setText(qt3::fromAscii(texts[2]));
}

/// Lets the recorder hear each field that gets a new text.
inline void tapFields(support::Recorder& recorder, const TEVU::CHeaderFieldsWidget& form) {
    recorder.tap(form.xSpacingLine, "textChanged(const QString&)", "x");
    recorder.tap(form.ySpacingLine, "textChanged(const QString&)", "y");
    recorder.tap(form.zSpacingLine, "textChanged(const QString&)", "z");
    recorder.tap(form.creatorLine, "textChanged(const QString&)", "creator");
    recorder.tap(form.descriptionText, "textChanged()", "description");
    recorder.tap(form.historyText, "textChanged()", "history");
}

/// All texts of the form but those of the fields.
inline std::vector<std::string> labels(const Form& form) {
    return {qt3::ascii(form.caption()),
            qt3::ascii(form.groupBox1->title()),
            qt3::ascii(form.textLabel1->text()),
            qt3::ascii(form.textLabel1_3->text()),
            qt3::ascii(form.textLabel1_3_2->text()),
            qt3::ascii(form.groupBox2->title()),
            qt3::ascii(form.textLabel2->text()),
            qt3::ascii(form.textLabel2_2->text()),
            qt3::ascii(form.textLabel2_2_2->text())};
}

inline const std::vector<std::string> c_englishLabels{
    "Header Fields", "Spacing",  "x:",           "y:",      "z:",
    "Description",   "Creator:", "Description:", "History:"};

/// The items of the unit box.
inline std::vector<std::string> units(const Form& form) {
    std::vector<std::string> items;
    for (int nItem = 0; nItem < form.comboUnit->count(); ++nItem)
        items.push_back(qt3::ascii(form.comboUnit->text(nItem)));
    return items;
}

/// The unit that the form shows.
inline std::string shownUnit(const TEVU::CHeaderFieldsWidget& form) {
    return qt3::ascii(form.comboUnit->currentText());
}

/// The factor with which the form converts to metres: tells which unit it takes its fields to be
/// in. Leaves the form in metres.
inline std::string factorToMetres(TEVU::CHeaderFieldsWidget& form) {
    form.xSpacingLine->setText("1");
    form.onComboUnitTextChanged("m");
    return qt3::ascii(form.xSpacingLine->text());
}

/// What \a action throws, if it is a text.
template <class Action>
std::string thrownText(const Action& action) {
    try {
        action();
    } catch (const std::string& text) {
        return text;
    }
    return "nothing thrown";
}

/// Selects all text of a field and types another.
inline void retype(QWidget* field, const char* text) {
    support::giveFocus(field);
    support::keyClick(field, Qt::Key_Home);
    support::keyClick(field, Qt::Key_End, support::Modifier::Shift);
    support::keyClick(field, Qt::Key_Delete);
    support::typeText(field, text);
}

#endif
