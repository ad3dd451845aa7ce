#!/bin/bash
# The companion library: Favorites and a bookmark file are imported and saved, byte by byte; the
# about box opens from both menus, over a main window that is always on top as well, and so does
# the report of an import; letters and the web site go to the shell; the program ends under each of
# its boxes; and without the library, or with a broken one, it goes on.
. "$(dirname "${BASH_SOURCE[0]}")/journey.sh"
. "$(dirname "${BASH_SOURCE[0]}")/line_around.sh"

box() { window_titled "$1"; }
no_box() { ! window_titled "$1" >/dev/null; }

box_comes() {
    expect "the box \"$1\" comes up" wait_for 15 box "$1"
    sleep 0.5
}

# close_box TITLE: by its default button.
close_box() {
    box_comes "$1"
    focus "$(box "$1")"
    keys Return
    expect "the box \"$1\" goes away" wait_for 10 no_box "$1"
}

# height WINDOW: its place among the windows on the screen, the lowest first.
height() {
    xprop -root _NET_CLIENT_LIST_STACKING | grep -o '0x[0-9a-f]*' |
        grep -nxF "$(printf '0x%x' "$1")" | cut -d: -f1
}

# expect_above_main TITLE: the box is, and the main window is on top of all others.
expect_above_main() {
    box_comes "$1"
    expect "the box is above the main window" test "$(height "$(box "$1")")" -gt \
        "$(height "$(main_window)")"
}

# expect_main_held: the button with the menu does nothing.
expect_main_held() {
    local before
    before=$(windows_of magpie.exe)
    click_in "$(main_window)" -44 72
    sleep 1
    expect "the main window is held" not menu_beside "$before"
}

# hundred_thousandths: of a day, since the first day of dates; the time on the clock here.
hundred_thousandths() {
    local offset seconds
    offset=$(date +%z)
    seconds=$((10#${offset:1:2} * 3600 + 10#${offset:3:2} * 60))
    printf '%s' $((($(date +%s) ${offset:0:1} seconds + 25569 * 86400) * 100000 / 86400))
}

# What the stack file has to be, with "@" in the place of the date of creation.
group() { printf '+%s\r\n' "$1"; }
entry() { printf '%s\005%s\0050\005@\0050\0050\0050\r\n' "$@"; }

# created_since TIME: each entry was, and not later than now; a date is a day of four digits and
# the first five digits of its fraction, without zeros at the end and as a number.
created_since() {
    local date now found=0
    now=$(hundred_thousandths)
    for date in $(tr '\005' ' ' <"$folder/Pienest.pns" |
        LC_ALL=C sed -nE 's/.* 0 ([0-9A-F]+) 0 0 0\r$/\1/p'); do
        is_between "$1" "$now" $((16#${date:0:4} * 100000)) $((16#${date:4})) ||
            fail "created at $date, not from $1 to $now"
        found=$((found + 1))
    done
    expect_text 4 "$found"
}

# is_between BEGIN END DAY FRACTION
is_between() {
    local zeros
    for zeros in 1 10 100 1000 10000; do
        (($3 + $4 * zeros < $1 || $3 + $4 * zeros > $2)) || return 0
    done
    return 1
}

url_file() { printf '[InternetShortcut]\r\nURL=%s\r\n' "$2" >"$1"; }

journey_begin
dpi=96
mkdir -p "$pictures"
favorites=$(echo "$WINEPREFIX"/drive_c/users/*/Favorites | tr ' ' '\n' | grep -v Public | head -1)
mkdir -p "$favorites/Deep/Deeper"
url_file "$favorites/Front page.url" http://server/
url_file "$favorites/Deep/Deeper/Two.url" http://two/
printf 'nothing' >"$favorites/Empty.url"
# Round and round: each folder counts once.
ln -s ../.. "$favorites/Deep/Deeper/Round"
cat >"$folder/bookmarks.htm" <<'END'
<!DOCTYPE NETSCAPE-Bookmark-file-1>
<DL><p>
    <DT><A HREF="http://top/">Top</A>
    <DT><H3>Folder</H3>
    <DL><p>
        <DT><A HREF="http://in/?a=1&amp;b=2">In &amp; out: caf&eacute;</A>
    </DL><p>
</DL><p>
END
for receiver in Browsers Mailers; do
    printf '#!/bin/sh\nprintf "%%s\\n" "$1" >>"%s"\n' "$folder/$receiver.txt" >"$folder/$receiver.sh"
    chmod +x "$folder/$receiver.sh"
    set_value 'HKCU\Software\Wine\WineBrowser' $receiver "$folder/$receiver.sh"
done
cp "$dist/Pienest.dll" "$folder/"

# put_settings FLAGS: of the record "CF".
put_settings() {
    setting ID '2 4500 15000 0 1 0 False False'
    setting CF "$1 0 0 0 2 1 2 1500 1500 9000 6000 31 0 36500"
}

say "Import"
put_settings 8
start_time=$(hundred_thousandths)
start_magpie
open_by_pad
choose_settings Merge Favorites "${merge_rows[@]}"
box_comes Import
expect_text '2 links in 2 groups were imported. 1 link without an address was skipped.' \
    "$(reads box Import)"
shot companion-import "$(box Import)"
close_box Import
choose_settings Merge Netscape "${merge_rows[@]}"
name_file 'Import Netscape Bookmarks' "$folder/bookmarks.htm"
close_box Import
# An import alone is no change that would be saved at the end.
choose_settings SaveUrls Default "${save_rows[@]}"

say "About, letters and the web site"
choose_main About
box_comes 'About Magpie'
expect_text "Magpie
Version $(wine "$tools/version_reader.exe" "$(windows_path "$folder/Magpie.exe")" | tr -d '\r')

magpie@fennelworks.example
https://fennelworks.example/magpie/" "$(reads box 'About Magpie')"
shot companion-about "$(box 'About Magpie')"
close_box 'About Magpie'
choose_tray About
close_box 'About Magpie'
went() { grep -qxF -- "$2" "$folder/$1.txt" 2>/dev/null; }
choose_tray Contact
expect "a letter goes to the mail program" wait_for 10 went Mailers mailto:magpie@fennelworks.example
choose_tray WebSite
expect "the web site goes to the browser" wait_for 10 went Browsers https://fennelworks.example/magpie/
choose_tray Unload
expect_end
{
    group Favorites
    entry http://server/ 'Front page'
    group 'Deep - Deeper'
    entry http://two/ Two
    group Bookmarks
    entry http://top/ Top
    group Folder
    entry 'http://in/?a=1&b=2' $'In & out: caf\xE9'
} >"$folder/wanted.pns"
LC_ALL=C sed -E 's/^(([^\x05]*\x05){3})[0-9A-F]+\x05/\1@\x05/' "$folder/Pienest.pns" >"$folder/masked.pns"
expect_same "$folder/wanted.pns" "$folder/masked.pns"
created_since "$start_time"

say "Over a main window that is always on top"
put_settings 10
start_magpie
open_by_pad
# The menu of the tray icon would hide it.
for menu_of in main pad; do
    choose_$menu_of About
    expect_above_main 'About Magpie'
    close_box 'About Magpie'
done
choose_settings Merge Favorites "${merge_rows[@]}"
expect_above_main Import
expect_main_held
close_box Import
choose_settings Merge Netscape "${merge_rows[@]}"
name_file 'Import Netscape Bookmarks' "$folder/bookmarks.htm"
expect_above_main Import
expect_main_held
close_box Import
choose_tray Unload
expect_end

say "The program's end under its boxes"
for below in About Favorites; do
    start_magpie
    open_by_pad
    if [[ $below == About ]]; then
        choose_main About
        box_comes 'About Magpie'
    else
        choose_settings Merge Favorites "${merge_rows[@]}"
        box_comes Import
    fi
    choose_pad Unload
    expect_end
done

say "Without a folder of Favorites"
set_value 'HKCU\Software\Microsoft\Windows\CurrentVersion\Explorer\User Shell Folders' Favorites \
    'Q:\nowhere'
start_magpie
open_by_pad
choose_settings Merge Favorites "${merge_rows[@]}"
box_comes Import
expect_text 'No links were imported. 1 file or folder could not be read.' "$(reads box Import)"
close_box Import
choose_tray Unload
expect_end

# still_in_order: the main window is above all others again, and the line is watched.
on_top() { xprop -id "$(main_window)" _NET_WM_STATE | grep -q _NET_WM_STATE_ABOVE; }
still_in_order() {
    sleep 1
    expect "nothing has come up" no_box 'About Magpie'
    expect "nor this" no_box Preferences
    expect "the main window is on top" on_top
}

say "Without the library, and with a broken one"
use_own_line
line_is online
for state in missing broken; do
    rm "$folder/Pienest.dll" 2>/dev/null || true
    [[ $state == missing ]] || printf 'no library' >"$folder/Pienest.dll"
    put_settings 10
    setting ID '1 4500 15000 0 1 0 False False'
    start_on_own_line
    open_by_pad
    choose_main About
    still_in_order
    choose_settings Preferences
    still_in_order
    choose_settings Merge Favorites "${merge_rows[@]}"
    still_in_order
    choose_settings Merge Netscape "${merge_rows[@]}"
    still_in_order
    choose_pad WebSite
    still_in_order
    line_is
    expect "the line is watched: its fall takes the main window away" wait_for 9 no_main_window
    line_is online
    choose_tray Unload
    expect_end
done
export WINEDLLOVERRIDES=$no_chatter
