# shellcheck shell=bash
# What the journeys with a line share: a library of ours in the place of the system's two, which
# a script moves. Sourced behind journey.sh, never run.

# use_own_line: behind journey_begin; for programs started by `MAGPIE_LINE=... start_magpie`.
use_own_line() {
    local library
    script=$folder.txt
    rm -f "$script.log"
    line_is
    for library in rasapi32 wininet; do
        cp "$tools/line_double.dll" "$WINEPREFIX/drive_c/windows/system32/$library.dll"
    done
    export WINEDLLOVERRIDES="$no_chatter;rasapi32,wininet=n,b"
}
no_chatter=$WINEDLLOVERRIDES

# line_is [TEXT...]: from the next look on, which comes within four seconds.
line_is() {
    printf '%s\n' "$@" >"$script.new"
    mv "$script.new" "$script"
}

start_on_own_line() { MAGPIE_LINE=$(windows_path "$script") start_magpie; }
