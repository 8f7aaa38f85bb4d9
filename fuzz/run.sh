#!/usr/bin/env bash
# Runs clang's fuzzer on each target, one after the other, or on those that are named:
#   fuzz/run.sh SECONDS [Plan|IniFile|Texts]...
# It begins with the kept inputs and the plans of the tests, and adds to build/fuzz/corpus what reaches
# further. An input that breaks a law is written to build/fuzz and named, and the run fails.
# To keep the fewest inputs that reach all that was reached:
#   fuzz/run.sh --merge
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
. "$root/cmake/packages.sh"
install_missing "${BUILD_PACKAGES[@]}" "${TEST_PACKAGES[@]}" clang libclang-rt-14-dev
cd "$root"
seconds=${1:?"fuzz/run.sh SECONDS [TARGET]..."}
targets=("${@:2}")
[ ${#targets[@]} -gt 0 ] || targets=(Plan IniFile Texts)
build "$root" fuzz tarvelin-fuzz-plan tarvelin-fuzz-inifile tarvelin-fuzz-texts

# The tests' plans, in the form that each target takes.
seeds=build/fuzz/seeds
mkdir -p "$seeds"/{Plan,IniFile}
cp -r fuzz/seeds/Texts "$seeds"
cp tests/data/golden/*.tvf data/saves/*.tvf "$seeds/Plan"
# And one in UTF-16 with a byte order mark.
{ printf '\xff\xfe' && iconv -f CP1252 -t UTF-16LE data/saves/basic.tvf; } >"$seeds/Plan/utf16.tvf"
for plan in "$seeds"/Plan/*; do
    { printf 'Bauliste\x1fItem_001\x1fGM\x1f' && cat "$plan"; } >"$seeds/IniFile/${plan##*/}"
done

for target in "${targets[@]}"; do
    program=build/fuzz/fuzz/tarvelin-fuzz-${target,,}
    finds=build/fuzz/corpus/$target
    mkdir -p "$finds"
    if [ "$seconds" = --merge ]; then
        merged=$(mktemp -d)
        "$program" -merge=1 -use_counters=0 -max_len=1500 "$merged" "fuzz/corpus/$target" "$finds"
        rm -r "fuzz/corpus/$target"
        mv "$merged" "fuzz/corpus/$target"
        chmod 0755 "fuzz/corpus/$target"
    else
        echo "== $target, $seconds s"
        "$program" "$finds" "fuzz/corpus/$target" "$seeds/$target" -dict=fuzz/words.dict \
            -max_len=3000 -max_total_time="$seconds" -print_final_stats=1 \
            -artifact_prefix="build/fuzz/$target-"
    fi
done
