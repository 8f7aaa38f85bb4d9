#!/usr/bin/env bash
# Builds the Debian package, looks at it, installs it, plays it as a user without rights, and removes
# it. Where it can't be installed, it is unpacked and played from there.
set -euo pipefail
umask 022
quellen=$(cd "$(dirname "$0")/.." && pwd)
. "$quellen/cmake/packages.sh"
stelle_bereit "${BAU_PAKETE[@]}" "${PAKET_PAKETE[@]}"

arbeit=$(mktemp -d)
chmod 0755 "$arbeit"
installiert=
als=()
raeume_auf() {
    if [ -n "$installiert" ]; then
        "${als[@]}" dpkg --purge tarvelin >"$arbeit/dpkg" 2>&1 || cat "$arbeit/dpkg" >&2
    fi
    rm -rf "$arbeit"
}
trap raeume_auf EXIT

gut() { echo "  ok: $*"; }
scheitere() {
    echo "  FAILED: $*" >&2
    exit 1
}
# gleich WHAT EXPECTED FOUND
gleich() {
    [ "$2" = "$3" ] || scheitere "$1: expected '$2', found '$3'"
    gut "$1"
}
# still WHAT COMMAND...: a check that prints only what is wrong.
still() {
    local was=$1
    shift
    "$@" >"$arbeit/ausgabe" 2>&1 || {
        cat "$arbeit/ausgabe" >&2
        scheitere "$was"
    }
    gut "$was"
}

# Everything of ours below a /usr, with the time and sum of each file.
bestand() {
    local orte
    mapfile -d '' orte < <(find "$1" -iname '*tarvelin*' -prune -print0 2>/dev/null)
    [ ${#orte[@]} -gt 0 ] || return 0
    find "${orte[@]}" -printf '%p %M %u %s %T@\n' | sort
    find "${orte[@]}" -type f -exec sha256sum {} + | sort
}

echo "Package"
baue "$quellen" release
# A builder's umask doesn't reach the player.
umask 077
still "is built" cpack --config "$quellen/build/release/CPackConfig.cmake" -B "$arbeit/paket"
paket=$(echo "$arbeit"/paket/*.deb)
umask 022
version=$(dpkg-deb -f "$paket" Version)
gleich "bears the version of the program" "tarvelin-cli $version" \
    "$("$quellen/build/release/bin/tarvelin-cli" --version)"
gleich "bears the version of the changelog" "$version" \
    "$(dpkg-parsechangelog -l "$quellen/packaging/changelog" -S Version)"
still "has no fault for lintian" lintian --allow-root --fail-on error,warning "$paket"

if [ "$(id -u)" -ne 0 ]; then
    als=(sudo -n)
fi
vorher=$(bestand /usr)
if dpkg-query -W tarvelin >/dev/null 2>&1; then
    echo "Unpacked, for a package of this name is on this machine already"
elif ! "${als[@]}" true 2>/dev/null; then
    echo "Unpacked, for only root installs"
else
    echo "Installed"
    installiert=ja
fi
if [ -n "$installiert" ]; then
    wurzel=
    # Small images of the system leave man pages out.
    still "apt-get installs it" "${als[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q \
        -o DPkg::Lock::Timeout=500 -o 'DPkg::Options::=--path-include=/usr/share/*' \
        install -y --no-install-recommends "$paket"
else
    wurzel=$arbeit/wurzel
    dpkg-deb -x "$paket" "$wurzel"
    still "types of files are entered" update-mime-database "$wurzel/usr/share/mime"
fi
teile=$wurzel/usr/share
nachher=$(bestand "$wurzel/usr")
[ -n "$nachher" ] || scheitere "nothing was installed"

still "menu entry is valid" desktop-file-validate "$teile/applications/tarvelin.desktop"
metainfo=$teile/metainfo/example.tarvelin.tarvelin.metainfo.xml
still "metainfo is valid" appstreamcli validate --no-net "$metainfo"
still "metainfo knows the version" grep -q "release version=\"$version\"" "$metainfo"
for seite in tarvelin tarvelin-cli; do
    for ordner in "$teile/man" "$teile/man/de"; do
        still "man finds $seite in ${ordner#"$teile/"}" env LC_ALL=C man -M "$ordner" -w "$seite"
        MANWIDTH=80 LC_ALL=C.UTF-8 man --warnings -M "$ordner" "$seite" 2>&1 >/dev/null |
            grep . && scheitere "man complains about $seite"
    done
done

# What a desktop asks of the installed data folders.
desktop() {
    env -i PATH=/usr/bin:/bin HOME="$arbeit" LC_ALL=C.UTF-8 LANGUAGE="$1" \
        XDG_DATA_DIRS="$teile:/usr/share" /usr/bin/python3 - "$arbeit/x.tvf" <<'PYTHON'
import sys

from gi.repository import Gio

akte = Gio.File.new_for_path(sys.argv[1]).query_info("standard::*", Gio.FileQueryInfoFlags.NONE)
typ = akte.get_content_type()
print(typ, akte.get_icon().get_names()[0], Gio.content_type_is_a(typ, "text/plain"),
      Gio.content_type_get_description(typ), sep="|")
PYTHON
}
typ=application-x-tarvelin-plan
cp "$teile/tarvelin/saves/basic.tvf" "$arbeit/x.tvf"
gleich "plans have type, icon and name" "application/x-tarvelin-plan|$typ|True|Tarvelin plan" \
    "$(desktop en)"
gleich "plans have a German name" "application/x-tarvelin-plan|$typ|True|Tarvelin-Plan" \
    "$(desktop de)"
for kante in 16 24 32 48 64 128 256 512; do
    for bild in apps/tarvelin mimetypes/$typ; do
        datei=$teile/icons/hicolor/${kante}x$kante/$bild.png
        file -b "$datei" | grep -q "^PNG image data, $kante x $kante," ||
            scheitere "$datei has not $kante pixels"
        [ -s "$teile/icons/hicolor/scalable/$bild.svg" ] || scheitere "$bild.svg is missing"
    done
done
gut "icons of menu entry and plans in all sizes"

echo "Played"
# The program has a home of its own; what the stage around it writes goes elsewhere.
heim=$arbeit/heim
mkdir -p "$heim" "$arbeit/buehne" "$arbeit/e2e"
cp "$quellen"/tests/e2e/*.* "$quellen/packaging/package_play.py" "$arbeit/e2e"
nutzer=()
if [ "$(id -u)" -eq 0 ]; then
    chown nobody:nogroup "$heim" "$arbeit/buehne"
    nutzer=(setpriv --reuid=nobody --regid=nogroup --clear-groups)
fi
nutzer+=(env -i -C "$arbeit/buehne" PATH=/usr/bin:/bin HOME="$arbeit/buehne" LC_ALL=C.UTF-8
    PYTHONDONTWRITEBYTECODE=1)
programme=$wurzel/usr/bin
starterplan=$teile/tarvelin/saves/basic.tvf
still "console program plays the starter plan" \
    "${nutzer[@]}" HOME="$heim" "$programme/tarvelin-cli" "$starterplan"
still "window shows the starter plan, takes orders, plays them, and brings them back" \
    "${nutzer[@]}" "$arbeit/e2e/screen.sh" /usr/bin/python3 "$arbeit/e2e/package_play.py" \
    "$programme" "$starterplan" "$heim"
gleich "installed files are as they were" "$nachher" "$(bestand "$wurzel/usr")"
gleich "nothing but the data folder lies with the user" "$(printf '%s\n' \
    .local .local/share .local/share/Tarvelin .local/share/Tarvelin/config.cfg \
    .local/share/Tarvelin/saves .local/share/Tarvelin/saves/autosave.tvf)" \
    "$(cd "$heim" && find . -mindepth 1 -path '*/Tarvelin/img' -prune -o -path '*/Tarvelin/mfx' \
        -prune -o -printf '%P\n' | LC_ALL=C sort)"
daten=$heim/.local/share/Tarvelin
for ordner in img mfx; do
    still "$ordner was copied to the user" diff -r "$teile/tarvelin/$ordner" "$daten/$ordner"
done

if [ -n "$installiert" ]; then
    echo "Removed"
    plan=$(sha256sum "$daten/saves/autosave.tvf")
    still "dpkg purges it" "${als[@]}" dpkg --purge tarvelin
    installiert=
    gleich "nothing stays in /usr" "$vorher" "$(bestand /usr)"
    ! grep -rq tarvelin /usr/share/mime || scheitere "the type of plans is still known"
    gut "the type of plans is forgotten"
    gleich "the user's plan stays" "$plan" "$(sha256sum "$daten/saves/autosave.tvf")"
fi
