#!/usr/bin/env bash
# Installs what is needed, runs all tests under the sanitizers, then builds the release and tries its
# package. With an argument it does something else instead:
#   --tools     clang-tidy, cppcheck and a build by clang++, none of which may say a word
#   --coverage  tells which lines below the window the tests run
#   --lang      lets a monkey play the real program on a virtual screen: SEED and ACTIONS, 1 and 400
#   --windows   builds all for Windows, its libraries included, runs the tests there, packs and plays
#               the setup
set -euo pipefail
ordner=$(cd "$(dirname "$0")" && pwd)
. "$ordner/cmake/packages.sh"
cd "$ordner"

teste() {
    stelle_bereit "${BAU_PAKETE[@]}" "${TEST_PAKETE[@]}" "${PAKET_PAKETE[@]}"
    echo "== Format"
    find src tests bench fuzz -name '*.cpp' -o -name '*.h' | xargs clang-format --dry-run --Werror

    echo "== Tests with AddressSanitizer and UndefinedBehaviorSanitizer"
    baue "$ordner" asan
    ctest --preset asan -j "$(nproc)"

    echo "== Release without warnings"
    baue "$ordner" release

    echo "== Package: built, installed, played, removed"
    packaging/package_test.sh
}

pruefe_mit_werkzeugen() {
    stelle_bereit "${BAU_PAKETE[@]}" "${TEST_PAKETE[@]}" "${WERKZEUG_PAKETE[@]}"
    echo "== clang++"
    baue "$ordner" clang
    echo "== clang-tidy"
    run-clang-tidy -p build/clang -quiet "^$ordner/(src|bench|fuzz)/"
    echo "== cppcheck"
    # Its hints on style are those of clang-tidy, or of taste.
    cppcheck --enable=warning,performance,portability --error-exitcode=1 --quiet --std=c++20 \
        --library=qt --inline-suppr -I src -I tests -j "$(nproc)" src bench fuzz
}

miss_abdeckung() {
    stelle_bereit "${BAU_PAKETE[@]}" "${TEST_PAKETE[@]}" "${ABDECKUNG_PAKETE[@]}"
    baue "$ordner" coverage
    find build/coverage -name '*.gcda' -delete
    ctest --preset coverage -j "$(nproc)" -LE Screen
    gcovr --root . --gcov-ignore-parse-errors \
        --filter 'src/(util|model|plan|simulation|search|persistence|console)/' \
        --exclude-directories '.*/CMakeFiles/[0-9]+[.].*' build/coverage
}

spiele_lang() {
    stelle_bereit "${BAU_PAKETE[@]}" "${TEST_PAKETE[@]}"
    baue "$ordner" asan
    tests/e2e/screen.sh tests/e2e/monkey_test.py build/asan/bin "${1:-1}" "${2:-400}"
}

teste_fuer_windows() {
    stelle_bereit "${BAU_PAKETE[@]}" "${BILDSCHIRM_PAKETE[@]}" "${WINDOWS_PAKETE[@]}"
    . packaging/windows/libraries.sh
    stelle_bibliotheken_bereit
    export CURL_WINDOWS QT_WINDOWS SVG_WINDOWS
    # A build stays with the toolkit that it began with.
    grep -qsF "$QT_WINDOWS/" build/mingw/CMakeCache.txt || rm -rf build/mingw
    baue "$ordner" mingw
    echo "== Tests under Wine"
    tests/e2e/screen.sh tests/e2e/windows.sh ctest --preset mingw
    echo "== Setup"
    packaging/windows/setup.sh
    echo "== Played under Wine"
    tests/e2e/screen.sh tests/e2e/windows.sh tests/e2e/windows_test.py build/mingw/bin \
        build/mingw/Tarvelin-*-Windows.exe build/mingw/bilder
    [ -n "$SVG_WINDOWS" ] ||
        echo "== Qt's Svg module couldn't be had: the window for Windows saves no pictures as SVG"
}

case "${1:-}" in
    "") teste ;;
    --tools) pruefe_mit_werkzeugen ;;
    --coverage) miss_abdeckung ;;
    --lang) spiele_lang "${@:2}" ;;
    --windows) teste_fuer_windows ;;
    *)
        echo "test.sh: $1 is none of --tools, --coverage, --lang, --windows" >&2
        exit 2
        ;;
esac
echo "Done."
