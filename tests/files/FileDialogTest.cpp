#include "FileDialogTest.h"

#include <CFileDialog.h>
#include <ChildTask.h>
#include <Events.h>
#include <System.h>
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <memory>
#include <qfile.h>
#include <qt3/Text.h>
#include <ruqlib2core/CRegistry.h>
#include <ruqlib2core/CValueLong.h>
#include <ruqlib2core/CValueString.h>
#include <sstream>

namespace fs = std::filesystem;
using TEVU::CRegistry;

namespace {

const char* const c_keys = "main/globalsettings/IO/";

using Lines = SecondProcess::Lines;
using Arguments = SecondProcess::Arguments;
using Output = support::ChildProcess::Output;

template <class Task>
std::string nameOf(Task task) {
    return support::textOf(reinterpret_cast<support::AnyFunction>(task));
}

template <class Task>
Arguments withNameOf(Task task, const Arguments& arguments) {
    Arguments all = {nameOf(task)};
    all.insert(all.end(), arguments.begin(), arguments.end());
    return all;
}

template <class Task>
Task taskOf(const Arguments& arguments) {
    return reinterpret_cast<Task>(support::functionOf(arguments.front()));
}

void writeLines(Output& output, const Lines& lines) {
    for (const std::string& line : lines)
        output.write(line + '\n');
}

void writeLinesOf(Output& output, const Arguments& arguments) {
    writeLines(output, taskOf<Lines (*)()>(arguments)());
}

void writeLinesOfArguments(Output& output, const Arguments& arguments) {
    const auto task = taskOf<Lines (*)(const Arguments&)>(arguments);
    writeLines(output, task({arguments.begin() + 1, arguments.end()}));
}

#ifdef _WIN32
/// Programs start slowly there, so tests share a process where they can, and with it the registry object, which
/// keeps to its first file.
void beginWithAnEmptyRegistry(const support::TempDir&) {
    static const support::TempDir s_dir;
    support::setVariable("RUQ_REGISTRY", s_dir.path("registry.json"));
    for (const TEVU::CValue_Key& key : CRegistry::Obj().Keys())
        CRegistry::Obj().RemoveEntry(key);
}
#else
void beginWithAnEmptyRegistry(const support::TempDir& dir) {
    support::setVariable("RUQ_REGISTRY", dir.path("registry.json"));
}
#endif

} // namespace

std::string FileDialogTest::shortKey(const TEVU::CValue_Key& key) {
    const std::string whole = key.String();
    return whole.rfind(c_keys, 0) == 0 ? whole.substr(std::string(c_keys).size()) : whole;
}

FileDialogTest::FileDialogTest() {
    beginWithAnEmptyRegistry(dir);
    support::setVariable("HOME", dir.makeFolder("home"));
    fs::current_path(dir.makeFolder("working folder"));
}

FileDialogTest::~FileDialogTest() {
    fs::current_path("/");
}

std::string FileDialogTest::makeFile(const std::string& name) const {
    fs::create_directories(fs::path(dir.path(name)).parent_path());
    return dir.writeFile(name, "pixels");
}

QString FileDialogTest::makeFileNamed(const QString& name) const {
    const QString path = qt3::fromAscii(dir.path() + '/') + name;
#ifdef _WIN32
    const fs::path spelled = fs::u8path(support::text(path));
#else
    const fs::path spelled(static_cast<const char*>(QFile::encodeName(path)));
#endif
    std::ofstream(spelled) << "pixels";
    EXPECT_TRUE(QFile::exists(path)) << support::text(path);
    return path;
}

FileDialogTest::Lines FileDialogTest::listOf(const std::string& folder) {
    Lines names;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder))
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

void FileDialogTest::remember(const std::string& key, const std::string& text) {
    CRegistry::Obj().SetEntry(c_keys + key, new TEVU::CValueString(text));
}

void FileDialogTest::rememberNumber(const std::string& key) {
    CRegistry::Obj().SetEntry(c_keys + key, new TEVU::CValueLong(7));
}

FileDialogTest::Lines FileDialogTest::remembered() {
    // Not entry by entry: each look at the registry is one at its file, which takes milliseconds under wine.
    const std::unique_ptr<const TEVU::CValueMap> entries(CRegistry::Obj().Clone());
    Lines lines;
    for (const TEVU::CValue_Key& key : entries->Keys())
        lines.push_back(shortKey(key) + '=' + entries->GetString(key, "(no string)"));
    std::sort(lines.begin(), lines.end());
    return lines;
}

QString FileDialogTest::toText(const std::string& utf8) {
    return QString::fromUtf8(utf8.c_str());
}

void FileDialogTest::expectStartIn(const std::string& folder) {
    TEVU::CFileDialog dialog;
    user.expectFileDialog(openIn(folder)).cancel();
    EXPECT_FALSE(dialog.GetOpenFileName(allFiles, TEVU::CFileDialog::UseWorkingDir));
    user.finish();
}

SecondProcess::SecondProcess(Lines (*task)())
    : m_process(writeLinesOf, {nameOf(task)}, support::ChildProcess::eWhenTold) {}

SecondProcess::SecondProcess(Lines (*task)(const Arguments& arguments), const Arguments& arguments)
    : m_process(writeLinesOfArguments, withNameOf(task, arguments),
                support::ChildProcess::eWhenTold) {}

void SecondProcess::letGo() {
    if (!m_bRuns)
        m_process.letGo();
    m_bRuns = true;
}

SecondProcess::Lines SecondProcess::result() {
    letGo();
    Lines lines;
    std::istringstream stream(m_process.wait().output);
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}
