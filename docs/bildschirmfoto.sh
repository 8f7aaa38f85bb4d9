#!/usr/bin/env bash
# Takes the picture of the window that stands in the README: plays an opening on a virtual screen.
set -euo pipefail
ordner=$(cd "$(dirname "$0")/.." && pwd)
. "$ordner/cmake/pakete.sh"
stelle_bereit "${BAU_PAKETE[@]}" "${BILDSCHIRM_PAKETE[@]}"
baue "$ordner" release tarvelin tarvelin_daten
"$ordner/tests/e2e/bildschirm.sh" /usr/bin/python3 "$ordner/tests/e2e/aufnahme.py" \
    "$ordner/build/release/bin" "$ordner/docs/fenster.png"
