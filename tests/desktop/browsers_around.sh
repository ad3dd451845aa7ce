# shellcheck shell=bash
# What the journeys with browsers share: programs that stand in for browsers, installed or
# running. Sourced behind journey.sh, never run.

app_paths='HKLM\Software\Microsoft\Windows\CurrentVersion\App Paths'
shell_windows='HKLM\Software\Classes\CLSID\{9BA05972-F6A8-11CF-A442-00A0C90A8F39}\TreatAs'

# install_browser FILE: it writes its command lines into "$folder/browsers/FILE's name.log".
install_browser() {
    mkdir -p "$folder/browsers"
    cp "$tools/args_recorder.exe" "$folder/browsers/$1"
    wine reg add "$app_paths\\$1" /ve /d "$(windows_path "$folder/browsers/$1")" /f \
        >/dev/null 2>&1 </dev/null
}

serve_shell_windows() {
    wine reg add "$shell_windows" /ve /d '{5A2C8D51-4C1E-4D6B-9E0A-2F4B6C7D8E90}' /f \
        >/dev/null 2>&1 </dev/null
}

# started FILE_WITHOUT_EXTENSION: how often it was, and with what the last time.
started() { cat "$folder/browsers/$1.log" 2>/dev/null || true; }
starts() { started "$1" | wc -l; }

# run_peer TOOL ARGUMENT...: the tool runs until end_peer; it writes into "$folder/peer.log".
run_peer() {
    local tool=$1
    shift
    rm -f "$folder/peer.log" "$folder/peer.input"
    mkfifo "$folder/peer.input"
    wine "$tools/$tool.exe" "$@" <>"$folder/peer.input" >/dev/null 2>&1 &
    other=$!
    expect "$tool runs" wait_for 20 peer_wrote ready
}

peer_wrote() { grep -qxF -- "$1" "$folder/peer.log" 2>/dev/null; }
peer_log() { windows_path "$folder/peer.log"; }

peer_ended() { ! kill -0 "$other" 2>/dev/null; }

# end_peer: a byte ends it, unless it is busy or has ended by itself.
end_peer() {
    peer_ended || printf . >"$folder/peer.input"
    wait_for 3 peer_ended || kill "$other"
    wait "$other" 2>/dev/null || true
    other=
}

# run_dde_server SERVICE MANNER [REPLY [SECONDS]]: a pause of its lasts longer than its part of a
# journey.
run_dde_server() {
    printf '%s' "${3:-1}" >"$folder/reply.txt"
    run_peer dde_server "$1" "$(peer_log)" "$2" "$(windows_path "$folder/reply.txt")" "${4:-60}"
}

# run_browser CLASS TITLE ADDRESS [PAGE_TITLE [NAME [MANNER]]]: its window takes the foreground, so that
# the main window makes room, and is opened again.
run_browser() {
    run_peer browser_double "$1" "$2" "$(peer_log)" "${@:3}"
    expect "the main window makes room" wait_for 10 no_main_window
    sleep 0.5
    open_by_pad
}

# use_browser TYPE [FLAGS [NO_TRAY_ICON]]: a run of the program with these settings and the pad on.
use_browser() {
    setting ID "2 4500 17250 0 1 0 ${3:-True} False"
    setting CF "$((8 + ${2:-0})) 3 $1 0 2 1 0 1500 1500 13500 7200 31 0 36500"
    setting CH '2400 2400 900 1200 1680 1680 720 '
    start_magpie
    open_by_pad
}

# end_program [SECONDS]: within that time.
end_program() {
    choose_pad Unload
    expect_end "$@"
}

# click_record ROW [BUTTON]: in the title of that row, from 1.
click_record() {
    place_of Bookmarks
    click $((box_left + 40)) $((box_top + 13 + 14 * $1)) "${2:-1}"
}

double_click_record() {
    place_of Bookmarks
    sleep 0.7
    xdotool mousemove $((box_left + 40)) $((box_top + 13 + 14 * $1))
    sleep 0.2
    xdotool click --repeat 2 --delay 60 1
}

# The addresses of the rows.
plain='http://plain/'
odd='http://odd/a b"c"'
long=http://long/$(printf 'x%.0s' {1..400})

row() { printf '%s\5%s\0050\5%s\0050\0050\0050\r\n' "$1" "$2" 8E53EC00; }
write_stack_file() {
    printf '+Sites\r\n' >"$folder/Pienest.pns"
    row "$plain" Plain >>"$folder/Pienest.pns"
    row "$odd" Odd >>"$folder/Pienest.pns"
    row "$long" Long >>"$folder/Pienest.pns"
}

# comes_back: the main window, after it made room for a browser.
comes_back() {
    expect "the main window makes room" wait_for 15 no_main_window
    open_by_pad
}

stays() {
    sleep 0.5
    expect "the main window stays" main_window
}

started_once_more() {
    expect "$1 is started" wait_for 25 more_starts "$1" "$2"
    expect_text "$3" "$(started "$1" | tail -1)"
}
more_starts() { (($(starts "$1") > $2)); }

# started_for BROWSER ROW ADDRESS: a double click starts it with that command line.
started_for() {
    local before
    before=$(starts "$1")
    double_click_record "$2"
    started_once_more "$1" "$before" "$3"
    stays
}
