#!/usr/bin/env bash
# SPDX-FileCopyrightText: The Korvane developers
# SPDX-License-Identifier: MIT
#
# package.sh CACHE BUILD VERSION OUT: from what toolchain.sh left in CACHE and the programs in BUILD/app the
# folder BUILD/Korvane-VERSION, and of it OUT/Korvane-VERSION-windows.zip and OUT/Korvane-VERSION-setup.exe.
set -euo pipefail
(($# == 4)) || {
    echo "usage: package.sh CACHE BUILD VERSION OUT" >&2
    exit 2
}
cache=$(realpath "$1")
build=$(realpath "$2")
version=$3
out=$(realpath "$4")
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
repository=$(cd "$here/../.." && pwd)
triple=x86_64-w64-mingw32
prefix=$cache/root
folder=$build/Korvane-$version
# The same programs make the same packages: one time for all that notes one.
SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-$(git -C "$repository" log -1 --format=%ct 2>/dev/null || date +%s)}
export SOURCE_DATE_EPOCH

# --- The folder --------------------------------------------------------------------------------------------

rm -rf "$folder"
mkdir -p "$folder"/{platforms,imageformats,styles,translations,licences}
cp "$build"/app/korvane{,-tool,-import-worker}.exe "$folder/"
cp "$prefix"/bin/Qt5{Core,Gui,Widgets,Network}.dll "$folder/"
for library in libgcc_s_seh-1.dll libstdc++-6.dll; do
    cp "$("$triple-g++-posix" -print-file-name=$library)" "$folder/"
done
cp "/usr/$triple/lib/libwinpthread-1.dll" "$folder/"
cp "$prefix/plugins/platforms/qwindows.dll" "$folder/platforms/"
cp "$prefix"/plugins/imageformats/*.dll "$folder/imageformats/"
cp "$prefix"/plugins/styles/*.dll "$folder/styles/"
cp /usr/share/qt5/translations/qtbase_de.qm "$folder/translations/"
# The toolkit takes the first where no driver serves; the other does the work.
cp "$prefix"/bin/{opengl32sw,libgallium_wgl}.dll "$folder/"
# Where the toolkit finds its plugins and translations.
printf '[Paths]\nPrefix = .\nPlugins = .\nTranslations = translations\n' >"$folder/qt.conf"
find "$folder" \( -name '*.exe' -o -name '*.dll' \) -exec "$triple-strip" --strip-unneeded {} +

# --- Licences ----------------------------------------------------------------------------------------------

sources=$cache/sources
notice() { sed 's/$/\r/' "$1" >"$folder/licences/$2.txt"; }
notice "$repository/LICENSE" Korvane
notice "$repository/resources/icons-src/lucide/LICENSE" Icons
notice "$sources/qtbase-opensource-src/LICENSE.LGPL3" LGPL-3
notice "$sources/qtbase-opensource-src/LICENSE.GPL3" GPL-3
notice "$sources/qtbase-opensource-src/debian/copyright" Qt
notice "$sources/assimp/debian/copyright" Assimp
notice "$sources/assimp/contrib/draco/LICENSE" Draco
notice "$sources/minizip/debian/copyright" Minizip
notice "$sources/mesa/debian/copyright" Mesa
notice /usr/share/doc/libz-mingw-w64/copyright zlib
notice /usr/share/doc/libstb-dev/copyright stb
notice /usr/share/doc/libutfcpp-dev/copyright UTF8-CPP
notice /usr/share/doc/mingw-w64-common/copyright MinGW-w64
notice /usr/share/doc/gcc-mingw-w64-base/copyright GCC
{
    cat <<TEXT
Korvane $version is free software under the MIT license (Korvane.txt). The package holds libraries of others:

Qt5*.dll, platforms, imageformats, styles, translations
    Qt $(cat "$sources/qtbase-opensource-src/.version"), under the GNU Lesser General Public License, version 3 (LGPL-3.txt, which
    adds to GPL-3.txt). What in it has other authors: Qt.txt. You may replace these files by your own builds of
    Qt 5.15: nothing in Korvane hinders that, and you may look into Korvane to see what it asks of them.
opengl32sw.dll, libgallium_wgl.dll
    Mesa $(cat "$sources/mesa/.version") (Mesa.txt)
libgcc_s_seh-1.dll, libstdc++-6.dll, libwinpthread-1.dll
    of the compiler, under the GNU General Public License, version 3, with the exception for run-time libraries
    (GCC.txt), and of MinGW-w64 (MinGW-w64.txt)
in korvane-import-worker.exe
    Assimp $(cat "$sources/assimp/.version") (Assimp.txt), Draco (Draco.txt), minizip $(cat "$sources/minizip/.version") (Minizip.txt), zlib (zlib.txt), stb (stb.txt),
    UTF8-CPP (UTF8-CPP.txt)
in all programs
    minizip and zlib, as above
in korvane.exe
    icons of Lucide (Icons.txt)

Source code. The versions above are those of Debian's source packages qtbase-opensource-src, mesa, assimp and minizip; of
the first the source of everything in this package that the LGPL covers. What was changed in them and how they
were built is told by the files in packaging/windows of Korvane's sources. Whoever gives you this package gives
you these sources too, if you ask within three years, for no more than the cost of the copy.
TEXT
} | sed 's/$/\r/' >"$folder/licences/README.txt"

# --- What it is made of, for those who keep lists ----------------------------------------------------------

parts=()
# source_package NAME LICENCE: of Debian's, and built by toolchain.sh.
source_package() {
    local source_version
    source_version=$(<"$sources/$1/.version")
    parts+=(--inside "$1|$source_version|$2|pkg:deb/debian/$1@$source_version?arch=source")
}
source_package qtbase-opensource-src LGPL-3.0-only
source_package mesa MIT
source_package assimp BSD-3-Clause
source_package minizip Zlib
# Draco stands in the sources of Assimp.
parts+=(--inside "draco|in assimp $(<"$sources/assimp/.version")|Apache-2.0")
for name in gcc-mingw-w64-x86-64-posix-runtime mingw-w64-x86-64-dev libz-mingw-w64-dev libstb-dev libutfcpp-dev \
    qttranslations5-l10n; do
    parts+=(--built-in "$name")
done
python3 "$repository/packaging/sbom.py" --version "$version" "${parts[@]}" --output "$folder/korvane.spdx.json"

# --- Zip and installer -------------------------------------------------------------------------------------

find "$folder" -exec touch -h -d "@$SOURCE_DATE_EPOCH" {} +
zip_file=$out/Korvane-$version-windows.zip
setup=$out/Korvane-$version-setup.exe
rm -f "$zip_file" "$setup"

# What the uninstaller removes: files, then the folders that are empty by then, the inner ones first.
files=$build/uninstall.nsh
{
    cd "$folder"
    # shellcheck disable=SC2016 # the installer's
    find . -type f -printf 'Delete "$INSTDIR\\%P"\n' | LC_ALL=C sort | sed 's|/|\\|g'
    # shellcheck disable=SC2016 # the installer's
    find . -mindepth 1 -type d -printf 'RMDir "$INSTDIR\\%P"\n' | LC_ALL=C sort -r | sed 's|/|\\|g'
} >"$files"
icon=$build/korvane.ico
makensis -V2 -INPUTCHARSET UTF8 -DVERSION="$version" -DFOLDER="$folder" -DFILES="$files" \
    -DICON="$icon" -DOUTPUT="$setup" "$here/korvane.nsi"

# What is unpacked somewhere keeps its settings there.
touch -d "@$SOURCE_DATE_EPOCH" "$folder/portable.txt" "$folder"
cd "$build"
find "Korvane-$version" | LC_ALL=C sort | TZ=UTC zip -q -X -@ "$zip_file"
# Packed harder than zip does.
advzip -q -z -2 "$zip_file"
rm "$folder/portable.txt"
du -h --apparent-size "$zip_file" "$setup"
