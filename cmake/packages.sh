# For run.sh and test.sh: Debian packages, and a build that does nothing twice.

BUILD_PACKAGES=(g++ cmake ninja-build libcli11-dev nlohmann-json3-dev
    libcurl4-openssl-dev qt6-base-dev qt6-svg-dev qt6-multimedia-dev qt6-translations-l10n fonts-liberation)
# A virtual screen with a player's hands and ears and a screen reader's eyes.
SCREEN_PACKAGES=(xvfb openbox xdotool imagemagick dbus at-spi2-core
    gir1.2-atspi-2.0 python3-gi pulseaudio pulseaudio-utils)
# What builds and checks the Debian package, and what a desktop reads of it.
PACKAGING_PACKAGES=(dpkg-dev file lintian desktop-file-utils appstream shared-mime-info man-db
    "${SCREEN_PACKAGES[@]}")
TEST_PACKAGES=(libgtest-dev libbenchmark-dev clang-format python3-icalendar
    "${SCREEN_PACKAGES[@]}")
TOOL_PACKAGES=(clang clang-tidy clang-tools cppcheck)
COVERAGE_PACKAGES=(gcovr)
# A cross compiler, tools that unpack sources and pack a setup, Wine, and a reader of screenshots.
WINDOWS_PACKAGES=(g++-mingw-w64-x86-64-posix googletest dpkg-dev nsis wine64 python3-icalendar
    tesseract-ocr tesseract-ocr-deu)

# Installs those of the named packages that are missing, as root or by sudo. Where neither works, it
# names them and exits.
install_missing() {
    local missing=() package
    for package in "$@"; do
        dpkg-query -W -f '${Status}\n' "$package" 2>/dev/null | grep -q ' installed$' ||
            missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return
    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        as_root=(sudo)
    fi
    if ! command -v apt-get >/dev/null || ! { [ "$(id -u)" -eq 0 ] || command -v sudo >/dev/null; }
    then
        echo "Please install these packages (names of Debian 12), then start again:" >&2
        echo "  ${missing[*]}" >&2
        exit 1
    fi
    echo "Installing: ${missing[*]}"
    local apt=("${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q
        -o DPkg::Lock::Timeout=500 -o Acquire::Retries=3)
    "${apt[@]}" update
    "${apt[@]}" install -y --no-install-recommends "${missing[@]}"
}

# build ROOT PRESET [TARGET]...: configures and builds the named targets, or all of them. Configuring
# takes a moment when nothing has changed, and finds packages that were installed meanwhile.
build() {
    local root=$1 preset=$2
    shift 2
    (
        cd "$root"
        cmake --preset "$preset" >/dev/null
        cmake --build --preset "$preset" ${1:+--target "$@"}
    )
}
