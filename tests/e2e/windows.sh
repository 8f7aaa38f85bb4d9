#!/usr/bin/env bash
# Runs a command on the present screen, with a Windows of its own for the programs that it starts.
set -euo pipefail
export HOME WINEPREFIX WINEDEBUG=-all LC_ALL=C.UTF-8
HOME=$(mktemp -d)
WINEPREFIX=$HOME/windows
# No questions at the first start, and no entries in the desktop's menu.
export WINEDLLOVERRIDES="winemenubuilder.exe,mscoree,mshtml="
# screen.sh sets a platform that Windows doesn't have.
unset QT_QPA_PLATFORM
clean_up() {
    /usr/lib/wine/wineserver -k || true
    # A program that is just ending may still write something.
    for _ in {1..50}; do
        rm -rf "$HOME" 2>/dev/null && break
        sleep 0.1
    done
}
trap clean_up EXIT
/usr/lib/wine/wine64 wineboot --init >/dev/null 2>&1
# The oldest version that the toolkit supports.
/usr/lib/wine/wine64 winecfg -v win10 >/dev/null 2>&1
"$@"
