#!/bin/bash
# The side panel of the Advanced tab: its three faces, group ticks, strips opened, shut,
# dragged and turned by the wheel, "Apply Filter" with good and bad numbers, and what of
# it comes back after a restart. Each face is left as a picture at 96 and 144 dots per
# inch in build/screenshots.
. "$(dirname "${BASH_SOURCE[0]}")/journey.sh"

groups=(Reference News Programming Science Weather "Maps and travel" Libraries Museums)
list_shown() { printf '<<\nMenu\n>>\n%s' "$1"; for row in "${@:2}"; do printf '\n%s' "$row"; done; }
ticked() { for group in "${groups[@]}"; do printf '%s\n' "[x] $group"; done; }
row_of_buttons=("Set All" CLR Filter)

# strips RATINGS VISITED LAST ADDED TEXT: the Filter face; each strip's contents, line
# by line, or nothing for one that is shut.
strips() {
    local captions=("Importance Masks" Visited "Last Accessed" Added "Text Masking") i lines=()
    for ((i = 0; i < 5; ++i)); do
        lines+=("${captions[i]}")
        [[ -z ${*:i+1:1} ]] || lines+=("${@:i+1:1}")
    done
    list_shown "${lines[@]}" "Apply Filter"
}
all_ratings=$'[x] Not Rated\n[x] Low\n[x] Medium\n[x] High\n[x] Very High\nClear\nSet'
no_ratings=${all_ratings//\[x\]/[ ]}
visits_off=$'OFF\n"0"\nTimes'
date_off=$'OFF\n"0"\nDays'

# counted CONDITION: how many entries of the sample file pass; the condition is awk's, the
# fields are those of the file.
counted() { awk -F '\005' "!/^\\+/ && NF == 7 && ($1)" "$folder/Pienest.pns" | wc -l; }
expect_viewed() { expect_shown panes "Viewed: $1"$'\n'"Total: 63"; }

top_of() {
    place_of "$1"
    printf '%s' "$box_top"
}
stands() { [[ $(top_of "$1") == "$2" ]]; }

# drag FROM_X FROM_Y DOWN: with the left button, step by step as a hand does.
drag() {
    local step=$(($3 > 0 ? 4 : -4)) moved
    xdotool mousemove "$1" "$2"
    sleep 0.2
    xdotool mousedown 1
    for ((moved = step; moved != $3; moved += step)); do
        xdotool mousemove "$1" $(($2 + moved))
        sleep 0.02
    done
    xdotool mousemove "$1" $(($2 + $3))
    sleep 0.2
    xdotool mouseup 1
}

# turn_wheel X Y BUTTON TIMES: 4 is up, 5 is down.
turn_wheel() {
    xdotool mousemove "$1" "$2"
    sleep 0.2
    xdotool click --repeat "$4" --delay 40 "$3"
}

# to_end BUTTON: as far as the wheel turns the panel, beside its fields: on a field's very
# edge Wine drops the wheel.
to_end() {
    place_of "Apply Filter"
    turn_wheel $((box_left + box_width - 3)) $((box_top - 60)) "$1" 30
    sleep 0.5
}

# write TEXT: over the contents of the field that has the keyboard.
write() {
    keys Home shift+End Delete
    xdotool type --delay 20 "$1"
}

# tab_from TEXT TIMES: puts the keyboard so many controls behind the strip's button by a
# click on it and the Tab key; the strip ends up as it was.
tab_from() {
    click_on "$1"
    sleep 0.3
    click_on "$1"
    sleep 0.3
    local i
    for ((i = 0; i < $2; ++i)); do keys Tab; done
}

open_main() {
    start_magpie
    open_by_pad
    xdotool mousemove 1200 900
}

use_groups() {
    expect_shown panel "$(list_shown "Group List" "${groups[@]}")"
    click_on '<<'
    expect_shown panel "$(list_shown "Index Mask" "$(ticked)" "${row_of_buttons[@]}")"
    expect_viewed 8
    click_on Filter
    expect_viewed 63
    place_of Groups
    click $((box_left + 60)) $((box_top + 28))
    keys space
    click_on Filter
    expect_viewed 55
    click_on CLR
    expect_viewed 55
    click_on Filter
    expect_viewed 0
    click_on 'Set All'
    expect_viewed 0
    click_on Filter
    expect_viewed 63
}

use_strips() {
    local visited last
    click_on '<<'
    expect_shown panel "$(strips "$all_ratings" "$visits_off" "$date_off" "$date_off" '""')"
    visited=$(top_of Visited)
    click_on "Importance Masks"
    expect_shown panel "$(strips "" "$visits_off" "$date_off" "$date_off" '""')"
    (($(top_of Visited) < visited)) || fail "a shut strip does not bring the next one up"
    keys space
    expect_shown panel "$(strips "$all_ratings" "$visits_off" "$date_off" "$date_off" '""')"
    expect "the space bar brings it back" stands Visited "$visited"

    # On the frame right of the boxes, then on a strip's button, which is no click.
    place_of "Very High"
    drag $((box_left + box_width + 8)) "$box_top" -60
    expect "the panel follows the mouse" stands Visited $((visited - 60))
    place_of Visited
    drag $((box_left + 20)) $((box_top + 6)) 40
    expect "the panel follows a drag by a button" stands Visited $((visited - 20))
    place_of "Very High"
    drag "$box_left" $((box_top + box_height + 2)) 400
    expect "the panel's beginning stops at the viewport's" stands Visited "$visited"

    # Over the choice of the strip's mode, which stays as it is.
    place_of Visited
    turn_wheel "$box_left" $((box_top + 34)) 5 1
    expect "the wheel turns the panel" wait_for 2 stands Visited $((visited - 27))
    to_end 5
    last=$(top_of "Text Masking")
    to_end 5
    expect "the panel's end stays in sight" stands "Text Masking" "$last"
    place_of "Apply Filter"
    ((last < box_top)) || fail "the last strip is out of reach"
    to_end 4
    expect "the wheel turns the panel back" stands Visited "$visited"
}

# By the keyboard: the mode of "Visited", then its number.
visited_mask() {
    tab_from Visited 1
    keys Home "${@:2}" Tab
    write "$1"
    click_on "Apply Filter"
}

use_masks() {
    visited_mask 20 Down
    expect_viewed "$(counted '$5 > 20')"
    visited_mask 20 Down Down
    expect_viewed "$(counted '$5 < 20')"
    visited_mask 14 Down Down Down
    expect_viewed "$(counted '$5 == 14')"
    # Nothing is listed anew for what is no 16-bit number.
    for bad in x 32768 ''; do
        visited_mask "$bad"
        sleep 0.5
        expect_viewed "$(counted '$5 == 14')"
    done
    visited_mask 0
    expect_viewed 63

    click_on High
    click_on Clear
    click_on Medium
    expect_viewed 63
    click_on "Apply Filter"
    expect_viewed "$(counted '$7 + 0 == 2')"
    click_on Set
    click_on "Apply Filter"
    expect_viewed 63
    to_end 5
    tab_from "Text Masking" 1
    write wiki
    keys Return
    expect_viewed "$(counted 'tolower($2) ~ /wiki/')"
    write ''
    keys Return
    expect_viewed 63
    to_end 4
}

# The records keep the face and the strips. The masks last as long as the program.
come_back() {
    visited_mask 20 Down
    click_on "Importance Masks"
    click_on Added
    choose_pad Flush
    expect "a flush takes the main window away" wait_for 10 no_main_window
    line_seen
    open_by_pad
    xdotool mousemove 1200 900
    expect_shown panel "$(strips "" $'More Than\n"20"\nTimes' "$date_off" "" '""')"
    expect_viewed "$(counted '$5 > 20')"
    choose_pad Unload
    expect_end
    expect_text "2 22" "$(saved_settings | sed -n 's/^"CF"="\(.*\)"$/\1/p' | cut -d ' ' -f 6,12)"
    open_main
    expect_shown panel "$(strips "" "$visits_off" "$date_off" "" '""')"
    expect_viewed 63
    choose_pad Unload
    expect_end
}

# take_pictures DPI: each face, and the strips all shut.
take_pictures() {
    dpi=$1
    local twips=$((1440 / dpi)) face
    local names=(mask groups filter) strip
    use_density "$dpi"
    setting ID "2 $((40 * twips)) $((1150 * twips)) 0 1 0 True False"
    setting CF "8 0 0 0 1 1 2 $((60 * twips)) $((60 * twips)) 9000 $((800 * twips > 9000 ? 9000 : 800 * twips)) 31 0 36500"
    open_main
    for face in 1 2 0; do
        expect "the main window is there" wait_for 5 main_window
        xdotool mousemove 1200 900
        sleep 0.5
        shot "face-${names[face]}" "$(main_window)"
        if ((face == 2)); then
            to_end 5
            shot "face-filter-end" "$(main_window)"
            to_end 4
            for strip in "Importance Masks" Visited "Last Accessed" Added "Text Masking"; do
                click_on "$strip"
                sleep 0.3
            done
            xdotool mousemove 1200 900
            sleep 0.5
            shot "face-filter-shut" "$(main_window)"
        fi
        click_on '>>'
    done
    choose_pad Unload
    expect_end
}

journey_begin
mkdir -p "$pictures"
cp "$root/examples/Pienest.pns" "$folder/"
setting ID '2 600 17250 0 1 0 True False'
setting CF '8 0 0 0 1 1 0 900 900 9900 9900 31 0 36500'
open_main
use_groups
use_strips
use_masks
come_back
take_pictures 96
take_pictures 144
use_density 96
