#!/usr/bin/env bash
# Builds a static Qt for 64-bit Windows (mingw-w64) from Debian's own qtbase sources, at the
# version of the host's Qt, so that the Windows build of Norvale can use the host's moc, rcc and
# lrelease. Debian packages no Qt for mingw-w64; building it once takes about half an hour on two
# cores, so the result is kept in a cache folder outside the clone and reused.
#
#   scripts/build-qt-windows.sh                 build if needed; the last line printed is the prefix
#   scripts/build-qt-windows.sh --print-prefix  print the prefix; exit 1 if it is not built yet
#
# The cache folder's name carries a hash of this script and of the source version: any change to
# the recipe builds a new Qt instead of reusing one made differently. The marker file is written
# last, so a folder without it (an interrupted build) is never used and is built again. The work
# folder (sources and build tree) is shared by every recipe of one version and kept until the
# install succeeds, so an interrupted or changed build goes on from what is already compiled.
set -euo pipefail

script="$(readlink -f "${BASH_SOURCE[0]}")"
started=$SECONDS
say() { printf '[qt-windows %3dm%02ds] %s\n' $(((SECONDS - started) / 60)) $(((SECONDS - started) % 60)) "$*"; }
die() { say "error: $*" >&2; exit 1; }

# The host's Qt decides the version: the Windows build runs the host's Qt tools on its sources.
srcver="$(dpkg-query -W -f='${source:Version}' qt6-base-dev 2>/dev/null)" ||
    die "qt6-base-dev is not installed (scripts/setup.sh installs it)"
upver="${srcver#*:}"
upver="${upver%%[+~-]*}"
# Patches to Qt's sources, applied in name order; they are part of the recipe, hence of the key.
patches=("$(dirname "$script")"/qt-windows-patches/*.patch)
[ -e "${patches[0]}" ] || patches=()
key="$({ cat "$script" "${patches[@]}"; echo "$srcver"; } | sha256sum | cut -c1-12)"
cache="${XDG_CACHE_HOME:-$HOME/.cache}/norvale"
prefix="$cache/qt-$upver-$key"
marker="$prefix/.norvale-complete"

if [ "${1:-}" = "--print-prefix" ]; then
    echo "$prefix"
    [ -f "$marker" ]
    exit
fi
[ $# -eq 0 ] || die "unknown argument: $1"

mkdir -p "$cache"
# Two runs at once (two clones, CI next to a developer) must not build into the same folder.
exec 9>"$cache/qt-$upver.lock"
flock 9

if [ -f "$marker" ]; then
    say "reusing $prefix"
    echo "$prefix"
    exit 0
fi

for tool in apt-get dpkg-source patch cmake ninja x86_64-w64-mingw32-g++-posix x86_64-w64-mingw32-gcc-posix; do
    command -v "$tool" >/dev/null || die "$tool is missing (scripts/setup.sh installs it)"
done
hostcmake=/usr/lib/x86_64-linux-gnu/cmake
[ -f "$hostcmake/Qt6/Qt6Config.cmake" ] || die "the host's Qt CMake files are not in $hostcmake"

work="$cache/qt-$upver.work"
mkdir -p "$work"
say "building Qt $srcver for mingw-w64 into $prefix"

# --- sources --------------------------------------------------------------------------------
src="$work/src"
if [ "$(cat "$work/sources.done" 2>/dev/null)" != "$srcver $key" ]; then
    rm -rf "$work/apt" "$work/download" "$src"
    mkdir -p "$work/apt/lists/partial" "$work/apt/cache/archives/partial" "$work/apt/parts" "$work/download"

    # The source entries mirror the machine's own binary entries (same archives, suites, keys),
    # and live with their package lists in this work folder: the system's apt state is untouched.
    for f in /etc/apt/sources.list.d/*.sources; do
        [ -f "$f" ] || continue
        awk 'BEGIN { RS = ""; ORS = "\n\n" }
             /(^|\n)Types:[^\n]*(^|[ \t])deb([ \t]|\n|$)/ {
                 sub(/(^|\n)Types:[^\n]*/, "\nTypes: deb-src"); sub(/^\n/, ""); print }' \
            "$f" >"$work/apt/parts/$(basename "$f")"
    done
    {
        [ -f /etc/apt/sources.list ] && sed -n 's/^[[:space:]]*deb[[:space:]]/deb-src /p' /etc/apt/sources.list
        for f in /etc/apt/sources.list.d/*.list; do
            [ -f "$f" ] && sed -n 's/^[[:space:]]*deb[[:space:]]/deb-src /p' "$f"
        done
        true
    } >"$work/apt/sources.list"
    grep -qs deb-src "$work/apt/sources.list" "$work/apt/parts/"* ||
        die "no apt source entry to derive a deb-src entry from"

    apt_opts=(
        -o "Dir::Etc::sourcelist=$work/apt/sources.list"
        -o "Dir::Etc::sourceparts=$work/apt/parts"
        -o "Dir::State::Lists=$work/apt/lists"
        -o "Dir::Cache=$work/apt/cache"
        -o "Acquire::Languages=none"
        -o "APT::Get::Only-Source=true"
    )
    # apt downloads as the unprivileged _apt user when run as root; it must own the work folders.
    if [ "$(id -u)" -eq 0 ] && id _apt >/dev/null 2>&1; then
        chown -R _apt "$work/apt/lists" "$work/apt/cache" "$work/download"
    fi
    say "fetching the source index"
    apt-get "${apt_opts[@]}" update -qq >"$work/apt.log" 2>&1 || { cat "$work/apt.log" >&2; die "apt-get update failed"; }
    say "downloading qt6-base $srcver"
    (cd "$work/download" && apt-get "${apt_opts[@]}" source --download-only -qq "qt6-base=$srcver") \
        >>"$work/apt.log" 2>&1 || { cat "$work/apt.log" >&2; die "apt-get source failed"; }
    dsc="$(ls "$work/download"/qt6-base_*.dsc)"
    say "unpacking $(basename "$dsc")"
    dpkg-source --no-check -x "$dsc" "$src" >>"$work/apt.log" 2>&1 || { cat "$work/apt.log" >&2; die "dpkg-source failed"; }
    for patch in "${patches[@]}"; do
        say "applying $(basename "$patch")"
        patch -d "$src" -p1 --forward --quiet <"$patch" || die "$(basename "$patch") does not apply"
    done
    rm -rf "$work/download" "$work/apt"
    echo "$srcver $key" >"$work/sources.done"
fi

# --- configure ------------------------------------------------------------------------------
build="$work/build"
cat >"$work/toolchain.cmake" <<'EOF'
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
EOF

launcher=()
if command -v ccache >/dev/null; then
    # Precompiled headers are only cacheable with these relaxations.
    export CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
    export CCACHE_BASEDIR="$work"
    launcher=(-DCMAKE_C_COMPILER_LAUNCHER=ccache -DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
fi

if [ ! -f "$build/build.ninja" ] || [ "$(cat "$work/configured" 2>/dev/null)" != "$key" ]; then
    say "configuring"
    [ -f "$build/build.ninja" ] || rm -rf "$build"
    # Debian's repacked sources drop wintab, hence no tablet events. OpenGL stays on: without it
    # the Windows platform plugin of this version does not compile; it resolves OpenGL at run time.
    # What Norvale does not use stays out: JPEG and the Direct2D platform plugin. The DirectWrite 3
    # font database is off too: in this version the Windows plugin refers to it whenever the
    # feature is on, but Qt Gui does not build it for mingw, so nothing would link; the plugin
    # then uses its GDI font database, as on older Windows.
    cmake -S "$src" -B "$build" -G Ninja "${launcher[@]}" \
        -DCMAKE_TOOLCHAIN_FILE="$work/toolchain.cmake" \
        -DCMAKE_BUILD_TYPE=Release \
        -DCMAKE_INSTALL_PREFIX="$prefix" \
        -DQT_HOST_PATH=/usr \
        -DQT_HOST_PATH_CMAKE_DIR="$hostcmake" \
        -DBUILD_SHARED_LIBS=OFF \
        -DQT_BUILD_EXAMPLES=OFF \
        -DQT_BUILD_TESTS=OFF \
        -DFEATURE_system_zlib=OFF \
        -DFEATURE_system_pcre2=OFF \
        -DFEATURE_system_freetype=OFF \
        -DFEATURE_system_harfbuzz=OFF \
        -DFEATURE_system_libpng=OFF \
        -DFEATURE_system_libjpeg=OFF \
        -DFEATURE_sql=OFF \
        -DFEATURE_network=OFF \
        -DFEATURE_dbus=OFF \
        -DFEATURE_printsupport=OFF \
        -DFEATURE_xml=OFF \
        -DFEATURE_tabletevent=OFF \
        -DFEATURE_jpeg=OFF \
        -DFEATURE_direct2d=OFF \
        -DFEATURE_directwrite3=OFF \
        >"$work/configure.log" 2>&1 || { tail -40 "$work/configure.log" >&2; rm -f "$build/build.ninja"; die "configure failed (log: $work/configure.log)"; }
    echo "$key" >"$work/configured"
fi

# --- build and install ----------------------------------------------------------------------
# ninja resumes where an interrupted run stopped; the prefix is rebuilt from scratch each time.
say "compiling (ninja -j$(nproc); about half an hour on two cores)"
export NINJA_STATUS="[qt-windows %f/%t %es] "
ninja -C "$build" -j"$(nproc)" | awk '/^\[qt-windows/ { n++; if (n % 50 != 0 && !/FAILED/) next } { print; fflush() }' ||
    die "compile failed"

say "installing"
rm -rf "$prefix"
cmake --install "$build" >"$work/install.log" 2>&1 || { tail -20 "$work/install.log" >&2; die "install failed"; }
printf 'qt6-base %s\nbuilt %s in %ds\n' "$srcver" "$(date -u +%FT%TZ)" $((SECONDS - started)) >"$marker"
rm -rf "$work"
say "done: $prefix ($(du -sh "$prefix" | cut -f1))"
echo "$prefix"
