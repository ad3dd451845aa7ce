#!/bin/bash
# The main window by the keyboard alone, and the tool tips under the mouse.
. "$(dirname "${BASH_SOURCE[0]}")/journey.sh"

# hover WINDOW X Y TIP
hover() {
    window_box "$1"
    xdotool mousemove $((box_left + $2)) $((box_top + $3))
    sleep 0.1
    # A hand is never quite still.
    xdotool mousemove_relative 1 0
    expect_shown tip "$4"
}

journey_begin
cp "$root/examples/Pienest.pns" "$folder/"
setting ID '2 4500 15000 0 1 0 True False'
setting CF '8 3 0 0 2 1 1 1500 1500 9000 6000 31 0 36500'
start_magpie
open_by_pad
expect_shown group News

# "F" has the keyboard first, then the groups, "<<", the list and the tab strip.
xdotool mousemove 1100 800
sleep 0.3
keys Tab Down
expect_shown group Programming
expect_shown panes $'Viewed: 10\nTotal: 63'
keys End
expect_shown group Museums
keys shift+Tab shift+Tab Left
on_advanced() { [[ -n $(reads place Menu) ]]; }
expect "the Advanced tab comes up" wait_for 5 on_advanced
expect_shown panes $'Viewed: 8\nTotal: 63'
reads rows | head -n 1 | grep -q '|Museums|' || fail "the Advanced tab shows another group"
keys Right
expect "the Standard tab comes up" wait_for 5 not on_advanced
expect_shown group Museums

hover "$(main_window)" 40 40 'Advanced URL View Pane'
hover "$(main_window)" 105 40 'Standard URL View Pane'
hover "$(main_window)" 26 69 'Rating Filters'
hover "$(main_window)" 40 386 'Display Information'
hover "$(pad)" 8 10 'Status: Online: Ready'

choose_pad Unload
expect_end
