# shellcheck shell=bash disable=SC2034
# What the journeys share: a folder with the program in it, settings, the program's
# start and end, its windows and menus, and the checks. Sourced, never run.
#
# Each journey has a screen and a Wine prefix of its own, so that two can run at once.
# MAGPIE_DIST and MAGPIE_BIN name the finished folder and the test tools of another build.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/../../scripts/common.sh"

dist=${MAGPIE_DIST:-$build/dist}
tools=${MAGPIE_BIN:-$build/windows/bin}
expected=$root/tests/desktop/expected
pictures=$build/screenshots
settings_key='HKCU\Software\Fennelworks\Magpie'

# --- Begin and end ----------------------------------------------------------

# journey_begin: an empty folder with the program in it, no settings.
journey_begin() {
    journey=$(basename "$0" .sh)
    folder=$build/desktop/$journey
    trap journey_end EXIT
    wine_prefix_fresh "$folder.wine"
    screen_start
    wine_keep_alive
    # Captions drawn by Wine itself: windows stand where they are put, to the pixel.
    set_value 'HKCU\Software\Wine\X11 Driver' Decorated N
    rm -rf "$folder" "$pictures/failed-$journey.png"
    mkdir -p "$folder" "$pictures"
    cp -r "$dist/Magpie.exe" "$dist/uBank" "$folder/"
    begin=$SECONDS
}

journey_end() {
    local status=$?
    trap - EXIT
    if ((status)); then
        import -silent -window root "$pictures/failed-$journey.png" || true
        say "The screen at that moment: ${pictures#"$root"/}/failed-$journey.png"
        kill_started
    fi
    wine_stop
    screen_stop
    ((status)) || rm -rf "$WINEPREFIX"
    ((status)) || say "$journey: $((SECONDS - begin)) s"
    exit "$status"
}

# Also the second program of a journey that needs one, whose id it keeps in `other`.
kill_started() {
    local pid
    for pid in ${magpie_pid:-} ${other:-}; do kill "$pid" 2>/dev/null || true; done
}

# --- Settings ---------------------------------------------------------------

# set_value KEY NAME TEXT [TYPE]
set_value() {
    wine reg add "$1" /v "$2" /t "${4:-REG_SZ}" /d "$3" /f >/dev/null 2>&1 </dev/null
}

# setting NAME TEXT [TYPE]: one of the program's three records, ID, CF or CH.
setting() { set_value "$settings_key" "$@"; }

# saved_settings: the program's settings as they are, one "NAME"="TEXT" a line; none where there
# are none, which is asked again before it is believed.
saved_settings() {
    local file=$folder.reg
    wait_for 1 wine reg export "$settings_key" "$file" /y >/dev/null 2>&1 </dev/null || return 0
    iconv -f utf-16 -t utf-8 "$file" | tr -d '\r' | grep '^"' || true
}

# --- The program ------------------------------------------------------------

# launch [ARGUMENT...]: starts the program and does not wait for anything.
launch() {
    cd "$folder"
    wine Magpie.exe "$@" </dev/null >"$logs/$journey.log" 2>&1 &
    magpie_pid=$!
    cd "$root"
}

# start_magpie [ARGUMENT...]: returns when the pad is on the screen and the line was
# looked at.
start_magpie() {
    launch "$@"
    expect "the pad appears" wait_for 20 pad
    line_seen
}

# line_seen: the line is looked at every four seconds. The first look after a start or a
# flush finds news, which activates the pad, and that closes an open menu.
line_seen() { sleep 4.3; }

running() { kill -0 "$magpie_pid" 2>/dev/null; }
ended() { ! running; }

# expect_end [SECONDS]: the program ends by itself within that time, with exit code 0.
expect_end() {
    local status=0
    expect "the program ends" wait_for "${1:-20}" ended
    wait "$magpie_pid" || status=$?
    ((status == 0)) || fail "exit status $status instead of 0"
}

# --- Its windows ------------------------------------------------------------

pad_pixels=32
pad() { window_sized magpie.exe $pad_pixels $pad_pixels; }
main_window() { window_titled Magpie; }
no_main_window() { ! main_window >/dev/null; }
tray() { window_titled 'Wine System Tray'; }

# click_pad [BUTTON]: left of its drag strip.
click_pad() { click_in "$(pad)" 10 12 "${1:-1}"; }

open_by_pad() {
    click_pad
    expect "the main window opens" wait_for 15 main_window
}

# The tray's icons stand in one row, ours is the only one.
click_tray_icon() { click_in "$(tray)" 12 -12 "${1:-1}"; }

# click_in WINDOW X Y [BUTTON]: a negative X or Y counts from the far edge. Where a
# window stands that the window manager decorates, only the server knows.
click_in() {
    window_box "$1"
    xdotool mousemove --window "$1" $(($2 + ($2 < 0 ? box_width : 0))) $(($3 + ($3 < 0 ? box_height : 0)))
    sleep 0.2
    xdotool mousedown "${4:-1}"
    sleep 0.1
    xdotool mouseup "${4:-1}"
}

# "<<" of the Standard tab: at the right end of the frame with the groups.
open_main_menu() {
    open_menu click_in "$(main_window)" -44 72
}

# --- Menus ------------------------------------------------------------------
# All with the mouse: a menu of the tray icon does not have the keyboard here.

tray_rows=(Magpie Restore - Help Contact - WebSite - Flush - About Unload)
main_rows=(New Rename Remove - Settings ListAll - FlushToTray - Hide About Help Unload - LoadAll
    SaveAll)
settings_rows=(Preferences - Load Save - FullWindow - Eject - Open Merge SaveUrls)
merge_rows=(Magpie Favorites Netscape)
save_rows=(Default As)

# menu_beside WINDOWS: prints the menu, a window that is not among WINDOWS and too
# high for a tool tip.
menu_beside() {
    local window
    for window in $(windows_of magpie.exe); do
        [[ $1 != *"$window"* ]] && window_box "$window" && ((box_height > 30)) || continue
        printf '%s\n' "$window"
        return 0
    done
    return 1
}

# open_menu COMMAND...: runs it and waits for the menu.
open_menu() {
    local before
    before=$(windows_of magpie.exe)
    "$@"
    expect "a menu opens" wait_for 5 menu_beside "$before"
    menu=$(menu_beside "$before")
}

# row_middle ROW ROW_NAME...: prints how far below the top of the menu that opened last
# the row's middle is. At 96 dots per inch a row is 17 pixels high, a separator 9, and 3
# are the border; else in that proportion.
row_middle() {
    local wanted=$1 row y=3 at=
    shift
    for row in "$@"; do
        [[ $row != "$wanted" ]] || at=$((y + 8))
        [[ $row == - ]] && y=$((y + 9)) || y=$((y + 17))
    done
    [[ -n $at ]] || fail "no menu row called $wanted"
    window_box "$menu"
    printf '%s' $((at * box_height / (y + 3)))
}

# click_row ROW ROW_NAME...: on the menu that opened last.
click_row() {
    local at
    at=$(row_middle "$@")
    click_in "$menu" 40 "$at"
}

choose_tray() {
    open_menu click_tray_icon 3
    click_row "$1" "${tray_rows[@]}"
}

choose_pad() {
    open_menu click_pad 3
    click_row "$1" "${tray_rows[@]}"
}

choose_main() {
    open_main_menu
    click_row "$1" "${main_rows[@]}"
}

# choose_settings ROW [ROW_BELOW ROW_NAME...]
choose_settings() {
    open_main_menu
    open_menu click_row Settings "${main_rows[@]}"
    if (($# == 1)); then
        click_row "$1" "${settings_rows[@]}"
    else
        open_menu click_row "$1" "${settings_rows[@]}"
        click_row "${@:2}"
    fi
}

# --- Checks -----------------------------------------------------------------

not() { ! "$@"; }

# expect WHAT COMMAND...
expect() {
    local what=$1
    shift
    "$@" >/dev/null || fail "not so: $what"
}

# expect_same WANTED FOUND: two files, byte by byte; FOUND may still be on its way.
expect_same() {
    wait_for 5 cmp -s "$1" "$2" && return
    diff <(cat -A "$1") <(cat -A "$2" 2>&1) || true
    fail "${2#"$root"/} is not as it must be"
}

# expect_text WANTED FOUND
expect_text() {
    [[ $1 == "$2" ]] || fail "expected: $1
found:    $2"
}

# shows WHAT TEXT: what window_reader reads of the main window.
reads() { wine "$tools/window_reader.exe" "$@" 2>/dev/null </dev/null | tr -d '\r'; }
shows() { [[ $(reads "$1") == "$2" ]]; }

# expect_shown WHAT TEXT
expect_shown() { wait_for 10 shows "$1" "$2" || expect_text "$2" "$(reads "$1")"; }

# place_of TEXT: sets box_left, box_top, box_width and box_height of the control on show
# with that text.
place_of() {
    read -r box_left box_top box_width box_height <<<"$(reads place "$1")"
    [[ -n $box_left ]] || fail "there is no control \"$1\""
}

# click_on TEXT: in the middle of that control.
click_on() {
    place_of "$1"
    click $((box_left + box_width / 2)) $((box_top + box_height / 2))
}

# --- Pictures ---------------------------------------------------------------

# use_density DPI: of the screen; Wine reads it when its server starts.
use_density() {
    set_value 'HKCU\Control Panel\Desktop' LogPixels "$1" REG_DWORD
    wine_stop
    wine_keep_alive
}

# shot NAME WINDOW [MARGIN]: that part of the screen, named after the density `dpi`.
shot() {
    window_box "$2"
    local margin=${3:-0}
    import -silent -window root -crop \
        "$((box_width + 2 * margin))x$((box_height + 2 * margin))+$((box_left - margin))+$((box_top - margin))" \
        +repage "$pictures/$1-$dpi.png"
}

# --- File dialogs and questions ---------------------------------------------

keys() { xdotool key --delay 40 "$@"; }

windows_path() { printf 'Z:%s' "${1//\//\\}"; }

# focus WINDOW: by a click on its caption; the keyboard follows a little later.
focus() {
    sleep 0.3
    click_in "$1" 200 12
    sleep 0.3
}

# name_file TITLE FILE: types the file's name into the dialog and accepts it.
name_file() {
    expect "the dialog \"$1\" opens" wait_for 10 window_titled "$1"
    focus "$(window_titled "$1")"
    keys alt+n ctrl+a
    xdotool type --delay 10 "$(windows_path "$2")"
    keys Return
    expect "the dialog \"$1\" takes the name" wait_for 10 no_window_titled "$1"
}

no_window_titled() { ! window_titled "$1" >/dev/null; }

# The program's questions bear its name, as the main window does.
questions() { xdotool search --onlyvisible --name '^Magpie$' 2>/dev/null | wc -l; }
question_up() { (($(questions) > 1)); }
no_question() { (($(questions) <= 1)); }

# answer KEY: y or n.
answer() {
    expect "a question is put" wait_for 10 question_up
    sleep 0.3
    keys "$1"
    expect "the question goes away" wait_for 10 no_question
}
