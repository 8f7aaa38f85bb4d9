#!/usr/bin/env bash
# Runs a command on a virtual screen with a window manager, the bus of the screen readers and a sound
# card without loudspeakers. SCALE=2 doubles the program's pixels.
set -euo pipefail
export XDG_RUNTIME_DIR TMPDIR
XDG_RUNTIME_DIR=$(mktemp -d)
chmod 0700 "$XDG_RUNTIME_DIR"
# Temporary files that are left over go with it.
TMPDIR=$XDG_RUNTIME_DIR
# Nothing is left among the sources either.
export PYTHONDONTWRITEBYTECODE=1
clean_up() {
    pulseaudio -k || true
    [ -z "${screen:-}" ] || kill "$screen" || true
    # A program that is just ending may still write something.
    for _ in {1..50}; do
        rm -rf "$XDG_RUNTIME_DIR" 2>/dev/null && break
        sleep 0.1
    done
}
trap clean_up EXIT
export QT_QPA_PLATFORM=xcb QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 QT_SCALE_FACTOR=${SCALE:-1}
# The bus library of the accessibility bridge keeps its connection until the end.
folder=$(cd "$(dirname "$0")" && pwd)
export LSAN_OPTIONS="suppressions=$folder/lsan.supp:print_suppressions=0"
# All servers of the tests are on this machine.
export no_proxy=*
# -D returns when the server can be reached.
env HOME="$XDG_RUNTIME_DIR" pulseaudio -n -D --exit-idle-time=-1 --disable-shm --log-level=error \
    -L "module-null-sink sink_name=quiet" -L "module-native-protocol-unix auth-anonymous=1"
# The server picks a free display number, so that several screens can start at once.
exec {display_number}< <(exec Xvfb -displayfd 1 -screen 0 1920x1080x24 -nolisten tcp)
screen=$!
read -r -u "$display_number" DISPLAY
export DISPLAY=":$DISPLAY"
dbus-run-session -- bash -c 'openbox --config-file "$0" & "$@"' "$folder/openbox.xml" "$@"
