#!/bin/bash
# Double clicks to browsers that are running and say nothing, and with a program around that
# hangs: what was waited for in vain, who is started then, and that the program goes on.
. "$(dirname "${BASH_SOURCE[0]}")/journey.sh"
. "$(dirname "${BASH_SOURCE[0]}")/browsers_around.sh"

# A silent Netscape counts as served, a silent Opera does not.
use_silent_netscape() {
    local before
    before=$(starts Netscape)
    use_browser 1
    run_dde_server Netscape silent
    double_click_record 1
    expect "it is asked" wait_for 10 peer_wrote "request WWW_OpenURL \"$plain\",,-1,7"
    sleep 6
    stays
    expect_text "$before" "$(starts Netscape)"
    end_peer
    end_program
}

use_silent_opera() {
    use_browser 2
    run_dde_server Opera silent
    started_for Opera 1 "$plain"
    end_program
    end_peer
}

# A program that hangs holds up whoever connects to anybody, and Netscape's silence counts as
# success.
use_hanging_program() {
    local before
    before=$(starts Netscape)
    use_browser 1
    run_dde_server Whoever hang
    double_click_record 1
    sleep 6
    stays
    expect_text "$before" "$(starts Netscape)"
    end_program
    end_peer
}

journey_begin
write_stack_file
for file in Netscape.exe Opera.EXE; do install_browser "$file"; done
use_silent_netscape
use_silent_opera
use_hanging_program
