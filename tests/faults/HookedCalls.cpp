#include "HookedCalls.h"

#include <HiddenFunction.h>

#include <cstdint>
#include <memory>
#include <utility>

namespace hooked_calls {

namespace {

// No function has more than eleven arguments. One that has fewer does not look at the others.
using Word = std::uintptr_t;
using Hook =
    support::Hidden<long(Word, Word, Word, Word, Word, Word, Word, Word, Word, Word, Word)>;

struct StCall {
    const char* name;
    int outcome; ///< Which argument points to what came of the call, from 1; 0: none.
};

const StCall c_calls[] = {
    {"NtClose", 0},
    {"NtCreateFile", 4},
    {"NtDeleteFile", 0},
    {"NtFlushBuffersFile", 2},
    {"NtFsControlFile", 5},
    {"NtLockFile", 5},
    {"NtOpenFile", 4},
    {"NtQueryAttributesFile", 0},
    {"NtQueryDirectoryFile", 5},
    {"NtQueryFullAttributesFile", 0},
    {"NtQueryInformationFile", 2},
    {"NtQueryVolumeInformationFile", 2},
    {"NtReadFile", 5},
    {"NtSetInformationFile", 2},
    {"NtUnlockFile", 2},
    {"NtWriteFile", 5},
};
constexpr std::size_t c_count = sizeof c_calls / sizeof *c_calls;

std::unique_ptr<Hook> s_hooks[c_count];
std::vector<std::string> s_calls;
bool s_noting = false;
int s_number = 0;
Instead s_instead;

/// Notes the call; whether it is the chosen one.
bool note(const std::string& name, Word fifth) {
    if (!s_noting)
        return false;
    const bool sets = name == "NtSetInformationFile";
    s_calls.push_back(sets ? name + " " + std::to_string(static_cast<unsigned>(fifth)) : name);
    return static_cast<int>(s_calls.size()) == s_number;
}

/// The status is where callers look for it: some take it from here, others the returned one.
long refused(const StCall& call, const Word (&arguments)[5], long status) {
    const Word outcome = call.outcome > 0 ? arguments[call.outcome - 1] : 0;
    if (outcome != 0) // which it is when nobody asks for it
        *reinterpret_cast<std::int32_t*>(outcome) = status;
    return status;
}

template <std::size_t index>
long standIn(Word a, Word b, Word c, Word d, Word e, Word f, Word g, Word h, Word i, Word j,
             Word k) {
    const std::string name = c_calls[index].name;
    const Hook& call = *s_hooks[index];
    if (!note(name, e))
        return call(a, b, c, d, e, f, g, h, i, j, k);
    if (name == "NtWriteFile")
        call(a, b, c, d, e, f, static_cast<unsigned>(g) / 2, h, i, j, k);
    return refused(c_calls[index], {a, b, c, d, e}, s_instead(s_calls.back()));
}

template <std::size_t... indices>
void hook(std::index_sequence<indices...>) {
    ((s_hooks[indices] = std::make_unique<Hook>(c_calls[indices].name, &standIn<indices>)), ...);
}

} // namespace

void begin(int number, const Instead& instead) {
    s_calls.clear();
    s_number = number;
    s_instead = instead;
    hook(std::make_index_sequence<c_count>());
    s_noting = true;
}

std::vector<std::string> end() {
    s_noting = false;
    for (std::unique_ptr<Hook>& hook : s_hooks)
        hook.reset();
    return s_calls;
}

} // namespace hooked_calls
