#!/bin/bash
# Double clicks to each browser's road with other programs standing in for the browsers:
# present, refusing, dying and absent, and the command lines of those that are started. With the
# pad on, the main window makes room where it is told.
. "$(dirname "${BASH_SOURCE[0]}")/journey.sh"
. "$(dirname "${BASH_SOURCE[0]}")/browsers_around.sh"

# The DDE road of Netscape, with its tail, and of Opera, without.
use_dde_road() {
    local type=$1 service=$2 file=$3 tail=$4 before
    use_browser "$type"

    run_dde_server "$service" answer
    double_click_record 1
    expect "it is asked" wait_for 10 peer_wrote "request WWW_OpenURL \"$plain\",,-1$tail"
    comes_back
    double_click_record 2
    expect "it gets the address as it is" wait_for 10 peer_wrote \
        "request WWW_OpenURL \"$odd\",,-1$tail"
    comes_back
    expect_text 0 "$(starts "$file")"
    # Too long to travel.
    started_for "$file" 3 "$long"
    expect_text 2 "$(grep -c request "$folder/peer.log")"
    end_peer

    run_dde_server "$service" refuse
    started_for "$file" 1 "$plain"
    expect "it was asked" peer_wrote "request WWW_OpenURL \"$plain\",,-1$tail"
    end_peer

    # Wine tells nobody of a server that died, so it is silent, and a silent Netscape counts as
    # served.
    if [[ $service != Netscape ]]; then
        run_dde_server "$service" die
        started_for "$file" 1 "$plain"
        expect "it was asked" peer_wrote "request WWW_OpenURL \"$plain\",,-1$tail"
        end_peer
    fi

    started_for "$file" 2 "$odd"
    end_program
}

use_internet_explorer() {
    use_browser 0
    started_for IEXPLORE 1 "$plain"
    started_for IEXPLORE 3 "$long"

    serve_shell_windows
    run_browser IEFrame 'Start - Microsoft Internet Explorer' http://start/ Start
    double_click_record 2
    expect "it is sent there" wait_for 10 peer_wrote "navigate $odd"
    expect_text "$(printf 'visible\nasked\nnavigate %s' "$odd")" \
        "$(grep -v ready "$folder/peer.log")"
    stays
    end_peer

    run_browser IEFrame 'Start - Microsoft Internet Explorer' http://start/ Start \
        'Microsoft Internet Explorer' refuse
    started_for IEXPLORE 1 "$plain"
    expect "it was asked" peer_wrote asked
    end_peer

    # A folder's window has the same class and another program's name.
    run_browser CabinetWClass 'Folder' http://folder/ Folder 'Windows Explorer'
    started_for IEXPLORE 1 "$plain"
    end_peer
    end_program
}

keys_down() { sed -n 's/^down //p' "$folder/peer.log" | paste -sd' '; }

# Under Wine the keyboard comes a little after the window, and the keys of the first moment may be
# lost; then the user tries again.
use_keystrokes() {
    local attempt
    use_browser 0 1
    started_for IEXPLORE 1 "$plain"
    for attempt in 1 2 3 4; do
        run_browser IEFrame 'Start - Microsoft Internet Explorer' http://start/
        double_click_record 2
        expect "the address is pasted" wait_for 10 peer_wrote "go $odd"
        comes_back
        [[ $(keys_down) != '18 68 17 86 13' ]] || break
        ((attempt == 4)) || end_peer
    done
    say "pasted by keystrokes at attempt $attempt of 4"
    expect_text '18 68 17 86 13' "$(keys_down)"
    # The letter stays down.
    expect_text '68 18 17 13' "$(sed -n 's/^up //p' "$folder/peer.log" | paste -sd' ')"
    end_peer
    end_program
}

journey_begin
write_stack_file
for file in IEXPLORE.EXE Netscape.exe Opera.EXE; do install_browser "$file"; done
use_dde_road 1 Netscape Netscape ,7
use_dde_road 2 Opera Opera ''
use_internet_explorer
use_keystrokes
