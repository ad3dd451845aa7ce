#!/bin/bash
# The main window's four popup menus: opened by mouse and by keys, where they open, what
# is grey or ticked in them, lines chosen by mouse, arrows and access keys, and the keys
# that work without a menu. Each open menu is left as a picture at 96 and 144 dots per
# inch in build/screenshots.
. "$(dirname "${BASH_SOURCE[0]}")/journey.sh"

entry_rows=(Add Send - Rate Edit Move - Find - Remove)
sort_rows=(Title Rated Times LastVisited - Url Created Catagory - ListAll)
group_rows=(New Rename - Remove)

# --- Opening ----------------------------------------------------------------

# in_list NAME X Y: prints the place on the screen of a point of a list.
in_list() {
    place_of "$1"
    printf '%s %s' $((box_left + $2 * dpi / 96)) $((box_top + $3 * dpi / 96))
}

# shellcheck disable=SC2046
click_list() { click $(in_list "$1" "$2" "$3") "${4:-1}"; }
third_row=50 # pixels at 96 dots per inch below the top of a list
beside_rows=300

mouse_away() { xdotool mousemove 1200 900; }

# by_key KEY: the menu of what has the keyboard, with the mouse elsewhere.
by_key() {
    mouse_away
    sleep 0.3
    open_menu keys "$1"
}

by_mouse() { open_menu click_list "$@" 3; }

open_sort_menu() {
    place_of F
    open_menu click $((box_left + 5)) $((box_top + 5)) 3
}

open_main_menu() {
    place_of "${1:-<<}"
    open_menu click $((box_left + 5)) $((box_top + 5))
}

no_menu() { ! xdotool getwindowname "$menu" >/dev/null 2>&1 || ! windows_of magpie.exe | grep -qx "$menu"; }

leave_menu() {
    keys Escape
    expect "Escape closes the menu" wait_for 5 no_menu
}

# expect_menu_at X Y WHAT: within a few pixels, for the menu's border.
expect_menu_at() {
    window_box "$menu"
    ((box_left >= $1 - 3 && box_left <= $1 + 3 && box_top >= $2 - 3 && box_top <= $2 + 3)) ||
        fail "the menu is at $box_left,$box_top and not $3 at $1,$2"
}

expect_menu_at_mouse() {
    local X Y SCREEN WINDOW
    eval "$(xdotool getmouselocation --shell)"
    expect_menu_at "$X" "$Y" "at the mouse"
}

# --- Looking ----------------------------------------------------------------

# part_of_row LEFT WIDTH ROW ROW_NAME...: of the menu's picture, as an option of convert.
part_of_row() {
    local at
    at=$(row_middle "${@:3}")
    printf '%sx%s+%s+%s' $(($2 * dpi / 96)) $((12 * dpi / 96)) $(($1 * dpi / 96)) $((at - 6 * dpi / 96))
}

# darkest LEFT WIDTH ROW ROW_NAME...: prints the darkest dot there, 0 black to 99 white.
darkest() {
    sleep 0.3
    import -silent -window "$menu" "$build/desktop/menu.png"
    convert "$build/desktop/menu.png" -crop "$(part_of_row "$@")" +repage -colorspace gray \
        -format '%[fx:int(99*minima)]' info:
}

is_ticked() { (($(darkest 4 12 "$@") < 30)); }
is_grey() { (($(darkest 19 40 "$@") > 20)); }

# expect_grey "ROW..." ROW_NAME...: these rows are grey and no other.
expect_grey() {
    local row grey=" $1 "
    shift
    for row in "$@"; do
        [[ $row != - ]] || continue
        if [[ $grey == *" $row "* ]]; then
            is_grey "$row" "$@" || fail "$row is not grey"
        else
            ! is_grey "$row" "$@" || fail "$row is grey"
        fi
    done
}

expect_viewed() { expect_shown panes "Viewed: $1"$'\n'"Total: ${2:-63}"; }

# --- The journey ------------------------------------------------------------

# The menu of the record list, on rows, beside them, and by the keys.
use_entry_menu() {
    by_mouse Bookmarks 60 $third_row
    expect_menu_at_mouse
    expect_grey "" "${entry_rows[@]}"
    leave_menu
    by_mouse Bookmarks 60 $beside_rows
    expect_menu_at_mouse
    leave_menu

    click_list Bookmarks 60 $third_row
    sleep 0.3
    local key x y
    for key in Menu shift+F10; do
        by_key $key
        read -r x y <<<"$(in_list Bookmarks 2 61)"
        expect_menu_at "$x" "$y" "below the third row"
        expect_grey "" "${entry_rows[@]}"
        leave_menu
    done
    # The next one shows which row has the keyboard.
    keys Down
    by_key Menu
    expect_menu_at "$x" $((y + 14)) "below the fourth row"
    leave_menu
}

# find_is_up: the dialog, once.
find_is_up() { (($(xdotool search --onlyvisible --name '^Find\.\.\.$' 2>/dev/null | wc -l) == 1)); }

leave_find() {
    expect "the dialog opens" wait_for 15 find_is_up
    sleep 0.5
    expect "it opens once" find_is_up
    keys Escape
    expect "Escape closes it" wait_for 5 not find_is_up
}

# "Find", "Find" by an access key and Enter, by the mouse, and by its own key.
use_find() {
    by_key Menu
    open_menu keys f
    sleep 0.3
    keys Return
    leave_find
    by_mouse Bookmarks 60 $third_row
    open_menu click_row Find "${entry_rows[@]}"
    sleep 0.3
    click_row Find Find Next Previous
    leave_find
    keys ctrl+f
    leave_find

    # Find Next has nothing to look for yet.
    by_mouse Bookmarks 60 $third_row
    open_menu click_row Find "${entry_rows[@]}"
    mouse_away
    expect_grey "Next Previous" Find Next Previous
    leave_menu
    keys Escape
    sleep 0.3
}

use_group_menu() {
    by_mouse Groups 60 40
    expect_menu_at_mouse
    expect_grey "" "${group_rows[@]}"
    leave_menu
    local x y
    by_key shift+F10
    read -r x y <<<"$(in_list Groups 2 47)"
    expect_menu_at "$x" "$y" "below the second group"
    leave_menu
    by_key Menu
    keys n
    expect "\"New\" asks for a name" wait_for 5 window_titled 'New Group..'
    sleep 0.3
    keys Escape
    expect "Escape leaves it at that" wait_for 5 no_window_titled 'New Group..'
}

# "List All" from either menu, ticked in both. The group that the right click chose comes
# along to the other tab.
use_list_all() {
    click_tab Standard
    expect_viewed 8
    open_main_menu '<<'
    expect "\"List All\" is not ticked" not is_ticked ListAll "${main_rows[@]}"
    click_row ListAll "${main_rows[@]}"
    expect_viewed 63
    open_main_menu '<<'
    expect "\"List All\" is ticked" is_ticked ListAll "${main_rows[@]}"
    leave_menu
    open_sort_menu
    expect_menu_at_mouse
    expect "\"List All\" is ticked in the other menu" is_ticked ListAll "${sort_rows[@]}"
    expect_grey "" "${sort_rows[@]}"
    click_row ListAll "${sort_rows[@]}"
    expect_viewed 8
    open_sort_menu
    expect "\"List All\" is not ticked there now" not is_ticked ListAll "${sort_rows[@]}"
    leave_menu
    open_main_menu '<<'
    expect "\"List All\" is not ticked here either" not is_ticked ListAll "${main_rows[@]}"
    leave_menu
}

# The sort menu and the main menu by keys.
use_buttons() {
    place_of F
    local x=$box_left y=$((box_top + box_height))
    focus_on F
    local key
    for key in Menu shift+F10; do
        by_key $key
        expect_menu_at "$x" "$y" "below the button"
        leave_menu
    done
    by_key Menu
    keys Up Return
    expect_viewed 63
    by_key Menu
    keys Up Return
    expect_viewed 8
    focus_on '<<'
    # Over the window: when a button is let go, Wine takes the last place of the mouse that
    # it heard of for the present one.
    xdotool mousemove 500 350
    sleep 0.3
    open_menu keys space
    expect_menu_at_mouse
    keys n
    expect "\"New Group\" asks for a name" wait_for 5 window_titled 'New Group..'
    sleep 0.3
    keys Escape
    expect "Escape leaves it at that" wait_for 5 no_window_titled 'New Group..'
}

# An open menu lives through the line's being looked at.
wait_in_menu() {
    click_list Bookmarks 60 $third_row
    by_key Menu
    sleep 5
    expect "the menu is still open" not no_menu
    leave_menu
}

# Without a group there is little to choose.
use_empty() {
    choose_settings Eject
    expect_viewed 0 0
    open_main_menu '<<'
    mouse_away
    expect_grey "Rename Remove" "${main_rows[@]}"
    open_menu click_row Settings "${main_rows[@]}"
    mouse_away
    expect_grey SaveUrls "${settings_rows[@]}"
    keys Escape Escape
    sleep 0.3
    by_mouse Bookmarks 60 $third_row
    expect_menu_at_mouse
    expect_grey "Add Send Rate Edit Move Find Remove" "${entry_rows[@]}"
    click_row Edit "${entry_rows[@]}"
    sleep 0.3
    expect "a grey line can not be chosen" not no_menu
    leave_menu
    by_key Menu
    local x y
    read -r x y <<<"$(in_list Bookmarks 2 2)"
    expect_menu_at "$x" "$y" "in the corner of the empty list"
    leave_menu
    keys ctrl+f
    sleep 0.5
    expect "a grey line's key does nothing in an empty list" not find_is_up
    keys ctrl+a
    expect "the window knows Ctrl+A itself" wait_for 5 window_titled 'URL Information'
    sleep 0.3
    keys Escape
    expect "Escape leaves it at that" wait_for 5 no_window_titled 'URL Information'
    sleep 0.3
    click_tab Advanced
    by_mouse Groups 60 40
    expect_grey "Rename Remove" "${group_rows[@]}"
    leave_menu
    click_tab Standard
}

click_tab() {
    local x=45
    [[ $1 == Advanced ]] || x=105
    click_in "$(main_window)" $((x * dpi / 96)) $((38 * dpi / 96))
    sleep 0.5
}

# focus_on BUTTON: by the Tab key, without pressing it. "F", the groups, "<<" follow the
# tab strip.
focus_on() {
    click_tab Standard
    case $1 in
    F) keys Tab ;;
    '<<') keys Tab Tab Tab ;;
    esac
    sleep 0.2
}

# By its access key, which is the main window's way out.
hide() {
    open_main_menu '<<'
    keys h
    expect "\"Hide\" hides the main window" wait_for 5 no_main_window
    choose_pad Restore
    expect "and it comes back" wait_for 5 main_window
}

# --- Pictures ---------------------------------------------------------------

# menu_shot NAME: the main window with the menus that are open.
menu_shot() {
    sleep 0.4
    shot "menu-$1" "$(main_window)" $((60 * dpi / 96))
}

# open_below ROW ROW_NAME...: a sub-menu, by the keys of the arrow.
take_sub_menu() {
    open_menu click_row "$2" "${@:3}"
    mouse_away
    menu_shot "$1"
    keys Escape
    sleep 0.3
}

take_pictures() {
    dpi=$1
    local twips=$((1440 / dpi)) outer
    use_density "$dpi"
    setting ID "2 600 $((1150 * twips)) 0 1 0 True False"
    setting CF "8 1 0 0 1 1 2 $((100 * twips)) $((100 * twips)) 9900 7800 31 0 36500"
    start_magpie
    open_by_pad
    mouse_away
    click_list Bookmarks 60 $third_row
    by_mouse Bookmarks 60 $third_row
    menu_shot entry
    outer=$menu
    local row
    for row in Add Send Rate Find; do
        menu=$outer
        take_sub_menu "entry-${row,,}" $row "${entry_rows[@]}"
    done
    menu=$outer
    leave_menu
    by_key Menu
    menu_shot entry-by-key
    leave_menu
    by_mouse Groups 60 40
    menu_shot group
    leave_menu
    open_main_menu Menu
    menu_shot main-advanced
    leave_menu
    click_tab Standard
    open_main_menu '<<'
    menu_shot main-standard
    open_menu click_row Settings "${main_rows[@]}"
    outer=$menu
    for row in Open Merge SaveUrls; do
        menu=$outer
        take_sub_menu "main-${row,,}" $row "${settings_rows[@]}"
    done
    keys Escape Escape
    sleep 0.3
    choose_main ListAll
    expect_viewed 63
    open_sort_menu
    menu_shot sort
    leave_menu
    open_main_menu '<<'
    menu_shot main-ticked
    leave_menu
    choose_settings Eject
    expect_viewed 0 0
    by_mouse Bookmarks 60 $third_row
    menu_shot entry-grey
    leave_menu
    choose_pad Unload
    expect_end
}

journey_begin
mkdir -p "$pictures"
cp "$root/examples/Pienest.pns" "$folder/"
dpi=96
setting ID '2 600 17250 0 1 0 True False'
setting CF '8 1 0 0 1 1 2 900 900 9900 7200 31 0 36500'
start_magpie
open_by_pad
mouse_away
expect_viewed 10
use_entry_menu
use_find
use_group_menu
use_list_all
use_buttons
wait_in_menu
hide
use_empty
choose_pad Unload
expect_end
take_pictures 96
take_pictures 144
use_density 96
