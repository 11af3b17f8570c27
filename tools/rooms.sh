#!/usr/bin/env bash
# SPDX-FileCopyrightText: The Korvane developers
# SPDX-License-Identifier: MIT
#
# rooms.sh CHECK [BUILD_DIR]: the house as the build's own link lines have it. A room is a folder with a target
# of its own, named for its path. A check prints what is wrong, and fails if anything is:
#   arrows BUILD_DIR   a room includes headers of just those rooms that its link line names
#   cycles             no two files, a source with its header and form being one, name each other in a circle
#   classes            no class has more than 400 lines of implementation over all its sources
#   folders            no folder holds more than 25 sources
#   plan BUILD_DIR     docs/images/rooms.svg shows the rooms and arrows that there are
#   draw BUILD_DIR     draws that picture anew
# BUILD_DIR is configured.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

check=$1
build_dir=${2:-}
picture=docs/images/rooms.svg

# What the rooms are made of. Tests, benchmarks, fuzzers and generators are around the house, not in it.
files() {
    git ls-files --cached --others --exclude-standard -- "$@" ':!tests/*' ':!bench/*' ':!fuzz/*' ':!tools/*' \
        | while IFS= read -r file; do
            [[ ! -f $file ]] || printf '%s\n' "$file"
        done
}

# "FILE HEADER" for each header of ours that a source or a form names.
named_headers() {
    files '*.cpp' '*.h' '*.ui' | xargs grep -HoE '#include "[^"]+"|<header>[^<"]+</header>' \
        | sed -E 's/^([^:]+):(#include "|<header>)([^"<]+).*$/\1 \3/'
}

# "ROOM ROOM" for each arrow of the link lines. What has to be built before a program, such as one that it
# starts, is none.
links() {
    cmake --graphviz="$build_dir/rooms.dot" "$build_dir" >"$build_dir/rooms.log" 2>&1 || {
        cat "$build_dir/rooms.log" >&2
        return 1
    }
    sed -nE 's|^.* // (korvane[^ ]*) -> (korvane_[^ ]*)$|\1 \2|p' "$build_dir/rooms.dot" | sed -E '
        s/\bkorvane-import-worker\b/import\/worker/g
        s/\bkorvane-tool\b/tool/g
        s/\bkorvane_//g
        s/\bkorvane\b/app/g
        s/_/\//g' | sort -u | while read -r from to; do
        [[ ! -d $from || ! -d $to ]] || printf '%s %s\n' "$from" "$to"
    done
}

# The same without those that others imply.
plan_arrows() {
    links | awk '
        { arrow[$1, $2] = 1; from[NR] = $1; to[NR] = $2; room[$1] = room[$2] = 1 }
        function reaches(a, b, c) {
            if ((a, b) in arrow)
                return 1
            for (c in room)
                if ((a, c) in arrow && reaches(c, b))
                    return 1
            return 0
        }
        END {
            for (i = 1; i <= NR; ++i) {
                implied = 0
                for (c in room)
                    if (c != to[i] && (from[i], c) in arrow && reaches(c, to[i]))
                        implied = 1
                if (!implied)
                    print from[i], to[i]
            }
        }'
}

arrows() {
    local linked
    linked=$(links)
    awk '
        function folder(path) { sub("/[^/]*$", "", path); return path }
        function name(path) { sub(".*/", "", path); sub(/\.in$/, "", path); return path }
        part == "links" { linked[$1, $2] = 1; links[++count] = $0 }
        part == "headers" { homes[name($1)] = homes[name($1)] " " folder($1); hasHeaders[folder($1)] = 1 }
        part == "named" {
            room = folder($1)
            found = !($2 in homes) || index(homes[$2] " ", " " room " ")
            total = split(homes[$2], home, " ")
            for (i = 1; i <= total && !found; ++i) {
                if ((room, home[i]) in linked) {
                    used[room, home[i]] = 1
                    found = 1
                }
            }
            if (!found)
                print $1 " includes " $2 ", but " room " does not link" homes[$2]
        }
        END {
            for (i = 1; i <= count; ++i) {
                split(links[i], ends, " ")
                if (hasHeaders[ends[2]] && !((ends[1], ends[2]) in used))
                    print ends[1] " links " ends[2] ", but includes no header of it"
            }
        }' part=links <(echo "$linked") part=headers <(files '*.h' '*.h.in') part=named <(named_headers)
}

# tsort tells of circles, one member a line, on standard error.
cycles() {
    awk '
        function stem(path) { sub(/\.[^\/]*$/, "", path); return path }
        function folder(path) { sub("/[^/]*$", "", path); return path }
        part == "files" { home[$1] = 1; base = $1; sub(".*/", "", base); homes[base] = homes[base] " " folder($1) }
        part == "named" {
            header = $2
            if (header ~ /^ui_/) {
                sub(/^ui_/, "", header)
                sub(/\.h$/, ".ui", header)
            }
            target = folder($1) "/" header
            if (!(target in home) && split(homes[header], others, " "))
                target = others[1] "/" header
            if (target in home && stem(target) != stem($1))
                print stem($1), stem(target)
        }' part=files <(files '*.h' '*.ui') part=named <(named_headers) | tsort 2>&1 >/dev/null | sed 's/^tsort: //' || true
}

# A source belongs to the class of which it defines the most functions.
classes() {
    # shellcheck disable=SC2016
    files '*.cpp' | xargs awk '
        function count() { if (class != "") total[class] += lines; class = ""; lines = most = 0; delete functions }
        FNR == 1 { count(); folder = FILENAME; sub("/[^/]*$", "/", folder) }
        { ++lines }
        /^[^ \t]/ && match($0, /[A-Z][A-Za-z0-9_]*::~?[A-Za-z0-9_]+\(/) {
            name = substr($0, RSTART, RLENGTH)
            sub(/::.*/, "", name)
            if (++functions[name] > most) {
                most = functions[name]
                class = folder name
            }
        }
        END {
            count()
            for (class in total)
                if (total[class] > 400)
                    print class ": " total[class] " lines"
        }'
}

folders() {
    files '*.cpp' | sed 's|/[^/]*$||' | sort | uniq -c | awk '$1 > 25 { print $2 ": " $1 " sources" }'
}

# The arrows of the picture: the renderer writes each as a title.
drawn_arrows() {
    sed -nE 's|^<title>([^<&]+)&#45;&gt;([^<]+)</title>$|\1 \2|p' "$picture" | sort
}

plan() {
    diff <(plan_arrows | sort) <(drawn_arrows) | sed -n 's/^</Not in the picture:/p; s/^>/In the picture alone:/p'
}

# Floors are what dot makes of the arrows; programs stand out.
draw() {
    {
        echo 'digraph rooms {'
        echo 'bgcolor="white"; nodesep=0.25; ranksep=0.45;'
        echo 'node [shape=box, style="rounded,filled", fillcolor="#eef3f8", color="#5b7083", fontname="sans-serif", fontsize=13];'
        echo 'edge [color="#5b7083", arrowsize=0.7];'
        echo '"app" [label="app/main.cpp", fillcolor="#ffe9c7"]; "tool" [fillcolor="#ffe9c7"]; "import/worker" [fillcolor="#ffe9c7"];'
        plan_arrows | sed -E 's/^(.*) (.*)$/"\1" -> "\2";/'
        echo '}'
    } | dot -Tsvg >"$picture"
}

case $check in
draw) draw ;;
arrows | cycles | classes | folders | plan)
    faults=$("$check")
    [[ -z $faults ]] || {
        printf '%s\n' "$faults"
        exit 1
    }
    ;;
*)
    echo "rooms.sh knows no '$check'" >&2
    exit 2
    ;;
esac
