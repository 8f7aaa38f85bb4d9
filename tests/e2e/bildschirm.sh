#!/usr/bin/env bash
# Runs a command on a virtual screen with a window manager and the bus of the screen readers.
# SKALIERUNG=2 doubles the program's pixels.
set -euo pipefail
export XDG_RUNTIME_DIR
XDG_RUNTIME_DIR=$(mktemp -d)
chmod 0700 "$XDG_RUNTIME_DIR"
trap 'rm -rf "$XDG_RUNTIME_DIR"' EXIT
export QT_QPA_PLATFORM=xcb QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 QT_SCALE_FACTOR=${SKALIERUNG:-1}
# The bus library of the accessibility bridge keeps its connection until the end.
export LSAN_OPTIONS="suppressions=$(cd "$(dirname "$0")" && pwd)/lsan.supp:print_suppressions=0"
xvfb-run -a -s "-screen 0 1920x1080x24" dbus-run-session -- bash -c 'openbox & "$@"' bash "$@"
