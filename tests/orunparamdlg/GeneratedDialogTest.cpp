#include "GeneratedDialogTest.h"

#include <CDoubleSpinBox.h>
#include <algorithm>
#include <qapplication.h>
#include <qcheckbox.h>
#include <qgroupbox.h>
#include <qlabel.h>
#include <qlineedit.h>
#include <qpushbutton.h>
#include <qt3/SpinBox.h>
#include <qt3/WidgetFunctions.h>
#include <tuple>

namespace {

/// The field that a widget is or is in: what lies directly in the form, in a group or in the dialog.
std::string fieldNameOf(QWidget* widget) {
    for (QWidget* parent = widget->parentWidget(); parent; parent = parent->parentWidget()) {
        if (parent->inherits("QGroupBox") || parent->inherits("QDialog") ||
            qt3::name(parent) == "form")
            break;
        widget = parent;
    }
    return qt3::name(widget);
}

std::string textOf(QObject* object) {
    if (const auto* const label = dynamic_cast<QLabel*>(object))
        return support::text(label->text());
    if (const auto* const box = dynamic_cast<QGroupBox*>(object))
        return '[' + support::text(box->title()) + ']';
    if (const auto* const checkBox = dynamic_cast<QCheckBox*>(object))
        return support::text(checkBox->text());
    return "";
}

} // namespace

GeneratedDialogTest::~GeneratedDialogTest() {
    user.finish();
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

void GeneratedDialogTest::describe(const std::vector<maps::CValue*>& entries) {
    m_app.m_description = maps::dialogOf(entries);
}

void GeneratedDialogTest::describe(maps::CValue* entry) {
    m_app.m_description = maps::dialogOf(entry);
}

void GeneratedDialogTest::give(const maps::Entries& parameters) {
    m_app.m_parameters = maps::taken(maps::map(parameters));
}

bool GeneratedDialogTest::show(const User& acts) {
    user.expectDialog({"autodlg"}).act(acts);
    const bool accepted = m_app.show();
    EXPECT_EQ(accepted ? 1 : 0, m_app.m_nTaken);
    m_app.m_nTaken = 0;
    return accepted;
}

std::string GeneratedDialogTest::okAfter(const User& acts) {
    const bool accepted = show([&](QWidget* dialog) {
        if (acts)
            acts(dialog);
        press(dialog, "ok");
    });
    EXPECT_TRUE(accepted);
    return parameters();
}

std::string GeneratedDialogTest::cancelAfter(const User& acts) {
    const bool accepted = show([&](QWidget* dialog) {
        if (acts)
            acts(dialog);
        press(dialog, "cancel");
    });
    EXPECT_FALSE(accepted);
    return parameters();
}

void press(QWidget* dialog, const char* button) {
    support::mouseClick(support::child<QPushButton>(dialog, button));
}

void typeOver(QWidget* editor, const char* text) {
    support::giveFocus(editor);
    if (auto* const spinBox = dynamic_cast<qt3::SpinBox*>(editor))
        spinBox->selectAll();
    else if (auto* const line = dynamic_cast<QLineEdit*>(editor))
        line->selectAll();
    else
        support::child<QLineEdit>(editor)->selectAll();
    support::typeText(editor, text);
}

std::vector<std::string> tabOrder(QWidget* dialog, QWidget* first) {
    std::vector<std::string> names;
    support::giveFocus(first);
    QWidget* const begin = dialog->focusWidget();
    do {
        names.push_back(fieldNameOf(dialog->focusWidget()));
        support::keyClick(dialog->focusWidget(), Qt::Key_Tab, support::Modifier::None, "\t");
    } while (dialog->focusWidget() != begin && names.size() < 100);
    return names;
}

std::string numberShown(QWidget* dialog, const char* path) {
    return support::text(part<QLineEdit>(dialog, path)->text());
}

std::vector<std::string> shownTexts(QWidget* dialog) {
    std::vector<std::tuple<int, int, std::string>> places;
    for (QObject* const object : support::descendants(dialog)) {
        auto* const widget = dynamic_cast<QWidget*>(object);
        if (!widget || !widget->isVisible() || textOf(object).empty())
            continue;
        const QPoint place = widget->mapToGlobal(QPoint(0, 0));
        places.emplace_back(place.y(), place.x(), textOf(object));
    }
    std::sort(places.begin(), places.end());
    std::vector<std::string> texts;
    for (const auto& place : places)
        texts.push_back(std::get<2>(place));
    return texts;
}
