# shellcheck shell=bash
# Sourced by test, after setup.sh and fuzz.sh: the long versions of what ctest and .ci/run do for seconds. Each part
# prints its seed and what it counted.

soak_parts=(differential rubbish fuzz faults)
soak_seed=${RUQGUI_SEED:-1}

# part_of COUNT: all of it, or what RUQGUI_SOAK_DIVISOR leaves.
part_of() { echo $(($1 / ${RUQGUI_SOAK_DIVISOR:-1})); }

# The same operations on Qt 3.3 and on Qt 6; without Qt 3.3, on Qt 6 and as they were recorded.
soak_differential() {
    local here=build/default/bin/differential
    build default --target differential
    if [ -n "${RUQGUI_QT3_DIR:-}" ]; then
        require_qt3
        build qt3 --target differential
        LC_ALL=C on_virtual_screen env QT_QPA_PLATFORM=offscreen "$here" --seed "$soak_seed" \
            --operations "$(part_of 1000000)" --against build/qt3/bin/differential
    else
        say "RUQGUI_QT3_DIR is not set: against what was recorded on Qt 3.3, with its seed"
        LC_ALL=C "$here" --operations "$(part_of 1000000)" --check tests/differential/recorded
    fi
}

soak_rubbish() {
    build asan --target differential
    LC_ALL=C ASAN_OPTIONS=allocator_may_return_null=1 UBSAN_OPTIONS=print_stacktrace=1 \
        LSAN_OPTIONS="print_suppressions=0:suppressions=$PWD/packaging/lsan-suppressions.txt" \
        build/asan/bin/differential --seed "$soak_seed" --operations "$(part_of 10000000)" --rubbish
}

# in_memory: a folder for short-lived files, which a disk would only slow down.
in_memory() {
    if [ -w /dev/shm ]; then echo /dev/shm; else echo "${TMPDIR:-/tmp}"; fi
}

soak_fuzz() {
    local name runs failed=0
    build fuzz
    for name in fuzz/corpus/*; do
        name=${name##*/}
        runs=100000000
        [ "$name" != image-file ] || runs=1000000
        say "Fuzzing $name: $(part_of "$runs") runs, seed $soak_seed"
        TMPDIR=$(in_memory) fuzz "$name" build/soak -runs="$(part_of "$runs")" -seed="$soak_seed" || failed=1
    done
    return "$failed"
}

soak_faults() {
    build default --target faults_tests memory_tests
    LC_ALL=C RUQGUI_SEED=$soak_seed RUQGUI_ROUNDS=$(part_of 10000) build/default/bin/faults_tests
    LC_ALL=C build/default/bin/memory_tests
}

# soak PART...: the others go on when one has found something.
soak() {
    local part status results=() failed=0
    [ $# -gt 0 ] || set -- "${soak_parts[@]}"
    for part in "$@"; do
        declare -F "soak_$part" >/dev/null || fail "no part '$part'; there are: ${soak_parts[*]}"
    done
    cd "${project_dir:?}"
    for part in "$@"; do
        say "Soak: $part, seed $soak_seed"
        # In a subshell of its own, not in a condition: there a failing command would go unnoticed.
        set +e
        (set -e && "soak_$part")
        status=$?
        set -e
        [ "$status" -eq 0 ] || failed=1
        results+=("$part: $([ "$status" -eq 0 ] && echo passed || echo FAILED)")
    done
    say "Soak, seed $soak_seed"
    printf '%s\n' "${results[@]}"
    return "$failed"
}
