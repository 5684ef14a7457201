#include "StoredRegistry.h"

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

StoredRegistry::StoredRegistry() {
    inFreshProcess(Path(), [] {
        CRegistry::Obj().SetEntry("key", new CValueString("before"));
        CRegistry::Obj().SetEntry("other", new CValueString("kept"));
        return std::string();
    });
    m_sOldBytes = m_folder.Read(c_sName);
}

std::string StoredRegistry::Path() const {
    return std::filesystem::path(m_folder.Path(c_sName)).lexically_normal();
}

std::string StoredRegistry::Complaint(bool saved) const {
    const std::string found = inFreshProcess(Path(), [] {
        const CRegistry& registry = CRegistry::Obj();
        return registry.GetString("key", "none") + " " + registry.GetString("other", "none");
    });
    if (found == "after kept" || (!saved && found == "before kept"))
        return "";
    if (!keptAside().empty() && m_folder.Read(keptAside()) == m_sOldBytes &&
        (found == "after none" || (!saved && found == "none none")))
        return "";
    return std::string(saved ? "saved" : "not saved") + ", and the registry has: " + found;
}

std::string StoredRegistry::ComplaintAfterTheNextSave() const {
    const std::string said = inFreshProcess(Path(), [] {
        CRegistry::Obj().SetEntry("next", new CValueString("x"));
        return CRegistry::Obj().GetString("next", "none");
    });
    if (said != "x")
        return "the next save said: " + said;
    for (const std::string& name : m_folder.Names()) {
        if (name != c_sName && name != std::string(c_sName) + ".lock" && name != keptAside())
            return "left behind: " + name;
    }
    return "";
}

bool StoredRegistry::IsNewFile(const std::string& path) const {
    return beginsWith(path, Path()) && path != Path() && path != Path() + ".lock";
}

std::string StoredRegistry::keptAside() const {
    for (const std::string& name : m_folder.Names()) {
        if (beginsWith(name, std::string(c_sName) + ".unreadable-"))
            return name;
    }
    return "";
}
