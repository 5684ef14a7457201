#include "ToolkitStandIn.h"

#include <dlfcn.h>
#include <qt3/ColorDialog.h>
#include <qt3/File.h>
#include <qt3/FileDialog.h>
#include <qt3/MessageBox.h>

namespace {

ToolkitStandIn* s_standIn = nullptr;

/// The toolkit layer's function, which the one of that name in this program hides.
template <class Result, class... Parameters>
Result real(const char* symbol, Parameters... parameters) {
    auto* function = reinterpret_cast<Result (*)(Parameters...)>(dlsym(RTLD_NEXT, symbol));
    return function(parameters...);
}

bool realTest(const char* symbol, const QString& name) {
    return real<bool, const QString&>(symbol, name);
}

const char* const c_exists = "_ZN3qt36existsERK7QString";
const char* const c_isReadable = "_ZN3qt310isReadableERK7QString";
const char* const c_isWritable = "_ZN3qt310isWritableERK7QString";
const char* const c_canCreate = "_ZN3qt39canCreateERK7QString";
const char* const c_isInExistingDir = "_ZN3qt315isInExistingDirERK7QString";

int realInformation(QWidget* parent, const QString& caption, const QString& text, int button0,
                    int button1, int button2) {
    return real<int, QWidget*, const QString&, const QString&, int, int, int>(
        "_ZN3qt310MessageBox11informationEP7QWidgetRK7QStringS5_iii", parent, caption, text,
        button0, button1, button2);
}

QColor realColor(const QColor& initial, QWidget* parent, const char* name) {
    return real<QColor, const QColor&, QWidget*, const char*>(
        "_ZN3qt311ColorDialog8getColorERK6QColorP7QWidgetPKc", initial, parent, name);
}

QString firstOf(const QStringList& paths) {
    return paths.isEmpty() ? QString() : paths.first();
}

} // namespace

ToolkitStandIn::ToolkitStandIn() {
    s_standIn = this;
}

ToolkitStandIn::~ToolkitStandIn() {
    s_standIn = nullptr;
}

int ToolkitStandIn::inform(const WarningCall& call) {
    return realInformation(call.parent, call.caption, call.text, call.buttons[0], call.buttons[1],
                           call.buttons[2]);
}

QColor ToolkitStandIn::chooseColor(const QColor& initial, QWidget* parent,
                                   const std::string& name) {
    return realColor(initial, parent, name.c_str());
}

bool ToolkitStandIn::exists(const QString& name) {
    return realTest(c_exists, name);
}

bool ToolkitStandIn::isReadable(const QString& name) {
    return realTest(c_isReadable, name);
}

bool ToolkitStandIn::isWritable(const QString& name) {
    return realTest(c_isWritable, name);
}

bool ToolkitStandIn::canCreate(const QString& name) {
    return realTest(c_canCreate, name);
}

bool ToolkitStandIn::isInExistingDir(const QString& name) {
    return realTest(c_isInExistingDir, name);
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

// A program's own definition of a function goes before that of the shared library, for all callers.
// The symbols are the compiler's names of the functions they stand in.
namespace qt3 {

QString FileDialog::getOpenFileName(const QString& startWith, const QString& filter,
                                    QWidget* parent, const char* name, const QString& caption) {
    if (s_standIn)
        return firstOf(
            s_standIn->run({FileDialogCall::OpenOne, startWith, filter, parent, name, caption}));
    return real<QString, const QString&, const QString&, QWidget*, const char*, const QString&>(
        "_ZN3qt310FileDialog15getOpenFileNameERK7QStringS3_P7QWidgetPKcS3_", startWith, filter,
        parent, name, caption);
}

QStringList FileDialog::getOpenFileNames(const QString& filter, const QString& dir, QWidget* parent,
                                         const char* name, const QString& caption) {
    if (s_standIn)
        return s_standIn->run({FileDialogCall::OpenSeveral, dir, filter, parent, name, caption});
    return real<QStringList, const QString&, const QString&, QWidget*, const char*, const QString&>(
        "_ZN3qt310FileDialog16getOpenFileNamesERK7QStringS3_P7QWidgetPKcS3_", filter, dir, parent,
        name, caption);
}

QString FileDialog::getSaveFileName(const QString& startWith, const QString& filter,
                                    QWidget* parent, const char* name, const QString& caption) {
    if (s_standIn)
        return firstOf(
            s_standIn->run({FileDialogCall::Save, startWith, filter, parent, name, caption}));
    return real<QString, const QString&, const QString&, QWidget*, const char*, const QString&>(
        "_ZN3qt310FileDialog15getSaveFileNameERK7QStringS3_P7QWidgetPKcS3_", startWith, filter,
        parent, name, caption);
}

void useNativeDialogs(bool use) {
    if (s_standIn)
        return s_standIn->useNativeDialogs(use);
    real<void, bool>("_ZN3qt316useNativeDialogsEb", use);
}

int MessageBox::warning(QWidget* parent, const QString& caption, const QString& text, int button0,
                        int button1, int button2) {
    if (s_standIn)
        return s_standIn->warn({parent, caption, text, {button0, button1, button2}});
    return real<int, QWidget*, const QString&, const QString&, int, int, int>(
        "_ZN3qt310MessageBox7warningEP7QWidgetRK7QStringS5_iii", parent, caption, text, button0,
        button1, button2);
}

int MessageBox::information(QWidget* parent, const QString& caption, const QString& text,
                            int button0, int button1, int button2) {
    if (s_standIn)
        return s_standIn->inform({parent, caption, text, {button0, button1, button2}});
    return realInformation(parent, caption, text, button0, button1, button2);
}

QColor ColorDialog::getColor(const QColor& initial, QWidget* parent, const char* name) {
    if (s_standIn)
        return s_standIn->chooseColor(initial, parent, name);
    return realColor(initial, parent, name);
}

bool exists(const QString& name) {
    return s_standIn ? s_standIn->exists(name) : realTest(c_exists, name);
}

bool isReadable(const QString& name) {
    return s_standIn ? s_standIn->isReadable(name) : realTest(c_isReadable, name);
}

bool isWritable(const QString& name) {
    return s_standIn ? s_standIn->isWritable(name) : realTest(c_isWritable, name);
}

bool canCreate(const QString& name) {
    return s_standIn ? s_standIn->canCreate(name) : realTest(c_canCreate, name);
}

bool isInExistingDir(const QString& name) {
    return s_standIn ? s_standIn->isInExistingDir(name) : realTest(c_isInExistingDir, name);
}

} // namespace qt3
