# shellcheck shell=bash disable=SC2034
# What run.sh, test.sh and the desktop journeys have in common: missing
# packages, builds, Wine prefixes, a virtual screen and a hand on its windows.
# Sourced, never run. Everything it leaves behind is under build/.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
build=$root/build
logs=$build/logs
mkdir -p "$logs"

# No chatter from Wine and no offers to install runtimes that we do not use.
export WINEDEBUG=-all
export WINEDLLOVERRIDES="mscoree,mshtml="

say() { printf '%s\n' "$*"; }

fail() {
    printf '%s\n' "$*" >&2
    exit 1
}

# quietly NAME COMMAND...: the command's output goes to build/logs/NAME.log and
# is shown only when the command fails, which ends the script.
quietly() {
    local log=$logs/$1.log
    shift
    if ! "$@" >"$log" 2>&1 </dev/null; then
        tail -n 60 "$log" >&2
        fail "Failed: $* (all of it: ${log#"$root"/})"
    fi
}

# wait_for SECONDS COMMAND...: true as soon as the command is.
wait_for() {
    local until=$((SECONDS + $1))
    shift
    until "$@"; do
        ((SECONDS < until)) || return 1
        sleep 0.1
    done
}

# --- Packages ---------------------------------------------------------------

packages_build=(cmake ninja-build ccache g++-mingw-w64-x86-64-posix mingw-w64-tools
    libwine-dev googletest fp-compiler fp-units-fcl fp-units-misc fp-utils)
packages_wine=(wine wine64 fonts-wine fonts-liberation x11-utils)
packages_screen=(xvfb openbox xdotool imagemagick)
packages_tests=(g++ clang libclang-rt-14-dev clang-format libgtest-dev libgmock-dev
    libbenchmark-dev)

missing_packages() {
    local package
    for package in "$@"; do
        [[ $(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null) == installed ]] ||
            printf '%s\n' "$package"
    done
}

# install_packages PACKAGE...: asks the network only when something is missing.
install_packages() {
    local missing as_root=()
    if ! command -v apt-get >/dev/null; then
        say "No apt-get here: taking the tools that are needed for granted."
        return
    fi
    mapfile -t missing < <(missing_packages "$@")
    ((${#missing[@]})) || return 0
    if ((EUID != 0)); then
        command -v sudo >/dev/null || fail "Install these as root first: ${missing[*]}"
        as_root=(sudo)
        # Asks for the password here, where it can be seen.
        sudo true
    fi
    say "Installing ${#missing[@]} packages: ${missing[*]}"
    quietly apt-update "${as_root[@]}" apt-get -o DPkg::Lock::Timeout=300 update
    quietly apt-install "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get -o DPkg::Lock::Timeout=300 install -y --no-install-recommends "${missing[@]}"
}

# --- Builds -----------------------------------------------------------------

# build_preset NAME [TARGET...]
build_preset() {
    local preset=$1 begin=$SECONDS
    shift
    printf 'Building %s ... ' "$preset"
    cd "$root" || exit 1
    quietly "configure-$preset" cmake --preset "$preset"
    quietly "build-$preset" cmake --build --preset "$preset" ${1:+--target "$@"}
    say "$((SECONDS - begin)) s"
}

# --- Wine -------------------------------------------------------------------

# wine_template: a prefix that nobody runs programs in; others are copies of it.
# Making one takes ten seconds, copying it one.
wine_template() {
    local template=$build/wine-template making=$build/wine-template.new
    [[ -d $template ]] && return
    say "Setting up Wine ..."
    rm -rf "$making"
    mkdir -p "$build/wine-home"
    (
        # The prefix links Desktop and Documents to this home, not to the user's.
        export HOME=$build/wine-home WINEPREFIX=$making
        unset DISPLAY
        quietly wineboot wineboot -i
        # A crash shall end a program, not open a debugger's window.
        quietly wine-reg wine reg add 'HKCU\Software\Wine\WineDbg' /v ShowCrashDialog \
            /t REG_DWORD /d 0 /f
        wineserver -w
        # Debian's Wine looks for its fonts in a folder that does not exist;
        # without them dialogs come out too small.
        cp /usr/share/wine/fonts/* "$making/drive_c/windows/Fonts/"
    ) || exit 1
    mv "$making" "$template"
}

# wine_prefix FOLDER: makes Wine use that prefix, a copy of the template if new.
wine_prefix() {
    wine_template
    if [[ ! -d $1 ]]; then
        rm -rf "$1.new"
        mkdir -p "$(dirname "$1")"
        cp -a "$build/wine-template" "$1.new"
        mv "$1.new" "$1"
    fi
    export WINEPREFIX=$1
}

# wine_prefix_fresh FOLDER: the same with whatever was there thrown away.
wine_prefix_fresh() {
    rm -rf "$1"
    wine_prefix "$1"
}

# wine_keep_alive: programs that start while a server runs start in under 0.1 s;
# the server outlasts pauses between tests and is ended by wine_stop.
# The server and the helpers that it starts once must not inherit anyone's output,
# or a reader of that output waits for them to end.
wine_keep_alive() {
    wineserver -p1200 </dev/null >/dev/null 2>&1
    wine cmd /c exit </dev/null >/dev/null 2>&1
}

# wine_stop: ends the server of this prefix, with its registry written.
wine_stop() { wineserver -k >/dev/null 2>&1 || true; }

# --- Virtual screen ---------------------------------------------------------

screen_pids=()

# screen_start [SIZE]: a screen of our own with a window manager; sets DISPLAY.
screen_start() {
    local number=$build/screen.$$
    mkdir -p -m 1777 /tmp/.X11-unix 2>/dev/null || true
    : >"$number"
    Xvfb -displayfd 3 -screen 0 "${1:-1280x960}x24" -nolisten tcp 3>"$number" >"$logs/xvfb.log" 2>&1 &
    screen_pids=($!)
    wait_for 15 test -s "$number" || fail "The virtual screen did not start (build/logs/xvfb.log)"
    DISPLAY=:$(<"$number")
    export DISPLAY
    rm -f "$number"
    openbox --sm-disable --config-file /etc/xdg/openbox/rc.xml >"$logs/openbox.log" 2>&1 &
    screen_pids+=($!)
    # Without the window manager the first windows would come out undecorated.
    wait_for 15 window_manager_ready || fail "The window manager did not start (build/logs/openbox.log)"
}

window_manager_ready() { xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'; }

screen_stop() {
    local at
    for ((at = ${#screen_pids[@]} - 1; at >= 0; --at)); do
        kill "${screen_pids[at]}" 2>/dev/null || true
        wait "${screen_pids[at]}" 2>/dev/null || true
    done
    screen_pids=()
}

# screenshot FILE: the whole screen, once it has stopped changing.
screenshot() {
    local before now=none
    mkdir -p "$(dirname "$1")"
    for _ in {1..20}; do
        before=$now
        import -silent -window root "$1"
        now=$(convert "$1" rgb:- | cksum)
        [[ $now == "$before" ]] && return
        sleep 0.3
    done
}

# --- Windows on the screen --------------------------------------------------
# Wine gives every top-level window of a program the program's name as its
# class, so windows are told apart by title and size.

# windows_of PROGRAM: the visible windows of, say, magpie.exe. The search fails when a
# window goes away under it, and when there is none.
windows_of() {
    for _ in 1 2 3; do
        xdotool search --onlyvisible --class "^$1\$" 2>/dev/null && return
    done
    true
}

# window_titled TITLE: prints the visible window of exactly that title. Asked again before there is
# said to be none, as the search also fails when any other window goes away under it.
window_titled() {
    local window
    for _ in 1 2 3; do
        for window in $(xdotool search --onlyvisible --name "^$1\$" 2>/dev/null); do
            printf '%s\n' "$window"
            return 0
        done
        sleep 0.05
    done
    return 1
}

# window_sized PROGRAM WIDTH HEIGHT: prints the program's window of that size.
window_sized() {
    local window
    for window in $(windows_of "$1"); do
        window_box "$window" || continue
        if ((box_width == $2 && box_height == $3)); then
            printf '%s\n' "$window"
            return 0
        fi
    done
    return 1
}

# window_box WINDOW: sets box_left, box_top, box_width and box_height.
window_box() {
    local X Y WIDTH HEIGHT WINDOW SCREEN
    eval "$(xdotool getwindowgeometry --shell "$1" 2>/dev/null)"
    [[ -n ${WIDTH:-} ]] || return 1
    box_left=$X box_top=$Y box_width=$WIDTH box_height=$HEIGHT
}

# click X Y [BUTTON]: as a hand would: move, press, release.
click() {
    xdotool mousemove "$1" "$2"
    sleep 0.2
    xdotool mousedown "${3:-1}"
    sleep 0.1
    xdotool mouseup "${3:-1}"
}
