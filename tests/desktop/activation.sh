#!/bin/bash
# The hook on the main window: which message it swallows, that the window has its icon
# all the same, and that the window steps aside for another application while the pad
# is on, unless a question is up.
. "$(dirname "${BASH_SOURCE[0]}")/journey.sh"

# The first message that the system traces for the main window behind the change of its
# procedure to the hook's, the only change of a form's procedure.
first_hooked_message() {
    awk '/create.* Form3|L"Form3"/ && !form { seen = 1 }
         seen && !form && match($0, /hwnd 0x[0-9a-f]+ cs/) { form = substr($0, RSTART + 5, RLENGTH - 8) }
         form && index($0, "set_window_long " form " -4 ") { hooked = 1; next }
         hooked && index($0, "spy_enter_message") && index($0, "(" form ")") { print; exit }' "$1"
}

# The 32 by 32 picture of the program's icon, one number a pixel, as the screen's server
# holds it: behind a width and a height.
program_icon() {
    local at
    at=$(identify "$root/resources/magpie.ico" | grep -n ' 32x32' | cut -d : -f 1)
    convert "$root/resources/magpie.ico[$((at - 1))]" -depth 8 rgba:- | od -An -tu1 -w4 -v |
        awk '{ printf "%.0f\n", (($4 * 256 + $1) * 256 + $2) * 256 + $3 }'
}

window_icon() {
    xprop -id "$1" -notype 32c _NET_WM_ICON | tr ',=' '\n\n' | sed -n '2,$p' | tr -d ' ' |
        sed -n '3,1026p'
}

notepad() { window_sized notepad.exe "$@"; }

# go_elsewhere: to the other application, by a click on its caption.
go_elsewhere() { click_in "$notepad" 100 12; }

journey_begin
cp "$expected/start.pns" "$folder/Pienest.pns"
printf 'old' >"$folder/Copy.pns"
setting ID '2 4500 15000 0 1 0 True False'
setting CF '8 3 0 0 2 1 2 1500 1500 9000 6000 31 0 36500'
(cd "$folder" && exec wine notepad </dev/null >/dev/null 2>&1) &
other=$!
expect "the other application starts" wait_for 20 window_titled 'Untitled - Notepad'
notepad=$(window_titled 'Untitled - Notepad')

WINEDEBUG=+win,+message start_magpie
open_by_pad
message=$(first_hooked_message "$logs/$journey.log")
expect "the hook swallows WM_GETICON: $message" \
    grep -q '\[007f\] WM_GETICON .* wp=00000001' <<<"$message"
cmp <(program_icon) <(window_icon "$(main_window)") || fail "the main window has another icon"

go_elsewhere
expect "the main window steps aside" wait_for 5 no_main_window
open_by_pad
choose_settings SaveUrls As "${save_rows[@]}"
name_file 'Save Pienest As' "$folder/Copy.pns"
expect "a question is put" wait_for 10 question_up
go_elsewhere
sleep 1
expect "the main window stays under its question" question_up
kill "$other"
wait "$other" 2>/dev/null || true
other=
answer n
expect "the dialog comes back" wait_for 10 window_titled 'Save Pienest As'
dialog=$(window_titled 'Save Pienest As')
expect "it lies over the main window" grep -qi "$(printf '%x' "$(main_window)")" \
    <<<"$(xprop -id "$dialog" WM_TRANSIENT_FOR)"
focus "$dialog"
keys Escape
expect "the dialog closes" wait_for 10 no_window_titled 'Save Pienest As'
choose_pad Unload
expect_end
