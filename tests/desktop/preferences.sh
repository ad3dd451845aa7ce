#!/bin/bash
# The Preferences dialog: every setting changed by the keyboard, applied, and read back from the
# registry after the end; a Cancel that changes nothing; each page left as a picture at 96 and
# 144 dots per inch in build/screenshots.
. "$(dirname "${BASH_SOURCE[0]}")/journey.sh"

sheet() { window_titled Preferences; }
no_sheet() { ! sheet >/dev/null; }

# By the button's place, which goes with the density.
open_main_menu() { open_menu click_on '<<'; }

open_preferences() {
    choose_settings Preferences
    expect "the dialog opens" wait_for 10 sheet
    sleep 0.6
}

# press KEY...: with time for the dialog to follow.
press() {
    local key
    for key in "$@"; do
        keys "$key"
        sleep 0.15
    done
}

next_page() { press ctrl+Tab; }

pictures_of_pages() {
    local page
    open_preferences
    for page in browser line window files; do
        shot "preferences-$page" "$(sheet)"
        next_page
    done
    press Escape
    expect "Escape closes the dialog" wait_for 5 no_sheet
}

journey_begin
mkdir -p "$pictures"
cp "$dist/Pienest.dll" "$folder/"
cp "$expected/start.pns" "$folder/Pienest.pns"
setting ID '2 4500 15000 0 1 0 False False'
setting CF '8 2 0 0 2 1 2 1500 1500 9000 6000 31 0 36500'
dpi=96
start_magpie
open_by_pad

say "Cancel"
open_preferences
press alt+b Down alt+k
press Escape
expect "Escape closes the dialog" wait_for 5 no_sheet
pictures_of_pages

say "Every setting"
open_preferences
press alt+k alt+b Down Down
next_page
press alt+o Up alt+m alt+i alt+n alt+t
next_page
press alt+s Down alt+w
next_page
press alt+l alt+c alt+g alt+f Down Down
press alt+a
sleep 1
press Escape
expect "the dialog closes" wait_for 5 no_sheet
choose_pad Unload
expect_end
# All but the saving of settings, without which there would be no record, and the pad, which is
# one for the line only by then.
expect_text '"CF"="219 1 2 1 2 1 2 1500 1500 9000 6000 31 2 36500"
"CH"="2400 2400 900 1200 1680 1680 720 "
"ID"="1 4500 15000 0 0 1 True True"' "$(saved_settings)"

say "At 144 dots per inch"
dpi=144
use_density $dpi
pad_pixels=32
setting ID '2 4500 15000 0 1 0 False False'
setting CF '8 2 0 0 2 1 2 1500 1500 9000 6000 31 0 36500'
start_magpie
open_by_pad
pictures_of_pages
choose_pad Unload
expect_end
