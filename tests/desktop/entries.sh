#!/bin/bash
# Entries by the dialog "URL Information": from an empty folder two groups are made, five
# entries added by keys and by mouse, in the group on show and in the other one, two of
# them edited, one visited by a double click. Then the stack file is compared byte by byte
# with what the list showed. The dialog's two pages are left as pictures at 96 and 144 dots
# per inch in build/screenshots.
. "$(dirname "${BASH_SOURCE[0]}")/journey.sh"
. "$(dirname "${BASH_SOURCE[0]}")/list_hand.sh"

dialog_up() { window_titled 'URL Information'; }
no_dialog() { ! dialog_up >/dev/null; }

# open_new, open_edit: the dialog, for a new entry and on row ROW of the list.
open_new() {
    keys ctrl+a
    expect "the dialog opens" wait_for 10 dialog_up
    keyboard_comes
}
open_edit() {
    open_menu click_record "$1" 3
    keys e
    expect "the dialog opens" wait_for 10 dialog_up
    keyboard_comes
}

closed_by() {
    "$@"
    expect "the dialog closes" wait_for 10 no_dialog
    sleep 0.3
}
close_by() { closed_by keys "$1"; }

# click_record ROW [BUTTON]: in the title of that row, from 1, at 96 dots per inch.
click_record() {
    place_of Bookmarks
    click $((box_left + 40)) $((box_top + 13 + 14 * $1)) "${2:-1}"
}

# write TEXT: over the contents of the field that has the keyboard.
write() {
    keys ctrl+a Delete
    xdotool type --delay 20 "$1"
}

# tip_over X TIP: over the dialog's tabs, X from their left end. A hand is never quite still.
tip_over() {
    place_of Pages
    xdotool mousemove $((box_left + $1)) $((box_top + 8))
    sleep 0.1
    xdotool mousemove_relative 1 0
    expect_shown tip "$2"
}

# dialog NAME URL RATING GROUP [CREATED ACCESSED TIMES]: what the dialog shows.
dialog() {
    printf 'Name:\n"%s"\nURL:\n"%s"\nRating:\n%s\nGroup:\n%sCreated:\n%s' "$1" "$2" "$3" \
        "${4:+$4$'\n'}" "${5:+$5$'\n'}"
    printf 'Last Accessed:\n%sTimes Accessed:\n%sAccept\nCancel\nPages' \
        "${6:+$6$'\n'}" "${7:+$7$'\n'}"
}

# texts COLUMN...: these columns of the rows in view, from 1.
texts() {
    local columns
    columns=$(IFS=,; printf '%s' "$*")
    reads rows | cut -d'|' -f"$columns"
}
texts_are() { [[ $(texts "${@:2}") == "$1" ]]; }
# expect_texts TEXT COLUMN...
expect_texts() { wait_for 10 texts_are "$@" || expect_text "$1" "$(texts "${@:2}")"; }

add_entries() {
    open_new
    expect_shown dialog "$(dialog '' http:// 'Not Rated' Reading)"
    # The page by keys alone: name, address, rating, group.
    xdotool type --delay 20 '  The  first '
    keys Tab
    write ' http://first/ '
    keys Tab Down Down Tab
    close_by Return
    expect_texts 'The  first|http://first/|Medium|Reading|Never|0' 1 2 3 4 5 7
    expect_shown panes $'Viewed: 1\nTotal: 1'

    open_new
    tip_over 20 'Main URL Information store.'
    tip_over 90 'Displays useful information'
    close_by Escape

    # By mouse, with the other page on show when it is accepted.
    open_new
    xdotool type --delay 20 'Second'
    place_of URL:
    click $((box_left + 150)) $((box_top + 7))
    write 'ftp://second/'
    keys Tab End
    expect_shown dialog "$(dialog Second ftp://second/ 'V.High!' Reading)"
    # The hidden page cannot be typed into, nor reached by Tab.
    keys ctrl+Tab
    xdotool type 'lost'
    expect_shown dialog "$(dialog Second ftp://second/ 'V.High!' Reading)"
    keys Tab
    close_by space
    expect_texts $'The  first|Medium\nSecond|V.High' 1 3

    # Into the other group: the total rises, no row appears.
    open_new
    xdotool type --delay 20 'Elsewhere'
    keys Tab Tab Tab w
    expect_shown dialog "$(dialog Elsewhere http:// 'Not Rated' Work)"
    close_by Return
    expect_shown panes $'Viewed: 2\nTotal: 3'

    # Nothing typed, and nothing accepted.
    open_new
    close_by Return
    expect_shown panes $'Viewed: 3\nTotal: 4'
    for way in Escape alt+F4; do
        open_new
        xdotool type 'not wanted'
        close_by $way
    done
    open_new
    closed_by click_on Cancel
    expect_shown panes $'Viewed: 3\nTotal: 4'
    open_new
    xdotool type --delay 20 'Fifth'
    closed_by click_on Accept
    expect_texts $'The  first\nSecond\n\nFifth' 1
}

edit_entries() {
    local created
    created=$(reads rows | head -n 1 | cut -d'|' -f6)
    open_edit 1
    expect_shown dialog "$(dialog 'The  first' http://first/ Medium Reading "$created" Never 0)"
    # The whole name is marked, so that the first key overtypes it.
    xdotool type --delay 20 'Renamed'
    close_by Return
    expect_texts $'Renamed|http://first/\nSecond|ftp://second/\n|http://\nFifth|http://' 1 2
    expect_shown panes $'Viewed: 4\nTotal: 5'

    open_edit 3
    xdotool type --delay 20 'Third'
    keys Tab
    write 'http://third/'
    keys Tab Home Down
    close_by Return
    expect_texts $'Renamed|Medium\nSecond|V.High\nThird|Low\nFifth|Not Rated' 1 3

    open_edit 2
    xdotool type 'not wanted'
    close_by Escape
    expect_texts $'Renamed\nSecond\nThird\nFifth' 1
}

visit() {
    place_of Bookmarks
    xdotool mousemove $((box_left + 40)) $((box_top + 13 + 14 * 2))
    sleep 0.2
    xdotool click --repeat 2 --delay 80 1
    expect_texts $'Renamed|0\nSecond|1\nThird|0\nFifth|0' 1 7
    expect_shown selected Second
}

take_pictures() {
    dpi=$1
    use_density "$dpi"
    local twips=$((1440 / dpi))
    setting ID "2 $((300 * twips)) $((1150 * twips)) 0 1 0 True False"
    setting CF "8 0 0 0 2 1 0 $((100 * twips)) $((100 * twips)) 9000 6000 31 0 36500"
    start_magpie
    open_by_pad
    click_on Bookmarks
    keys Home
    open_menu keys Menu
    keys e
    expect "the dialog opens" wait_for 10 dialog_up
    keyboard_comes
    shot url-information "$(dialog_up)"
    keys ctrl+Tab
    sleep 0.4
    shot url-information-extended "$(dialog_up)"
    close_by Escape
    choose_pad Unload
    expect_end
}

journey_begin
mkdir -p "$pictures"
setting ID '2 4500 15000 0 1 0 False False'
# With a browser that is not there, or the visit would bring one up over the window.
setting CF '8 3 1 0 2 1 0 1500 1500 9000 6000 31 0 36500'
setting CH '2400 2325 900 1200 1680 1680 720 '
start_magpie
open_by_pad
# Without a group there is none to be chosen, and nothing can be accepted.
open_new
expect_shown dialog "$(dialog '' http:// 'Not Rated' '')"
keys Return
sleep 0.5
expect "the dialog stays" dialog_up
close_by Escape
new_group Work
new_group Reading
add_entries
edit_entries
visit

reading=$(
    entry http://first/ Renamed 0 "$(date_of Renamed 6)" 0 0 2
    entry ftp://second/ Second "$(date_of Second 5)" "$(date_of Second 6)" 1 0 4
    entry http://third/ Third 0 "$(date_of Third 6)" 0 0 1
    entry http:// Fifth 0 "$(date_of Fifth 6)" 0 0 0
    printf .
)
keys shift+Tab shift+Tab Up
expect_shown group Work
work=$(
    entry http:// Elsewhere 0 "$(date_of Elsewhere 6)" 0 1 0
    printf .
)
choose_pad Unload
expect_end
printf '+Work\r\n%s+Reading\r\n%s' "${work%.}" "${reading%.}" >"$build/desktop/entries.pns"
expect_same "$build/desktop/entries.pns" "$folder/Pienest.pns"
expect "a first save has no backup" test ! -e "$folder/Pienest.bak"

take_pictures 96
take_pictures 144
use_density 96
