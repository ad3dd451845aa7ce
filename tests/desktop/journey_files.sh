#!/bin/bash
# A day with the program: open by the pad, hide, reopen, merge, flush, reopen, save
# under a name that exists, exit. What it leaves in files and registry afterwards is
# compared byte by byte.
. "$(dirname "${BASH_SOURCE[0]}")/journey.sh"

journey_begin
cp "$expected/start.pns" "$folder/Pienest.pns"
cp "$expected/merge.pns" "$folder/"
printf 'an older file' >"$folder/Copy.pns"
setting ID '2 4500 15000 0 1 0 False False'
setting CF '8 3 0 0 2 1 2 1500 1500 9000 6000 31 0 36500'
setting CH '2400 2325 900 1200 1680 1680 720 '

nothing_written() {
    expect_same "$expected/start.pns" "$folder/Pienest.pns"
    expect "no backup yet" test ! -e "$folder/Pienest.bak"
}

# Merging fills the drop-down anew, with no group chosen; the user goes back to "Work".
merge_a_file() {
    choose_settings Merge Magpie "${merge_rows[@]}"
    name_file 'Merge From Pienest' "$folder/merge.pns"
    expect_shown group ''
    expect_shown panes $'Viewed: 2\nTotal: 7'
    click_in "$(main_window)" 200 72
    sleep 0.3
    keys Down Down Down Return
    expect_shown group Work
}

start_magpie
open_by_pad
expect_shown group Work
expect_shown rows $'Plan|http://server/a.html|Not Rated|Work|Never|1999-10-02 14:29:59|0
Caf\xe9 \x80|+http://server/plus|V.High|Work|1999-10-02 14:29:59|1999-09-01 09:14:59|2147483647'
expect_shown panes $'Viewed: 2\nTotal: 6'

click_in "$(main_window)" -14 13
expect "the close box hides the main window" wait_for 5 no_main_window
click_tray_icon
expect "the tray icon shows it again" wait_for 5 main_window
choose_main Hide
expect "\"Hide\" hides it" wait_for 5 no_main_window
click_tray_icon
expect "the tray icon shows it again" wait_for 5 main_window
expect_shown panes $'Viewed: 2\nTotal: 6'
nothing_written

merge_a_file
nothing_written
choose_tray Flush
expect_same "$expected/merged_once.pns" "$folder/Pienest.pns"
expect_same "$expected/start.pns" "$folder/Pienest.bak"
expect "a flush takes the main window away" wait_for 5 no_main_window
expect "the pad stays" pad

click_tray_icon
expect "the tray icon loads it anew" wait_for 10 main_window
line_seen
expect_shown panes $'Viewed: 2\nTotal: 6'
choose_settings SaveUrls As "${save_rows[@]}"
name_file 'Save Pienest As' "$folder/Copy.pns"
answer n
expect "the dialog comes back after No" wait_for 10 window_titled 'Save Pienest As'
expect_text 'an older file' "$(<"$folder/Copy.pns")"
name_file 'Save Pienest As' "$folder/Copy.pns"
answer y
expect_same "$expected/merged_once.pns" "$folder/Copy.pns"

merge_a_file
choose_tray Unload
expect_end
expect_same "$expected/merged_twice.pns" "$folder/Pienest.pns"
expect_same "$expected/merged_once.pns" "$folder/Pienest.bak"
expect_same "$expected/merged_once.pns" "$folder/Copy.pns"
expect_text '"CF"="8 2 0 0 2 1 2 1500 1500 9000 6000 31 0 36500"
"CH"="2400 2325 900 1200 1680 1680 720 "
"ID"="2 4500 15000 0 1 0 False False"' "$(saved_settings)"
