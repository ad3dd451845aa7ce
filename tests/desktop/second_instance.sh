#!/bin/bash
# A second start ends at once without a word and without writing anything; the first
# goes on.
. "$(dirname "${BASH_SOURCE[0]}")/journey.sh"

titles() {
    local window
    for window in $(windows_of magpie.exe); do xdotool getwindowname "$window"; done | grep . | sort
}

journey_begin
cp "$expected/start.pns" "$folder/Pienest.pns"
setting ID '2 4500 15000 0 1 0 False False'
start_magpie
first=$magpie_pid
open_by_pad
windows=$(titles)
settings=$(saved_settings)
files=$(cd "$folder" && find . -type f -exec cksum {} + | sort)

launch MyBooks
expect_end

magpie_pid=$first
expect "the first goes on" running
expect_text "$windows" "$(titles)"
expect_text "$settings" "$(saved_settings)"
expect_text "$files" "$(cd "$folder" && find . -type f -exec cksum {} + | sort)"
choose_pad Unload
expect_end
