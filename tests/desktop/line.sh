#!/bin/bash
# The line under watch: dial-up connections that come and go, with the main window open and
# under a dialog; the system's own opinion of the line; and what is left of the program when
# the library that it asks is missing. A library of ours stands in for the system's two.
. "$(dirname "${BASH_SOURCE[0]}")/journey.sh"

no_chatter=$WINEDLLOVERRIDES
connection='connection 1A2B3C4D00000001 2000'
another='connection 1A2B3C4D00000002 2000'

# line_is [TEXT...]: from the next look on, which comes within four seconds.
line_is() {
    printf '%s\n' "$@" >"$script.new"
    mv "$script.new" "$script"
}

forget_questions() { : >"$script.log"; }
# questions_asked KIND: how often, since they were forgotten.
questions_asked() { grep -c "^$1" "$script.log" || true; }

pad_shows() {
    local at=$folder.png
    window_box "$(pad)" || return 1
    import -silent -window root -crop "32x32+$box_left+$box_top" +repage "$at"
    [[ $(compare -metric AE "bmp:$folder/uBank/i$1.bnk" "$at" null: 2>&1) == 0 ]]
}
mouse_away() { xdotool mousemove 1200 900; }

# expect_pad LETTER WHAT
expect_pad() {
    mouse_away
    expect "$2" wait_for 8 pad_shows "$1"
}

name_asked() { window_titled 'New Group\.\.'; }
no_name_asked() { ! name_asked >/dev/null; }

start_by_dial_up() {
    setting ID '0 4500 15000 0 1 0 False False'
    setting CF '8 0 0 0 2 1 2 1500 1500 9000 6000 31 0 36500'
    MAGPIE_LINE=$(windows_path "$script") start_magpie
}

end_by_tray() {
    choose_tray Unload
    expect_end
}

journey_begin
script=$folder.txt
rm -f "$script.log"
line_is
forget_questions
for library in rasapi32 wininet; do
    cp "$tools/line_double.dll" "$WINEPREFIX/drive_c/windows/system32/$library.dll"
done
cp "$expected/start.pns" "$folder/Pienest.pns"
cp "$expected/merge.pns" "$folder/"

say "The line comes up and falls, with the main window open"
export WINEDLLOVERRIDES="$no_chatter;rasapi32,wininet=n,b"
start_by_dial_up
expect_pad a "the pad says that there is no line"
line_is "$connection"
expect_pad b "the pad says that the line is up and nothing is loaded"
open_by_pad
expect_pad d "the pad says that the program is ready"
forget_questions
sleep 9
expect_text 0 "$(questions_asked enumerate)"
expect "the known connection is asked for its state" test "$(questions_asked state)" -ge 2
expect "by the handle that the system gave" grep -qi '^state .*1A2B3C4D00000001' "$script.log"
choose_settings Merge Magpie "${merge_rows[@]}"
name_file 'Merge From Pienest' "$folder/merge.pns"
expect_shown panes $'Viewed: 2\nTotal: 7'
line_is
expect "the falling line takes the main window away" wait_for 8 no_main_window
expect_pad a "the pad says that there is no line"
expect_same "$expected/merged_once.pns" "$folder/Pienest.pns"
line_is "$another"
expect_pad b "the pad says that the line is back and nothing is loaded"
expect "the main window stays away" no_main_window
open_by_pad
expect_shown panes $'Viewed: 0\nTotal: 6'

say "The line falls under a dialog"
choose_main New
expect "a name is asked for" wait_for 10 name_asked
sleep 0.5
xdotool type --delay 20 'Kept'
line_is
sleep 9
expect "the dialog stays" name_asked
expect "and the main window under it" main_window
expect_pad d "the pad has not changed"
focus "$(name_asked)"
keys Return
expect "the dialog closes" wait_for 10 no_name_asked
expect "then the main window goes" wait_for 8 no_main_window
expect_pad a "the pad says that there is no line"
expect "what the dialog made is saved" grep -q '^+Kept' "$folder/Pienest.pns"
end_by_tray

say "The system's own opinion of the line"
line_is online
setting ID '1 4500 15000 0 1 0 False False'
MAGPIE_LINE=$(windows_path "$script") start_magpie
expect_pad b "the pad says that the line is up"
open_by_pad
line_is "$connection"
expect "the falling line takes the main window away" wait_for 8 no_main_window
expect_pad a "the pad says that there is no line"
end_by_tray

say "A missing library"
export WINEDLLOVERRIDES="$no_chatter;rasapi32="
start_by_dial_up
expect_pad a "the pad looks as at the start"
open_by_pad
line_seen
expect "the main window stays" main_window
expect_pad a "the pad looks as at the start"
choose_main Hide
expect "\"Hide\" hides it" wait_for 5 no_main_window
end_by_tray
export WINEDLLOVERRIDES=$no_chatter
