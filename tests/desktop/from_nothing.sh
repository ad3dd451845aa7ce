#!/bin/bash
# From an empty folder to a stack file: groups are made, entries added by the dialog and by a drop
# from another program, edited, rated, moved, removed with No and with Yes; groups renamed on
# either tab, and one removed. Then the stack file, its backup of half way and the shortcut files
# in Favorites are compared byte by byte.
. "$(dirname "${BASH_SOURCE[0]}")/journey.sh"
. "$(dirname "${BASH_SOURCE[0]}")/list_hand.sh"

group_rows=(New Rename - Remove)
dialog_up() { window_titled 'URL Information'; }
move_up() { window_titled 'Move to\.\.\.'; }
question() { window_titled 'Confirm Delete'; }

# add NAME [GROUP_LETTER]: an entry of the group in view, or of the one with that letter.
add() {
    keys ctrl+a
    expect "the dialog opens" wait_for 10 dialog_up
    keyboard_comes
    xdotool type --delay 20 "$1"
    keys Tab ctrl+a
    xdotool type --delay 20 "http://$1/"
    keys Tab Tab ${2:+"$2"} Return
    expect "the dialog closes" wait_for 10 not dialog_up
    sleep 0.3
}

add_entries() {
    add Alpha
    add Bravo
    add Charlie
    add Delta w
    add Echo o
    expect_titles 'Alpha Bravo Charlie'
    expect_shown panes $'Viewed: 3\nTotal: 5'
    start_dragger 'http://dropped/page.html?a=1&b=2'
    # shellcheck disable=SC2046
    drag $(row_place 5)
    expect_drag 'copy taken'
    end_dragger
    expect_titles 'Alpha Bravo Charlie <Quick Add>'
}

edit_dropped() {
    click_row_of_list 4
    open_menu click_row_of_list 4 3
    keys e
    expect "the dialog opens" wait_for 10 dialog_up
    keyboard_comes
    xdotool type --delay 20 Foxtrot
    keys Return
    expect "the dialog closes" wait_for 10 not dialog_up
    expect_titles 'Alpha Bravo Charlie Foxtrot'
}

# With every group listed, so that all rows can be read; then back.
note_dates() {
    local title
    choose_main ListAll
    expect_titles 'Alpha Bravo Charlie Delta Echo Foxtrot'
    for title in Alpha Bravo Charlie Delta Echo Foxtrot; do made[$title]=$(date_of $title 6); done
    choose_main ListAll
    expect_titles 'Alpha Bravo Charlie Foxtrot'
}

save_half_way() {
    choose_settings SaveUrls Default "${save_rows[@]}"
    expect_same "$build/desktop/half_way.pns" "$folder/Pienest.pns"
    expect "a first save has no backup" test ! -e "$folder/Pienest.bak"
}

rate_three() {
    select_rows $'Alpha\nBravo\nFoxtrot' 1 2 4
    choose 2 Rate High "${rate_rows[@]}"
    expect_shown selected ''
    expect_text 'High High Not Rated High' "$(titles 3)"
}

# Of Old, Reading and Work the last one.
move_one() {
    select_rows Bravo 2
    choose 2 Move
    expect "the dialog opens" wait_for 10 move_up
    keyboard_comes
    keys End Return
    expect "Enter accepts" wait_for 5 not move_up
    expect_titles 'Alpha Charlie Foxtrot'
}

remove_two() {
    local key
    for key in n y; do
        select_rows $'Alpha\nCharlie' 1 2
        choose 2 Remove
        expect "a question is put" wait_for 10 question
        keyboard_comes
        keys $key
        expect "the question goes away" wait_for 5 not question
        [[ $key == y ]] || expect_titles 'Alpha Charlie Foxtrot'
    done
    expect_titles Foxtrot
    expect_shown panes $'Viewed: 1\nTotal: 4'
}

rename_by_menu() {
    choose_main Rename
    answer_name Readings
    expect_shown group Readings
    expect_text Readings "$(titles 4)"
}

# choose_group N ROW: in the menu over the n-th row of the Group List.
group_place() {
    place_of Groups
    printf '%s %s' $((box_left + 60)) $((box_top + 14 + 14 * $1))
}
# shellcheck disable=SC2046
choose_group() {
    open_menu click $(group_place "$1") 3
    click_row "$2" "${group_rows[@]}"
}

# Renaming sorts the Group List, and writes the name into every row until the next refresh.
# shellcheck disable=SC2046
rename_in_list() {
    click_in "$(main_window)" 45 38
    sleep 0.5
    expect_shown panel $'<<\nMenu\n>>\nGroup List\nWork\nOld\nReadings'
    click $(group_place 1)
    expect_titles 'Bravo Delta'
    choose_group 1 Rename
    answer_name Office
    expect_text 'Office Office' "$(titles 4)"
    expect_shown panel $'<<\nMenu\n>>\nGroup List\nOffice\nOld\nReadings'
}

# shellcheck disable=SC2046
remove_group() {
    click $(group_place 2)
    expect_titles Echo
    choose_group 2 Remove
    answer n
    expect_titles Echo
    choose_group 2 Remove
    answer y
    expect_shown panel $'<<\nMenu\n>>\nGroup List\nOffice\nReadings'
    expect_shown panes $'Viewed: 2\nTotal: 3'
}

# line NAME URL CATAGORY RATING: of an entry that was never visited.
line() { entry "$2" "$1" 0 "${made[$1]}" 0 "$3" "$4"; }
stack_half_way() {
    printf '+Work\r\n'
    line Delta http://Delta/ 2 0
    printf '+Old\r\n'
    line Echo http://Echo/ 0 0
    printf '+Reading\r\n'
    for title in Alpha Bravo Charlie; do line $title "http://$title/" 1 0; done
    line Foxtrot 'http://dropped/page.html?a=1&b=2' 0 0
}
stack_at_the_end() {
    printf '+Office\r\n'
    line Bravo http://Bravo/ 1 3
    line Delta http://Delta/ 2 0
    printf '+Readings\r\n'
    line Foxtrot 'http://dropped/page.html?a=1&b=2' 0 3
}

# shortcut GROUP TITLE: as the entry was when it was made.
shortcut() {
    mkdir -p "$wanted/$1"
    printf '[InternetShortcut]\r\nURL=http://%s/\r\n' "$2" >"$wanted/$1/$2.url"
}

journey_begin
declare -A made
dpi=96
wanted=$folder/wanted
favorites=$WINEPREFIX/drive_c/users/${USER:-$(id -un)}/Favorites
rm -rf "${favorites:?}"/*
setting ID '2 4500 17250 0 1 0 False False'
setting CF '8 3 0 0 2 1 0 1500 1500 13500 7200 31 1 36500'
setting CH '2400 2400 900 1200 1680 1680 720 '
start_magpie
open_by_pad
new_group Work
new_group Old
new_group Reading
add_entries
edit_dropped
note_dates
stack_half_way >"$build/desktop/half_way.pns"
save_half_way
rate_three
move_one
remove_two
rename_by_menu
rename_in_list
remove_group
choose_pad Unload
expect_end
stack_at_the_end >"$folder/wanted.pns"
expect_same "$folder/wanted.pns" "$folder/Pienest.pns"
expect_same "$build/desktop/half_way.pns" "$folder/Pienest.bak"
for title in Alpha Bravo Charlie; do shortcut Reading $title; done
shortcut Work Delta
shortcut Old Echo
diff -r "$wanted" "$favorites" || fail "Favorites is not as it must be"
