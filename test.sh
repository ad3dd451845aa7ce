#!/bin/bash
# Builds everything and runs every test: the native suites under sanitizers, the
# conformance suite under Wine, the fuzzers for a few seconds each, the coverage
# of the memory desktop, whole journeys on a virtual screen, and the checks on
# the sources. Two runs of ctest hold them all, the second one the journeys.
#   MAGPIE_FUZZ_SECONDS   time for each fuzzer, 5 by default
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/scripts/common.sh"
export MAGPIE_FUZZ_SECONDS=${MAGPIE_FUZZ_SECONDS:-5}

all=$build/all

# add NAME COMMAND [PROPERTY VALUE]...: one more test of the common run.
add() {
    local name=$1 command=$2
    shift 2
    printf 'add_test("%s" "%s")\n' "$name" "${command// /\" \"}"
    (($# == 0)) || printf 'set_tests_properties("%s" PROPERTIES %s)\n' "$name" "$*"
}

# The tests of the presets' own build folders, and those that need no build.
list_tests() {
    local source script
    printf 'subdirs("%s" "%s")\n' "$build/native" "$build/windows"
    add sources.format "$root/scripts/check_format.sh"
    add help.topics "$root/tests/help.sh"
    for source in "$root"/fuzz/*.cpp; do
        add "fuzz.$(basename "$source" .cpp)" \
            "$root/scripts/fuzz.sh $(basename "$source" .cpp)" TIMEOUT $((MAGPIE_FUZZ_SECONDS + 120))
    done
    [[ ! -x $root/tests/coverage.sh ]] || add coverage.memory "$root/tests/coverage.sh" TIMEOUT 600
    for script in "$root"/tests/desktop/*.sh; do
        [[ -x $script ]] || continue
        add "desktop.$(basename "$script" .sh)" "$script" TIMEOUT 300
    done
}

run_ctest() { ctest --test-dir "$all" --output-on-failure "$@"; }

# Tests under Wine share one desktop with its window manager and with each other's
# leavings, and journeys wait for what a busy machine may bring late; so one that fails is
# tried once more, by itself, and named. Nothing of the kind excuses a native test.
run_failed_again() {
    local failed=$all/Testing/Temporary/LastTestsFailed.log
    if grep -qvE '^[0-9]+:(wine|desktop)\.' "$failed"; then return 1; fi
    say "Failed once, tried again: $(cut -d: -f2 "$failed" | paste -sd' ')"
    run_ctest --rerun-failed
}

# run_tests JOBS ARGUMENT...
run_tests() { run_ctest --parallel "$@" || run_failed_again; }

clean_up() {
    wine_stop
    screen_stop
}

install_packages "${packages_build[@]}" "${packages_wine[@]}" "${packages_screen[@]}" \
    "${packages_tests[@]}"

for preset in native windows fuzz coverage; do build_preset "$preset"; done

shopt -s nullglob
mkdir -p "$all"
list_tests >"$all/CTestTestfile.cmake"

trap clean_up EXIT
wine_prefix_fresh "$build/wine-test"
screen_start
wine_keep_alive
# Without it each test with a window would start and end the desktop process: a second.
wine "$build/windows/bin/desktop_keeper.exe" </dev/null >/dev/null 2>&1 &
passed=true
run_tests "$(nproc)" --exclude-regex '^desktop\.' || passed=false
wine_stop
# Journeys mostly wait, so one more than there are processors keeps them busy; other tests beside
# them would hold them up.
run_tests $(($(nproc) + 1)) --tests-regex '^desktop\.' || passed=false
$passed
