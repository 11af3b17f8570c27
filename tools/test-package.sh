#!/usr/bin/env bash
# SPDX-FileCopyrightText: The Korvane developers
# SPDX-License-Identifier: MIT
#
# test-package.sh PACKAGE: installs a .deb in a bare root of the release that this machine runs, starts what it
# brings there, and removes it again. Packages come from where this machine's apt gets them. Only for root; takes
# about three minutes and a gigabyte below TMPDIR.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

package=$1
root=$(mktemp -d "${TMPDIR:-/tmp}/korvane-root-XXXXXX")
log=build/test-package.log
samples=/srv/samples

finish() {
    local status=$?
    rm -rf --one-file-system "$root"
    ((status == 0)) || printf 'test-package: failed; %s tells more\n' "$log" >&2
}
trap finish EXIT

die() {
    printf 'test-package: %s\n' "$*" >&2
    exit 1
}
say() { printf '   %s\n' "$*"; }

# inside COMMAND...: in the new root, with an environment of its own.
inside() {
    chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LC_ALL=C.UTF-8 \
        DEBIAN_FRONTEND=noninteractive LIBGL_ALWAYS_SOFTWARE=1 "$@"
}

# expect STATUS COMMAND...: what the command says goes to the log.
expect() {
    local wanted=$1 status=0
    shift
    "$@" >>"$log" 2>&1 || status=$?
    ((status == wanted)) || die "'$*' ended with $status, not with $wanted"
}

# mirror RELEASE: where this machine gets the packages of its release.
mirror() {
    # shellcheck disable=SC2016 # apt fills these in
    apt-get indextargets --format '$(RELEASE) $(REPO_URI)' 'Created-By: Packages' \
        | awk -v release="$1" '$1 == release { print $2; exit }'
}

make_root() {
    local release from
    release=$(sed -n 's/^VERSION_CODENAME=//p' /etc/os-release)
    from=$(mirror "$release")
    [[ -n $from ]] || die "apt has no package source for $release"
    say "a bare $release"
    expect 0 debootstrap --variant=minbase "$release" "$root" "$from"
    rm -rf "$root/etc/apt"
    cp -a /etc/apt "$root/etc/apt"
    cp -L /etc/resolv.conf "$root/etc/resolv.conf"
    expect 0 inside apt-get -q update
}

# What the compiler and the linker were asked to guard is guarded; the programs and the list of parts agree.
look_inside() {
    local program parts=$root/usr/share/doc/korvane/korvane.spdx.json
    say "its programs are hardened"
    # The C library's own start is not marked for control-flow protection, so no program is; and the smaller two call
    # nothing that could be fortified.
    expect 0 hardening-check --nocfprotection "$root/usr/bin/korvane"
    for program in korvane-tool korvane-import-worker; do
        expect 0 hardening-check --nocfprotection --nofortify "$root/usr/bin/$program"
    done
    say "and its list of parts names what apt installed for it"
    # shellcheck disable=SC2016 # dpkg-query and jq fill these in
    for program in libqt5widgets5 libassimp5 libc6; do
        expect 0 jq -e --arg name "$program" --arg version "$(inside dpkg-query -W -f '${Version}' "$program")" \
            '.packages[] | select(.name == $name and .versionInfo == $version)' "$parts"
    done
}

install_package() {
    cp "$package" "$root/srv/"
    cp -r samples "$root$samples"
    say "installs what it depends on, and no more"
    expect 0 inside apt-get -q install -y --no-install-recommends "/srv/$(basename "$package")"
    say "the desktop knows its file types"
    expect 0 inside grep -q ':application/x-korvane-skinnedmesh:\*.skinnedmesh' /usr/share/mime/globs2
}

try_tool() {
    say "korvane-tool reads and checks the samples, and imports a model"
    expect 0 inside korvane-tool info --json "$samples/game/models/tinker/tinker.skinnedmesh"
    expect 0 inside korvane-tool check "$samples"
    printf 'v 0 0 0\nv 2 0 0\nv 0 4 0\nvt 0.5 0.25\nf 1/1 2/1 3/1\n' >"$root/srv/triangle.obj"
    expect 0 inside korvane-tool import --static -o /srv /srv/triangle.obj
    expect 0 inside korvane-tool info /srv/triangle.staticmesh
    say "and says what it misses without a display"
    expect 3 inside korvane-tool render -o /srv/crate.png "$samples/game/models/crate/crate.staticmesh"
}

try_window() {
    local bytes
    say "with a virtual screen it draws a thumbnail as file managers ask for it"
    expect 0 inside apt-get -q install -y --no-install-recommends xvfb xauth xdotool
    # As the thumbnailer entry says; the pictures of file managers have no extension.
    local -a thumbnailer
    read -ra thumbnailer < <(sed -n 's/^Exec=//p' "$root/usr/share/thumbnailers/korvane.thumbnailer" | sed "
        s|%s|256|
        s|%o|/srv/thumbnail|
        s|%i|$samples/game/models/crate/crate.staticmesh|")
    expect 0 inside xvfb-run -a "${thumbnailer[@]}"
    bytes=$(stat -c %s "$root/srv/thumbnail")
    # An empty picture of this size has about a thousand.
    ((bytes > 10000)) || die "the thumbnail has $bytes bytes"

    say "and korvane opens its window with the file"
    cat >"$root/srv/window.sh" <<'END'
korvane "$1" &
program=$!
for _ in $(seq 300); do
    kill -0 $program || exit 1
    if xdotool search --onlyvisible --pid $program --name "$(basename "$1")"; then
        sleep 3
        kill $program && ! wait $program
        exit
    fi
    sleep 0.1
done
xdotool search --onlyvisible --name '.*' getwindowname %@
kill $program
exit 1
END
    expect 0 inside xvfb-run -a -s '-screen 0 1600x1000x24' sh /srv/window.sh \
        "$samples/game/models/tinker/tinker.skinnedmesh"
}

remove_package() {
    local name left=()
    say "and goes without leaving a file"
    inside dpkg-query -L korvane | grep -E '/[^/]*korvane[^/]*$' >"$root/srv/files"
    expect 0 inside apt-get -q purge -y korvane
    while read -r name; do
        [[ ! -e $root$name ]] || left+=("$name")
    done <"$root/srv/files"
    ((${#left[@]} == 0)) || die "left behind: ${left[*]}"
}

[[ -f $package ]] || die "there is no package '$package'"
mkdir -p build
: >"$log"
say "$(basename "$package")"
make_root
install_package
look_inside
try_tool
try_window
remove_package
