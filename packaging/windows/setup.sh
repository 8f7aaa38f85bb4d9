#!/usr/bin/env bash
# Packs what `./test.sh --windows` has built into a setup: build/mingw/Tarvelin-VERSION-Windows.exe.
set -euo pipefail
root=$(cd "$(dirname "$0")/../.." && pwd)
build=$root/build/mingw
lists=$build/setup
tree=$lists/tree
version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$build/CMakeCache.txt")

# Debian keeps the licences of all that is within beside the packages that it came from.
PACKAGES=(qt6-base-dev qt6-svg-dev libcurl4-openssl-dev fonts-liberation libcli11-dev nlohmann-json3-dev
    gcc-mingw-w64-x86-64-posix-runtime mingw-w64-x86-64-dev qt6-translations-l10n nsis)
write_licenses() {
    cat "$root/packaging/windows/licenses.txt"
    local package license
    for package in "${PACKAGES[@]}"; do
        printf '\n\n======== %s %s ========\n\n' "$package" \
            "$(dpkg-query -W -f '${Version}' "$package")"
        cat "$(readlink -f "/usr/share/doc/$package/copyright")"
    done
    for license in LGPL-3 LGPL-2.1 GPL-3 GPL-2 Apache-2.0; do
        printf '\n\n======== %s ========\n\n' "$license"
        cat "/usr/share/common-licenses/$license"
    done
}

# What the setup copies and what a removal deletes, file by file.
write_lists() {
    local file path
    : >"$lists/copy.nsh"
    : >"$lists/delete.nsh"
    (cd "$tree" && find . -type d ! -name . -printf '%P\n' | sort) | while read -r path; do
        echo "CreateDirectory \"\$INSTDIR\\${path//\//\\}\""
    done >>"$lists/copy.nsh"
    (cd "$tree" && find . -type f -printf '%P\n' | sort) | while read -r file; do
        path=${file//\//\\}
        echo "File \"/oname=\$INSTDIR\\$path\" \"$tree/$file\"" >>"$lists/copy.nsh"
        echo "Delete \"\$INSTDIR\\$path\"" >>"$lists/delete.nsh"
    done
    (cd "$tree" && find . -type d ! -name . -printf '%P\n' | sort -r) | while read -r path; do
        echo "RMDir \"\$INSTDIR\\${path//\//\\}\""
    done >>"$lists/delete.nsh"
}

rm -rf "$lists" "$build"/Tarvelin-*-Windows.exe
cmake --install "$build" --prefix "$tree" --strip >/dev/null
write_licenses >"$tree/share/tarvelin/Lizenzen.txt"
write_lists
target=$build/Tarvelin-$version-Windows.exe
makensis -V2 -WX -INPUTCHARSET UTF8 -DVERSION="$version" -DSOURCE="$tree" -DTARGET="$target" \
    -DLISTS="$lists" "$root/packaging/windows/setup.nsi"
echo "$target: $(stat -c %s "$target") bytes"
