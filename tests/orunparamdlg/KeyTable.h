#ifndef RUQGUI_TESTS_ORUNPARAMDLG_KEYTABLE_H
#define RUQGUI_TESTS_ORUNPARAMDLG_KEYTABLE_H

#include "Maps.h"

#include <string>
#include <vector>

/// All keys of a description, as a second home beside the parser's.
struct StKeyRow {
    const char* kind; ///< Of the entry that it belongs to; "" for the dialog itself.
    const char* key;
    maps::Type type;
    bool needed;
    maps::CValue* (*valid)(); ///< A value that fits those of the other rows of the kind.
};

void PrintTo(const StKeyRow& row, std::ostream* out);

const std::vector<StKeyRow>& keyTable();

/// Those of a kind, or of the dialog.
const std::vector<StKeyRow>& keysOf(const std::string& kind);

/// The kinds of parameters, which is all kinds but the group.
const std::vector<std::string>& parameterKinds();

/// An entry "a" of that kind, or a dialog, with what it needs and nothing else.
TEVU::CValueMap leastOf(const std::string& kind);

#endif
