#!/bin/bash
# The line under watch: dial-up connections that come and go, with the main window open and
# under a dialog; the system's own opinion of the line; a pad and a main window that come with
# it; and what is left of the program when the library that it asks is missing. A library of ours
# stands in for the system's two.
. "$(dirname "${BASH_SOURCE[0]}")/journey.sh"
. "$(dirname "${BASH_SOURCE[0]}")/line_around.sh"

connection='connection 1A2B3C4D00000001 2000'
another='connection 1A2B3C4D00000002 2000'

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
    start_on_own_line
}

end_by_tray() {
    choose_tray Unload
    expect_end
}

journey_begin
use_own_line
forget_questions
cp "$expected/start.pns" "$folder/Pienest.pns"
cp "$expected/merge.pns" "$folder/"

say "The line comes up and falls, with the main window open"
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

say "The line is back before the dialog closes"
line_is "$connection"
expect_pad b "the pad says that the line is up and nothing is loaded"
open_by_pad
choose_main New
expect "a name is asked for" wait_for 10 name_asked
line_is
sleep 5
line_is "$another"
sleep 5
focus "$(name_asked)"
keys Escape
expect "the dialog closes" wait_for 10 no_name_asked
line_seen
expect "the main window stays" main_window
expect_pad d "the pad says that the program is ready"
end_by_tray

say "The system's own opinion of the line"
line_is online
setting ID '1 4500 15000 0 1 0 False False'
start_on_own_line
expect_pad b "the pad says that the line is up"
open_by_pad
line_is "$connection"
expect "the falling line takes the main window away" wait_for 8 no_main_window
expect_pad a "the pad says that there is no line"
end_by_tray

say "A pad for the line only, and a main window that is loaded with the line"
line_is
setting ID '1 4500 15000 0 1 1 False True'
MAGPIE_LINE=$(windows_path "$script") launch
expect "the tray icon appears" wait_for 20 tray
line_seen
expect "there is no pad while there is no line" not pad
line_is online
expect "the pad comes with the line" wait_for 8 pad
expect_pad d "and says that the program is ready"
expect "the main window waits" no_main_window
open_by_pad
line_is
expect "the falling line takes the main window away" wait_for 8 no_main_window
expect "and the pad" wait_for 5 not pad
end_by_tray

say "A missing library"
for missing in rasapi32 wininet; do
    export WINEDLLOVERRIDES="$no_chatter;$missing="
    if [[ $missing == rasapi32 ]]; then
        start_by_dial_up
    else
        setting ID '1 4500 15000 0 1 0 False False'
        start_on_own_line
    fi
    expect_pad a "the pad looks as at the start"
    open_by_pad
    line_seen
    expect "the main window stays" main_window
    expect_pad a "the pad looks as at the start"
    choose_main Hide
    expect "\"Hide\" hides it" wait_for 5 no_main_window
    end_by_tray
done
export WINEDLLOVERRIDES=$no_chatter
