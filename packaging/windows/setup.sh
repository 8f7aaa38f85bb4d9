#!/usr/bin/env bash
# Packs what `./test.sh --windows` has built into a setup: build/mingw/Tarvelin-VERSION-Windows.exe.
set -euo pipefail
ordner=$(cd "$(dirname "$0")/../.." && pwd)
bau=$ordner/build/mingw
baum=$bau/setup/baum
listen=$bau/setup
version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$bau/CMakeCache.txt")

# The licences of all that is within, as Debian keeps them beside the packages that it came from.
PAKETE=(qt6-base-dev qt6-svg-dev libcurl4-openssl-dev fonts-liberation libcli11-dev nlohmann-json3-dev
    gcc-mingw-w64-x86-64-posix-runtime mingw-w64-x86-64-dev qt6-translations-l10n nsis)
schreibe_lizenzen() {
    cat "$ordner/packaging/windows/licenses.txt"
    local paket lizenz
    for paket in "${PAKETE[@]}"; do
        printf '\n\n======== %s %s ========\n\n' "$paket" "$(dpkg-query -W -f '${Version}' "$paket")"
        cat "$(readlink -f "/usr/share/doc/$paket/copyright")"
    done
    for lizenz in LGPL-3 LGPL-2.1 GPL-3 GPL-2 Apache-2.0; do
        printf '\n\n======== %s ========\n\n' "$lizenz"
        cat "/usr/share/common-licenses/$lizenz"
    done
}

# What the setup copies and what a removal deletes, file by file.
schreibe_listen() {
    local datei stelle
    : >"$listen/kopieren.nsh"
    : >"$listen/loeschen.nsh"
    (cd "$baum" && find . -type d ! -name . -printf '%P\n' | sort) | while read -r stelle; do
        echo "CreateDirectory \"\$INSTDIR\\${stelle//\//\\}\""
    done >>"$listen/kopieren.nsh"
    (cd "$baum" && find . -type f -printf '%P\n' | sort) | while read -r datei; do
        stelle=${datei//\//\\}
        echo "File \"/oname=\$INSTDIR\\$stelle\" \"$baum/$datei\"" >>"$listen/kopieren.nsh"
        echo "Delete \"\$INSTDIR\\$stelle\"" >>"$listen/loeschen.nsh"
    done
    (cd "$baum" && find . -type d ! -name . -printf '%P\n' | sort -r) | while read -r stelle; do
        echo "RMDir \"\$INSTDIR\\${stelle//\//\\}\""
    done >>"$listen/loeschen.nsh"
}

rm -rf "$bau/setup" "$bau"/Tarvelin-*-Windows.exe
cmake --install "$bau" --prefix "$baum" --strip >/dev/null
schreibe_lizenzen >"$baum/share/tarvelin/Lizenzen.txt"
schreibe_listen
ziel=$bau/Tarvelin-$version-Windows.exe
makensis -V2 -WX -INPUTCHARSET UTF8 -DVERSION="$version" -DQUELLE="$baum" -DZIEL="$ziel" -DLISTEN="$listen" \
    "$ordner/packaging/windows/setup.nsi"
echo "$ziel: $(stat -c %s "$ziel") bytes"
