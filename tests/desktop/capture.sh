#!/bin/bash
# "From Browser" by each of its roads, with other programs standing in for the browsers: by
# dynamic data exchange, by automation, by keystrokes. What was captured is in the stack file
# afterwards.
. "$(dirname "${BASH_SOURCE[0]}")/journey.sh"
. "$(dirname "${BASH_SOURCE[0]}")/browsers_around.sh"

dialog_up() { window_titled 'URL Information'; }
no_dialog() { ! dialog_up >/dev/null; }

# choose_from_browser: by the mouse, so that no key of the user's is down.
choose_from_browser() {
    open_menu click_record 1 3
    open_menu click_row Add Add Send - Rate Edit Move - Find - Remove
    click_row FromBrowser FromBrowser NewEntry
}

# asked_in_vain: by the key, of the peer.
asked_in_vain() {
    keys ctrl+b
    expect "it is asked" wait_for 10 peer_wrote 'request WWW_GetWindowInfo -1'
    captures_nothing true
}

# captured NAME URL: the dialog shows them; it is accepted.
captured() {
    expect "the dialog opens" wait_for 15 dialog_up
    sleep 0.4
    expect_shown dialog "$(printf 'Name:\n"%s"\nURL:\n"%s"\nRating:\nNot Rated\nGroup:\nSites\nCreated:\nLast Accessed:\nTimes Accessed:\nAccept\nCancel\nPages' "$1" "$2")"
    focus "$(dialog_up)"
    keys Return
    expect "the dialog closes" wait_for 10 no_dialog
    expect "the entry is in the list" wait_for 10 in_list "$1|$2"
}
in_list() { reads rows | cut -d'|' -f1,2 | grep -qxF "$1"; }

captures_nothing() {
    "$@"
    sleep 1
    expect "no dialog opens" no_dialog
}

in_file() {
    grep -qF "$(printf '%s\5%s\5' "$2" "$1")" "$folder/Pienest.pns" || fail "not saved: $1"
}

capture_by_dde() {
    use_browser 1
    captures_nothing choose_from_browser
    run_dde_server Netscape refuse
    asked_in_vain
    end_peer
    run_dde_server Netscape answer '"one token"'
    asked_in_vain
    end_peer
    run_dde_server Netscape answer '"http://netscape/","Netscape page, second half","frame"'
    keys ctrl+b
    captured 'Netscape pag' http://netscape/
    expect "it was asked" peer_wrote 'request WWW_GetWindowInfo -1'
    end_peer
    end_program
    in_file 'Netscape pag' http://netscape/
}

capture_by_automation() {
    use_browser 0
    captures_nothing choose_from_browser
    serve_shell_windows
    run_browser IEFrame 'Page - two - Microsoft Internet Explorer' 'http://explorer/?a b' 'Page - two'
    choose_from_browser
    captured 'Page - two' 'http://explorer/?a b'
    end_peer
    end_program
    in_file 'Page - two' 'http://explorer/?a b'
}

# Nobody waits for the browser, neither to come forward nor to copy its address: the keys of the
# first moment may be lost and the address empty. Then the user tries again.
capture_by_keystrokes() {
    local attempt
    use_browser 0 1
    captures_nothing choose_from_browser
    run_browser IEFrame 'Typed - two - Microsoft Internet Explorer' http://typed/
    for attempt in {1..10}; do
        choose_from_browser
        expect "the dialog opens" wait_for 15 dialog_up
        sleep 0.4
        expect_text '"Typed"' "$(reads dialog | sed -n 2p)"
        [[ $(reads dialog | sed -n 4p) != '"http://typed/"' ]] || break
        ((attempt < 10)) || fail "the address never came"
        focus "$(dialog_up)"
        keys Escape
        expect "the dialog closes" wait_for 10 no_dialog
    done
    say "captured by keystrokes at attempt $attempt of 10"
    captured Typed http://typed/
    expect "the address was copied" peer_wrote copied
    expect "the letter stays down" not peer_wrote 'up 67'
    end_peer
    end_program
    in_file Typed http://typed/
}

journey_begin
printf '+Sites\r\nhttp://plain/\5Plain\0050\0058E53EC00\0050\0050\0050\r\n' >"$folder/Pienest.pns"
capture_by_dde
capture_by_automation
capture_by_keystrokes
