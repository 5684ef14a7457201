#include "ToolkitStandIn.h"

#include "HiddenFunction.h"
#include "StoodInFunctions.h"

#include <qt3/MessageBox.h>

namespace {

using support::Hidden;

ToolkitStandIn* s_standIn = nullptr;

const Hidden s_getOpenFileName("_ZN3qt310FileDialog15getOpenFileNameERK7QStringS3_P7QWidgetPKcS3_",
                               &stand_in::getOpenFileName);
const Hidden
    s_getOpenFileNames("_ZN3qt310FileDialog16getOpenFileNamesERK7QStringS3_P7QWidgetPKcS3_",
                       &stand_in::getOpenFileNames);
const Hidden s_getSaveFileName("_ZN3qt310FileDialog15getSaveFileNameERK7QStringS3_P7QWidgetPKcS3_",
                               &stand_in::getSaveFileName);
const Hidden s_useNativeDialogs("_ZN3qt316useNativeDialogsEb", &stand_in::useNativeDialogs);
const Hidden s_warning("_ZN3qt310MessageBox7warningEP7QWidgetRK7QStringS5_iii", &stand_in::warning);
const Hidden s_information("_ZN3qt310MessageBox11informationEP7QWidgetRK7QStringS5_iii",
                           &stand_in::information);
const Hidden s_getColor("_ZN3qt311ColorDialog8getColorERK6QColorP7QWidgetPKc", &stand_in::getColor);
const Hidden s_exists("_ZN3qt36existsERK7QString", &stand_in::exists);
const Hidden s_isReadable("_ZN3qt310isReadableERK7QString", &stand_in::isReadable);
const Hidden s_isWritable("_ZN3qt310isWritableERK7QString", &stand_in::isWritable);
const Hidden s_canCreate("_ZN3qt39canCreateERK7QString", &stand_in::canCreate);
const Hidden s_isInExistingDir("_ZN3qt315isInExistingDirERK7QString", &stand_in::isInExistingDir);

QString firstOf(const QStringList& paths) {
    return paths.isEmpty() ? QString() : paths.first();
}

} // namespace

ToolkitStandIn::ToolkitStandIn() {
    stand_in::takePlaces();
    s_standIn = this;
}

ToolkitStandIn::~ToolkitStandIn() {
    s_standIn = nullptr;
}

int ToolkitStandIn::inform(const WarningCall& call) {
    return s_information(call.parent, call.caption, call.text, call.buttons[0], call.buttons[1],
                         call.buttons[2]);
}

QColor ToolkitStandIn::chooseColor(const QColor& initial, QWidget* parent,
                                   const std::string& name) {
    return s_getColor(initial, parent, name.c_str());
}

bool ToolkitStandIn::exists(const QString& name) {
    return s_exists(name);
}

bool ToolkitStandIn::isReadable(const QString& name) {
    return s_isReadable(name);
}

bool ToolkitStandIn::isWritable(const QString& name) {
    return s_isWritable(name);
}

bool ToolkitStandIn::canCreate(const QString& name) {
    return s_canCreate(name);
}

bool ToolkitStandIn::isInExistingDir(const QString& name) {
    return s_isInExistingDir(name);
}

std::string buttonsOf(const WarningCall& call) {
    const char* labels[] = {"", "OK", "Cancel", "Yes", "No", "Abort", "Retry", "Ignore"};
    std::string all;
    for (const int button : call.buttons) {
        if (button == 0)
            continue;
        all += (all.empty() ? "" : ", ") + std::string(labels[button & 7]);
        all += button & qt3::MessageBox::Default ? " (default)" : "";
        all += button & qt3::MessageBox::Escape ? " (escape)" : "";
    }
    return all;
}

namespace stand_in {

QString getOpenFileName(const QString& startWith, const QString& filter, QWidget* parent,
                        const char* name, const QString& caption) {
    if (s_standIn)
        return firstOf(
            s_standIn->run({FileDialogCall::OpenOne, startWith, filter, parent, name, caption}));
    return s_getOpenFileName(startWith, filter, parent, name, caption);
}

QStringList getOpenFileNames(const QString& filter, const QString& dir, QWidget* parent,
                             const char* name, const QString& caption) {
    if (s_standIn)
        return s_standIn->run({FileDialogCall::OpenSeveral, dir, filter, parent, name, caption});
    return s_getOpenFileNames(filter, dir, parent, name, caption);
}

QString getSaveFileName(const QString& startWith, const QString& filter, QWidget* parent,
                        const char* name, const QString& caption) {
    if (s_standIn)
        return firstOf(
            s_standIn->run({FileDialogCall::Save, startWith, filter, parent, name, caption}));
    return s_getSaveFileName(startWith, filter, parent, name, caption);
}

void useNativeDialogs(bool use) {
    if (s_standIn)
        return s_standIn->useNativeDialogs(use);
    s_useNativeDialogs(use);
}

int warning(QWidget* parent, const QString& caption, const QString& text, int button0, int button1,
            int button2) {
    if (s_standIn)
        return s_standIn->warn({parent, caption, text, {button0, button1, button2}});
    return s_warning(parent, caption, text, button0, button1, button2);
}

int information(QWidget* parent, const QString& caption, const QString& text, int button0,
                int button1, int button2) {
    if (s_standIn)
        return s_standIn->inform({parent, caption, text, {button0, button1, button2}});
    return s_information(parent, caption, text, button0, button1, button2);
}

QColor getColor(const QColor& initial, QWidget* parent, const char* name) {
    if (s_standIn)
        return s_standIn->chooseColor(initial, parent, name);
    return s_getColor(initial, parent, name);
}

bool exists(const QString& name) {
    return s_standIn ? s_standIn->exists(name) : s_exists(name);
}

bool isReadable(const QString& name) {
    return s_standIn ? s_standIn->isReadable(name) : s_isReadable(name);
}

bool isWritable(const QString& name) {
    return s_standIn ? s_standIn->isWritable(name) : s_isWritable(name);
}

bool canCreate(const QString& name) {
    return s_standIn ? s_standIn->canCreate(name) : s_canCreate(name);
}

bool isInExistingDir(const QString& name) {
    return s_standIn ? s_standIn->isInExistingDir(name) : s_isInExistingDir(name);
}

} // namespace stand_in
