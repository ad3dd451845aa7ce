#!/bin/bash
# The help in the system's viewer: its first topic from both menus, and the topic of each Help
# button: those of the four pages of Preferences, and that of the about box, whichever menu it
# was opened from.
. "$(dirname "${BASH_SOURCE[0]}")/journey.sh"

viewer() { window_titled 'Magpie Help'; }
no_viewer() { ! viewer >/dev/null; }
sheet() { window_titled Preferences; }
no_sheet() { ! sheet >/dev/null; }
about() { window_titled 'About Magpie'; }
about_boxes() { (($(xdotool search --onlyvisible --name '^About Magpie$' | wc -l) == $1)); }
no_about() { ! about >/dev/null; }

# The viewer says which pages it goes to.
asked_for() { tail -n "+$((asked_before + 1))" "$logs/$journey.log" | grep -qi "navigate_url.*PNSHelp.chm::/$1"; }

# expect_topic PAGE COMMAND...: the viewer comes up with that page; and goes.
expect_topic() {
    local page=$1
    shift
    asked_before=$(wc -l <"$logs/$journey.log")
    "$@"
    expect "the help comes up" wait_for 20 viewer
    expect "with the page $page" wait_for 10 asked_for "$page"
    sleep 0.5
    shot "help-${page%.html}" "$(viewer)"
    focus "$(viewer)"
    keys alt+F4
    expect "the help goes away" wait_for 10 no_viewer
}

press_key() { keys "$1"; }

press_about_help() {
    expect "the about box comes up" wait_for 10 about
    focus "$(about)"
    keys Tab space
}

close_about() {
    focus "$(about)"
    keys Escape
    expect "the about box goes away" wait_for 10 no_about
}

journey_begin
dpi=96
mkdir -p "$pictures"
cp "$dist/Pienest.dll" "$dist/PNSHelp.chm" "$folder/"
setting ID '2 4500 15000 0 1 0 False False'
setting CF '8 0 0 0 2 1 2 1500 1500 9000 6000 31 0 36500'
WINEDEBUG=-all,+htmlhelp start_magpie
open_by_pad

say "From the menus"
expect_topic welcome.html choose_main Help
expect_topic welcome.html choose_pad Help

say "From Preferences"
choose_settings Preferences
expect "the dialog opens" wait_for 10 sheet
for page in browser line window files; do
    focus "$(sheet)"
    expect_topic "preferences_$page.html" press_key alt+h
    focus "$(sheet)"
    keys ctrl+Tab
    sleep 0.3
done
keys Escape
expect "the dialog closes" wait_for 5 no_sheet

say "From the about box"
for menu_of in main pad; do
    choose_$menu_of About
    expect_topic about.html press_about_help
    close_about
done

say "From an about box over another one"
choose_main About
expect "the about box comes up" wait_for 10 about
choose_pad About
expect "a second one comes up" wait_for 10 about_boxes 2
sleep 0.5
keys Escape
expect "it goes away" wait_for 10 about_boxes 1
sleep 0.5
expect_topic about.html press_about_help
close_about
choose_pad Unload
expect_end
