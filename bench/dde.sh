#!/bin/bash
# Builds bench/dde_bench for Windows and runs it under Wine beside a program that stands in for
# a browser, on a virtual screen of its own.
#   bench/dde.sh [--check]
# With --check it fails when the ratio is over its limit.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/../scripts/common.sh"

server=
clean_up() {
    [[ -z $server ]] || kill "$server" 2>/dev/null || true
    rm -f "$build/dde-server.log" "$build/never-ends"
    wine_stop
    screen_stop
}
ready() { grep -qx ready "$build/dde-server.log"; }

build_preset windows dde_bench dde_server
trap clean_up EXIT
wine_prefix "$build/wine-bench"
screen_start
wine_keep_alive
rm -f "$build/dde-server.log" "$build/never-ends"
mkfifo "$build/never-ends"
wine "$build/windows/bin/dde_server.exe" Opera "Z:${build//\//\\}\\dde-server.log" answer \
    <>"$build/never-ends" >/dev/null 2>&1 &
server=$!
wait_for 20 ready || fail "The server did not start"
wine "$build/windows/bin/dde_bench.exe" "$@" </dev/null
