#include "StoredRegistry.h"

#include "RegistryText.h"

#include <ChildProcess.h>
#include <System.h>
#include <ruqlib2core/CRegistry.h>
#include <ruqlib2core/CValueString.h>

using namespace TEVU;

namespace {

const char* const c_sName = "registry.json";

/// \a run in a fresh process that uses this registry; what it returned and wrote on standard error.
std::string inFreshProcess(const std::string& path, std::string (*run)()) {
    support::setVariable("RUQ_REGISTRY", path);
    const auto outcome = support::inChild(run);
    return outcome.output + outcome.errors;
}

bool beginsWith(const std::string& text, const std::string& start) {
    return text.compare(0, start.size(), start) == 0;
}

} // namespace

StoredRegistry::StoredRegistry()
    : m_sOldBytes(
          RegistryText::write({{"key", std::string("before")}, {"other", std::string("kept")}})) {
    m_folder.Write(c_sName, m_sOldBytes);
}

std::string StoredRegistry::Path() const {
    return std::filesystem::path(m_folder.Path(c_sName)).lexically_normal().generic_string();
}

std::string StoredRegistry::Complaint(bool saved) const {
    const std::string said = inFreshProcess(Path(), [] {
        CRegistry& registry = CRegistry::Obj();
        const std::string found =
            registry.GetString("key", "none") + " " + registry.GetString("other", "none");
        registry.SetEntry("next", new CValueString("saved"));
        return found + " next " + registry.GetString("next", "none");
    });
    if (!isRight(said, saved))
        return std::string(saved ? "saved" : "not saved") + ", and a fresh process says: " + said;
    for (const std::string& name : m_folder.Names()) {
        if (name != c_sName && name != std::string(c_sName) + ".lock" && name != keptAside())
            return "left behind: " + name;
    }
    return "";
}

long StoredRegistry::Number(const std::string& key) const {
    const auto settings = RegistryText::read(m_folder.Read(c_sName));
    const auto found = settings.find(key);
    return found == settings.end() ? 0 : std::get<long>(found->second);
}

bool StoredRegistry::IsNewFile(const std::string& path) const {
    return beginsWith(path, Path()) && path != Path() && path != Path() + ".lock";
}

bool StoredRegistry::isRight(const std::string& said, bool saved) const {
    if (said == "after kept next saved" || (!saved && said == "before kept next saved"))
        return true;
    return !keptAside().empty() && m_folder.Read(keptAside()) == m_sOldBytes &&
           (said == "after none next saved" || (!saved && said == "none none next saved"));
}

std::string StoredRegistry::keptAside() const {
    for (const std::string& name : m_folder.Names()) {
        if (beginsWith(name, std::string(c_sName) + ".unreadable-"))
            return name;
    }
    return "";
}
