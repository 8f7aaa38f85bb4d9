#!/usr/bin/env bash
# Installs what is needed, builds Tarvelin and starts it: its window, or without a screen the timetable
# of the starter plan; with plan files the timetable of each.
set -euo pipefail
root=$(cd "$(dirname "$0")" && pwd)
. "$root/cmake/packages.sh"

# Standard output carries the timetable alone, so that it can be piped.
install_missing "${BUILD_PACKAGES[@]}" >&2
build "$root" release tarvelin tarvelin-cli tarvelin_data >&2

programs="$root/build/release/bin"
if [ $# -eq 0 ] && [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    exec "$programs/tarvelin"
fi
if [ $# -eq 0 ]; then
    set -- "$programs/saves/basic.tvf"
fi
exec "$programs/tarvelin-cli" "$@"
