#!/usr/bin/env bash
# Builds the Debian package, checks it, installs it, plays it as a user without rights, and removes it.
# Where it can't be installed, it is unpacked and played from there.
set -euo pipefail
umask 022
root=$(cd "$(dirname "$0")/.." && pwd)
. "$root/cmake/packages.sh"
install_missing "${BUILD_PACKAGES[@]}" "${PACKAGING_PACKAGES[@]}"

work=$(mktemp -d)
chmod 0755 "$work"
installed=
as_root=()
clean_up() {
    if [ -n "$installed" ]; then
        "${as_root[@]}" dpkg --purge tarvelin >"$work/dpkg" 2>&1 || cat "$work/dpkg" >&2
    fi
    rm -rf "$work"
}
trap clean_up EXIT

ok() { echo "  ok: $*"; }
fail() {
    echo "  FAILED: $*" >&2
    exit 1
}
# same WHAT EXPECTED FOUND
same() {
    [ "$2" = "$3" ] || fail "$1: expected '$2', found '$3'"
    ok "$1"
}
# quiet WHAT COMMAND...: a check whose output is shown only if it fails.
quiet() {
    local what=$1
    shift
    "$@" >"$work/output" 2>&1 || {
        cat "$work/output" >&2
        fail "$what"
    }
    ok "$what"
}

# All files of ours below a /usr, with time and checksum.
inventory() {
    local paths
    mapfile -d '' paths < <(find "$1" -iname '*tarvelin*' -prune -print0 2>/dev/null)
    [ ${#paths[@]} -gt 0 ] || return 0
    find "${paths[@]}" -printf '%p %M %u %s %T@\n' | sort
    find "${paths[@]}" -type f -exec sha256sum {} + | sort
}

echo "Package"
build "$root" release
# The packager's umask must not reach the player.
umask 077
quiet "is built" cpack --config "$root/build/release/CPackConfig.cmake" -B "$work/package"
package=$(echo "$work"/package/*.deb)
umask 022
version=$(dpkg-deb -f "$package" Version)
same "has the version of the program" "tarvelin-cli $version" \
    "$("$root/build/release/bin/tarvelin-cli" --version)"
same "has the version of the changelog" "$version" \
    "$(dpkg-parsechangelog -l "$root/packaging/changelog" -S Version)"
quiet "has no fault for lintian" lintian --allow-root --fail-on error,warning "$package"

if [ "$(id -u)" -ne 0 ]; then
    as_root=(sudo -n)
fi
before=$(inventory /usr)
if dpkg-query -W tarvelin >/dev/null 2>&1; then
    echo "Unpacked, as a package of this name is on this machine already"
elif ! "${as_root[@]}" true 2>/dev/null; then
    echo "Unpacked, as only root can install"
else
    echo "Installed"
    installed=yes
fi
if [ -n "$installed" ]; then
    prefix=
    # Small images of the system leave man pages out.
    quiet "apt-get installs it" "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q \
        -o DPkg::Lock::Timeout=500 -o 'DPkg::Options::=--path-include=/usr/share/*' \
        install -y --no-install-recommends "$package"
else
    prefix=$work/unpacked
    dpkg-deb -x "$package" "$prefix"
    quiet "file types are registered" update-mime-database "$prefix/usr/share/mime"
fi
share=$prefix/usr/share
after=$(inventory "$prefix/usr")
[ -n "$after" ] || fail "nothing was installed"

quiet "menu entry is valid" desktop-file-validate "$share/applications/tarvelin.desktop"
metainfo=$share/metainfo/example.tarvelin.tarvelin.metainfo.xml
quiet "metainfo is valid" appstreamcli validate --no-net "$metainfo"
quiet "metainfo knows the version" grep -q "release version=\"$version\"" "$metainfo"
for page in tarvelin tarvelin-cli; do
    for folder in "$share/man" "$share/man/de"; do
        quiet "man finds $page in ${folder#"$share/"}" env LC_ALL=C man -M "$folder" -w "$page"
        MANWIDTH=80 LC_ALL=C.UTF-8 man --warnings -M "$folder" "$page" 2>&1 >/dev/null |
            grep . && fail "man complains about $page"
    done
done

# What a desktop learns about a plan from the installed data.
describe_plan() {
    env -i PATH=/usr/bin:/bin HOME="$work" LC_ALL=C.UTF-8 LANGUAGE="$1" \
        XDG_DATA_DIRS="$share:/usr/share" /usr/bin/python3 - "$work/x.tvf" <<'PYTHON'
import sys

from gi.repository import Gio

info = Gio.File.new_for_path(sys.argv[1]).query_info("standard::*", Gio.FileQueryInfoFlags.NONE)
content_type = info.get_content_type()
print(content_type, info.get_icon().get_names()[0],
      Gio.content_type_is_a(content_type, "text/plain"),
      Gio.content_type_get_description(content_type), sep="|")
PYTHON
}
icon=application-x-tarvelin-plan
cp "$share/tarvelin/saves/basic.tvf" "$work/x.tvf"
same "plans have type, icon and name" "application/x-tarvelin-plan|$icon|True|Tarvelin plan" \
    "$(describe_plan en)"
same "plans have a German name" "application/x-tarvelin-plan|$icon|True|Tarvelin-Plan" \
    "$(describe_plan de)"
for size in 16 24 32 48 64 128 256 512; do
    for name in apps/tarvelin mimetypes/$icon; do
        file=$share/icons/hicolor/${size}x$size/$name.png
        file -b "$file" | grep -q "^PNG image data, $size x $size," ||
            fail "$file isn't $size pixels wide and high"
        [ -s "$share/icons/hicolor/scalable/$name.svg" ] || fail "$name.svg is missing"
    done
done
ok "menu entry and plans have icons in all sizes"

echo "Played"
# The program has a home of its own; what the virtual screen writes goes elsewhere.
home=$work/home
mkdir -p "$home" "$work/stage" "$work/e2e"
cp "$root"/tests/e2e/*.* "$root/packaging/package_play.py" "$work/e2e"
user=()
if [ "$(id -u)" -eq 0 ]; then
    chown nobody:nogroup "$home" "$work/stage"
    user=(setpriv --reuid=nobody --regid=nogroup --clear-groups)
fi
user+=(env -i -C "$work/stage" PATH=/usr/bin:/bin HOME="$work/stage" LC_ALL=C.UTF-8
    PYTHONDONTWRITEBYTECODE=1)
programs=$prefix/usr/bin
starter_plan=$share/tarvelin/saves/basic.tvf
quiet "console program plays the starter plan" \
    "${user[@]}" HOME="$home" "$programs/tarvelin-cli" "$starter_plan"
quiet "window shows the starter plan, takes orders, plays them, and brings them back" \
    "${user[@]}" "$work/e2e/screen.sh" /usr/bin/python3 "$work/e2e/package_play.py" \
    "$programs" "$starter_plan" "$home"
same "installed files are unchanged" "$after" "$(inventory "$prefix/usr")"
same "the user has the data folder and nothing else" "$(printf '%s\n' \
    .local .local/share .local/share/Tarvelin .local/share/Tarvelin/config.cfg \
    .local/share/Tarvelin/saves .local/share/Tarvelin/saves/autosave.tvf)" \
    "$(cd "$home" && find . -mindepth 1 -path '*/Tarvelin/img' -prune -o -path '*/Tarvelin/mfx' \
        -prune -o -path '*/Tarvelin/openings' -prune -o -printf '%P\n' | LC_ALL=C sort)"
data=$home/.local/share/Tarvelin
for folder in img mfx openings; do
    quiet "$folder was copied to the user" diff -r "$share/tarvelin/$folder" "$data/$folder"
done

if [ -n "$installed" ]; then
    echo "Removed"
    plan=$(sha256sum "$data/saves/autosave.tvf")
    quiet "dpkg purges it" "${as_root[@]}" dpkg --purge tarvelin
    installed=
    same "nothing stays in /usr" "$before" "$(inventory /usr)"
    ! grep -rq tarvelin /usr/share/mime || fail "the type of plans is still known"
    ok "the type of plans is forgotten"
    same "the user's plan stays" "$plan" "$(sha256sum "$data/saves/autosave.tvf")"
fi
