#include <ruqlib2core/CRegistry.h>

#include "RegistryFile.h"

namespace TEVU {

namespace {

std::string registryPath() {
    const std::string given = FileSystem::environmentVariable("RUQ_REGISTRY");
    if (!given.empty())
        return FileSystem::resolveLinks(FileSystem::absolutePath(given));
    const std::string folder = FileSystem::configurationFolder();
    return folder.empty() ? folder : FileSystem::resolveLinks(folder + "/ruq/registry.json");
}

} // namespace

/// The entries, and what of them is in the file.
///
/// Invariants:
/// 1. m_mapSettings is what the file held at the last look, with m_mapUnsaved put into it.
/// 2. Every setting has its entry, with an equal value. Entries without a setting live in memory
/// only.
class CRegistry::Contents {
public:
    explicit Contents(const std::string& path) : m_file(path) {}

    const std::string& FilePath() const { return m_file.Path(); }

    const Entries& Known() const noexcept { return m_mapEntries; }

    const Entries& Current() {
        RegistryText::Settings found;
        if (m_file.Load(found)) {
            applyChanges(m_mapUnsaved, found);
            adopt(std::move(found));
            m_file.Keep();
        }
        return m_mapEntries;
    }

    void Store(const CValue_Key& key, std::unique_ptr<CValue> value) {
        Current();
        takeBack(value.get());
        m_replaced.clear();
        const std::optional<RegistryText::Scalar> scalar = RegistryText::scalarOf(*value);
        m_mapEntries[key] = std::move(value);
        change(key.String(), scalar);
    }

    bool Erase(const CValue_Key& key) {
        Current();
        m_replaced.clear();
        const bool existed = m_mapEntries.erase(key) > 0;
        change(key.String(), std::nullopt);
        return existed;
    }

private:
    /// Brings the change to the file, unless the file has it already.
    void change(const std::string& key, const std::optional<RegistryText::Scalar>& scalar) {
        if (isSetting(key, scalar) && m_mapUnsaved.count(key) == 0)
            return;
        m_mapUnsaved[key] = scalar;
        applyChanges(m_mapUnsaved, m_mapSettings);
        RegistryText::Settings saved;
        if (m_file.Save(m_mapUnsaved, saved)) {
            m_mapUnsaved.clear();
            adopt(std::move(saved));
        }
    }

    bool isSetting(const std::string& key,
                   const std::optional<RegistryText::Scalar>& scalar) const {
        const auto setting = m_mapSettings.find(key);
        if (setting == m_mapSettings.end() || !scalar)
            return setting == m_mapSettings.end() && !scalar;
        return RegistryText::areSame(setting->second, *scalar);
    }

    /// Makes \a settings the present ones. Entries that did not change stay the same objects.
    void adopt(RegistryText::Settings&& settings) {
        for (const auto& [key, scalar] : m_mapSettings) {
            if (settings.count(key) == 0)
                retire(key);
        }
        for (const auto& [key, scalar] : settings) {
            if (isSetting(key, scalar))
                continue;
            retire(key);
            m_mapEntries[key] = RegistryText::valueOf(scalar);
        }
        m_mapSettings = std::move(settings);
    }

    /// Takes the entry away, but keeps its value: the caller may have a pointer to it.
    void retire(const CValue_Key& key) {
        const auto entry = m_mapEntries.find(key);
        if (entry == m_mapEntries.end())
            return;
        m_replaced.push_back(std::move(entry->second));
        m_mapEntries.erase(entry);
    }

    /// The caller gives a value whose entry another process has replaced meanwhile: it has one owner.
    void takeBack(const CValue* value) {
        for (std::unique_ptr<CValue>& replaced : m_replaced) {
            if (replaced.get() == value)
                static_cast<void>(replaced.release());
        }
    }

    RegistryFile m_file;
    Entries m_mapEntries;
    RegistryText::Settings m_mapSettings;
    SettingChanges m_mapUnsaved; ///< Changes that could not be written.
    std::vector<std::unique_ptr<CValue>> m_replaced;
};

CRegistry& CRegistry::Obj() {
    static CRegistry* const registry = new CRegistry;
    return *registry;
}

CRegistry::CRegistry() : m_pContents(std::make_unique<Contents>(registryPath())) {}

CRegistry::~CRegistry() = default;

CValue::EnGenericType CRegistry::GenericType() const {
    return eMap;
}

CValueMap* CRegistry::Clone() const {
    auto map = std::make_unique<CValueMap>();
    for (const auto& [key, value] : CurrentEntries())
        map->SetEntry(key, value->Clone());
    return map.release();
}

const std::string& CRegistry::FilePath() const {
    return m_pContents->FilePath();
}

const CValueContainerBase::Entries& CRegistry::CurrentEntries() const {
    return m_pContents->Current();
}

const CValueContainerBase::Entries& CRegistry::KnownEntries() const noexcept {
    return m_pContents->Known();
}

void CRegistry::StoreEntry(const CValue_Key& key, std::unique_ptr<CValue> value) {
    m_pContents->Store(key, std::move(value));
}

bool CRegistry::EraseEntry(const CValue_Key& key) {
    return m_pContents->Erase(key);
}

} // namespace TEVU
