#!/bin/bash
# Magpie from a checkout on Debian.
#   ./run.sh [base name]   builds the program and starts it under Wine, on
#                          Pienest.pns or on the stack file of that base name
#   ./run.sh --build       only builds: build/dist/ is the finished folder
# Without a display it starts on a virtual screen, opens the main window by a
# click on the pad, leaves a screenshot and ends again.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/scripts/common.sh"

picture=$build/screenshots/run.png
pad_size=32

[[ $# -le 1 ]] || fail "usage: ./run.sh [base name] | ./run.sh --build"

# The command line after the program's name is taken whole, so a name with
# blanks goes as several words: Wine would put quotes around one.
start_program() {
    cd "$build/dist"
    set -f
    # shellcheck disable=SC2086
    wine Magpie.exe $1
}

main_window() { window_titled Magpie >/dev/null; }
pad() { window_sized magpie.exe $pad_size $pad_size; }
ended() { ! kill -0 "$program_pid" 2>/dev/null; }

# Left of the handle with the left button; anywhere with the right one.
click_pad() {
    window_box "$(pad)" || return 1
    click $((box_left + 10)) $((box_top + 12)) "$1"
}

open_main_window() {
    for _ in 1 2 3; do
        # A line that comes up may have opened it by itself; a click would hide it.
        main_window || click_pad 1 || true
        wait_for 10 main_window && return
    done
    return 1
}

# The menu is the pad's own, its last item is "Unload".
choose_unload() {
    local before menu
    before=$(windows_of magpie.exe)
    click_pad 3 || return 1
    sleep 0.5
    menu=$(comm -13 <(sort <<<"$before") <(windows_of magpie.exe | sort) | head -n 1)
    [[ -n $menu ]] && window_box "$menu" || return 1
    click $((box_left + box_width / 2)) $((box_top + box_height - 12))
}

end_program() {
    choose_unload && wait_for 15 ended && return
    # Asks every window of the program to close, the pad's with them.
    wine taskkill /im Magpie.exe >/dev/null 2>&1 || true
    wait_for 15 ended
}

clean_up() {
    wine_stop
    screen_stop
}

show_and_end() {
    trap clean_up EXIT
    screen_start
    start_program "$1" </dev/null >"$logs/run.log" 2>&1 &
    program_pid=$!
    wait_for 30 pad >/dev/null || { screenshot "$picture"; fail "The pad did not appear: ${picture#"$root"/}"; }
    open_main_window || { screenshot "$picture"; fail "The main window did not open: ${picture#"$root"/}"; }
    screenshot "$picture"
    say "Screenshot: ${picture#"$root"/}"
    end_program || fail "The program did not end when told to."
    wait "$program_pid" || fail "The program ended with exit status $?."
    say "Magpie ran and ended cleanly."
}

only_build=false
[[ ${1:-} != --build ]] || only_build=true
packages=("${packages_build[@]}")
$only_build || packages+=("${packages_wine[@]}")
$only_build || [[ -n ${DISPLAY:-} ]] || packages+=("${packages_screen[@]}")
install_packages "${packages[@]}"
build_preset windows Magpie dist
if $only_build; then
    say "Ready: build/dist/"
    exit
fi

[[ -e $build/dist/Pienest.pns ]] || cp "$root/examples/Pienest.pns" "$build/dist/"
wine_prefix "$build/wine"
if [[ -z ${DISPLAY:-} ]]; then
    say "No display here: using a virtual screen."
    show_and_end "${1:-}"
else
    xdpyinfo >/dev/null 2>&1 || fail "The display $DISPLAY cannot be opened."
    say "Magpie's pad is at the right edge of the screen: click it for the main window;"
    say "\"Unload\" in its right-click menu ends the program."
    start_program "${1:-}" >"$logs/run.log" 2>&1
fi
