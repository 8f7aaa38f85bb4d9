# For run.sh and test.sh: Debian packages, and a build that does nothing twice.

BAU_PAKETE=(g++ cmake ninja-build libcli11-dev nlohmann-json3-dev
    libcurl4-openssl-dev qt6-base-dev qt6-svg-dev qt6-multimedia-dev qt6-translations-l10n fonts-liberation)
# A virtual screen with a player's hands and ears and a screen reader's eyes.
BILDSCHIRM_PAKETE=(xvfb openbox xdotool imagemagick dbus at-spi2-core
    gir1.2-atspi-2.0 python3-gi pulseaudio pulseaudio-utils)
# Builds the Debian package, looks at it, and asks what a desktop asks of it.
PAKET_PAKETE=(dpkg-dev file lintian desktop-file-utils appstream shared-mime-info man-db
    "${BILDSCHIRM_PAKETE[@]}")
TEST_PAKETE=(libgtest-dev libbenchmark-dev clang-format python3-icalendar
    "${BILDSCHIRM_PAKETE[@]}")
WERKZEUG_PAKETE=(clang clang-tidy clang-tools cppcheck)
ABDECKUNG_PAKETE=(gcovr)
# A cross compiler, what unpacks sources, what packs a setup, a Windows with a screen, and who reads it.
WINDOWS_PAKETE=(g++-mingw-w64-x86-64-posix googletest dpkg-dev nsis wine64 python3-icalendar
    tesseract-ocr tesseract-ocr-deu)

# Installs those of the named packages that are missing: as root or by sudo; elsewhere it names them
# and stops.
stelle_bereit() {
    local fehlende=() paket
    for paket in "$@"; do
        dpkg-query -W -f '${Status}\n' "$paket" 2>/dev/null | grep -q ' installed$' ||
            fehlende+=("$paket")
    done
    [ ${#fehlende[@]} -eq 0 ] && return
    local als=()
    if [ "$(id -u)" -ne 0 ]; then
        als=(sudo)
    fi
    if ! command -v apt-get >/dev/null || ! { [ "$(id -u)" -eq 0 ] || command -v sudo >/dev/null; }
    then
        echo "Please install these packages (names of Debian 12), then start again:" >&2
        echo "  ${fehlende[*]}" >&2
        exit 1
    fi
    echo "Installing: ${fehlende[*]}"
    local apt=("${als[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q
        -o DPkg::Lock::Timeout=500 -o Acquire::Retries=3)
    "${apt[@]}" update
    "${apt[@]}" install -y --no-install-recommends "${fehlende[@]}"
}

# Configures a preset, which takes a moment when nothing changed, and builds the named targets, or all
# of them. A package that was installed meanwhile is found.
baue() {
    local ordner=$1 preset=$2
    shift 2
    (
        cd "$ordner"
        cmake --preset "$preset" >/dev/null
        cmake --build --preset "$preset" ${1:+--target "$@"}
    )
}
