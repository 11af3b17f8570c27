#!/usr/bin/env bash
# SPDX-FileCopyrightText: The Korvane developers
# SPDX-License-Identifier: MIT
#
# wine.sh TEST.exe [ARGS...]: a test program under Wine, without those of its functions that are left out there. The
# environment says where the libraries are (KORVANE_WINDOWS) and which Wine is meant (WINEPREFIX).
set -euo pipefail
program=$1
shift
name=$(basename "$program" .exe)
here=$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")
wine=$(command -v wine64 || echo /usr/lib/wine/wine64)

export WINEDEBUG=${WINEDEBUG:--all} WINEDLLOVERRIDES='mscoree,mshtml=;winemenubuilder.exe,winedbg.exe=d'
compiler=$(dirname "$(x86_64-w64-mingw32-g++-posix -print-libgcc-file-name)")
export WINEPATH="Z:$KORVANE_WINDOWS/root/bin;Z:$compiler;Z:/usr/x86_64-w64-mingw32/lib"
export QT_PLUGIN_PATH="Z:$KORVANE_WINDOWS/root/plugins"

# A program that is no console's has its standard output nowhere.
log=$(mktemp)
trap 'rm -f "$log" "$log.rest"' EXIT
functions=()
mapfile -t left_out < <(sed -n "s/^$name::\([A-Za-z0-9_]*\) .*/\1/p" "$here/tests-left-out.txt")
if ((${#left_out[@]})) && (($# == 0)); then
    # Those that it has are the slots of its source.
    source=$(find "$here/../../tests" -name "$name.cpp")
    while read -r function; do
        case $function in
        init | initTestCase | cleanup | cleanupTestCase | *_data) continue ;;
        esac
        [[ " ${left_out[*]} " == *" $function "* ]] || functions+=("$function")
    done < <(sed -n '/private slots:/,/^private:/s/^    void \([A-Za-z0-9_]*\)().*/\1/p' "$source")
fi
result=0
# What Wine starts beside it holds the output open for longer than the test lasts: none of it is ctest's.
"$wine" "$program" -o "$log,txt" "$@" "${functions[@]}" </dev/null >"$log.rest" 2>&1 || result=$?
cat "$log" "$log.rest"
# What crashed has no totals.
grep -q '^Totals:' "$log" || exit 1
exit "$result"
