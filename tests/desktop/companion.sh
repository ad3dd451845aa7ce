#!/bin/bash
# The companion library: Favorites and a bookmark file are imported and saved, the about box
# opens from both menus, the web site goes to the shell; and without the library, or with a
# broken one, the program goes on.
. "$(dirname "${BASH_SOURCE[0]}")/journey.sh"

box() { window_titled "$1"; }
no_box() { ! window_titled "$1" >/dev/null; }

# close_box TITLE: by its default button, with a picture of it left behind.
close_box() {
    expect "the box \"$1\" comes up" wait_for 15 box "$1"
    sleep 0.5
    shot "companion-${1// /-}" "$(box "$1")"
    focus "$(box "$1")"
    keys Return
    expect "the box \"$1\" goes away" wait_for 10 no_box "$1"
}

# saved_entries: groups, addresses and titles of the stack file, without the dates.
saved_entries() { tr '\005' '|' <"$folder/Pienest.pns" | tr -d '\r' | cut -d '|' -f 1,2; }

url_file() { printf '[InternetShortcut]\r\nURL=%s\r\n' "$2" >"$1"; }

journey_begin
dpi=96
mkdir -p "$pictures"
favorites=$(echo "$WINEPREFIX"/drive_c/users/*/Favorites | tr ' ' '\n' | grep -v Public | head -1)
mkdir -p "$favorites/Deep/Deeper"
url_file "$favorites/Front page.url" http://server/
url_file "$favorites/Deep/Deeper/Two.url" http://two/
printf 'nothing' >"$favorites/Empty.url"
cat >"$folder/bookmarks.htm" <<'END'
<!DOCTYPE NETSCAPE-Bookmark-file-1>
<DL><p>
    <DT><A HREF="http://top/">Top</A>
    <DT><H3>Folder</H3>
    <DL><p>
        <DT><A HREF="http://in/?a=1&amp;b=2">In &amp; out</A>
    </DL><p>
</DL><p>
END
printf '#!/bin/sh\nprintf "%%s\\n" "$1" >>"%s"\n' "$folder/visited.txt" >"$folder/browser.sh"
chmod +x "$folder/browser.sh"
set_value 'HKCU\Software\Wine\WineBrowser' Browsers "$folder/browser.sh"
cp "$dist/Pienest.dll" "$folder/"
setting ID '2 4500 15000 0 1 0 False False'
setting CF '8 0 0 0 2 1 2 1500 1500 9000 6000 31 0 36500'

say "Import"
start_magpie
open_by_pad
choose_settings Merge Favorites "${merge_rows[@]}"
close_box Import
choose_settings Merge Netscape "${merge_rows[@]}"
name_file 'Import Netscape Bookmarks' "$folder/bookmarks.htm"
close_box Import
# An import alone is no change that would be saved at the end.
choose_settings SaveUrls Default "${save_rows[@]}"

say "About, and the web site"
choose_main About
close_box 'About Magpie'
choose_tray About
close_box 'About Magpie'
choose_tray WebSite
visited() { grep -qx 'https://fennelworks.example/magpie/' "$folder/visited.txt"; }
expect "the web site goes to the browser" wait_for 10 visited
choose_tray Unload
expect_end
expect_text '+Favorites
http://server/|Front page
+Deep - Deeper
http://two/|Two
+Bookmarks
http://top/|Top
+Folder
http://in/?a=1&b=2|In & out' "$(saved_entries)"

say "Without the library, and with a broken one"
for state in missing broken; do
    rm "$folder/Pienest.dll" 2>/dev/null || true
    [[ $state == missing ]] || printf 'no library' >"$folder/Pienest.dll"
    start_magpie
    open_by_pad
    choose_main About
    sleep 1
    expect "no box comes up" no_box 'About Magpie'
    choose_settings Merge Favorites "${merge_rows[@]}"
    sleep 1
    expect "the program goes on" main_window
    choose_main Hide
    expect "\"Hide\" hides it" wait_for 5 no_main_window
    choose_tray Unload
    expect_end
done
