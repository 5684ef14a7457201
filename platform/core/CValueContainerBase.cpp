#include <ruqlib2core/CValueContainerBase.h>

#include <ruqlib2core/CException.h>
#include <ruqlib2core/CValueBool.h>
#include <ruqlib2core/CValueDouble.h>
#include <ruqlib2core/CValueLong.h>
#include <ruqlib2core/CValueString.h>

namespace TEVU {

CValueContainerBase::CValueContainerBase() = default;

CValueContainerBase::CValueContainerBase(const CValueContainerBase& other) : CValue(other) {
    m_mapEntries = copyOf(other.CurrentEntries());
}

CValueContainerBase& CValueContainerBase::operator=(const CValueContainerBase& other) {
    // Copied before anything is deleted: the other may be this one, or one of its entries.
    Entries copies = copyOf(other.CurrentEntries());
    m_mapEntries.swap(copies);
    return *this;
}

CValueContainerBase::~CValueContainerBase() = default;

CValueContainerBase::Entries CValueContainerBase::copyOf(const Entries& entries) {
    Entries copies;
    for (const auto& [key, value] : entries)
        copies.emplace(key, std::unique_ptr<CValue>(value->Clone()));
    return copies;
}

bool CValueContainerBase::HasEntry(const CValue_Key& key) const {
    return find(key) != nullptr;
}

bool CValueContainerBase::HasEntry(const CValue_Key& key, const std::type_info& valueType) const {
    const CValue* value = find(key);
    return value && typeid(*value) == valueType;
}

CValue* CValueContainerBase::Entry(const CValue_Key& key, bool throwIfMissing) {
    return findOrThrow(key, throwIfMissing);
}

const CValue* CValueContainerBase::Entry(const CValue_Key& key, bool throwIfMissing) const {
    return findOrThrow(key, throwIfMissing);
}

void CValueContainerBase::SetEntry(const CValue_Key& key, CValue* owned) {
    if (!owned) {
        RemoveEntry(key);
        return;
    }
    const Entries& entries = KnownEntries();
    const auto entry = entries.find(key);
    if (entry == entries.end() || entry->second.get() != owned)
        StoreEntry(key, std::unique_ptr<CValue>(owned));
}

bool CValueContainerBase::RemoveEntry(const CValue_Key& key) {
    return EraseEntry(key);
}

bool CValueContainerBase::EntryBool(const CValue_Key& key, bool byDefault) const {
    const auto* value = dynamic_cast<const CValueBool*>(find(key));
    return value ? value->Bool() : byDefault;
}

long CValueContainerBase::EntryLong(const CValue_Key& key, long byDefault) const {
    const auto* value = dynamic_cast<const CValueLong*>(find(key));
    return value ? value->Long() : byDefault;
}

double CValueContainerBase::EntryDouble(const CValue_Key& key, double byDefault) const {
    const auto* value = dynamic_cast<const CValueDouble*>(find(key));
    return value ? value->Double() : byDefault;
}

std::string CValueContainerBase::GetString(const CValue_Key& key,
                                           const std::string& byDefault) const {
    const auto* value = dynamic_cast<const CValueString*>(find(key));
    return value ? value->String() : byDefault;
}

std::string CValueContainerBase::EntryString(const CValue_Key& key) const {
    const auto* value = dynamic_cast<const CValueString*>(findOrThrow(key, true));
    if (!value)
        throw CException("CValueContainerBase::EntryString",
                         "the entry \"" + key.String() + "\" is no string");
    return value->String();
}

std::size_t CValueContainerBase::Size() const {
    return CurrentEntries().size();
}

std::vector<CValue_Key> CValueContainerBase::Keys() const {
    const Entries& entries = CurrentEntries();
    std::vector<CValue_Key> keys;
    keys.reserve(entries.size());
    for (const auto& entry : entries)
        keys.push_back(entry.first);
    return keys;
}

const CValueContainerBase::Entries& CValueContainerBase::CurrentEntries() const {
    return m_mapEntries;
}

const CValueContainerBase::Entries& CValueContainerBase::KnownEntries() const noexcept {
    return m_mapEntries;
}

void CValueContainerBase::StoreEntry(const CValue_Key& key, std::unique_ptr<CValue> value) {
    m_mapEntries[key] = std::move(value);
}

bool CValueContainerBase::EraseEntry(const CValue_Key& key) {
    return m_mapEntries.erase(key) > 0;
}

CValue* CValueContainerBase::find(const CValue_Key& key) const {
    const Entries& entries = CurrentEntries();
    const auto entry = entries.find(key);
    return entry == entries.end() ? nullptr : entry->second.get();
}

CValue* CValueContainerBase::findOrThrow(const CValue_Key& key, bool throwIfMissing) const {
    CValue* value = find(key);
    if (!value && throwIfMissing)
        throw CException("CValueContainerBase::Entry",
                         "there is no entry \"" + key.String() + "\"");
    return value;
}

} // namespace TEVU
