#!/bin/bash
# Builds bench/entries_bench twice, natively and for Windows, and runs it on the memory desktop
# and under Wine on a virtual screen of its own.
#   bench/entries.sh [--check]
# With --check it fails when a ratio is over its limit.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/../scripts/common.sh"

clean_up() {
    wine_stop
    screen_stop
}

build_preset bench entries_bench
build_preset windows entries_bench
"$build/bench/bin/entries_bench" "$@"
trap clean_up EXIT
wine_prefix "$build/wine-bench"
screen_start
wine_keep_alive
wine "$build/windows/bin/entries_bench.exe" "$@" </dev/null
