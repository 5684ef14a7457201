#ifndef RUQGUI_TESTS_FILES_JOURNALLEDREGISTRY_H
#define RUQGUI_TESTS_FILES_JOURNALLEDREGISTRY_H

namespace TEVU {
class CValue;
class CValueContainerBase;
class CValue_Key;
} // namespace TEVU

/// What stands in for the containers' own write, and calls it.
namespace journal {

void SetEntry(TEVU::CValueContainerBase* container, const TEVU::CValue_Key& key,
              TEVU::CValue* owned);

} // namespace journal

#endif
