# shellcheck shell=bash
# Sourced by test and .ci/run, after setup.sh.

# fuzz NAME FOLDER FUZZER_ARGUMENT...: runs the target on the project's inputs, which are only read; new ones go
# to FOLDER/NAME. An input that shows a fault is reduced, and stays in FOLDER too.
fuzz() {
    local program=build/fuzz/bin/fuzz_${1//-/_} folder=$2 name=$1 input
    mkdir -p "$folder/$name"
    rm -f "$folder/$name-"*
    if "$program" "${@:3}" -max_len=400 -print_final_stats=1 -artifact_prefix="$folder/$name-" \
        "$folder/$name" "fuzz/corpus/$name"; then
        return
    fi
    for input in "$folder/$name-"*; do
        [ -e "$input" ] || continue
        say "Reducing $input, until ten seconds find nothing shorter"
        cp "$input" "$input-reduced"
        "$program" -minimize_crash=1 -max_total_time=10 -artifact_prefix="$folder/reducing-$name-" \
            -exact_artifact_path="$input-reduced" "$input" >"$folder/reducing-$name.log" 2>&1 || true
        rm -f "$folder/reducing-$name-"*
        say "Reduced to $input-reduced"
        od -A d -c "$input-reduced"
    done
    return 1
}
