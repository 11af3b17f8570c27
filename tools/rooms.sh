#!/usr/bin/env bash
# SPDX-FileCopyrightText: The Korvane developers
# SPDX-License-Identifier: MIT
#
# rooms.sh CHECK [BUILD_DIR]: the house as the build's own link lines have it. A room is a folder with a target
# of its own, named for its path. A check prints what is wrong, and fails if anything is:
#   arrows BUILD_DIR   a room includes headers of just those rooms that its link line names, every arrow leads
#                      to a lower floor, and widgets and the library that reads foreign files are linked only
#                      where they may be
#   cycles             no two files, sources with their header being one, name each other in a circle; a form is a
#                      file of its own, since it does not know the class that shows it
#   classes            no class has more than 400 lines of implementation over all its sources
#   folders            no folder holds more than 25 sources
#   plan BUILD_DIR     docs/images/rooms.svg shows the rooms and arrows that there are
#   draw BUILD_DIR     draws that picture anew
# BUILD_DIR is configured.
set -euo pipefail
shopt -s inherit_errexit
cd "$(dirname "${BASH_SOURCE[0]}")/.."

check=$1
build_dir=${2:-}
picture=docs/images/rooms.svg

# From below to above. Rooms on one floor do not know each other.
floors='core resources translations
files net app/desktop import/box
model
undo mod motion references import render/scene app/widgets json
find render/gl
batch app/documents app/choice app/materials gltf import/scene render/input tool/line
render import/ready
pictures
app/tree app/view app/timeline app/explorer app/recovery app/console
app/tree/pages app/find app/references app/browser app/table app/uv app/curves app/motion app/problems app/compare app/database app/import app/pack app/kmat
app/window
app tool import/worker'

# What the rooms are made of. Tests, benchmarks, fuzzers and generators are around the house, not in it.
files() {
    git ls-files --cached --others --exclude-standard -- "$@" ':!tests/*' ':!bench/*' ':!fuzz/*' ':!tools/*' \
        | while IFS= read -r file; do
            [[ ! -f $file ]] || printf '%s\n' "$file"
        done | grep .
}

# "FILE HEADER" for each header of ours that a source or a form names.
named_headers() {
    files '*.cpp' '*.h' '*.ui' | xargs grep -HoE '^ *# *include *["<][^">]+|<header>[^<"]+' \
        | sed -E 's/^([^:]+): *(# *include *["<]|<header>)/\1 /'
}

# "TARGET TARGET" for each arrow of the link lines.
graph() {
    local dot=$build_dir/rooms.dot
    cmake --graphviz="$dot" "$build_dir" >"$build_dir/rooms.log" 2>&1 || {
        cat "$build_dir/rooms.log" >&2
        return 1
    }
    sed -nE 's|^.* // ([^ ]+) -> ([^ ]+)$|\1 \2|p' "$dot"
}

# "ROOM WHAT" of that: a target by the folder that it is named for. The generators of resources and samples are
# no rooms.
rooms() {
    awk '
        function room(target) {
            if (target == "korvane")
                return "app"
            if (target == "korvane-tool")
                return "tool"
            if (target == "korvane-import-worker")
                return "import/worker"
            if (target == "korvane_drawing_resources" || target == "korvane_tutorials")
                return "resources"
            if (sub(/^korvane_/, "", target))
                gsub("_", "/", target)
            return target
        }
        $1 ~ /^korvane/ && $1 !~ /^korvane[-_]make[-_]/ { print room($1), room($2) }' | sort -u
}

# "ROOM ROOM". What has to be built before a program, such as one that it starts, is none.
links() { graph | grep ' korvane_' | rooms; }

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
        part == "floors" { for (i = 1; i <= NF; ++i) floor[$i] = FNR }
        part == "links" { linked[$1, $2] = 1; links[++count] = $0 }
        part == "headers" {
            if (name($1) in home)
                print $1 " has the name of a header in " home[name($1)]
            home[name($1)] = folder($1)
            hasHeaders[folder($1)] = 1
        }
        part == "named" && $2 in home && home[$2] != folder($1) {
            used[folder($1), home[$2]] = 1
            if (!((folder($1), home[$2]) in linked))
                print $1 " includes " $2 ", but " folder($1) " does not link " home[$2]
        }
        END {
            for (i = 1; i <= count; ++i) {
                split(links[i], ends, " ")
                if (!(ends[1] in floor) || !(ends[2] in floor))
                    print "There is no floor for " links[i]
                else if (floor[ends[1]] <= floor[ends[2]])
                    print ends[1] " links " ends[2] ", which does not stand below it"
                if (hasHeaders[ends[2]] && !((ends[1], ends[2]) in used))
                    print ends[1] " links " ends[2] ", but includes no header of it"
            }
        }' part=floors <(echo "$floors") part=links <(echo "$linked") part=headers <(files '*.h' '*.h.in') \
        part=named <(named_headers)
    # Qt 5 keeps its undo commands among the widgets.
    graph | rooms | awk '
        $2 == "Qt5::Widgets" && $1 !~ "^(app/.*|render|undo)$" || $2 ~ /assimp/ && $1 !~ "^import/(scene|ready)$" {
            print $1 " links " $2
        }'
    files '*.cpp' '*.h' | xargs grep -nE '#include <Qt[A-Z][A-Za-z]+/' || true
}

# tsort tells of circles, one member a line, on standard error.
cycles() {
    awk '
        function stem(path) { if (path !~ /\.ui$/) sub(/(_posix|_windows)?\.[^\/]*$/, "", path); return path }
        function folder(path) { sub("/[^/]*$", "", path); return path }
        part == "files" { base = $1; sub(".*/", "", base); home[base] = folder($1) }
        part == "named" {
            header = $2
            if (header ~ /^ui_/) {
                sub(/^ui_/, "", header)
                sub(/\.h$/, ".ui", header)
            }
            if (header in home && stem(home[header] "/" header) != stem($1))
                print stem($1), stem(home[header] "/" header)
        }' part=files <(files '*.h' '*.ui') part=named <(named_headers) | tsort 2>&1 >/dev/null | sed 's/^tsort: //' || true
}

# A source belongs to the class of which it defines the most functions.
classes() {
    # shellcheck disable=SC2016
    files '*.cpp' | xargs awk '
        function count() { if (class != "") total[class] += lines; class = ""; lines = most = 0; delete functions }
        FNR == 1 { count() }
        { ++lines }
        /^[^ \t]/ && match($0, /[A-Z][A-Za-z0-9_]*(<[^>]*>)?::~?[A-Za-z0-9_]+\(/) {
            name = substr($0, RSTART, RLENGTH)
            sub(/[<:].*/, "", name)
            if (++functions[name] > most) {
                most = functions[name]
                class = name
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
    { diff <(plan_arrows | sort) <(drawn_arrows) || true; } \
        | sed -n 's/^</Not in the picture:/p; s/^>/In the picture alone:/p'
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
