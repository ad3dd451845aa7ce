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
    end_program 8
    expect "it is silent to the end" not peer_wrote late
    end_peer
}

# What the user does meanwhile waits for its turn. An Opera that never answers holds up whoever is
# asked after it, five seconds each, and in the end Netscape's silence counts as served.
use_the_tray_icon_meanwhile() {
    local windows begun
    use_browser 2 0 False
    run_dde_server Opera silent
    double_click_record 1
    begun=$SECONDS
    expect "it is asked" wait_for 10 peer_wrote "request WWW_OpenURL \"$plain\",,-1"
    windows=$(windows_of magpie.exe)
    click_tray_icon 3
    sleep 1
    if menu_beside "$windows" >/dev/null; then
        ((SECONDS - begun > 13)) || fail "the menu opens while Opera is waited for"
    fi
    expect "the menu opens" wait_for 30 menu_beside "$windows"
    menu=$(menu_beside "$windows")
    click_row Unload "${tray_rows[@]}"
    expect_end 8
    end_peer
}

use_silent_opera() {
    local begun
    use_browser 2
    # While it is silent nobody gets through to the others either.
    run_dde_server Opera silent 1 8
    begun=$SECONDS
    started_for Opera 1 "$plain"
    ((SECONDS - begun >= 5)) || fail "it was not waited for"
    expect "it was asked" peer_wrote "request WWW_OpenURL \"$plain\",,-1"
    end_program 8
    end_peer
}

# A program that hangs holds up whoever connects to anybody, and Netscape's silence counts as
# success. A main window that hung as well would do so for four more seconds.
use_hanging_program() {
    local before
    before=$(starts Netscape)
    use_browser 1
    run_dde_server Whoever hang
    double_click_record 1
    sleep 1
    lives 3
    sleep 5
    stays
    lives 10
    expect_text "$before" "$(starts Netscape)"
    end_program 8
    end_peer
}

# Automation has no end of its own.
use_silent_internet_explorer() {
    local before
    before=$(starts IEXPLORE)
    use_browser 0
    serve_shell_windows
    run_browser IEFrame 'Start - Microsoft Internet Explorer' http://start/ Start \
        'Microsoft Internet Explorer' silent
    double_click_record 1
    expect "it is asked" wait_for 10 peer_wrote asked
    expect "it is sent there" wait_for 15 peer_wrote "navigate $plain"
    stays
    lives 10
    expect_text "$before" "$(starts IEXPLORE)"
    end_program
    end_peer
}

# lives SECONDS: within those the main window answers what another program asks it.
lives() {
    [[ $(timeout "$1" wine "$tools/window_reader.exe" panes 2>/dev/null </dev/null | tr -d '\r') == \
        $'Viewed: 3\nTotal: 3' ]] || fail "the main window does not answer"
}

journey_begin
write_stack_file
for file in IEXPLORE.EXE Netscape.exe Opera.EXE; do install_browser "$file"; done
use_silent_netscape
use_silent_opera
use_the_tray_icon_meanwhile
use_hanging_program
use_silent_internet_explorer
