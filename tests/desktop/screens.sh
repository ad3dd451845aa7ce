#!/bin/bash
# The main window's two screens: their pictures at each placement of the tab strip, large
# and small, at 96 and at 144 dots per inch; the group that a tab comes back to; the full
# window by Escape; and all that kept over a restart. Pictures are left in build/screenshots.
. "$(dirname "${BASH_SOURCE[0]}")/journey.sh"

use_density() {
    dpi=$1
    set_value 'HKCU\Control Panel\Desktop' LogPixels "$dpi" REG_DWORD
    wine_stop
    wine_keep_alive
}

# shot NAME: the main window, with the mouse elsewhere.
shot() {
    xdotool mousemove 1270 950
    sleep 0.4
    window_box "$(main_window)"
    import -silent -window root -crop "${box_width}x${box_height}+$box_left+$box_top" +repage \
        "$pictures/$1-$dpi.png"
}

# open_with TAB PLACEMENT GROUP [FLAGS WIDTH HEIGHT]: starts with these settings.
open_with() {
    setting ID "2 $((900 * 1440 / dpi)) $((1150 * 1440 / dpi)) 0 1 0 True False"
    setting CF "${4:-8} 0 0 $2 $1 1 $3 1500 1500 ${5:-9000} ${6:-6000} 31 0 36500"
    start_magpie
    open_by_pad
}

leave() {
    choose_pad Unload
    expect_end
}

# click_tab TAB: of a strip at the top, at 96 dots per inch.
click_tab() { click_in "$(main_window)" $((($1 == 1 ? 45 : 105) * dpi / 96)) $((38 * dpi / 96)); }

# What only the one screen, or only the window with its tabs, has on show.
on_standard() { [[ -n $(reads place F) ]]; }
on_advanced() { [[ -n $(reads place Menu) ]]; }
list_is_alone() { [[ -z $(reads place Views) ]]; }
tabs_are_back() { [[ -n $(reads place Views) ]]; }

# Narrow and wide, each tab, and the list alone.
each_size() {
    local window tab
    open_with 2 0 1
    expect_shown group News
    window=$(main_window)
    for tab in standard advanced; do
        if [[ $tab == advanced ]]; then
            click_tab 1
            expect "the Advanced tab comes up" wait_for 5 on_advanced
        fi
        xdotool windowsize "$window" $((420 * dpi / 96)) $((300 * dpi / 96))
        sleep 0.5
        shot $tab-small
        xdotool windowsize "$window" $((dpi == 96 ? 1100 : 1110)) 800
        sleep 0.5
        shot $tab-large
        keys Escape
        expect "Escape leaves the list alone" wait_for 5 list_is_alone
        shot $tab-full
        keys Escape
        expect "Escape brings the tabs back" wait_for 5 tabs_are_back
    done
    leave
}

placements=(top bottom left right)

each_placement() {
    local placement
    for placement in 0 1 2 3; do
        open_with 2 "$placement" 2
        expect_shown group Programming
        shot "standard-${placements[placement]}"
        # The tab strip comes before what has the keyboard when the window has opened.
        keys shift+Tab Left
        expect "the Advanced tab comes up" wait_for 5 on_advanced
        expect_shown panes $'Viewed: 10\nTotal: 63'
        shot "advanced-${placements[placement]}"
        leave
    done
}

journey_begin
mkdir -p "$pictures"
cp "$root/examples/Pienest.pns" "$folder/"

use_density 144
each_placement
each_size
use_density 96
each_placement
each_size

# A tab comes back to its group, also after the group was changed on the other one.
open_with 2 0 1
expect_shown group News
news=$(reads rows)
click_tab 1
expect "the Advanced tab comes up" wait_for 5 on_advanced
expect_text "$news" "$(reads rows)"
place_of Groups
click $((box_left + 40)) $((box_top + 60))
other_group() { [[ -n $(reads rows) && $(reads rows) != "$news" ]]; }
expect "a click shows another group" wait_for 5 other_group
rows=$(reads rows)
click_tab 2
expect "the Standard tab comes up" wait_for 5 on_standard
expect_text "$rows" "$(reads rows)"

# The list alone, as it is left.
click_tab 1
expect "the Advanced tab comes up" wait_for 5 on_advanced
keys Escape
expect "Escape leaves the list alone" wait_for 5 list_is_alone
panes=$(reads panes)
shot advanced-full
leave
full=$(saved_settings | grep '"CF"')

# The full window, the tab and the group come back.
expect "the settings keep the full window" grep -q '"12 ' <<<"$full"
start_magpie
open_by_pad
expect_shown panes "$panes"
expect "the list comes back alone" list_is_alone
shot advanced-full-again
expect "the window comes back as it was left" cmp -s \
    <(convert "$pictures/advanced-full-$dpi.png" rgb:-) \
    <(convert "$pictures/advanced-full-again-$dpi.png" rgb:-)
rm "$pictures/advanced-full-again-$dpi.png"
leave
expect_text "$full" "$(saved_settings | grep '"CF"')"
