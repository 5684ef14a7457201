#ifndef RUQGUI_TESTS_ORUNPARAMDLG_GENERATEDDIALOGTEST_H
#define RUQGUI_TESTS_ORUNPARAMDLG_GENERATEDDIALOGTEST_H

#include "FileDialogTest.h"
#include "Maps.h"

#include <CAutoDialogPluginWrapper.h>
#include <Events.h>
#include <functional>
#include <qwidget.h>
#include <string>

/// An application's dialog: what it is described by, and what comes back.
class CAppDialog : public TEVU::CAutoDialogPluginWrapper {
public:
    TEVU::CValue* GetDialogValue() override { return m_description.Clone(); }
    TEVU::CValue* GetParameterValue() override { return m_parameters.Clone(); }

    bool SetParameterValue(TEVU::CValueMap& edited) override {
        m_parameters = edited;
        ++m_nTaken;
        return true;
    }

    TEVU::CValueMap m_description;
    TEVU::CValueMap m_parameters;
    int m_nTaken = 0;
};

/// Shows dialogs by the real plug-in, as the core library loads it, to a scripted user.
class GeneratedDialogTest : public FileDialogTest {
protected:
    using User = std::function<void(QWidget* dialog)>;

    /// Nothing of a dialog may be left when a test is over.
    ~GeneratedDialogTest() override;

    void describe(const std::vector<maps::CValue*>& entries);
    void describe(maps::CValue* entry);
    void give(const maps::Entries& parameters);

    /// Shows the dialog, in which the user does that and then presses OK; the parameters as they are
    /// afterwards, in writing.
    std::string okAfter(const User& acts = {});

    /// The same with Cancel.
    std::string cancelAfter(const User& acts = {});

    /// Only shows the dialog; \a acts must end it.
    bool show(const User& acts);

    std::string parameters() const { return maps::written(m_app.m_parameters); }

    CAppDialog m_app;
};

/// The field of a parameter, by its path such as "filter/radius".
template <class Field = QWidget>
Field* field(QWidget* dialog, const char* path) {
    return support::child<Field>(dialog, path);
}

/// The first widget of that type in the field of a parameter.
template <class Part>
Part* part(QWidget* dialog, const char* path) {
    return support::child<Part>(field(dialog, path));
}

void press(QWidget* dialog, const char* button); ///< "ok", "cancel" or "defaults".

/// As a user who came with the Tab key: over all that is there.
void typeOver(QWidget* editor, const char* text);

/// All widgets of the dialog that Tab leads to, by the names of their fields, from \a first on.
std::vector<std::string> tabOrder(QWidget* dialog, QWidget* first);

/// What is shown by the field of a number.
std::string numberShown(QWidget* dialog, const char* path);

/// The labels, titles and fields that show, from top to bottom.
std::vector<std::string> shownTexts(QWidget* dialog);

#endif
