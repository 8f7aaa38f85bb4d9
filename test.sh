#!/usr/bin/env bash
# Installs what is needed, runs all tests under the sanitizers, then builds the release and tries its
# package.
set -euo pipefail
ordner=$(cd "$(dirname "$0")" && pwd)
. "$ordner/cmake/pakete.sh"

stelle_bereit "${BAU_PAKETE[@]}" "${TEST_PAKETE[@]}" "${PAKET_PAKETE[@]}"
cd "$ordner"

echo "== Format"
find src tests bench -name '*.cpp' -o -name '*.h' | xargs clang-format --dry-run --Werror

echo "== Tests with AddressSanitizer and UndefinedBehaviorSanitizer"
baue "$ordner" asan
ctest --preset asan -j "$(nproc)"

echo "== Release without warnings"
baue "$ordner" release

echo "== Package: built, installed, played, removed"
packaging/paket_test.sh
echo "Done."
