#!/usr/bin/env bash
# Installs what is needed, builds Tarvelin and starts it: without an argument its window (where there
# is no screen, the timetable of the starter plan), with plan files the timetable of each.
set -euo pipefail
ordner=$(cd "$(dirname "$0")" && pwd)
. "$ordner/cmake/packages.sh"

# The timetable alone goes to the output, so that it can be piped.
stelle_bereit "${BAU_PAKETE[@]}" >&2
baue "$ordner" release tarvelin tarvelin-cli tarvelin_data >&2

programm="$ordner/build/release/bin"
if [ $# -eq 0 ] && [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    exec "$programm/tarvelin"
fi
if [ $# -eq 0 ]; then
    set -- "$programm/saves/basic.tvf"
fi
exec "$programm/tarvelin-cli" "$@"
