#!/bin/bash
# Find and the dialog "Mask Filters" by keys and mouse: the next and the previous row, up
# and down, no match, a found row out of sight; ticks and numbers, good and bad, behind
# which the list is refreshed. Both dialogs are left as pictures at 96 and 144 dots per
# inch in build/screenshots.
. "$(dirname "${BASH_SOURCE[0]}")/journey.sh"

find_up() { window_titled 'Find\.\.\.'; }
no_find() { ! find_up >/dev/null; }
masks_up() { window_titled 'Mask Filters'; }
no_masks() { ! masks_up >/dev/null; }

expect_viewed() { expect_shown panes "Viewed: $1"$'\n'"Total: 63"; }

open_find() {
    keys ctrl+f
    expect "the dialog opens" wait_for 10 find_up
    # The keyboard comes a little after the window.
    sleep 0.4
}

open_masks() {
    click_on F
    expect "the dialog opens" wait_for 10 masks_up
    sleep 0.4
}

# write TEXT: over the contents of the field that has the keyboard.
write() {
    keys Home shift+End Delete
    xdotool type --delay 20 "$1"
}

# masks TICKS MODE COUNT MODE COUNT UNIT: what the dialog shows; TICKS has an x for each
# rating that is ticked and a - for each that is not.
masks() {
    local ratings=("Not Rated" Low Medium High V.High) i
    printf 'Rating Filter\n'
    for ((i = 0; i < 5; ++i)); do
        [[ ${1:i:1} == x ]] && printf '[x] ' || printf '[ ] '
        printf '%s\n' "${ratings[i]}"
    done
    printf 'CLR\nSET\nAccessed\n%s\n"%s"\nTimes\nLast Accessed\n%s\n"%s"\n%s\nFilter\nCancel' "${@:2}"
}


# The dialog's text and direction.
find_shows() {
    expect_shown dialog $'Find What:\n"'"$1"$'"\n&Direction:\n'"$2"$'\nFind Next\nCancel'
}

find_by_keys() {
    click_on Bookmarks
    keys Home
    expect_shown selected Reuters
    open_find
    find_shows '' Down
    xdotool type news
    keys Return
    expect_shown selected 'AP News'
    expect "the dialog stays" find_up
    keys Return
    expect_shown selected 'BBC News'
    # No wrap: behind the last match the selection stays.
    keys Return
    sleep 0.5
    expect_shown selected 'BBC News'
    keys alt+d Up Return
    expect_shown selected 'AP News'
    find_shows news Up
    # Escape closes an open drop-down list, and only then the dialog.
    keys F4
    sleep 0.4
    keys Escape
    sleep 0.4
    expect "the dialog stays" find_up
    keys Escape
    expect "Escape closes the dialog" wait_for 5 no_find
    sleep 0.3
    # The list has the keyboard again.
    keys Down
    expect_shown selected 'BBC News'
}

find_by_mouse() {
    open_find
    find_shows news Down
    xdotool type 'no such title'
    click_on 'Find Next'
    sleep 0.5
    expect_shown selected 'BBC News'
    click_on Cancel
    expect "Cancel closes the dialog" wait_for 5 no_find
    sleep 0.3
    open_find
    find_shows 'no such title' Down
    # An unclosed list is no pattern: nothing happens and the dialog goes on.
    xdotool type '['
    click_on 'Find Next'
    sleep 0.5
    expect_shown selected 'BBC News'
    keys shift+Tab shift+Tab
    xdotool type 't?g'
    click_on 'Find Next'
    expect_shown selected tagesschau
    keys alt+F4
    expect "the close box closes the dialog" wait_for 5 no_find
    sleep 0.3
}

# The menu's commands, once a click has brought it up to date.
find_on() {
    open_find
    xdotool type news
    keys Return Escape
    expect "the dialog closes" wait_for 5 no_find
    sleep 0.3
    click_on Bookmarks
    keys End
    expect_shown selected NPR
    keys ctrl+p
    expect_shown selected 'BBC News'
    keys ctrl+p
    expect_shown selected 'AP News'
    keys ctrl+p
    sleep 0.3
    expect_shown selected 'AP News'
    keys ctrl+n
    expect_shown selected 'BBC News'
}

# A row that is found out of sight stays there.
find_out_of_sight() {
    choose_main ListAll
    expect_viewed 63
    click_on Bookmarks
    keys Home
    expect_shown top Wikipedia
    open_find
    xdotool type museum
    keys Return
    wait_for 5 found_museum || fail "no museum is found: $(reads selected)"
    expect_shown top Wikipedia
    keys Return Escape
    expect "the dialog closes" wait_for 5 no_find
    expect_shown top Wikipedia
    choose_main ListAll
    expect_viewed 8
}
found_museum() { reads selected | grep -qi museum; }

# The pad stays in use under a dialog, and what it brings up comes up behind the dialog.
pad_under_find() {
    click_on Bookmarks
    keys Home
    open_find
    xdotool type news
    click_pad
    expect "the pad hides the main window" wait_for 5 no_main_window
    expect "the dialog stays" find_up
    click_pad
    expect "the pad brings the main window back" wait_for 5 main_window
    sleep 0.5
    # The dialog has the keyboard again.
    keys Return
    expect_shown selected 'AP News'
    choose_pad Restore
    sleep 0.5
    keys Return
    expect_shown selected 'BBC News'
    # It lies in front, and the main window is still held.
    click_in "$(main_window)" 300 200
    sleep 0.3
    expect_shown selected 'BBC News'
    click_on Cancel
    expect "Cancel closes the dialog" wait_for 5 no_find
    sleep 0.3
    # The list has the keyboard again.
    keys Home
    expect_shown selected Reuters
}

use_masks() {
    open_masks
    expect_shown dialog "$(masks xxxxx OFF 0 OFF 0 Days)"
    # By keys: the first two ratings are unticked, and Enter filters.
    keys space Down space Return
    expect_shown dialog "$(masks --xxx OFF 0 OFF 0 Days)"
    expect_viewed 6
    expect "the dialog stays" masks_up
    click_on CLR
    expect_shown dialog "$(masks ----- OFF 0 OFF 0 Days)"
    expect_viewed 6
    click_on Filter
    expect_viewed 0
    click_on SET
    click_on Filter
    expect_viewed 8
    # Visited more than 20 times.
    keys Tab
    click_on SET
    keys Tab Down Tab
    write 20
    expect_shown dialog "$(masks xxxxx 'More Than' 20 OFF 0 Days)"
    keys Return
    expect_viewed "$(counted '$5 > 20')"
    # A text that is no number ends the filter at its field; the ratings before it count.
    write many
    click_on CLR
    click_on Filter
    sleep 0.5
    expect_viewed "$(counted '$5 > 20')"
    expect "the dialog stays" masks_up
    click_on Cancel
    expect "Cancel closes the dialog" wait_for 5 no_masks
    sleep 0.3
    open_masks
    expect_shown dialog "$(masks ----- 'More Than' 20 OFF 0 Days)"
    click_on SET
    keys Tab Home Tab
    write 99999
    click_on Filter
    sleep 0.5
    expect_viewed "$(counted '$5 > 20')"
    keys shift+Tab
    click_on SET
    keys Tab Tab
    write 0
    keys Tab Down Tab
    write 30000
    keys Tab Down Down Return
    expect_shown dialog "$(masks xxxxx OFF 0 'More Than' 30000 Months)"
    # Never visited entries are out, all others of the past are in.
    expect_viewed "$(counted '$3 != 0')"
    keys shift+Tab shift+Tab Home Return Escape
    expect "Escape closes the dialog" wait_for 5 no_masks
    expect_viewed 8
}

# Entries of the group News, the second of the file, that pass; the condition is awk's,
# the fields are those of the file.
counted() {
    awk -F '\005' "/^\\+/ { ++group } group == 2 && NF == 7 && ($1)" "$folder/Pienest.pns" | wc -l
}

take_pictures() {
    dpi=$1
    local twips=$((1440 / dpi))
    setting ID "2 $((300 * twips)) $((1150 * twips)) 0 1 0 False False"
    setting CF "8 0 0 0 2 1 1 $((100 * twips)) $((100 * twips)) 9000 6000 31 0 36500"
    start_magpie
    open_by_pad
    expect_shown group News
    click_on Bookmarks
    keys Home
    open_find
    xdotool type news
    xdotool mousemove 1200 900
    sleep 0.5
    shot find "$(find_up)"
    keys Escape
    expect "Escape closes the dialog" wait_for 5 no_find
    open_masks
    xdotool mousemove 1200 900
    sleep 0.5
    shot mask-filters "$(masks_up)"
    keys Escape
    expect "Escape closes the dialog" wait_for 5 no_masks
    choose_pad Unload
    expect_end
}

journey_begin
mkdir -p "$pictures"
cp "$root/examples/Pienest.pns" "$folder/"
setting ID '2 4500 15000 0 1 0 True False'
setting CF '8 3 0 0 2 1 1 1500 1500 9000 6000 31 0 36500'
start_magpie
open_by_pad
expect_shown group News
find_by_keys
find_by_mouse
find_on
find_out_of_sight
pad_under_find
use_masks
choose_pad Unload
expect_end

use_density 96
take_pictures 96
use_density 144
take_pictures 144
use_density 96
