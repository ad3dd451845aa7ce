#!/bin/bash
# Pictures of every window, to be looked at: the pad in its four states, the tray menu,
# the main window's two tabs, at 96 and at 144 dots per inch. They are left in
# build/screenshots. The four states of the pad must differ.
. "$(dirname "${BASH_SOURCE[0]}")/journey.sh"

# pad_shot STATE: with the mouse elsewhere, so that no tip lies over it.
pad_shot() {
    [[ $1 == held ]] || { xdotool mousemove 700 900; sleep 0.3; }
    shot "pad-$1" "$(pad)" 8
}

pad_is_not() {
    pad_shot now
    ! cmp -s <(convert "$pictures/pad-now-$dpi.png" rgb:-) <(convert "$pictures/pad-$1-$dpi.png" rgb:-)
}

take_pictures() {
    dpi=$1
    local twips=$((1440 / dpi))
    # Dial-up, which is never up here; then a line that always is.
    setting ID "0 $((300 * twips)) $((1150 * twips)) 0 1 0 False False"
    setting CF "8 0 0 0 2 1 2 $((100 * twips)) $((100 * twips)) 9900 7200 31 0 36500"
    setting CH '2400 2400 900 1200 1680 1680 720 '
    start_magpie
    pad_shot offline
    choose_pad Unload
    expect_end

    setting ID "2 $((300 * twips)) $((1150 * twips)) 0 1 0 False False"
    start_magpie
    expect "the pad shows that the line is up" pad_is_not offline
    pad_shot flushed
    open_by_pad
    expect "the pad shows that all is ready" wait_for 10 pad_is_not flushed
    pad_shot ready
    window_box "$(pad)"
    xdotool mousemove $((box_left + 10)) $((box_top + 12)) mousedown 1
    sleep 0.3
    pad_shot held
    xdotool mouseup 1
    expect "the click hides the main window" wait_for 5 no_main_window
    open_menu click_pad 3
    sleep 0.3
    shot tray-menu "$menu"
    click_in "$menu" 40 12
    expect "the menu's first row shows the main window" wait_for 5 main_window

    choose_pad Restore
    xdotool mousemove 700 900
    sleep 0.5
    shot standard "$(main_window)"
    click_in "$(main_window)" $((45 * dpi / 96)) $((38 * dpi / 96))
    expect_shown panes $'Viewed: 10\nTotal: 63'
    xdotool mousemove 700 900
    sleep 0.5
    shot advanced "$(main_window)"
    choose_pad Unload
    expect_end
    rm "$pictures/pad-now-$dpi.png"
    differ pad-offline pad-flushed pad-ready pad-held
}

differ() {
    local sums
    sums=$(for name in "$@"; do convert "$pictures/$name-$dpi.png" rgb:- | cksum; done | sort -u | wc -l)
    expect_text $# "$sums"
}

journey_begin
mkdir -p "$pictures"
cp "$root/examples/Pienest.pns" "$folder/"
use_density 96
take_pictures 96
use_density 144
take_pictures 144
use_density 96
