#!/usr/bin/env bash
# Runs a command on a virtual screen, with a Windows of its own for the programs that it starts.
set -euo pipefail
export HOME WINEPREFIX WINEDEBUG=-all
HOME=$(mktemp -d)
WINEPREFIX=$HOME/windows
# Nothing is asked and no menu of the desktop is touched.
export WINEDLLOVERRIDES="winemenubuilder.exe,mscoree,mshtml="
raeume_auf() {
    /usr/lib/wine/wineserver -k || true
    [ -z "${schirm:-}" ] || kill "$schirm" || true
    # Who is just ending can still write something.
    for _ in {1..50}; do
        rm -rf "$HOME" 2>/dev/null && break
        sleep 0.1
    done
}
trap raeume_auf EXIT
# The screen takes a number that nobody else has, however many come up at once.
exec {nummer}< <(exec Xvfb -displayfd 1 -screen 0 1920x1080x24 -nolisten tcp)
schirm=$!
read -r -u "$nummer" DISPLAY
export DISPLAY=":$DISPLAY"
/usr/lib/wine/wine64 wineboot --init >/dev/null 2>&1
"$@"
