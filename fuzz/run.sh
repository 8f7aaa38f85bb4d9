#!/usr/bin/env bash
# Lets the fuzzer of clang run on each target, one after the other, or on those that are named:
#   fuzz/run.sh SECONDS [Plan|Profil|Texte]...
# It begins with the kept inputs and plans of the tests, and adds to build/fuzz/corpus what reaches
# further. An input that breaks a promise is written to build/fuzz, its name told, and the run fails.
# To keep the least inputs that reach all that was reached:
#   fuzz/run.sh --merge
set -euo pipefail
ordner=$(cd "$(dirname "$0")/.." && pwd)
. "$ordner/cmake/packages.sh"
stelle_bereit "${BAU_PAKETE[@]}" "${TEST_PAKETE[@]}" clang libclang-rt-14-dev
cd "$ordner"
sekunden=${1:?"fuzz/run.sh SECONDS [TARGET]..."}
ziele=("${@:2}")
[ ${#ziele[@]} -gt 0 ] || ziele=(Plan Profil Texte)
baue "$ordner" fuzz tarvelin-fuzz-plan tarvelin-fuzz-profil tarvelin-fuzz-texte

# Plans of the tests in the form of the targets.
saat=build/fuzz/seeds
mkdir -p "$saat"/{Plan,Profil}
cp -r fuzz/seeds/Texte "$saat"
cp tests/data/golden/*.tvf data/saves/*.tvf "$saat/Plan"
# One more in the encoding that its mark tells.
{ printf '\xff\xfe' && iconv -f CP1252 -t UTF-16LE data/saves/basic.tvf; } >"$saat/Plan/utf16.tvf"
for plan in "$saat"/Plan/*; do
    { printf 'Bauliste\x1fItem_001\x1fGM\x1f' && cat "$plan"; } >"$saat/Profil/${plan##*/}"
done

for ziel in "${ziele[@]}"; do
    programm=build/fuzz/fuzz/tarvelin-fuzz-${ziel,,}
    funde=build/fuzz/corpus/$ziel
    mkdir -p "$funde"
    if [ "$sekunden" = --merge ]; then
        neu=$(mktemp -d)
        "$programm" -merge=1 -use_counters=0 -max_len=1500 "$neu" "fuzz/corpus/$ziel" "$funde"
        rm -r "fuzz/corpus/$ziel"
        mv "$neu" "fuzz/corpus/$ziel"
        chmod 0755 "fuzz/corpus/$ziel"
    else
        echo "== $ziel, $sekunden s"
        "$programm" "$funde" "fuzz/corpus/$ziel" "$saat/$ziel" -dict=fuzz/words.dict \
            -max_len=3000 -max_total_time="$sekunden" -print_final_stats=1 \
            -artifact_prefix="build/fuzz/$ziel-"
    fi
done
