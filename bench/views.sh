#!/bin/bash
# Builds bench/views_bench for Windows and runs it under Wine on a virtual screen of its own.
#   bench/views.sh [--check]
# With --check it fails when a ratio is over its limit.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/../scripts/common.sh"

clean_up() {
    wine_stop
    screen_stop
}

build_preset windows views_bench
trap clean_up EXIT
wine_prefix "$build/wine-bench"
screen_start
wine_keep_alive
wine "$build/windows/bin/views_bench.exe" "$@" </dev/null
