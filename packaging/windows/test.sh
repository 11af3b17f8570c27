#!/usr/bin/env bash
# SPDX-FileCopyrightText: The Korvane developers
# SPDX-License-Identifier: MIT
#
# test.sh CACHE BUILD [ARGS...]: runs the tests in BUILD under Wine on a virtual screen; arguments go to ctest. Ends
# with a table of what passed, failed, and was left out.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
KORVANE_WINDOWS=$(realpath "$1")
build=$(realpath "$2")
shift 2
began=$SECONDS

# A Wine of its own, whose programs share one screen, as those of a desktop do.
export KORVANE_WINDOWS WINEPREFIX=$build/wine WINEDEBUG=-all LIBGL_ALWAYS_SOFTWARE=1
export WINEDLLOVERRIDES='mscoree,mshtml=;winemenubuilder.exe,winedbg.exe=d'
wine=$(command -v wine64 || echo /usr/lib/wine/wine64)
server=$(command -v wineserver || echo /usr/lib/wine/wineserver64)
mkdir -p "$WINEPREFIX"
# shellcheck disable=SC2016 # for the shell on the virtual screen
screen='
    "$0" wineboot -u
    # The windows are arranged by Wine itself: nobody else is on that screen.
    "$0" reg add "HKCU\\Software\\Wine\\Explorer" /v Desktop /d Korvane /f
    "$0" reg add "HKCU\\Software\\Wine\\Explorer\\Desktops" /v Korvane /d 1600x1200 /f
    "$1" -w
    "$1" -p
    shift
    exec ctest "$@"'
result=0
xvfb-run -a -n 400 -s '-screen 0 1600x1200x24' bash -c "$screen" "$wine" "$server" --test-dir "$build" \
    --output-on-failure --no-tests=error -j1 "$@" >"$build/tests.log" 2>&1 || result=$?
"$server" -k || true

# --- The table ---------------------------------------------------------------------------------------------
grep -E '^ *[0-9]+/[0-9]+ Test +#' "$build/tests.log" |
    sed -E 's/^ *[0-9]+\/[0-9]+ Test +#[0-9]+: ([a-z0-9_]+) \.*( *|\*\*\*)([A-Za-z]+).* ([0-9.]+) sec.*/\1 \3 \4/' |
    awk '{ printf "%-22s %-10s %7.1f s\n", $1, tolower($2), $3 }'
echo
echo "Left out:"
grep -v '^#' "$here/tests-left-out.txt"
echo
grep -E 'tests passed' "$build/tests.log" || true
echo "$((SECONDS - began)) s; all that the tests said is in $build/tests.log"
exit "$result"
