# SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
# SPDX-License-Identifier: Apache-2.0
#
# For scripts that play a user under Wine, with a simulated agent. Source it in the root of the
# sources, call `begin`, then `start_wine`, and set `program` to the client's path.
# shellcheck shell=bash

linux=$PWD/build/dev
windows=$PWD/build/windows
story=$windows/story
# A name that no ANSI code page can encode.
user="Jürgen Ωmega"
agent=
server=
program=

# build_for_linux TARGET...: builds the agent and these targets.
build_for_linux() {
    tools/install-packages build screen test
    cmake --preset dev >/dev/null
    cmake --build --preset dev --target tarn-agent-simulator tarn_in_realm "$@"
}

# begin SCRIPT ARGUMENT...: restarts the script in a private network, with a home of its own.
begin() {
    if [ -z "${TARN_OWN_NETWORK-}" ]; then
        tools/install-packages screen test windows windows-test
        # The client looks for its agent at a fixed port, which is free in a private network namespace.
        local user_namespace=()
        [ "$(id -u)" = 0 ] || user_namespace=(--map-root-user)
        exec env TARN_OWN_NETWORK=yes unshare ${user_namespace[@]+"${user_namespace[@]}"} --net "$@"
    fi
    ip link set lo up
    work=$(mktemp -d)
    mkdir -m 700 "$work/home"
    export HOME=$work/home USER=$user LC_ALL=C.UTF-8 WINEPREFIX=$work/prefix WINEDEBUG=-all \
        WINEDLLOVERRIDES="mscoree,mshtml,winemenubuilder.exe="
    export linux story work program
    export -f wait_until with_agent play_windows windows_path
    trap finish EXIT
}

finish() {
    [ -z "$agent" ] || kill "$agent" 2>/dev/null || true
    wineserver -k 2>/dev/null || true
    [ -z "$server" ] || kill "$server" 2>/dev/null || true
    rm -rf "$work"
}

fail() {
    echo "$(basename "$0"): $*" >&2
    exit 1
}

# wait_until SECONDS COMMAND...
wait_until() {
    local deadline=$((SECONDS + $1))
    shift
    until "$@"; do
        [ $SECONDS -lt $deadline ] || return 1
        sleep 0.2
    done
}

# Starts a display, and Wine as Windows 10.
start_wine() {
    Xvfb -displayfd 3 -noreset -screen 0 1600x1000x24 -nolisten tcp 3>"$work/display" 2>/dev/null &
    server=$!
    wait_until 30 test -s "$work/display" || fail "no display"
    DISPLAY=:$(cat "$work/display")
    export DISPLAY
    wineboot --init >/dev/null 2>&1
    wine reg add 'HKCU\Software\Wine' /v Version /d win10 /f >/dev/null
    # Wine has no fonts of its own for native controls.
    local font
    for font in "Segoe UI" Tahoma "MS Shell Dlg" "MS Shell Dlg 2" "MS Sans Serif"; do
        wine reg add 'HKCU\Software\Wine\Fonts\Replacements' /v "$font" /d "DejaVu Sans" /f >/dev/null
    done
}

# with_agent LOG COMMAND...: runs the command beside a simulated agent whose backups take a while. In a
# Kerberos realm it accepts logons. AGENT_OPTIONS are its options, and AGENT_CLOCK is the offset of its
# clock, as in +1h.
with_agent() {
    local log=$1 status=0 options=() clock=()
    shift
    read -ra options <<<"${AGENT_OPTIONS-}"
    if [ -n "${AGENT_CLOCK-}" ]; then
        clock=(LD_PRELOAD=/usr/lib/x86_64-linux-gnu/faketime/libfaketimeMT.so.1
            "FAKETIME=$AGENT_CLOCK" FAKETIME_DONT_FAKE_MONOTONIC=1)
    fi
    env ${clock[@]+"${clock[@]}"} "$linux/bin/tarn-agent-simulator" --no-guest --speed 10 \
        --log "$log" ${options[@]+"${options[@]}"} \
        ${TARN_KEY_TABLE:+--accept-logon "$TARN_KEY_TABLE"} >"$work/agent" 2>&1 &
    agent=$!
    wait_until 20 grep -q http "$work/agent" || { cat "$work/agent" >&2; return 1; }
    timeout 900 "$@" || status=$?
    kill "$agent"
    wait "$agent" || true
    agent=
    return "$status"
}

windows_path() { echo "Z:${1//\//\\}"; }

# play_windows STORY FOLDER [LANGUAGE [OPTION]...]: starts the client as the shortcut does. Wine would
# resolve the shortcut in the ANSI code page, which has no Omega.
play_windows() {
    local name=$1 folder=$2 language=${3-en}
    shift $(($# < 3 ? $# : 3))
    mkdir -p "$folder"
    cd "$(dirname "$program")"
    WINEQT_PLUGIN_PATH=$(windows_path "$story") \
        WINEQT_QPA_GENERIC_PLUGINS="$name:$(windows_path "$folder")" \
        wine tarn-mobile-user.exe --lang "$language" "$@"
}

# in_realm OPTION... -- LOG FUNCTION ARGUMENT...: runs an exported function with an agent and Wine in a
# Kerberos realm of their own. The options are those of tarn_in_realm.
in_realm() {
    local options=()
    while [ "$1" != -- ]; do
        options+=("$1")
        shift
    done
    shift
    # Wine's running services don't have the realm's environment.
    wineserver -k || true
    wineserver -w
    "$linux/bin/tarn_in_realm" ${options[@]+"${options[@]}"} \
        bash -c 'with_agent "$1" bash -c '"'"'"$@"'"'"' _ "${@:2}"' _ "$@"
}

# Sets `installer`, unless it is set, to the one that tools/windows/installer has built, and `version`.
find_installer() {
    version=$(sed -n 's/^CMAKE_PROJECT_VERSION:[^=]*=//p' "$windows/CMakeCache.txt")
    installer=$(realpath -m "${installer:-$windows/tarn-mobile-user-$version-setup.exe}")
    [ -e "$installer" ] || fail "$installer doesn't exist: tools/windows/installer builds an installer"
}

# state FILE: writes everything that an installation could leave behind, sorted: the files, and the
# keys and values of the registry, each value after its key.
state() {
    wineserver -w
    (
        cd "$WINEPREFIX"
        # Without what an uninstaller leaves until the next start: Wine tries to remove the folder
        # before the file in it.
        find drive_c -name '~nsu*.tmp' -empty -prune -o -type f -printf '%p=%s\n' -o -printf '%p\n'
        awk '/^\[/ { key = FILENAME " " substr($0, 1, match($0, /\] [0-9]+$/) ? RSTART : length($0)); print key; next }
            /^["@ ]/ { printf "%s\t%s", key, $0; while (/\\$/ && (getline) > 0) printf "%s", $0; print "" }' \
            system.reg user.reg
    ) | sort >"$1"
}

# changes BEFORE AFTER: prints the lines that only one of two states has.
changes() { LC_ALL=C comm -3 <(LC_ALL=C sort "$1") <(LC_ALL=C sort "$2") | sed 's/^\t//'; }

# Without the value.
names() { sed 's/=.*//' | LC_ALL=C sort -u; }

# start_again: like a restart of Windows, removes the files that programs have scheduled for it. First
# lets programs end: an uninstaller removes its temporary folder after the program's.
start_again() {
    timeout 60 wineserver -w || true
    wineserver -k || true
    wineserver -w
    wineboot --init >/dev/null 2>&1
    wineserver -w
}

# Records what Wine itself changes: when it starts, and when one of its own programs shows a window.
# Creates the folders and keys that every Windows has first.
learn_noise() {
    wine reg add 'HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall' /f >/dev/null
    mkdir -p "$WINEPREFIX/drive_c/users/$user/AppData/Local/Programs"
    start_again
    state "$work/quiet"
    : >"$work/noise"
    local window
    for window in Notepad 'About Wine'; do
        case $window in
            Notepad) wine notepad & ;;
            *) wine winver & ;;
        esac
        wait_until 60 xdotool search --name "$window" >/dev/null || fail "Wine shows no window"
        wineserver -k
        start_again
        state "$work/noisy"
        changes "$work/quiet" "$work/noisy" | names >>"$work/noise"
    done
}

# expect_unchanged BEFORE AFTER: nothing but Wine's own noise may differ.
expect_unchanged() {
    local line changed=
    while read -r line; do
        grep -qxF -e "$(names <<<"$line")" "$work/noise" || { echo "$line" >&2; changed=yes; }
    done < <(changes "$1" "$2")
    [ -z "$changed" ]
}
