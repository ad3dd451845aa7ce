#!/bin/bash
# What is done to several entries at once: three rated, two moved, two removed with No and with
# Yes, one sent to Favorites; then a text dropped from another program, and a file that may not
# be. What is in the stack file afterwards is compared byte by byte. The dialogs are left as
# pictures at 96 and 144 dots per inch in build/screenshots.
. "$(dirname "${BASH_SOURCE[0]}")/journey.sh"
. "$(dirname "${BASH_SOURCE[0]}")/list_hand.sh"

dialog() { window_titled 'Move to\.\.\.'; }
question() { window_titled 'Confirm Delete'; }

# --- Commands ---------------------------------------------------------------

rate_three() {
    select_rows $'Alpha\nBravo\nDelta' 1 2 4
    choose 2 Rate High "${rate_rows[@]}"
    expect_shown selected ''
    expect_text 'High High Medium High Low Medium' "$(titles 3)"
}

move_two() {
    select_rows $'Bravo\nCharlie' 2 3
    choose 3 Move
    expect "the dialog opens" wait_for 10 dialog
    sleep 0.4
    keys alt+F4
    expect "its frame closes it" wait_for 5 not dialog
    expect_titles 'Alpha Bravo Charlie Delta Echo Foxtrot'
    choose 3 Move
    expect "the dialog opens" wait_for 10 dialog
    sleep 0.4
    # Of News and Work the first is chosen.
    keys Down Return
    expect "Enter accepts" wait_for 5 not dialog
    expect_titles 'Alpha Delta Echo Foxtrot'
    # The focus mark is on the row that took the place of the last one.
    sleep 0.3
    keys space
    expect_shown selected Delta
}

remove_two() {
    select_rows $'Delta\nFoxtrot' 2 4
    choose 2 Remove
    expect "a question is put" wait_for 10 question
    sleep 0.3
    keys n
    expect "No answers it" wait_for 5 not question
    expect_titles 'Alpha Delta Echo Foxtrot'
    # Until another command gives the interface back nothing is edited.
    choose 2 Edit
    sleep 0.7
    expect "no dialog opens" not window_titled 'URL Information'
    expect_shown selected $'Delta\nFoxtrot'
    choose 4 Remove
    expect "a question is put" wait_for 10 question
    sleep 0.3
    keys y
    expect_titles 'Alpha Echo'
    expect_shown panes $'Viewed: 2\nTotal: 6'
    sleep 0.3
    keys space
    expect_shown selected Echo
}

send_one() {
    local file=$WINEPREFIX/drive_c/users/${USER:-$(id -un)}/Favorites/News/Alpha.url
    rm -f "$file"
    select_rows Alpha 1
    choose 1 Send Folder "${send_rows[@]}"
    expect_shown selected ''
    printf '[InternetShortcut]\r\nURL=http://news/alpha\r\n' >"$folder/wanted.url"
    expect_same "$folder/wanted.url" "$file"
}

# --- Drops ------------------------------------------------------------------

# shellcheck disable=SC2046
drop_text() {
    start_dragger 'http://dropped/page.html?a=1&b=2'
    drag $(row_place 6)
    expect_drag 'copy taken'
    expect_titles 'Alpha Echo <Quick Add>'
    expect_shown panes $'Viewed: 3\nTotal: 7'
    # Over the drop-down of groups it can't be dropped.
    window_box "$(main_window)"
    drag $((box_left + 200)) $((box_top + 72))
    expect_drag 'no refused'
    end_dragger
}

# shellcheck disable=SC2046
drop_file() {
    start_dragger --file 'C:\windows\win.ini'
    drag $(row_place 2)
    expect_drag 'no refused'
    end_dragger
    expect_titles 'Alpha Echo <Quick Add>'
}

# without_now FILE: the file with NOW in the place of the only date that is not known, if that
# has the form of one.
without_now() {
    LC_ALL=C sed -E $'s/^(.*\x05<Quick Add>\x050\x05)[0-9A-F]{5,9}(\x050\x050\x050\r)$/\\1NOW\\2/' "$1"
}

# --- The journey ------------------------------------------------------------

# take_pictures DPI: of the dialog and of the question.
take_pictures() {
    dpi=$1
    use_density "$dpi"
    start_magpie
    open_by_pad
    expect_titles 'Alpha Echo <Quick Add>'
    select_rows $'Alpha\nEcho' 1 2
    choose 1 Move
    expect "the dialog opens" wait_for 10 dialog
    sleep 0.4
    shot move "$(dialog)"
    keys alt+F4
    expect "its frame closes it" wait_for 5 not dialog
    choose 1 Remove
    expect "a question is put" wait_for 10 question
    sleep 0.4
    shot confirm-delete "$(question)"
    keys n
    expect "No answers it" wait_for 5 not question
    choose_pad Unload
    expect_end
}

journey_begin
mkdir -p "$pictures"
cp "$expected/bulk_start.pns" "$folder/Pienest.pns"
dpi=96
setting ID '2 4500 17250 0 1 0 True False'
setting CF '8 3 0 0 2 1 0 1500 1500 13500 7200 31 1 36500'
setting CH '2400 2400 900 1200 1680 1680 720 '
start_magpie
open_by_pad
expect_titles 'Alpha Bravo Charlie Delta Echo Foxtrot'
rate_three
move_two
remove_two
send_one
drop_text
drop_file
choose_pad Unload
expect_end
without_now "$folder/Pienest.pns" >"$folder/found.pns"
expect_same "$expected/bulk_end.pns" "$folder/found.pns"
expect_same "$expected/bulk_start.pns" "$folder/Pienest.bak"
take_pictures 96
take_pictures 144
use_density 96
