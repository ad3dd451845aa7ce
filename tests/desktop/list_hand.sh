# shellcheck shell=bash disable=SC2034
# What the journeys over the record list share: its rows and what is done to them by mouse, the
# entry menu, groups, what the rows say of the stack file, and another program that drags
# something over the window. Sourced after journey.sh, never run. `dpi` is the density of the
# screen.

entry_rows=(Add Send - Rate Edit Move - Find - Remove)
rate_rows=(NotRated Low Medium High VeryHigh)
send_rows=(LastActive NewWindow - Folder)

# --- Rows -------------------------------------------------------------------

# row_place N: prints the place on the screen of the n-th row of the list.
row_place() {
    place_of Bookmarks
    printf '%s %s' $((box_left + 60 * dpi / 96)) $((box_top + (12 + 14 * $1) * dpi / 96))
}

# shellcheck disable=SC2046
click_row_of_list() { click $(row_place "$1") "${2:-1}"; }

# select_rows TITLES ROW...: the first by a click, the others by Ctrl and a click.
select_rows() {
    local titles=$1 row
    click_row_of_list "$2"
    xdotool keydown ctrl
    for row in "${@:3}"; do click_row_of_list "$row"; done
    xdotool keyup ctrl
    expect_shown selected "$titles"
}

# choose ROW_OF_LIST ROW [ROW_BELOW ROW_NAME...]: in the menu over that row.
choose() {
    open_menu click_row_of_list "$1" 3
    if (($# == 2)); then
        click_row "$2" "${entry_rows[@]}"
    else
        open_menu click_row "$2" "${entry_rows[@]}"
        click_row "${@:3}"
    fi
}

titles() { reads rows | cut -d'|' -f"${1:-1}" | paste -sd' '; }
shows_titles() { [[ $(titles) == "$1" ]]; }
expect_titles() { wait_for 10 shows_titles "$1" || expect_text "$1" "$(titles)"; }

# The keyboard comes a little after the window.
keyboard_comes() { sleep 0.4; }

# --- Groups of the Standard tab ---------------------------------------------

name_asked() { window_titled '(New|Rename) Group\.\.'; }

# answer_name NAME: the question for a group's name, over whatever name it offers.
answer_name() {
    expect "a name is asked for" wait_for 10 name_asked
    keyboard_comes
    xdotool type --delay 20 "$1"
    keys Return
    expect "the question goes away" wait_for 10 not name_asked
}

new_group() {
    choose_main New
    answer_name "$1"
    expect_shown group "$1"
}

# --- The stack file as the rows have it -------------------------------------

# spelled DATE_TEXT: as the stack file spells a date: the day and the first five digits of
# its fraction, as hexadecimal numbers.
spelled() {
    local day seconds digits
    [[ $1 != Never ]] || { printf 0; return; }
    day=$(($(date -u -d "${1% *}" +%s) / 86400 + 25569))
    seconds=$(($(date -u -d "1970-01-01 ${1#* }" +%s)))
    digits=$((seconds * 100000 / 86400))
    if ((seconds * 100000 % 86400 == 0)); then
        while ((digits % 10 == 0)); do digits=$((digits / 10)); done
    fi
    printf '%X%X' "$day" "$digits"
}

# date_of TITLE COLUMN: of a row in view, spelled: column 5 the last visit, 6 the creation.
date_of() {
    local text
    text=$(reads rows | awk -F'|' -v title="$1" -v column="$2" '$1 == title { print $column }')
    [[ -n $text ]] || fail "no row \"$1\""
    spelled "$text"
}

# entry URL TITLE VISITED_DATE CREATED_DATE VISITS CATAGORY RATING: a line of the file.
entry() {
    local IFS=$'\5'
    printf '%s\r\n' "$*"
}

# --- Drags from another program ---------------------------------------------

# start_dragger ARGUMENT...: the other program, away from the main window.
start_dragger() {
    wine "$tools/dragger.exe" 1150 100 "$@" </dev/null >>"$folder/drag.log" 2>/dev/null &
    other=$!
    expect "the other program appears" wait_for 10 window_titled Dragger
}

end_dragger() {
    kill "$other"
    wait "$other" 2>/dev/null || true
    expect "the other program goes" wait_for 10 not window_titled Dragger
}

# drag X Y: from there to a point of the screen, as a hand would.
drag() {
    local x=$1 y=$2 step
    : >"$folder/drag.log"
    xdotool mousemove 1180 130
    sleep 0.3
    xdotool mousedown 1
    sleep 0.3
    for step in 1 2 3 4; do
        xdotool mousemove $((1180 + (x - 1180) * step / 4)) $((130 + (y - 130) * step / 4))
        sleep 0.15
    done
    sleep 0.2
    xdotool mouseup 1
}

drag_ended() { grep -qE 'taken|refused' "$folder/drag.log"; }

# expect_drag WORDS: the cursor over the goal, and what became of the drag.
expect_drag() {
    wait_for 10 drag_ended || fail "the drag does not end: $(tr -d '\r' <"$folder/drag.log" | paste -sd' ')"
    expect_text "$1" "$(tr -d '\r' <"$folder/drag.log" | tail -n2 | paste -sd' ')"
}
