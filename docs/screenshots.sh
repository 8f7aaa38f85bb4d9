#!/usr/bin/env bash
# Takes the pictures of README and ANLEITUNG anew: plays an opening on a virtual screen.
set -euo pipefail
ordner=$(cd "$(dirname "$0")/.." && pwd)
. "$ordner/cmake/packages.sh"
stelle_bereit "${BAU_PAKETE[@]}" "${BILDSCHIRM_PAKETE[@]}"
baue "$ordner" release tarvelin tarvelin_data
mkdir -p "$ordner/docs/images"
"$ordner/tests/e2e/screen.sh" /usr/bin/python3 "$ordner/docs/capture.py" \
    "$ordner/build/release/bin" "$ordner/docs/images"
