# For test.sh: libcurl and Qt for Windows. Debian has their sources, but no such builds of them, so they
# are built here: once, static, into the user's cache. Whoever changes how they are built in a way that
# the switches below don't show raises the number of the recipe.

REZEPT=1

# HTTP and HTTPS alone, with the system's own certificates.
CURL_SCHALTER=(
    -DCMAKE_BUILD_TYPE=Release -DBUILD_SHARED_LIBS=OFF -DBUILD_CURL_EXE=OFF -DBUILD_TESTING=OFF
    -DENABLE_MANUAL=OFF -DHTTP_ONLY=ON -DCURL_USE_SCHANNEL=ON -DCURL_USE_LIBSSH2=OFF
    -DCURL_USE_LIBPSL=OFF -DUSE_LIBIDN2=OFF -DUSE_NGHTTP2=OFF -DCURL_ZLIB=OFF -DCURL_BROTLI=OFF
    -DCURL_ZSTD=OFF)

QT_SCHALTER=(
    -DCMAKE_BUILD_TYPE=Release -DBUILD_SHARED_LIBS=OFF -DFEATURE_static_runtime=ON
    -DQT_QMAKE_TARGET_MKSPEC=win32-g++ -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF
    -DQT_BUILD_TOOLS_WHEN_CROSSCOMPILING=OFF -DINPUT_opengl=no
    -DFEATURE_schannel=ON -DFEATURE_accessibility=ON -DFEATURE_style_windowsvista=ON
    -DFEATURE_graphicsview=ON -DFEATURE_pdf=ON -DFEATURE_testlib=ON)
# Modules, libraries and controls that nothing here uses. Not among them: "inputdialog", which a control
# of the platform's style wants, and "gestures", whose events the window names.
QT_OHNE=(
    sql xml dbus concurrent printsupport vulkan tabletevent
    system_zlib system_png system_jpeg system_freetype system_harfbuzz system_pcre2 system_doubleconversion
    zstd brotli glib icu fontconfig openssl cpp_winrt direct2d directwrite3 tuiotouch evdev pkg_config
    islamiccivilcalendar jalalicalendar
    sharedmemory systemsemaphore socks5 localserver networkdiskcache topleveldomain dnslookup
    networklistmanager textodfwriter textmarkdownreader textmarkdownwriter
    undocommand undostack undogroup undoview systemtrayicon wizard mdiarea lcdnumber dial fontdialog
    errormessage keysequenceedit columnview datawidgetmapper splashscreen syntaxhighlighter toolbox
    fontcombobox textbrowser scroller)

# The exit code for sources that can't be had.
OHNE_QUELLE=75

windows_lager=${XDG_CACHE_HOME:-$HOME/.cache}/tarvelin
windows_rezepte=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
windows_werkzeuge=$(cd "$windows_rezepte/../../cmake/mingw" && pwd)/toolchain.cmake

# Builds what is missing, and sets the folders CURL_WINDOWS, QT_WINDOWS and SVG_WINDOWS.
stelle_bibliotheken_bereit() {
    CURL_WINDOWS=$(lagerplatz curl libcurl4-openssl-dev "${CURL_SCHALTER[@]}")
    QT_WINDOWS=$(lagerplatz qt6-base qt6-base-dev "${QT_SCHALTER[@]}" "${QT_OHNE[@]}")
    SVG_WINDOWS=$(lagerplatz qt6-svg qt6-svg-dev "$QT_WINDOWS")
    stelle_her "$CURL_WINDOWS" "about 2 minutes on two free cores" baue_curl
    stelle_her "$QT_WINDOWS" "about 20 minutes on two free cores" baue_qt
    # Some mirrors lack its sources; the window does without it, but for pictures in that format. (Behind
    # a "||" the shell wouldn't stop within at what fails.)
    set +e
    (
        set -e
        stelle_her "$SVG_WINDOWS" "about a minute" baue_svg
    )
    local status=$?
    set -e
    case $status in
        0) ;;
        "$OHNE_QUELLE") SVG_WINDOWS= ;;
        *) return "$status" ;;
    esac
}

# The version of the sources that an installed package was made of. Qt's tools of this machine have to be
# of the same as its libraries for the other; and it is known without a network.
quellfassung() {
    dpkg-query -W -f '${source:Version}' "$1"
}

# A library's folder, named by all that its content depends on.
lagerplatz() {
    local name=$1 fassung summe
    fassung=$(quellfassung "$2") || return
    shift 2
    summe=$({
        printf '%s\n' "$REZEPT" "$@" "$(quellfassung g++-mingw-w64-x86-64-posix)"
        grep -v "^#" "$windows_werkzeuge"
        cat "$windows_rezepte"/*.patch
    } | sha256sum)
    echo "$windows_lager/$name-$fassung-${summe:0:12}"
}

# The mark that a build sets at last: the sums of all its files.
merke_inhalt() {
    (cd "$1" && find . -type f ! -name 'fertig*' -exec sha256sum {} + >fertig.neu && mv fertig.neu fertig)
}

# Whether a build has come to its end and all of it is still there.
ist_ganz() {
    [ -s "$1/fertig" ] && (cd "$1" && sha256sum --check --status fertig 2>/dev/null)
}

# Builds a library into its folder, unless it is there, whole. Of two who want the same one waits for the
# other.
stelle_her() {
    local ziel=$1 dauer=$2 bauer=$3
    mkdir -p "$windows_lager"
    (
        flock -n 9 || {
            echo "Waiting for another build of ${ziel##*/}"
            flock 9
        }
        if ! ist_ganz "$ziel"; then
            echo "== Building ${ziel##*/} for Windows: $dauer, once"
            rm -rf "$ziel" "$ziel.bau" "$ziel.log"
            mkdir -p "$ziel.bau"
            "$bauer" "$ziel" "$ziel.bau" "$ziel.log"
            rm -rf "$ziel.bau"
            merke_inhalt "$ziel"
        fi
    ) 9>"$ziel.schloss"
}

baue_curl() {
    local ziel=$1 bau=$2 log=$3
    protokolliere "$log" hole_quelle curl libcurl4-openssl-dev "$bau"
    protokolliere "$log" cmake -G Ninja -S "$bau/quelle" -B "$bau/baum" \
        -DCMAKE_TOOLCHAIN_FILE="$windows_werkzeuge" -DCMAKE_INSTALL_PREFIX="$ziel" "${CURL_SCHALTER[@]}"
    baue_baum "$bau/baum" "$log"
}

baue_qt() {
    local ziel=$1 bau=$2 log=$3 ohne wirt
    ohne=$(printf -- '-DFEATURE_%s=OFF ' "${QT_OHNE[@]}")
    wirt=$(dpkg -L qt6-base-dev | sed -n 's,/Qt6/Qt6Config\.cmake$,,p')
    protokolliere "$log" hole_quelle qt6-base qt6-base-dev "$bau"
    protokolliere "$log" patch -d "$bau/quelle" -p1 -i "$windows_rezepte/qt6-base.patch"
    # shellcheck disable=SC2086  # words
    protokolliere "$log" cmake -G Ninja -S "$bau/quelle" -B "$bau/baum" \
        -DCMAKE_TOOLCHAIN_FILE="$windows_werkzeuge" -DCMAKE_INSTALL_PREFIX="$ziel" \
        -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR="$wirt" "${QT_SCHALTER[@]}" $ohne
    baue_baum "$bau/baum" "$log"
}

baue_svg() {
    local ziel=$1 bau=$2 log=$3
    protokolliere "$log" hole_quelle qt6-svg qt6-svg-dev "$bau" || exit "$OHNE_QUELLE"
    protokolliere "$log" cmake -G Ninja -S "$bau/quelle" -B "$bau/baum" \
        -DCMAKE_TOOLCHAIN_FILE="$QT_WINDOWS/lib/cmake/Qt6/qt.toolchain.cmake" \
        -DQT_CHAINLOAD_TOOLCHAIN_FILE="$windows_werkzeuge" -DCMAKE_INSTALL_PREFIX="$ziel" \
        -DCMAKE_BUILD_TYPE=Release
    baue_baum "$bau/baum" "$log"
}

# Unpacks a source of Debian's, checked by its keys, as FOLDER/quelle. The machine's lists often name
# binary packages only: their addresses serve, and apt's folders here leave the machine's as they are.
hole_quelle() {
    local quelle=$1 paket=$2 ordner=$3
    mkdir -p "$ordner/apt/lists/partial" "$ordner/apt/archives/partial"
    liste_quellen >"$ordner/apt/sources.list"
    if [ ! -s "$ordner/apt/sources.list" ]; then
        echo "The machine's apt lists name no place of Debian's by the name of its release"
        return 1
    fi
    local apt=(apt-get -q -o Dir::Etc::sourcelist="$ordner/apt/sources.list" -o Dir::Etc::sourceparts=-
        -o Dir::State::lists="$ordner/apt/lists" -o Dir::Cache="$ordner/apt"
        -o APT::Sandbox::User=root -o Acquire::Retries=3)
    # A place of somebody else's may fail; what is missing then stops the next step.
    "${apt[@]}" update || true
    (cd "$ordner/apt" && "${apt[@]}" source --only-source "$quelle=$(quellfassung "$paket")") &&
        mv "$ordner/apt/$quelle"-*/ "$ordner/quelle"
}

# The places of Debian's that the machine's lists name, however they are written, as places of sources.
liste_quellen() {
    local name schluessel=/usr/share/keyrings/debian-archive-keyring.gpg
    name=$(. /etc/os-release && echo "$VERSION_CODENAME")
    apt-get indextargets --no-release-info --format '$(REPO_URI) $(RELEASE) $(COMPONENT)' \
        'Created-By: Packages' | sort -u |
        sed -nE "s,.* $name(-security|-updates)? main\$,deb-src [signed-by=$schluessel] &,p"
}

# Builds and installs.
baue_baum() {
    local baum=$1 log=$2
    NINJA_STATUS='%p ' ninja -C "$baum" -j "$(nproc)" 2>&1 9>&- | tee -a "$log" | zeige_prozente ||
        melde_fehlschlag "$log" "ninja -C $baum"
    protokolliere "$log" cmake --install "$baum"
}

# Of a build's many lines one is shown every 5 %.
zeige_prozente() {
    awk '/^ *[0-9]+% / && $1 + 0 >= naechste { print "  " $1; fflush(); naechste = int($1 / 5) * 5 + 5 }'
}

# Runs a command, its words in a file.
protokolliere() {
    local log=$1
    shift
    "$@" >>"$log" 2>&1 9>&- || melde_fehlschlag "$log" "$*"
}

melde_fehlschlag() {
    local log=$1 was=$2
    tail -n 40 "$log" >&2
    printf 'This failed: %s\nAll that was said stands in %s\n' "$was" "$log" >&2
    return 1
}
