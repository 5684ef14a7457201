#include "RegistryFile.h"

#include <ruqlib2core/CException.h>
#include <ruqlib2core/ReplaceFile.h>

#include <iostream>

namespace TEVU {

namespace {

/// Far above what settings need, far below what a process cannot hold.
const std::size_t c_nLargestFile = std::size_t(64) << 20;

const char* const c_sPlace = "CRegistry";

void tell(const std::string& message) {
    // In one piece, so that lines of several processes do not mix.
    std::cerr << "ruqlib2core: registry: " + message + "\n" << std::flush;
}

/// The settings in what was read, or none and why.
std::optional<RegistryText::Settings> settingsIn(const FileSystem::StReading& reading,
                                                 std::string& reason) {
    reason = reading.reason;
    if (reading.state != FileSystem::StReading::eWhole)
        return std::nullopt;
    try {
        return RegistryText::read(reading.bytes);
    } catch (const CException& failure) {
        reason = failure.Message();
        return std::nullopt;
    }
}

} // namespace

void applyChanges(const SettingChanges& changes, RegistryText::Settings& settings) {
    for (const auto& [key, scalar] : changes) {
        if (scalar)
            settings[key] = *scalar;
        else
            settings.erase(key);
    }
}

RegistryFile::RegistryFile(const std::string& path) : m_sPath(path) {}

bool RegistryFile::Load(RegistryText::Settings& settings) {
    const std::string version = m_sPath.empty() ? "" : FileSystem::versionOf(m_sPath);
    if (m_bKept && version == m_sVersion)
        return false;
    m_bKept = false;
    m_sVersion = version;
    const bool found = loadOrKeepAside(settings);
    m_bKept = !found; // nothing to take over, until the file is another one
    return found;
}

bool RegistryFile::loadOrKeepAside(RegistryText::Settings& settings) {
    const FileSystem::StReading reading = FileSystem::readFile(m_sPath, c_nLargestFile);
    std::string reason;
    std::optional<RegistryText::Settings> found = settingsIn(reading, reason);
    m_pHold = reading.hold;
    if (found) {
        m_sVersion = reading.version;
        settings.swap(*found);
        return true;
    }
    if (reading.state == FileSystem::StReading::eUnavailable) {
        tell(m_sPath + ": " + reason);
        return false;
    }
    settings.clear();
    if (reading.state == FileSystem::StReading::eMissing)
        return true;
    try {
        // Looked at again under the lock: another process may have put a good file there.
        const FileSystem::Lock lock(m_sPath + ".lock");
        settings = readLocked();
    } catch (const CException& failure) {
        tell(m_sPath + ": " + reason + "; it cannot be kept aside: " + failure.Message());
    }
    return true;
}

bool RegistryFile::Save(const SettingChanges& changes, RegistryText::Settings& settings) {
    try {
        if (m_sPath.empty())
            throw CException(c_sPlace, "there is no folder for settings");
        FileSystem::createFolders(FileSystem::folderOf(m_sPath));
        const FileSystem::Lock lock(m_sPath + ".lock");
        RegistryText::Settings current = readLocked();
        applyChanges(changes, current);
        replaceLocked(current);
        settings.swap(current);
        return true;
    } catch (const CException& failure) {
        tell("not written: " + failure.Message());
        return false;
    }
}

RegistryText::Settings RegistryFile::readLocked() const {
    const FileSystem::StReading reading = FileSystem::readFile(m_sPath, c_nLargestFile);
    std::string reason;
    std::optional<RegistryText::Settings> found = settingsIn(reading, reason);
    if (found)
        return std::move(*found);
    if (reading.state == FileSystem::StReading::eUnavailable)
        throw CException(c_sPlace, m_sPath + ": " + reason);
    if (reading.state != FileSystem::StReading::eMissing)
        keepAside(reason);
    return RegistryText::Settings();
}

void RegistryFile::replaceLocked(const RegistryText::Settings& settings) const {
    const std::string text = RegistryText::write(settings);
    if (text.size() > c_nLargestFile)
        throw CException(c_sPlace, m_sPath + ": would become too large");
    ReplaceFile(m_sPath,
                [&text](const std::string& newFile) { FileSystem::writeFile(newFile, text); });
}

void RegistryFile::keepAside(const std::string& reason) const {
    int number = 1;
    while (FileSystem::exists(m_sPath + ".unreadable-" + std::to_string(number)))
        ++number;
    const std::string aside = m_sPath + ".unreadable-" + std::to_string(number);
    FileSystem::renameFile(m_sPath, aside);
    tell(m_sPath + ": " + reason + "; kept as " + aside);
}

} // namespace TEVU
