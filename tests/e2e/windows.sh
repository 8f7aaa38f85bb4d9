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
# screen.sh removes what is left of it.
trap '/usr/lib/wine/wineserver -k || true' EXIT
/usr/lib/wine/wine64 wineboot --init >/dev/null 2>&1
# The oldest version that the toolkit supports.
/usr/lib/wine/wine64 winecfg -v win10 >/dev/null 2>&1
"$@"
