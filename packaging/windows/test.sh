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

# Nothing is left out in silence.
known=$(ctest --test-dir "$build" -N | sed -n 's/^ *Test *#[0-9]*: //p'
    sed -n 's/^\(tst_[a-z0-9]*\)  .*/\1/p' "$here/tests-left-out.txt")
forgotten=$(find "$here/../../tests" -name 'tst_*.cpp' -printf '%f\n' | sed 's/\.cpp$//' | grep -vxF "$known" || true)
[[ -z $forgotten ]] || {
    printf 'neither built nor in tests-left-out.txt:\n%s\n' "$forgotten" >&2
    exit 1
}

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
# A function has failed when it did with any of its data, and is skipped when it was with all.
took=$((SECONDS - began))
table=$build/tests.md
awk -v seconds="$took" '
    BEGIN { print "| Program | Functions passed | Seconds | Failed or skipped |\n| --- | ---: | ---: | --- |" }
    /^[0-9]+\/[0-9]+ Test: / { program = $3; delete state; ended = 0 }
    /^(PASS|FAIL!|SKIP|XFAIL|XPASS) +: / {
        name = $0
        sub(/^[^:]*: [A-Za-z0-9_]*::/, "", name)
        sub(/\(.*/, "", name)
        if (name !~ /^(init|cleanup)TestCase$/ && (state[name] != "FAIL!") && (state[name] != "PASS" || $1 == "FAIL!"))
            state[name] = $1
    }
    /^Totals: / { ended = 1 }
    /^Test time = / {
        passed = 0
        others = ended ? "" : ", did not end"
        for (name in state) {
            if (state[name] == "PASS")
                ++passed
            else
                others = others ", " name (state[name] == "SKIP" ? " (skipped)" : "")
        }
        printf "| `%s` | %d | %.0f | %s |\n", program, passed, $4, substr(others, 3)
        all += passed
        ++programs
    }
    END { printf "| %d programs | %d | %d | |\n", programs, all, seconds }
    ' "$build/Testing/Temporary/LastTest.log" >"$table"
{
    printf '\n| Left out | Why |\n| --- | --- |\n'
    # shellcheck disable=SC2016 # what Markdown marks as code
    sed -n 's/^\([a-zA-Z][a-zA-Z0-9_:]*\)  \(.*\)/| `\1` | \2 |/p' "$here/tests-left-out.txt"
} >>"$table"
cat "$table"
grep -a 'tests passed' "$build/tests.log" || true
echo "$took s; the table is in $table, and all that the tests said in $build/tests.log"
exit "$result"
