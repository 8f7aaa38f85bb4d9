# For test.sh: libcurl and Qt for Windows. Debian has their sources but no builds for it, so they are
# built here: once, static, into the user's cache. A change that shows neither in the switches below nor
# in the patches has to raise the number of the recipe.

RECIPE=1

# HTTP and HTTPS alone, with the system's own certificates.
CURL_SWITCHES=(
    -DCMAKE_BUILD_TYPE=Release -DBUILD_SHARED_LIBS=OFF -DBUILD_CURL_EXE=OFF -DBUILD_TESTING=OFF
    -DENABLE_MANUAL=OFF -DHTTP_ONLY=ON -DCURL_USE_SCHANNEL=ON -DCURL_USE_LIBSSH2=OFF
    -DCURL_USE_LIBPSL=OFF -DUSE_LIBIDN2=OFF -DUSE_NGHTTP2=OFF -DCURL_ZLIB=OFF -DCURL_BROTLI=OFF
    -DCURL_ZSTD=OFF)

QT_SWITCHES=(
    -DCMAKE_BUILD_TYPE=Release -DBUILD_SHARED_LIBS=OFF -DFEATURE_static_runtime=ON
    -DQT_QMAKE_TARGET_MKSPEC=win32-g++ -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF
    -DQT_BUILD_TOOLS_WHEN_CROSSCOMPILING=OFF -DINPUT_opengl=no
    -DFEATURE_schannel=ON -DFEATURE_accessibility=ON -DFEATURE_style_windowsvista=ON
    -DFEATURE_graphicsview=ON -DFEATURE_pdf=ON -DFEATURE_testlib=ON)
# Modules, libraries and controls that nothing here uses. "inputdialog" stays, as the platform's style
# needs it, and "gestures", as the window names its events.
QT_WITHOUT=(
    sql xml dbus concurrent printsupport vulkan tabletevent
    system_zlib system_png system_jpeg system_freetype system_harfbuzz system_pcre2 system_doubleconversion
    zstd brotli glib icu fontconfig openssl cpp_winrt direct2d directwrite3 tuiotouch evdev pkg_config
    islamiccivilcalendar jalalicalendar
    sharedmemory systemsemaphore socks5 localserver networkdiskcache topleveldomain dnslookup
    networklistmanager textodfwriter system_textmarkdownreader textmarkdownwriter
    undocommand undostack undogroup undoview systemtrayicon wizard mdiarea lcdnumber dial fontdialog
    errormessage keysequenceedit columnview datawidgetmapper splashscreen syntaxhighlighter toolbox
    fontcombobox scroller)

# The exit code for sources that can't be had.
NO_SOURCE=75

# The sums of a finished build's files, in its folder. Another name would build everything in the user's
# cache again.
SUMS=fertig

windows_cache=${XDG_CACHE_HOME:-$HOME/.cache}/tarvelin
windows_recipes=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
windows_toolchain=$(cd "$windows_recipes/../../cmake/mingw" && pwd)/toolchain.cmake

# Builds what is missing, and sets the folders CURL_WINDOWS, QT_WINDOWS and SVG_WINDOWS.
build_missing_libraries() {
    CURL_WINDOWS=$(cache_folder curl libcurl4-openssl-dev "${CURL_SWITCHES[@]}")
    QT_WINDOWS=$(cache_folder qt6-base qt6-base-dev "${QT_SWITCHES[@]}" "${QT_WITHOUT[@]}")
    SVG_WINDOWS=$(cache_folder qt6-svg qt6-svg-dev "$QT_WINDOWS")
    build_if_missing "$CURL_WINDOWS" "about 2 minutes on two free cores" build_curl
    build_if_missing "$QT_WINDOWS" "about 20 minutes on two free cores" build_qt
    # Some mirrors lack the sources of Svg; without it the window can't save that one format. (With
    # "||" after the subshell, "set -e" would have no effect inside it.)
    set +e
    (
        set -e
        build_if_missing "$SVG_WINDOWS" "about a minute" build_svg
    )
    local status=$?
    set -e
    case $status in
        0) ;;
        "$NO_SOURCE") SVG_WINDOWS= ;;
        *) return "$status" ;;
    esac
}

# The version of the sources that an installed package was built from. Qt's tools of this machine have
# to be of the same version as its libraries for Windows; and this needs no network.
source_version() {
    dpkg-query -W -f '${source:Version}' "$1"
}

# cache_folder NAME PACKAGE SWITCH...: a library's folder, named by all that its content depends on.
cache_folder() {
    local name=$1 version sum
    version=$(source_version "$2") || return
    shift 2
    sum=$({
        printf '%s\n' "$RECIPE" "$@" "$(source_version g++-mingw-w64-x86-64-posix)"
        grep -v "^#" "$windows_toolchain"
        cat "$windows_recipes"/*.patch
    } | sha256sum)
    echo "$windows_cache/$name-$version-${sum:0:12}"
}

# The last step of a build.
write_sums() {
    (cd "$1" && find . -type f ! -name "$SUMS*" -exec sha256sum {} + >"$SUMS.new" && mv "$SUMS.new" "$SUMS")
}

# Whether a build came to its end and all its files are still there.
is_complete() {
    [ -s "$1/$SUMS" ] && (cd "$1" && sha256sum --check --status "$SUMS" 2>/dev/null)
}

# build_if_missing FOLDER HOW_LONG BUILDER: of two that want the same library, one waits for the other.
build_if_missing() {
    local target=$1 how_long=$2 builder=$3
    mkdir -p "$windows_cache"
    (
        flock -n 9 || {
            echo "Waiting for another build of ${target##*/}"
            flock 9
        }
        if ! is_complete "$target"; then
            echo "== Building ${target##*/} for Windows: $how_long, once"
            rm -rf "$target" "$target.build" "$target.log"
            mkdir -p "$target.build"
            "$builder" "$target" "$target.build" "$target.log"
            rm -rf "$target.build"
            write_sums "$target"
        fi
    ) 9>"$target.lock"
}

build_curl() {
    local target=$1 work=$2 log=$3
    logged "$log" fetch_source curl libcurl4-openssl-dev "$work"
    logged "$log" cmake -G Ninja -S "$work/source" -B "$work/build" \
        -DCMAKE_TOOLCHAIN_FILE="$windows_toolchain" -DCMAKE_INSTALL_PREFIX="$target" "${CURL_SWITCHES[@]}"
    build_and_install "$work/build" "$log"
}

build_qt() {
    local target=$1 work=$2 log=$3 without host
    without=$(printf -- '-DFEATURE_%s=OFF ' "${QT_WITHOUT[@]}")
    host=$(dpkg -L qt6-base-dev | sed -n 's,/Qt6/Qt6Config\.cmake$,,p')
    logged "$log" fetch_source qt6-base qt6-base-dev "$work"
    logged "$log" patch -d "$work/source" -p1 -i "$windows_recipes/qt6-base.patch"
    # shellcheck disable=SC2086  # words
    logged "$log" cmake -G Ninja -S "$work/source" -B "$work/build" \
        -DCMAKE_TOOLCHAIN_FILE="$windows_toolchain" -DCMAKE_INSTALL_PREFIX="$target" \
        -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR="$host" "${QT_SWITCHES[@]}" $without
    build_and_install "$work/build" "$log"
}

build_svg() {
    local target=$1 work=$2 log=$3
    logged "$log" fetch_source qt6-svg qt6-svg-dev "$work" || exit "$NO_SOURCE"
    logged "$log" cmake -G Ninja -S "$work/source" -B "$work/build" \
        -DCMAKE_TOOLCHAIN_FILE="$QT_WINDOWS/lib/cmake/Qt6/qt.toolchain.cmake" \
        -DQT_CHAINLOAD_TOOLCHAIN_FILE="$windows_toolchain" -DCMAKE_INSTALL_PREFIX="$target" \
        -DCMAKE_BUILD_TYPE=Release
    build_and_install "$work/build" "$log"
}

# fetch_source SOURCE PACKAGE FOLDER: unpacks a Debian source, checked by Debian's keys, as
# FOLDER/source. The machine's lists often name binary packages only, so lists of sources are made from
# their addresses. apt works in FOLDER, and the machine's own lists stay as they are.
fetch_source() {
    local source=$1 package=$2 folder=$3
    mkdir -p "$folder/apt/lists/partial" "$folder/apt/archives/partial"
    source_lists >"$folder/apt/sources.list"
    if [ ! -s "$folder/apt/sources.list" ]; then
        echo "The machine's apt lists name no Debian archive by the name of its release"
        return 1
    fi
    local apt=(apt-get -q -o Dir::Etc::sourcelist="$folder/apt/sources.list" -o Dir::Etc::sourceparts=-
        -o Dir::State::lists="$folder/apt/lists" -o Dir::Cache="$folder/apt"
        -o APT::Sandbox::User=root -o Acquire::Retries=3)
    # An archive of somebody else's may fail; if ours is missing, the next step stops.
    "${apt[@]}" update || true
    (cd "$folder/apt" && "${apt[@]}" source --only-source "$source=$(source_version "$package")") &&
        mv "$folder/apt/$source"-*/ "$folder/source"
}

# The Debian archives in the machine's lists, however they are written, as archives of sources.
source_lists() {
    local release keyring=/usr/share/keyrings/debian-archive-keyring.gpg
    release=$(. /etc/os-release && echo "$VERSION_CODENAME")
    apt-get indextargets --no-release-info --format '$(REPO_URI) $(RELEASE) $(COMPONENT)' \
        'Created-By: Packages' | sort -u |
        sed -nE "s,.* $release(-security|-updates)? main\$,deb-src [signed-by=$keyring] &,p"
}

build_and_install() {
    local tree=$1 log=$2
    NINJA_STATUS='%p ' ninja -C "$tree" -j "$(nproc)" 2>&1 9>&- | tee -a "$log" | show_percents ||
        report_failure "$log" "ninja -C $tree"
    logged "$log" cmake --install "$tree"
}

# Shows one of a build's many lines every 5 %.
show_percents() {
    awk '/^ *[0-9]+% / && $1 + 0 >= next_one { print "  " $1; fflush(); next_one = int($1 / 5) * 5 + 5 }'
}

# logged LOG COMMAND...: runs a command whose output goes to a file. 9 is the lock, which nothing that
# it leaves running may keep.
logged() {
    local log=$1
    shift
    "$@" >>"$log" 2>&1 9>&- || report_failure "$log" "$*"
}

report_failure() {
    local log=$1 what=$2
    tail -n 40 "$log" >&2
    printf 'This failed: %s\nThe whole output is in %s\n' "$what" "$log" >&2
    return 1
}
