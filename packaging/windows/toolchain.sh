#!/usr/bin/env bash
# SPDX-FileCopyrightText: The Korvane developers
# SPDX-License-Identifier: MIT
#
# toolchain.sh CACHE: what Korvane is built against for 64-bit Windows, from the source packages of Debian 12:
# the toolkit, the library that reads foreign files and a software OpenGL, installed under CACHE/root. A step that
# was done with the same version and options is not done again; one that was interrupted goes on where it was.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
[[ -n ${1:-} ]] || {
    echo "usage: toolchain.sh CACHE" >&2
    exit 2
}
mkdir -p "$1/log" "$1/done"
cache=$(realpath "$1")
prefix=$cache/root
triple=x86_64-w64-mingw32
jobs=${JOBS:-$(nproc)}
# Those of the distribution, whatever the user has put before them.
PATH=/usr/sbin:/usr/bin:/sbin:/bin

say() { printf '== %(%T)T %s\n' -1 "$*"; }
die() {
    printf 'toolchain: %s\n' "$*" >&2
    exit 1
}

# logged NAME COMMAND...: the end of what the command says is shown when it fails.
logged() {
    local log=$cache/log/$1.log
    shift
    "$@" >"$log" 2>&1 </dev/null || {
        tail -n 40 "$log" >&2
        die "$* failed; all that it said is in $log"
    }
}

# packages NAME...: which versions of them the machine has.
packages() { dpkg-query -W -f='${Package} ${Version}\n' "$@"; }

# made_of NAME SOURCE: all that decides what build_NAME makes: the source package and what is changed in it, what it
# is built with, how, and what with_NAME tells besides.
made_of() {
    cat "$cache/sources/$2"/.{version,edits}
    packages g++-mingw-w64-x86-64-posix mingw-w64-x86-64-dev binutils-mingw-w64-x86-64
    declare -p "$1_options"
    declare -f "build_$1"
    "with_$1"
}

# step NAME SOURCE: build_NAME, unless it was done and all that it is made of is as it was.
step() {
    local name=$1 source=$2 made_of began=$SECONDS
    fetch "$source"
    made_of=$(made_of "$name" "$source")
    if [[ -e $cache/done/$name && $(<"$cache/done/$name") == "$made_of" ]]; then
        return
    fi
    # What was begun in another way is of no use.
    if [[ ! -e $cache/done/$name.begun || $(<"$cache/done/$name.begun") != "$made_of" ]]; then
        rm -rf "${cache:?}/$name"
    fi
    rm -f "$cache/done/$name"
    echo "$made_of" >"$cache/done/$name.begun"
    # On its own: a folder that it goes to is left again.
    ("build_$name")
    mv "$cache/done/$name.begun" "$cache/done/$name"
    say "$name took $((SECONDS - began)) s"
}

# --- Source packages ---------------------------------------------------------------------------------------
# Where they come from is what the system's own lists of packages say, read as lists of sources; apt and
# dpkg-source check what arrives against their signed index.

# apt_sources COMMAND [ARGS...]: apt-get or apt-cache with lists of its own, in $cache/apt.
apt_sources() {
    local command=$1
    shift
    "$command" -q -o Dir::Etc::sourcelist="$cache/apt/sources.list" -o Dir::Etc::sourceparts="$cache/apt/parts" \
        -o Dir::State::Lists="$cache/apt/lists" -o Dir::Cache="$cache/apt/cache" -o APT::Sandbox::User=root "$@"
}

# Both forms in which a system names its sources: one line each, or a paragraph each.
list_sources() {
    local file
    rm -rf "$cache/apt/parts" "$cache/apt/sources.list"
    mkdir -p "$cache/apt/parts" "$cache/apt/lists/partial" "$cache/apt/cache/archives/partial"
    for file in /etc/apt/sources.list /etc/apt/sources.list.d/*.list; do
        [[ ! -e $file ]] || sed -nE 's/^deb(-src)?([[:space:]])/deb-src\2/p' "$file"
    done | sort -u >"$cache/apt/sources.list"
    for file in /etc/apt/sources.list.d/*.sources; do
        [[ ! -e $file ]] || sed -E 's/^Types:.*/Types: deb-src/' "$file" >"$cache/apt/parts/${file##*/}"
    done
    # One that has no sources is no reason to stop: a package that is not found is.
    apt_sources apt-get update || say "Not every list of sources could be read"
    touch "$cache/apt/read"
}

# The newest version of a source package that the lists have.
listed_version() {
    { apt_sources apt-cache showsrc --only-source "$1" 2>/dev/null || true; } | sed -n 's/^Version: //p' | sort -V | tail -n 1
}

version_of() { cat "$cache/sources/$1/.version"; }

# What a source package is changed by: edit_NAME, and what that takes from elsewhere.
edits_of() {
    declare -f "edit_$1" || true
    if declare -F "edit_$1_with" >/dev/null; then
        "edit_$1_with"
    fi
}

# fetch NAME: the newest source package is in $cache/sources/NAME, unpacked and changed by edit_NAME where there is
# one. Where no list has any, what is there is good enough.
fetch() {
    local name=$1 folder=$cache/sources edits version there=""
    edits=$(edits_of "$name")
    version=$(listed_version "$name")
    [[ ! -e $folder/$name/.version ]] || there=$(version_of "$name")
    version=${version:-$there}
    [[ -n $version ]] || die "no list of sources has $name: see $cache/log/sources-lists.log"
    if [[ $there == "$version" && -e $folder/$name/.edits && $(<"$folder/$name/.edits") == "$edits" ]]; then
        return
    fi
    say "Sources: $name $version"
    mkdir -p "$folder/packages"
    rm -rf "$folder/$name.new"
    (
        cd "$folder/packages"
        logged "sources-$name" apt_sources apt-get source --download-only --only-source "$name=$version"
        # Its name has no epoch.
        logged "sources-$name-unpack" dpkg-source -x "${name}_${version#*:}.dsc" "../$name.new"
        cd "../$name.new"
        echo "$version" >.version
        if declare -F "edit_$name" >/dev/null; then
            "edit_$name"
        fi
        echo "$edits" >.edits
    )
    rm -rf "${folder:?}/$name"
    mv "$folder/$name.new" "$folder/$name"
}

# edit FILE EXPRESSION: sed, which must have changed something.
edit() {
    local before
    before=$(cksum "$1")
    sed -i -E "$2" "$1"
    [[ $(cksum "$1") != "$before" ]] || die "$PWD/$1 is not as expected: nothing to change by $2"
}

# --- Qt ----------------------------------------------------------------------------------------------------
# What Korvane and its tests use of it, as DLLs. The host's own moc, rcc, uic and qmake of the same version make
# it, so none is built here.

qt_options=(
    -opensource -confirm-license -xplatform win32-g++ -device-option "CROSS_COMPILE=$triple-"
    -release -shared -schannel -no-openssl -no-dbus -no-icu -no-fontconfig
    # The driver's OpenGL is looked for at the start; without one it is opengl32sw.dll, if that is there.
    -opengl dynamic
    -qt-zlib -qt-libpng -qt-libjpeg -qt-freetype -qt-harfbuzz -qt-pcre -qt-doubleconversion
    # Debian leaves out the header of tablets.
    -no-feature-tabletevent
    -no-feature-sql -no-feature-xml -no-feature-direct2d -no-feature-printer -no-feature-vulkan
    -no-feature-graphicsview -no-feature-statemachine -no-feature-concurrent -no-feature-calendarwidget
    -no-feature-mdiarea -no-feature-wizard -no-feature-dial -no-feature-lcdnumber -no-feature-ftp -no-feature-dtls
    -no-feature-sctp -no-feature-networkdiskcache -no-feature-textodfwriter -no-feature-tuiotouch
    -nomake examples -nomake tests -no-compile-examples
)
qt_host=/usr/lib/qt5/bin

edit_qtbase-opensource-src() {
    # With the host's tools no other qmake is needed, but configure would build one all the same.
    # shellcheck disable=SC2016 # the script's own
    edit configure 's|^( *)(\(cd "\$outpath/qmake"; "\$MAKE" -s\)) .. exit 2|\1[ -n "$CFG_HOST_QT_TOOLS_PATH" ] \|\| \2 \|\| exit 2|'
    # Names of libraries in the case that they have here.
    edit src/network/ssl/ssl.pri 's/-lSecur32/-lsecur32/; s/-lCrypt32/-lcrypt32/'
    # Headers of what could stand for a driver's OpenGL, and is not built.
    # shellcheck disable=SC2016 # the project file's
    edit src/plugins/platforms/windows/windows.pri 's|^INCLUDEPATH \+= \$\$PWD|& $$QT_SOURCE_TREE/src/3rdparty/angle/include|'
    # The same sources make the same files.
    edit mkspecs/common/g++-win32.conf '/^QMAKE_LFLAGS_RELEASE /s/$/ -Wl,--no-insert-timestamp/'
    # Nothing in Gui or Widgets uses it.
    edit src/gui/gui.pro 's|^include\(rhi/rhi\.pri\)|# &|'
}

with_qt() {
    packages qtbase5-dev-tools qt5-qmake-bin
    declare -p qt_host
    declare -f qt_install
}

build_qt() {
    local source=$cache/sources/qtbase-opensource-src build=$cache/qt part here there
    local plugins=(plugins/{platforms/windows,imageformats/{jpeg,gif,ico},styles/windowsvista})
    # In the order in which one needs the other.
    local parts=(
        3rdparty/pcre2 corelib winmain 3rdparty/harfbuzz-ng 3rdparty/libpng 3rdparty/libjpeg 3rdparty/freetype gui
        platformsupport/{eventdispatchers,fontdatabases,themes,accessibility,windowsuiautomation}
        network widgets testlib "${plugins[@]}"
    )
    here=$(sed -n 's/^MODULE_VERSION = //p' "$source/.qmake.conf")
    there=$("$qt_host/qmake" -query QT_VERSION)
    [[ $here == "$there" ]] || die "the sources are of Qt $here, the host's tools of Qt $there: install one version of both"
    mkdir -p "$build"
    cd "$build"
    if [[ ! -e config.summary ]]; then
        say "Qt $here: configure"
        logged qt-configure "$source/configure" -prefix "$prefix" -external-hostbindir "$qt_host" "${qt_options[@]}"
    fi
    if [[ ! -e src/made ]]; then
        mkdir -p src
        cd src
        logged qt-qmake "$qt_host/qmake" -qtconf ../bin/qt.conf "$source/src/src.pro"
        logged qt-makefiles make -s qmake_all
        touch made
        cd ..
    fi
    # Part by part: the top Makefile would build the host's tools first.
    for part in "${parts[@]}"; do
        say "Qt $here: $part"
        logged "qt-${part//\//-}" make -s -C "src/$part" -f Makefile.Release -j"$jobs"
    done
    say "Qt $here: install"
    for part in corelib gui network widgets testlib winmain "${plugins[@]}"; do
        qt_install "$part"
    done
    mkdir -p "$prefix/mkspecs" "$prefix/bin"
    cp -r "$source"/mkspecs/{win32-g++,common} "$prefix/mkspecs/"
    # Where the build description of the toolkit looks for them.
    for part in qmake moc rcc uic; do
        ln -sf "$qt_host/$part" "$prefix/bin/$part"
    done
}

# All that `make install` of a part has, but for what wants the part built anew with the tools.
qt_install() {
    local targets
    targets=$(grep -hoE '^install_(target|dlltarget|targ_headers|gen_headers|private_headers|qpa_headers|cmake_[a-z0-9_]*|ctest_[a-z0-9_]*):' \
        "src/$1/Makefile.Release" | tr -d : | sort -u)
    # shellcheck disable=SC2086 # a list of names
    logged "qt-install-${1//\//-}" make -s -C "src/$1" -o first -f Makefile.Release $targets
    # Had it no such target, nothing would have failed.
    local name=${1^} file wanted=()
    case $1 in
    winmain) wanted=(lib/libqtmain.a) ;;
    plugins/*) wanted=("${1%/*}/q${1##*/}*.dll") ;;
    *)
        [[ $1 != corelib ]] || name=Core
        [[ $1 != testlib ]] || name=Test
        wanted=("bin/Qt5$name.dll" "lib/libQt5$name.a" "include/Qt$name/qt*-config.h" "lib/cmake/Qt5$name/Qt5${name}Config.cmake")
        ;;
    esac
    for file in "${wanted[@]}"; do
        compgen -G "$prefix/$file" >/dev/null || die "$1 was not installed whole, $file is not there: see $cache/log/qt-install-${1//\//-}.log"
    done
}

# --- Assimp ------------------------------------------------------------------------------------------------
# The import worker alone links it, so it is static.

assimp_options=(
    # Optimised as Debian's own is.
    -DCMAKE_BUILD_TYPE=Release "-DCMAKE_CXX_FLAGS_RELEASE=-O2 -DNDEBUG" "-DCMAKE_C_FLAGS_RELEASE=-O2 -DNDEBUG"
    -DBUILD_SHARED_LIBS=OFF
    -DASSIMP_BUILD_ASSIMP_TOOLS=OFF -DASSIMP_BUILD_TESTS=OFF -DASSIMP_WARNINGS_AS_ERRORS=OFF -DASSIMP_BUILD_ZLIB=OFF
    # Compressed glTF, as on Linux.
    -DASSIMP_BUILD_DRACO=ON
    -DASSIMP_BUILD_ALL_EXPORTERS_BY_DEFAULT=OFF -DASSIMP_BUILD_OBJ_EXPORTER=ON
    # The reader of IFC has more sections than an object file of the usual kind.
    "-DCMAKE_CXX_FLAGS=-Wa,-mbig-obj"
)

edit_assimp_with() {
    version_of minizip
    packages libstb-dev libutfcpp-dev
}

edit_assimp() {
    # What Debian has taken out, for it is packaged on its own.
    mkdir -p contrib/unzip contrib/stb
    cp ../minizip/{crypt.h,ioapi.c,ioapi.h,unzip.c,unzip.h} contrib/unzip/
    touch contrib/unzip/crypt.c
    cp /usr/include/stb/stb_image.h contrib/stb/
    cp -rL /usr/include/utf8cpp/. include/
    edit code/CMakeLists.txt '/^find_package\(draco CONFIG REQUIRED\)/d; /^target_link_libraries\(assimp \$\{DRACO_LIBRARIES\}\)/d'
    # This compiler makes the libraries that others do, not those of Visual C++.
    edit CMakeLists.txt 's/^( *if\(MSVC) OR WIN32\)/\1)/'
    edit contrib/draco/cmake/draco_build_definitions.cmake 's/^( *if\(MSVC) OR WIN32\)/\1)/'
    edit cmake-modules/assimp-plain-config.cmake.in '/^find_package\(draco/d'
}

with_assimp() {
    packages libz-mingw-w64-dev
    cat "$here/mingw.cmake"
}

build_assimp() {
    say "Assimp $(version_of assimp)"
    # Nothing of the host is to be found.
    PKG_CONFIG_LIBDIR=/nonexistent logged assimp-configure cmake -G Ninja -S "$cache/sources/assimp" -B "$cache/assimp" \
        -DCMAKE_TOOLCHAIN_FILE="$here/mingw.cmake" -DKORVANE_WINDOWS="$cache" -DCMAKE_INSTALL_PREFIX="$prefix" "${assimp_options[@]}"
    logged assimp ninja -C "$cache/assimp" -j"$jobs" install
}

# --- Minizip -----------------------------------------------------------------------------------------------
# What reads the game's archive, static in all programs: two sources, without what writes archives.

minizip_options=(-O2 -DNDEBUG -DNOUNCRYPT)

with_minizip() {
    packages libz-mingw-w64-dev
}

build_minizip() {
    local source=$cache/sources/minizip part
    say "Minizip $(version_of minizip)"
    mkdir -p "$cache/minizip" "$prefix/include/minizip" "$prefix/lib"
    for part in ioapi unzip; do
        logged "minizip-$part" "$triple-gcc-posix" "${minizip_options[@]}" -c "$source/$part.c" -o "$cache/minizip/$part.o"
    done
    rm -f "$prefix/lib/libminizip.a"
    logged minizip "$triple-ar" rcsD "$prefix/lib/libminizip.a" "$cache/minizip/ioapi.o" "$cache/minizip/unzip.o"
    cp "$source"/{ioapi,unzip,crypt}.h "$prefix/include/minizip/"
}

# --- Mesa --------------------------------------------------------------------------------------------------
# OpenGL drawn by the processor: the toolkit takes opengl32sw.dll where no driver serves. It is slow (there is no
# compiler of shaders in it) and draws everything.

mesa_options=(
    # Small; what every pixel goes through is made fast all the same, see edit_mesa. Left out is what is never called.
    --buildtype=release -Doptimization=s
    "-Dc_args=-ffunction-sections -fdata-sections" "-Dcpp_args=-ffunction-sections -fdata-sections"
    "-Dc_link_args=-Wl,--gc-sections,--no-insert-timestamp" "-Dcpp_link_args=-Wl,--gc-sections,--no-insert-timestamp"
    -Dplatforms=windows -Dgallium-drivers=swrast -Dvulkan-drivers= -Dllvm=disabled
    -Dgles1=disabled -Dgles2=disabled -Degl=disabled -Dzlib=disabled -Dshader-cache=disabled -Dbuild-tests=false
)

edit_mesa() {
    local part
    for part in drivers/softpipe auxiliary; do
        edit "src/gallium/$part/meson.build" "/^lib(softpipe|gallium) = /,/^\)/s/^  gnu_symbol_visibility/  override_options : ['optimization=3'],\n&/"
    done
}

with_mesa() { :; }

build_mesa() {
    say "Mesa $(version_of mesa)"
    cat >"$cache/mesa.ini" <<INI
[binaries]
c = '$triple-gcc-posix'
cpp = '$triple-g++-posix'
ar = '$triple-ar'
strip = '$triple-strip'
windres = '$triple-windres'
[host_machine]
system = 'windows'
cpu_family = 'x86_64'
cpu = 'x86_64'
endian = 'little'
INI
    [[ -e $cache/mesa/build.ninja ]] ||
        logged mesa-configure meson setup --cross-file "$cache/mesa.ini" --prefix "$cache/mesa-root" \
            "${mesa_options[@]}" "$cache/mesa" "$cache/sources/mesa"
    logged mesa ninja -C "$cache/mesa" -j"$jobs" install
    mkdir -p "$prefix/bin"
    # The name by which the toolkit asks for it.
    cp "$cache/mesa-root/bin/opengl32.dll" "$prefix/bin/opengl32sw.dll"
    cp "$cache/mesa-root/bin/libgallium_wgl.dll" "$prefix/bin/"
}

# Once a day.
if [[ ! -e $cache/apt/read || -n $(find "$cache/apt/read" -mmin +1440) ]]; then
    logged sources-lists list_sources
fi
step qt qtbase-opensource-src
step minizip minizip
step assimp assimp
step mesa mesa
