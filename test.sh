#!/usr/bin/env bash
# Installs what is needed, runs all tests under the sanitizers, then builds the release and tests its
# package. With an argument it does something else instead:
#   --tools     clang-tidy, cppcheck and a build by clang++, none of which may complain
#   --coverage  shows which lines below the window the tests run
#   --monkey [SEED [ACTIONS]]
#               lets a monkey play the real program on a virtual screen: seed 1, 400 actions
#   --windows   builds everything for Windows, its libraries included, runs the tests under Wine, packs
#               the setup and plays it
set -euo pipefail
root=$(cd "$(dirname "$0")" && pwd)
. "$root/cmake/packages.sh"
cd "$root"

run_tests() {
    install_missing "${BUILD_PACKAGES[@]}" "${TEST_PACKAGES[@]}" "${PACKAGING_PACKAGES[@]}"
    echo "== Format"
    find src tests bench fuzz -name '*.cpp' -o -name '*.h' | xargs clang-format --dry-run --Werror

    echo "== Tests with AddressSanitizer and UndefinedBehaviorSanitizer"
    build "$root" asan
    ctest --preset asan -j "$(nproc)"

    echo "== Release without warnings"
    build "$root" release

    echo "== Package: built, installed, played, removed"
    packaging/package_test.sh
}

run_tools() {
    install_missing "${BUILD_PACKAGES[@]}" "${TEST_PACKAGES[@]}" "${TOOL_PACKAGES[@]}"
    echo "== clang++"
    build "$root" clang
    echo "== clang-tidy"
    run-clang-tidy -p build/clang -quiet "^$root/(src|bench|fuzz)/"
    echo "== cppcheck"
    # Its advice on style is that of clang-tidy, or a matter of taste.
    cppcheck --enable=warning,performance,portability --error-exitcode=1 --quiet --std=c++20 \
        --library=qt --inline-suppr -I src -I tests -j "$(nproc)" src bench fuzz
}

measure_coverage() {
    install_missing "${BUILD_PACKAGES[@]}" "${TEST_PACKAGES[@]}" "${COVERAGE_PACKAGES[@]}"
    build "$root" coverage
    find build/coverage -name '*.gcda' -delete
    ctest --preset coverage -j "$(nproc)" -LE Screen
    gcovr --root . --gcov-ignore-parse-errors \
        --filter 'src/(util|model|plan|simulation|search|persistence|document|export|console)/' \
        --exclude-directories '.*/CMakeFiles/[0-9]+[.].*' build/coverage
}

run_monkey() {
    install_missing "${BUILD_PACKAGES[@]}" "${TEST_PACKAGES[@]}"
    build "$root" asan
    tests/e2e/screen.sh tests/e2e/monkey_test.py build/asan/bin "${1:-1}" "${2:-400}"
}

test_for_windows() {
    install_missing "${BUILD_PACKAGES[@]}" "${SCREEN_PACKAGES[@]}" "${WINDOWS_PACKAGES[@]}"
    . packaging/windows/libraries.sh
    build_missing_libraries
    export CURL_WINDOWS QT_WINDOWS SVG_WINDOWS
    # A build folder keeps the toolkit that it was configured with.
    grep -qsF "$QT_WINDOWS/" build/mingw/CMakeCache.txt || rm -rf build/mingw
    build "$root" mingw
    echo "== Tests under Wine"
    tests/e2e/screen.sh tests/e2e/windows.sh ctest --preset mingw
    echo "== Setup"
    packaging/windows/setup.sh
    echo "== Played under Wine"
    tests/e2e/screen.sh tests/e2e/windows.sh tests/e2e/windows_test.py build/mingw/bin \
        build/mingw/Tarvelin-*-Windows.exe build/mingw/images
    [ -n "$SVG_WINDOWS" ] ||
        echo "== No sources of Qt's Svg module: the window for Windows saves no pictures as SVG"
}

case "${1:-}" in
    "") run_tests ;;
    --tools) run_tools ;;
    --coverage) measure_coverage ;;
    --monkey) run_monkey "${@:2}" ;;
    --windows) test_for_windows ;;
    *)
        echo "test.sh: $1 is none of --tools, --coverage, --monkey, --windows" >&2
        exit 2
        ;;
esac
echo "Done."
