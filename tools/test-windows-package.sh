#!/usr/bin/env bash
# SPDX-FileCopyrightText: The Korvane developers
# SPDX-License-Identifier: MIT
#
# test-windows-package.sh SETUP ZIP: under Wine, in a system of its own, runs the installer without questions,
# starts what it brings, removes it again, and starts what the zip holds. Wants a display, drawn in software.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

setup=$(realpath "$1")
zip_file=$(realpath "$2")
root=$(mktemp -d "${TMPDIR:-/tmp}/korvane-wine-XXXXXX")
log=$PWD/build/test-package-windows.log
# Those of the 64-bit package: nothing of 32 bit is needed.
wine=/usr/lib/wine/wine64
export WINEPREFIX=$root/prefix WINEARCH=win64 WINEDEBUG=-all WINEDLLOVERRIDES='mscoree,mshtml,winemenubuilder.exe='

finish() {
    local status=$?
    [[ ! -d $WINEPREFIX ]] || /usr/lib/wine/wineserver64 -k || true
    rm -rf --one-file-system "$root"
    ((status == 0)) || printf 'test-windows-package: failed; %s tells more\n' "$log" >&2
}
trap finish EXIT

die() {
    printf 'test-windows-package: %s\n' "$*" >&2
    exit 1
}
say() { printf '   %s\n' "$*"; }

# expect STATUS COMMAND...: what the command says goes to the log.
expect() {
    local wanted=$1 status=0
    shift
    timeout 300 "$@" >>"$log" 2>&1 </dev/null || status=$?
    ((status == wanted)) || die "'$*' ended with $status, not with $wanted"
}

# key NAME: whether the registry of the user has it.
key() { "$wine" reg query "HKCU\\$1" >>"$log" 2>&1 </dev/null; }

# User data: everything in the profile but where programs are.
profile() { (cd "$WINEPREFIX/drive_c/users" && find . -type f -path '*Korvane*' ! -path '*/Programs/*' | sort); }

# settings FILE: what the program would ask for at its first start.
settings() {
    mkdir -p "$(dirname "$1")"
    printf '[General]\nGamePath=Z:%s/game\nOutputDir=Z:%s/mod\nUpdates=false\n' "$samples" "$samples" >"$1"
}

# window PROGRAM FILE: the program comes up with the file, and ends when its window is closed.
window() {
    local name program
    name=$(basename "$2")
    "$wine" "$@" >>"$log" 2>&1 </dev/null &
    program=$!
    for _ in {1..600}; do
        kill -0 "$program" 2>/dev/null || die "$1 ended before its window was there"
        if xdotool search --onlyvisible --name "$name" >>"$log" 2>&1; then
            sleep 5
            # Asks it to close, as its button does.
            expect 0 "$wine" taskkill /im korvane.exe
            wait "$program" || die "$1 ended with $?"
            return
        fi
        sleep 0.2
    done
    die "no window with $name in its title"
}

samples=$PWD/samples
model=$samples/game/models/tinker/tinker.skinnedmesh
: >"$log"
say "a bare Windows, as $("$wine" --version) has it"
expect 0 "$wine" wineboot --init

say "installs without a question, and again over itself"
expect 0 "$wine" "$setup" /S
expect 0 "$wine" "$setup" /S
installed=$(dirname "$(find "$WINEPREFIX/drive_c/users" -name korvane.exe)")
[[ -x $installed/korvane.exe && ! -e $installed/portable.txt ]] || die "nothing was installed"
find "$WINEPREFIX/drive_c/users" -name Korvane.lnk | grep -q . || die "no entry in the start menu"
for extension in skinnedmesh anim staticmesh; do
    key "Software\\Classes\\Korvane.$extension\\shell\\open\\command" || die "nobody opens .$extension"
done

say "and has a list of what it is made of"
# shellcheck disable=SC2016 # jq fills this in
for name in qtbase-opensource-src assimp minizip mesa libz-mingw-w64-dev; do
    expect 0 jq -e --arg name "$name" '.packages[] | select(.name == $name and .versionInfo != "")' \
        "$installed/korvane.spdx.json"
done

say "korvane-tool reads the samples, and imports a model through the worker"
expect 0 "$wine" "$installed/korvane-tool.exe" info --json "$model"
printf 'v 0 0 0\nv 2 0 0\nv 0 4 0\nvt 0.5 0.25\nf 1/1 2/1 3/1\n' >"$root/triangle.obj"
expect 0 "$wine" "$installed/korvane-tool.exe" import --static -o "$root" "$root/triangle.obj"
expect 0 "$wine" "$installed/korvane-tool.exe" info "$root/triangle.staticmesh"

say "korvane opens its window with a file"
stored=${installed%/Local/*}/Roaming/Korvane/Korvane.ini
settings "$stored"
window "$installed/korvane.exe" "$model"
grep -q RecentFiles "$stored" || die "no file is remembered in $stored"

say "uninstalls, and leaves what is the user's"
before=$(profile)
# It goes on as a copy of itself, so that it can remove itself.
expect 0 "$wine" "$installed/uninstall.exe" /S
for _ in {1..300}; do
    [[ -e $installed ]] || break
    sleep 0.2
done
[[ ! -e $installed ]] || die "left behind: $(ls "$installed")"
[[ $(profile) == "$before" ]] || die "data of the user is gone: $(diff <(profile) <(echo "$before"))"
! key "Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Korvane" || die "the list of programs still has it"
! key "Software\\Classes\\Korvane.skinnedmesh" || die "the file types still have it"

say "runs out of the zip, with its settings beside it"
mkdir "$root/an ünzipped folder"
unzip -q "$zip_file" -d "$root/an ünzipped folder"
unzipped=$(echo "$root/an ünzipped folder"/Korvane-*)
settings "$unzipped/data/Korvane/Korvane.ini"
window "$unzipped/korvane.exe" "$model"
grep -q RecentFiles "$unzipped/data/Korvane/Korvane.ini" || die "no file is remembered beside the program"
[[ $(profile) == "$before" ]] || die "and some in the profile: $(diff <(profile) <(echo "$before"))"
