#ifndef RUQGUI_TESTS_FILES_FILEDIALOGTEST_H
#define RUQGUI_TESTS_FILES_FILEDIALOGTEST_H

#include "Boxes.h"

#include <ChildProcess.h>
#include <ModalDriver.h>
#include <TempDir.h>
#include <gtest/gtest.h>
#include <qstring.h>
#include <ruqlib2core/CValue_Key.h>
#include <string>
#include <vector>

/// A folder for this test alone: home, working folder and settings registry are in it, so that
/// nothing is remembered at first. Boxes and dialogs are answered by \c user.
class FileDialogTest : public testing::Test {
public:
    using Lines = std::vector<std::string>;

    /// \a key is the last part, such as "loadingdir".
    static void remember(const std::string& key, const std::string& text);

    /// All entries as "loadingdir=/data", sorted; the common part of the keys is left out.
    static Lines remembered();

    /// \a key without the common part.
    static std::string shortKey(const TEVU::CValue_Key& key);

protected:
    FileDialogTest();
    ~FileDialogTest() override;

    std::string home() const { return dir.path("home"); }
    std::string workingFolder() const { return dir.path("working folder"); }

    /// Made with the folders above it; gives the path.
    std::string makeFile(const std::string& name) const;

    /// Made as the toolkit spells a name that is no ASCII; gives the path.
    QString makeFileNamed(const QString& name) const;

    /// The names in a folder, sorted.
    static Lines listOf(const std::string& folder);

    /// An entry that is no text.
    static void rememberNumber(const std::string& key);

    static QString toText(const std::string& utf8);

    /// Asks for one file in the remembered directory: it must be that folder.
    void expectStartIn(const std::string& folder);

    const std::string allFiles = "All files (*)";
    const support::TempDir dir;
    support::ModalDriver user;
};

/// A second process with a registry object of its own. Make it before this process looks into its
/// registry for the first time.
class SecondProcess {
public:
    using Lines = std::vector<std::string>;
    using Arguments = support::ChildProcess::Arguments;

    explicit SecondProcess(Lines (*task)());
    SecondProcess(Lines (*task)(const Arguments& arguments), const Arguments& arguments);

    /// Lets the task run, beside what this process does.
    void letGo();
    /// Lets the task run, unless it does, and gives its lines.
    Lines result();

private:
    support::ChildProcess m_process;
    bool m_bRuns = false;
};

#endif
