#ifndef RUQLIB2CORE_CVALUECONTAINERBASE_H
#define RUQLIB2CORE_CVALUECONTAINERBASE_H

#include <ruqlib2core/CValue.h>
#include <ruqlib2core/CValue_Key.h>

#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <typeinfo>
#include <vector>

namespace TEVU {

/// Values under keys, owned by the container: what maps, vectors and the registry have in common.
///
/// Invariants:
/// 1. No entry is null.
/// 2. Every value belongs to one container and is deleted once: when it is replaced or removed, or
///    with the container.
///
/// A pointer that Entry() returned stays valid until that entry is replaced or removed.
class RUQLIB2CORE_EXPORT CValueContainerBase : public CValue {
public:
    ~CValueContainerBase() override;

    bool HasEntry(const CValue_Key& key) const;

    /// True when the entry exists and its class is exactly the given one, not one derived from it:
    /// \code
    /// map.HasEntry("id", typeid(TEVU::CValueString))
    /// \endcode
    bool HasEntry(const CValue_Key& key, const std::type_info& valueType) const;

    /// The entry, which stays the container's. A missing entry is null, or a CException that names
    /// the key if \a throwIfMissing.
    CValue* Entry(const CValue_Key& key, bool throwIfMissing);
    const CValue* Entry(const CValue_Key& key, bool throwIfMissing) const;

    /// Takes \a owned, which must belong to no container, and deletes the value it replaces. The
    /// value that the entry already holds may be given again: nothing changes. Null removes the
    /// entry. When the container refuses the key with an exception, \a owned is deleted all the
    /// same.
    void SetEntry(const CValue_Key& key, CValue* owned);

    /// Deletes the entry; false when there was none.
    bool RemoveEntry(const CValue_Key& key);

    /// The values of entries of exactly that kind; \a byDefault when the entry is missing or of
    /// another kind (nothing is converted).
    bool EntryBool(const CValue_Key& key, bool byDefault) const;
    long EntryLong(const CValue_Key& key, long byDefault) const;
    double EntryDouble(const CValue_Key& key, double byDefault) const;
    std::string GetString(const CValue_Key& key, const std::string& byDefault) const;

    /// A CException that names the key when the entry is missing or no string.
    std::string EntryString(const CValue_Key& key) const;

    std::size_t Size() const;

    /// In the order of CValue_Key.
    std::vector<CValue_Key> Keys() const;

protected:
    using Entries = std::map<CValue_Key, std::unique_ptr<CValue>>;

    CValueContainerBase();
    CValueContainerBase(const CValueContainerBase& other);            ///< Deep.
    CValueContainerBase& operator=(const CValueContainerBase& other); ///< Deep; all or nothing.

    /// The four ways to the entries, which everything public goes through. A container that keeps
    /// its entries elsewhere too overrides them and calls these.
    virtual const Entries& CurrentEntries() const;
    virtual const Entries& KnownEntries() const noexcept; ///< Without a look at that other place.
    virtual void StoreEntry(const CValue_Key& key, std::unique_ptr<CValue> value); ///< Not null.
    virtual bool EraseEntry(const CValue_Key& key); ///< False when there was none.

private:
    static Entries copyOf(const Entries& entries);
    CValue* find(const CValue_Key& key) const;
    CValue* findOrThrow(const CValue_Key& key, bool throwIfMissing) const;

    Entries m_mapEntries;
};

} // namespace TEVU

#endif
