#!/usr/bin/env bash
# Runs a command on a virtual screen with a window manager, the bus of the screen readers and a sound
# card without loudspeakers.
# SKALIERUNG=2 doubles the program's pixels.
set -euo pipefail
export XDG_RUNTIME_DIR TMPDIR
XDG_RUNTIME_DIR=$(mktemp -d)
chmod 0700 "$XDG_RUNTIME_DIR"
# Whatever is left there goes at the end.
TMPDIR=$XDG_RUNTIME_DIR
# Nothing is left among the sources either.
export PYTHONDONTWRITEBYTECODE=1
raeume_auf() {
    pulseaudio -k || true
    [ -z "${schirm:-}" ] || kill "$schirm" || true
    # Who is just ending can still write something.
    for _ in {1..50}; do
        rm -rf "$XDG_RUNTIME_DIR" 2>/dev/null && break
        sleep 0.1
    done
}
trap raeume_auf EXIT
export QT_QPA_PLATFORM=xcb QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 QT_SCALE_FACTOR=${SKALIERUNG:-1}
# The bus library of the accessibility bridge keeps its connection until the end.
ordner=$(cd "$(dirname "$0")" && pwd)
export LSAN_OPTIONS="suppressions=$ordner/lsan.supp:print_suppressions=0"
# What is fetched lies on this machine.
export no_proxy=*
# -D waits until it can be spoken to.
env HOME="$XDG_RUNTIME_DIR" pulseaudio -n -D --exit-idle-time=-1 --disable-shm --log-level=error \
    -L "module-null-sink sink_name=stumm" -L "module-native-protocol-unix auth-anonymous=1"
# The screen takes a number that nobody else has, however many come up at once.
exec {nummer}< <(exec Xvfb -displayfd 1 -screen 0 1920x1080x24 -nolisten tcp)
schirm=$!
read -r -u "$nummer" DISPLAY
export DISPLAY=":$DISPLAY"
dbus-run-session -- bash -c 'openbox --config-file "$0" & "$@"' "$ordner/openbox.xml" "$@"
