#include "JournalledRegistry.h"

#include <ruqlib2core/CValueContainerBase.h>

// A program's own definition of a function goes before that of the shared library, for all callers.
void TEVU::CValueContainerBase::SetEntry(const CValue_Key& key, CValue* owned) {
    journal::SetEntry(this, key, owned);
}
