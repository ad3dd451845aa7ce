#!/bin/bash
# The session ends under the running program, which saves exactly what the menu's exit
# saves. Wine ends its session as Windows does: every window is asked, then told.
. "$(dirname "${BASH_SOURCE[0]}")/journey.sh"

end_session() { wine wineboot --end-session >"$logs/end-session.log" 2>&1 </dev/null; }

# leave_by COMMAND...: a run with unsaved changes, ended by the command.
leave_by() {
    rm -f "$folder"/Pienest.*
    cp "$expected/start.pns" "$folder/Pienest.pns"
    setting ID '2 4500 15000 0 1 0 False False'
    setting CF '8 3 0 0 2 1 2 1500 1500 9000 6000 31 0 36500'
    setting CH '2400 2325 900 1200 1680 1680 720 '
    start_magpie
    open_by_pad
    expect_shown group Work
    choose_settings Merge Magpie "${merge_rows[@]}"
    name_file 'Merge From Pienest' "$expected/merge.pns"
    expect_shown panes $'Viewed: 2\nTotal: 7'
    "$@"
    expect_end
    expect_same "$expected/merged_once.pns" "$folder/Pienest.pns"
    expect_same "$expected/start.pns" "$folder/Pienest.bak"
}

journey_begin
leave_by choose_pad Unload
by_menu=$(saved_settings)
leave_by end_session
expect_text "$by_menu" "$(saved_settings)"
expect_text '"ID"="2 4500 15000 0 1 0 False False"' "$(grep ID <<<"$by_menu")"
