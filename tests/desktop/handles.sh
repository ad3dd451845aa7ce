#!/bin/bash
# A hundred times flushed and loaded anew in one run, nothing is left behind. Wine
# answers every question for a process's GDI and USER objects with 0, so what shows
# outside is counted: the windows that the screen's server holds for the program, the
# controls inside the main window, the program's open files and its memory.
. "$(dirname "${BASH_SOURCE[0]}")/journey.sh"

rounds=100

x_windows() { xdotool search --class '^magpie.exe$' 2>/dev/null | wc -l; }
open_files() { find "/proc/$magpie_pid/fd" 2>/dev/null | wc -l; }
memory_kb() { awk '/^RssAnon/ { print $2 }' "/proc/$magpie_pid/status"; }

# As fast as the program follows: the menu's row is at the same place each time, and so
# is the pad.
menu_at=(656 172)
row_at=(700 288)
pad_at=(1010 312)

hit() { xdotool mousemove "$1" "$2" click 1; }

# A look at the line, which after a flush finds news, may close the menu: then again.
one_round() {
    local before
    before=$(windows_of magpie.exe)
    for _ in 1 2 3; do
        hit "${menu_at[@]}"
        soon menu_beside "$before" >/dev/null || continue
        hit "${row_at[@]}"
        ! soon no_main_window || break
    done
    expect "a flush takes the main window away" no_main_window
    hit "${pad_at[@]}"
    expect "the pad brings it back" soon main_window
}

soon() {
    for _ in {1..150}; do
        ! "$@" || return 0
        sleep 0.02
    done
    return 1
}

counts() { printf '%s windows, %s controls, %s files' "$(x_windows)" "$(reads controls)" "$(open_files)"; }

journey_begin
cp "$root/examples/Pienest.pns" "$folder/"
setting ID '2 4500 15000 0 1 0 True False'
setting CF '8 3 0 0 2 1 1 1500 1500 9000 6000 31 0 36500'
start_magpie
open_by_pad
for _ in {1..5}; do one_round; done
expect_shown group News
counts_before=$(counts)
memory_before=$(memory_kb)
for ((done = 0; done < rounds; ++done)); do one_round; done
expect_shown group News
expect_text "$counts_before" "$(counts)"
growth=$(($(memory_kb) - memory_before))
say "$counts_before; memory grew by $growth KB in $rounds rounds"
((growth < 2048)) || fail "memory is left behind"
choose_pad Unload
expect_end
