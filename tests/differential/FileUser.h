#ifndef RUQGUI_TESTS_DIFFERENTIAL_FILEUSER_H
#define RUQGUI_TESTS_DIFFERENTIAL_FILEUSER_H

#include "Subject.h"
#include "User.h"

#include <System.h>
#include <TempDir.h>
#include <deque>
#include <set>
#include <string>

namespace differential {

/// The user of file dialogs, and the files: which there are, and what can be done with them, is what
/// operations have said.
class FileUser : public User {
public:
    explicit FileUser(std::function<void(const std::string&)> tell);

    /// What to answer, dialogs apart from boxes.
    void choose(const std::string& paths) { m_vPaths.push_back(paths); }
    void press(const std::string& button) { m_vButtons.push_back(button); }
    void forget();

    /// "exists", "readable" or "writable".
    void set(const std::string& property, const std::string& path, bool on);

    bool exists(const QString& name) override;
    bool isReadable(const QString& name) override;
    bool isWritable(const QString& name) override;
    bool canCreate(const QString& name) override;
    bool isInExistingDir(const QString& name) override;

protected:
    std::string nextChoice() override;
    std::string nextButton() override;

private:
    std::deque<std::string> m_vPaths;
    std::deque<std::string> m_vButtons;
    std::set<std::string> m_existing;
    std::set<std::string> m_unreadable;
    std::set<std::string> m_unwritable;
};

/// A registry of our own, for the whole process.
class FileSettings {
public:
    FileSettings();

    static void clear();
    static void remember(const std::string& key, const std::string& text);
    static void forget(const std::string& key);
    /// "loadingdir=/data lastimage0=/data/a.tif"
    static std::string text();

private:
    /// The registry waits for the disk at each entry. Whether it does has tests of its own; here it would be nearly
    /// all of the time.
    support::InMemory m_inMemory;
    support::TempDir m_folder;
};

/// What random files, filters and answers are taken from.
extern const std::vector<std::string> c_vPaths;
extern const std::vector<std::string> c_vFilters;
extern const std::vector<std::string> c_vAnswers;

} // namespace differential

#endif
