#!/bin/bash
# The Preferences dialog: each of its fifteen settings changed by the keyboard, applied, and read
# back from the registry, with the full window, which it only shows; a Cancel that leaves the
# registry as it was; the browsers that are found; the line that is not watched meanwhile, and the
# pad that stays in use; the program's end under it; and each page left as a picture at 96 and 144
# dots per inch in build/screenshots.
. "$(dirname "${BASH_SOURCE[0]}")/journey.sh"
. "$(dirname "${BASH_SOURCE[0]}")/browsers_around.sh"
. "$(dirname "${BASH_SOURCE[0]}")/line_around.sh"

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

# page_shows LINE: among what the page in front has.
page_shows() { reads dialog | grep -qxF -- "$1"; }

as_at_first='"CF"="8 2 0 0 2 1 2 1500 1500 9000 6000 31 0 36500"
"CH"="2400 2400 900 1200 1680 1680 720 "
"ID"="2 4500 15000 0 1 0 False False"'

put_settings() {
    setting ID '2 4500 15000 0 1 0 False False'
    setting CF '8 2 0 0 2 1 2 1500 1500 9000 6000 31 0 36500'
}

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
# On every page.
change_everything() {
    press alt+k alt+b Down Down
    next_page
    press alt+o Up alt+m alt+i alt+p alt+n alt+t
    next_page
    press alt+s Down alt+w
    next_page
    press alt+l alt+c alt+g alt+v alt+f Down Down
}

put_settings
dpi=96
start_magpie
open_by_pad

say "Cancel"
pictures_of_pages
install_browser Opera.EXE
open_preferences
expect "a browser on the computer is named" page_shows "$(windows_path "$folder/browsers/Opera.EXE")"
expect "and others are not found" page_shows 'not found'
next_page
next_page
place_of 'Th&e list fills the whole main window'
xdotool mousemove $((box_left + 20)) $((box_top + 8))
tip_says() { [[ $(reads tip) == "$1" ]]; }
expect "the mouse over what cannot be changed gets to see its tip" wait_for 5 \
    tip_says 'Shown here only: the Escape key in the main window changes it'
press ctrl+shift+Tab ctrl+shift+Tab
change_everything
press Escape
expect "Escape closes the dialog" wait_for 5 no_sheet
choose_pad Unload
expect_end
expect_text "$as_at_first" "$(saved_settings)"

say "Every setting"
put_settings
start_magpie
open_by_pad
open_preferences
change_everything
press alt+a
sleep 1
press Escape
expect "the dialog closes" wait_for 5 no_sheet
expect "the pad is off" not pad
expect_text "$as_at_first" "$(saved_settings)"
keys Escape
sleep 0.5
open_preferences
next_page
next_page
expect "the dialog shows the full window" page_shows '[x] Th&e list fills the whole main window'
shot preferences-full "$(sheet)"
press Escape
expect "the dialog closes" wait_for 5 no_sheet
choose_settings Save
choose_main Unload
expect_end
expect_text '"CF"="255 1 2 1 2 1 2 1500 1500 9000 6000 31 2 36500"
"CH"="2400 2400 900 1200 1680 1680 720 "
"ID"="1 4500 15000 1 0 1 True True"' "$(saved_settings)"

say "The pad, and the line that falls, under the dialog"
use_own_line
line_is online
put_settings
setting ID '1 4500 15000 0 1 0 False False'
start_on_own_line
open_by_pad
open_preferences
click_pad
expect "the pad hides the main window" wait_for 5 no_main_window
click_pad
expect "and brings it back" wait_for 5 main_window
expect "with the dialog over it" wait_for 5 sheet
sleep 0.5
next_page
expect "which has the keyboard" page_shows '[x] Show the &pad'
line_is
sleep 9
expect "the main window stays" main_window
expect "and the dialog over it" sheet
press Escape
expect "the dialog closes" wait_for 5 no_sheet
expect "then the main window goes" wait_for 8 no_main_window
line_is online
line_seen
open_by_pad
say "Without the pad the main window comes up with the line by itself"
open_preferences
next_page
press alt+p alt+m Return
expect "the dialog closes" wait_for 5 no_sheet
expect "the pad is off" wait_for 5 not pad
line_is
expect "the falling line takes the main window away" wait_for 8 no_main_window
line_is online
expect "and brings it" wait_for 8 main_window
expect "the pad stays away" not pad

say "The program's end under the dialog"
open_preferences
next_page
press alt+p alt+a
expect "the pad comes back" wait_for 5 pad
press ctrl+shift+Tab
change_everything
choose_pad Unload
expect_end
expect_text '"ID"="1 4500 15000 0 1 1 False False"' "$(saved_settings | grep '"ID"')"
export WINEDLLOVERRIDES=$no_chatter

say "At 144 dots per inch"
dpi=144
use_density $dpi
pad_pixels=32
put_settings
start_magpie
open_by_pad
pictures_of_pages
choose_pad Unload
expect_end
