#!/bin/bash
# Stack files, pictures and settings that are not what they should be: the program
# starts, goes on and ends cleanly, and leaves what it could not read as it was.
. "$(dirname "${BASH_SOURCE[0]}")/journey.sh"

stack=$build/desktop/bad_files/Pienest.pns
entry='http://server/a\005Name\0050\0058E34968D\0051\0052\0053'
open_rows=(Default As)

# opens PANES: "Open Default" on the present stack file shows these panes.
opens() {
    choose_settings Open Default "${open_rows[@]}"
    expect_shown panes "$1"
    expect "the program goes on" running
}

# saves_as FILE: "Save Default" moves the stack file away and writes this one.
saves_as() {
    rm -f "$folder/Pienest.bak"
    choose_settings SaveUrls Default "${save_rows[@]}"
    expect "the stack file becomes the backup" wait_for 10 test -e "$folder/Pienest.bak"
    expect_same "$1" "$stack"
}

journey_begin
setting ID '2 4500 15000 0 1 0 False False'
setting CF '8 3 0 0 2 1 0 1500 1500 9000 6000 31 0 36500'

# At the start: a folder in the stack file's place.
mkdir "$stack"
start_magpie
open_by_pad
expect_shown panes $'Viewed: 0\nTotal: 0'
rmdir "$stack"

say "line ends, NUL bytes, bytes above 127"
printf "+Gr\\000up\nhttp://u\\005\\200\\377\\0050\\0058E34968D\\0051\\0052\\0053\r$entry\n" >"$stack"
printf "+Gr\\000up\r\nhttp://u\\005\\200\\377\\0050\\0058E34968D\\0051\\0052\\0053\r\n$entry\r\n" >"$folder/wanted"
opens $'Viewed: 2\nTotal: 2'
saves_as "$folder/wanted"

say "0 bytes"
: >"$stack"
opens $'Viewed: 0\nTotal: 0'

say "a file that another program holds"
printf "+Group\r\n$entry\r\n" >"$stack"
cp "$stack" "$folder/wanted"
wine "$tools/file_lock.exe" "$(windows_path "$stack")" >"$folder/lock" 2>/dev/null </dev/null &
other=$!
expect "the file is held" wait_for 10 grep -q locked "$folder/lock"
opens $'Viewed: 0\nTotal: 0'
kill "$other"
wait "$other" 2>/dev/null || true
other=
expect_same "$folder/wanted" "$stack"

say "a line of 10 MB"
{
    printf '+Group\r\nhttp://u\005'
    head -c 10000000 /dev/zero | tr '\0' x
    printf '\0050\0058E34968D\0051\0052\0053\r\n'
} >"$stack"
cp "$stack" "$folder/wanted"
opens $'Viewed: 1\nTotal: 1'
saves_as "$folder/wanted"

say "more entries than can be counted"
{
    printf '+Group\r\n'
    for _ in {1..33000}; do printf "$entry\r\n"; done
} >"$stack"
wanted_total=$'Viewed: 32767\nTotal: 32767'
choose_settings Open Default "${open_rows[@]}"
expect "32767 of them are shown" wait_for 60 shows panes "$wanted_total"

# What is clean is not written at the end.
cp "$stack" "$folder/wanted"
choose_pad Unload
expect_end
expect_same "$folder/wanted" "$stack"

say "pictures"
rm "$stack" "$folder/Pienest.bak" "$folder/uBank/id.bnk"
printf 'no picture' >"$folder/uBank/ia.bnk"
printf 'BM' >"$folder/uBank/b1u.bnk"
rm "$folder/uBank/b1d.bnk"
start_magpie
open_by_pad
expect_shown panes $'Viewed: 0\nTotal: 0'
choose_pad Unload
expect_end
expect "no stack file is made" test ! -e "$stack"

say "settings"
setting ID 'abc -5 99999999999 maybe yes 300 Perhaps'
setting CF 'x -1 9 7 5 -3 zz 99999999999 1e400 -5 20 - 7 q'
setting CH '99999 x  -1 70000 1e9 2 3 4 5 6 7 8 9 10'
start_magpie
open_by_pad
choose_pad Unload
expect_end
expect_text 3 "$(saved_settings | wc -l)"
expect_text '"ID"="0 7200 18525 0 0 0 False False"' "$(saved_settings | grep ID)"

# What is neither a text nor a number counts as nothing: a first start.
setting ID 0102 REG_BINARY
setting CF 7 REG_DWORD
{
    printf 'REGEDIT4\r\n\r\n[HKEY_CURRENT_USER\\Software\\Fennelworks\\Magpie]\r\n"CH"="'
    printf '2400 %.0s' {1..200000}
    printf '"\r\n'
} >"$folder/long.reg"
wine reg import "$(windows_path "$folder/long.reg")" >/dev/null 2>&1 </dev/null
start_magpie
open_by_pad
choose_pad Unload
expect_end
expect_text '"ID"="0 7200 18525 0 1 0 True False"' "$(saved_settings | grep ID)"
expect_text '"CH"="2400 2400 2400 2400 2400 2400 2400 "' "$(saved_settings | grep CH)"
expect_text '"CF"="7 0 0 0 1 1 -1' "$(saved_settings | grep -o '"CF"="7 0 0 0 1 1 -1')"
