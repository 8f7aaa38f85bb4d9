#!/usr/bin/env bash
# Runs a command with a Windows of its own for the programs that it starts, on the screen that is there.
set -euo pipefail
export HOME WINEPREFIX WINEDEBUG=-all LC_ALL=C.UTF-8
HOME=$(mktemp -d)
WINEPREFIX=$HOME/windows
# Nothing is asked and no menu of the desktop is touched.
export WINEDLLOVERRIDES="winemenubuilder.exe,mscoree,mshtml="
# The stage names a platform of its own.
unset QT_QPA_PLATFORM
raeume_auf() {
    /usr/lib/wine/wineserver -k || true
    # Who is just ending can still write something.
    for _ in {1..50}; do
        rm -rf "$HOME" 2>/dev/null && break
        sleep 0.1
    done
}
trap raeume_auf EXIT
/usr/lib/wine/wine64 wineboot --init >/dev/null 2>&1
# What the toolkit runs on at least.
/usr/lib/wine/wine64 winecfg -v win10 >/dev/null 2>&1
"$@"
