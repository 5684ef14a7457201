#include "FileUser.h"

#include <Events.h>
#include <System.h>
#include <ruqlib2core/CRegistry.h>
#include <ruqlib2core/CValueString.h>

namespace differential {

namespace {

using TEVU::CRegistry;

const std::string c_sKeys = "main/globalsettings/IO/";

std::string utf8(const QString& name) {
    return support::text(name);
}

std::string takeFirst(std::deque<std::string>& answers) {
    if (answers.empty())
        return "";
    const std::string first = answers.front();
    answers.pop_front();
    return first;
}

} // namespace

const std::vector<std::string> c_vPaths = {
    "/data/a.tif",       "/data/b.PNG",      "/data/scan.rek.gz", "/data/mesh.stl.gz.bak",
    "/data/noextension", "/gone/x.tif",      "/data/my.dir/file", "/data/a%1 %2.png",
    "/data/x.gz",        "/data/sub/.png",   "/data/s.p.tif.gz",  "/data/\xc3\xa9.png",
    "/data/i.iass.gz",   "/home/user/c.tif", "/data/<b>.tif",     "/data/a b,c.png"};

const std::vector<std::string> c_vFilters = {"Images (*.png *.tif)",
                                             "Images (*.png *.tif);;Surfaces (*.stl.gz)",
                                             "Surfaces (*.stl.gz)",
                                             "",
                                             "All (*)",
                                             "Images (*.PNG)",
                                             "*.rek.gz",
                                             "Scans (*.rek.gz *.iass.gz)"};

const std::vector<std::string> c_vAnswers = {"Yes", "Yes", "No", "Cancel", "Retry", "OK", ""};

FileUser::FileUser(std::function<void(const std::string&)> tell)
    : User(std::move(tell)), m_existing({"/data", "/data/sub", "/home/user", "/data/a.tif"}) {}

void FileUser::forget() {
    m_vPaths.clear();
    m_vButtons.clear();
}

std::string FileUser::nextChoice() {
    return takeFirst(m_vPaths);
}

std::string FileUser::nextButton() {
    return takeFirst(m_vButtons);
}

void FileUser::set(const std::string& property, const std::string& path, bool on) {
    if (property == "exists" && on)
        m_existing.insert(path);
    else if (property == "exists")
        m_existing.erase(path);
    std::set<std::string>& refused = property == "readable" ? m_unreadable : m_unwritable;
    if (property != "exists" && on)
        refused.erase(path);
    else if (property != "exists")
        refused.insert(path);
}

bool FileUser::exists(const QString& name) {
    return m_existing.count(utf8(name)) > 0;
}

bool FileUser::isReadable(const QString& name) {
    return exists(name) && m_unreadable.count(utf8(name)) == 0;
}

bool FileUser::isWritable(const QString& name) {
    return m_unwritable.count(utf8(name)) == 0;
}

bool FileUser::canCreate(const QString& name) {
    note("tries to create " + quoted(utf8(name)));
    return isInExistingDir(name) && m_unwritable.count(utf8(name)) == 0;
}

bool FileUser::isInExistingDir(const QString& name) {
    const std::string path = utf8(name);
    return m_existing.count(path.substr(0, path.rfind('/'))) > 0;
}

FileSettings::FileSettings() {
    support::setVariable("RUQ_REGISTRY", m_folder.path("registry.json"));
    support::setVariable("HOME", "/home/user");
}

void FileSettings::clear() {
    for (const TEVU::CValue_Key& key : CRegistry::Obj().Keys())
        CRegistry::Obj().RemoveEntry(key);
}

void FileSettings::remember(const std::string& key, const std::string& text) {
    CRegistry::Obj().SetEntry(c_sKeys + key, new TEVU::CValueString(text));
}

void FileSettings::forget(const std::string& key) {
    CRegistry::Obj().RemoveEntry(c_sKeys + key);
}

std::string FileSettings::text() {
    std::string all;
    for (const TEVU::CValue_Key& key : CRegistry::Obj().Keys())
        all += ' ' + key.String().substr(c_sKeys.size()) + '=' +
               quoted(CRegistry::Obj().EntryString(key));
    return all;
}

} // namespace differential
