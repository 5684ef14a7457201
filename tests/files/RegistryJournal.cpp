#include "RegistryJournal.h"

#include "JournalledRegistry.h"

#include <HiddenFunction.h>
#include <ruqlib2core/CRegistry.h>
#include <ruqlib2core/CValueString.h>

namespace {

RegistryJournal* s_journal = nullptr;

const support::Hidden
    s_setEntry("_ZN4TEVU19CValueContainerBase8SetEntryERKNS_10CValue_KeyEPNS_6CValueE",
               &journal::SetEntry);

} // namespace

RegistryJournal::RegistryJournal() {
    s_journal = this;
}

RegistryJournal::~RegistryJournal() {
    s_journal = nullptr;
}

void journal::SetEntry(TEVU::CValueContainerBase* container, const TEVU::CValue_Key& key,
                       TEVU::CValue* owned) {
    const auto* const text = dynamic_cast<const TEVU::CValueString*>(owned);
    if (s_journal && container == &TEVU::CRegistry::Obj())
        s_journal->add(FileDialogTest::shortKey(key) + '=' + (text ? text->String() : "(no text)"));
    s_setEntry(container, key, owned);
}
