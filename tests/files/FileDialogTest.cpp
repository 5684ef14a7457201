#include "FileDialogTest.h"

#include <CFileDialog.h>
#include <Events.h>
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <qfile.h>
#include <qt3/Text.h>
#include <ruqlib2core/CRegistry.h>
#include <ruqlib2core/CValueLong.h>
#include <ruqlib2core/CValueString.h>
#include <sstream>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;
using TEVU::CRegistry;

namespace {

const char* const c_keys = "main/globalsettings/IO/";

std::string shortKey(const TEVU::CValue_Key& key) {
    const std::string whole = key.String();
    return whole.rfind(c_keys, 0) == 0 ? whole.substr(std::string(c_keys).size()) : whole;
}

} // namespace

FileDialogTest::FileDialogTest() {
    setenv("RUQ_REGISTRY", dir.path("registry.json").c_str(), true);
    setenv("HOME", dir.makeFolder("home").c_str(), true);
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
    std::ofstream(static_cast<const char*>(QFile::encodeName(path))) << "pixels";
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
    Lines lines;
    for (const TEVU::CValue_Key& key : CRegistry::Obj().Keys())
        lines.push_back(shortKey(key) + '=' + CRegistry::Obj().GetString(key, "(no string)"));
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

SecondProcess::SecondProcess(const std::function<std::vector<std::string>()>& task) {
    int go[2];
    int answer[2];
    if (pipe(go) != 0 || pipe(answer) != 0)
        std::abort();
    m_nProcess = fork();
    if (m_nProcess == 0) {
        close(go[1]);
        char sign = 0;
        if (read(go[0], &sign, 1) == 1) {
            for (const std::string& line : task()) {
                if (write(answer[1], (line + '\n').data(), line.size() + 1) < 0)
                    _exit(1);
            }
        }
        _exit(0); // no destructor of the test program may run twice
    }
    close(go[0]);
    close(answer[1]);
    m_nGo = go[1];
    m_nAnswer = answer[0];
}

SecondProcess::~SecondProcess() {
    close(m_nGo);
    close(m_nAnswer);
    waitpid(m_nProcess, nullptr, 0);
}

std::vector<std::string> SecondProcess::result() {
    EXPECT_EQ(write(m_nGo, "!", 1), 1);
    std::string text;
    char part[4096];
    for (ssize_t count; (count = read(m_nAnswer, part, sizeof part)) > 0;)
        text.append(part, static_cast<std::size_t>(count));
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}
