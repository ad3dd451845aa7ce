#!/bin/bash
# The record list sorted by its headings: what a click on each of them does to the rows, and
# what a refresh leaves of it, on both tabs.
. "$(dirname "${BASH_SOURCE[0]}")/journey.sh"

# click_heading N
click_heading() {
    local x y
    read -r x y < <(reads headings | sed -n "$1p")
    click "$x" "$y"
}

# sorted_rows HEADING ROWS: the rows as a click on the heading leaves them. Ratings, dates and
# counts go down, and equal rows are turned round; texts go up, and equal rows stay.
sorted_rows() {
    local -x LC_ALL=C  # the rows are bytes of another code page
    case $1 in
        1 | 2 | 4) sort -f -s -t'|' -k"$1,$1" <<<"$2" ;;
        3) tac <<<"$2" | sed 's/^\([^|]*|[^|]*|\)V/\14V/; s/^\([^|]*|[^|]*|\)H/\13H/
            s/^\([^|]*|[^|]*|\)M/\12M/; s/^\([^|]*|[^|]*|\)L/\11L/
            s/^\([^|]*|[^|]*|\)N/\10N/' | sort -s -t'|' -k3,3r |
            sed 's/^\([^|]*|[^|]*|\)[0-4]/\1/' ;;
        # "Never" is the date of day zero.
        5) tac <<<"$2" | sed 's/|Never|/|0|/' | sort -s -t'|' -k5,5r | sed 's/|0|/|Never|/' ;;
        6) tac <<<"$2" | sort -s -t'|' -k6,6r ;;
        7) tac <<<"$2" | sort -s -t'|' -k7,7nr ;;
    esac
}

# expect_sorted HEADING ROWS
expect_sorted() { expect_shown rows "$(sorted_rows "$1" "$2")"; }

# choose_group KEY NAME: opens the drop-down and goes up or down in it.
choose_group() {
    click_in "$(main_window)" 200 72
    keys "$1" Return
    expect_shown group "$2"
}

sort_rows=(Title Rated Visited LastVisited - URL Created Catagory - ListAll)

# choose_sort ROW: in the menu of "F".
choose_sort() {
    place_of F
    open_menu click $((box_left + box_width / 2)) $((box_top + box_height / 2)) 3
    click_row "$1" "${sort_rows[@]}"
}

# by_text COLUMN ROWS [SORT_OPTION]
by_text() { LC_ALL=C sort -f -s -t'|' ${3:-} -k"$1,$1" <<<"$2"; }

sort_by_headings() {
    local heading before
    news=$(reads rows)
    before=$news
    for heading in 7 6 5 3; do
        click_heading $heading
        expect_sorted $heading "$before"
        before=$(reads rows)
    done
    for heading in 4 2 1; do
        click_heading $heading
        expect_sorted $heading "$news"
    done
    xdotool mousemove 700 900
    sleep 0.5
    import -silent -window "$(main_window)" "$pictures/sorted.png"
}

# As text 9 is more than 10. Without a sort that stays the menu changes nothing.
sort_by_menu() {
    choose_sort Visited
    expect_shown rows "$(by_text 7 "$news" -r)"
    choose_sort Catagory
    expect_shown rows "$(by_text 7 "$news")"
    choose_sort Created
    expect_shown rows "$(by_text 6 "$news")"
    click_heading 7
    expect_sorted 7 "$news"
    choose_sort Title
    sleep 0.5
    expect_sorted 7 "$news"
    click_heading 1
    expect_sorted 1 "$news"
}

counts_fall() { reads rows | cut -d'|' -f7 | sort -nr -c 2>/dev/null; }

# A group comes sorted by title, and after a sort by visits as the file has it.
change_groups() {
    local other
    choose_group Down Programming
    other=$(reads rows)
    expect_text "$(by_text 1 "$other")" "$other"
    click_heading 7
    expect "the counts fall" wait_for 10 counts_fall
    choose_group Up News
    expect_shown rows "$news"
}

# Enter in the field of the text mask, which gets the keyboard by the Tab key from its strip.
confirm_text_mask() {
    click_on "Text Masking"
    sleep 0.3
    click_on "Text Masking"
    sleep 0.3
    keys Tab Return
    sleep 0.5
}

# The other tab's list was never sorted.
sort_other_tab() {
    local all
    click_in "$(main_window)" 45 38
    expect_shown panes $'Viewed: 63\nTotal: 63'
    all=$(reads rows)
    expect_text "$(sed '/^+/d' "$folder/Pienest.pns" | awk -F '\005' '{ print $2 }')" \
        "$(cut -d'|' -f1 <<<"$all")"
    click_heading 7
    expect_sorted 7 "$all"
    confirm_text_mask
    expect_shown rows "$all"
    click_heading 1
    expect_sorted 1 "$all"
    confirm_text_mask
    expect_sorted 1 "$all"
    click_in "$(main_window)" 110 38
    expect_shown rows "$news"
}

journey_begin
mkdir -p "$pictures"
cp "$root/examples/Pienest.pns" "$folder/"
setting ID '2 4500 15000 0 1 0 True False'
setting CF '8 3 0 0 2 2 1 1500 1500 13500 7200 16 0 36500'
setting CH '2400 2400 900 1200 1680 1680 720 '
start_magpie
open_by_pad
expect_shown group News
sort_by_headings
sort_by_menu
change_groups
sort_other_tab
choose_pad Unload
expect_end
