#!/usr/bin/env bash
# Takes the pictures of README and guide again: plays an opening on a virtual screen.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
. "$root/cmake/packages.sh"
install_missing "${BUILD_PACKAGES[@]}" "${SCREEN_PACKAGES[@]}"
build "$root" release tarvelin tarvelin_data
mkdir -p "$root/docs/images"
"$root/tests/e2e/screen.sh" /usr/bin/python3 "$root/docs/capture.py" \
    "$root/build/release/bin" "$root/docs/images"
