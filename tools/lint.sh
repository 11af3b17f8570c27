#!/usr/bin/env bash
# SPDX-FileCopyrightText: The Korvane developers
# SPDX-License-Identifier: MIT
#
# lint.sh BUILD_DIR: every check that reads the sources without running them. BUILD_DIR is configured and holds
# compile_commands.json. All checks run, then the script fails if one of them did.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

build_dir=$1
failed=()

llvm() { command -v "$1-14" || command -v "$1"; }

# Files under version control or about to be, which exist.
files() {
    git ls-files -z --cached --others --exclude-standard -- "$@" | while IFS= read -r -d '' file; do
        [[ ! -f $file ]] || printf '%s\0' "$file"
    done
}

# check TITLE COMMAND...
check() {
    local begin=$SECONDS title=$1
    shift
    printf '== %s\n' "$title"
    if "$@"; then
        printf '   clean, %d s\n' "$((SECONDS - begin))"
    else
        printf '   FAILED, %d s\n' "$((SECONDS - begin))"
        failed+=("$title")
    fi
}

# none MESSAGE, lines on standard input: fails and shows them when there are any.
none() {
    local lines
    lines=$(cat)
    [[ -z $lines ]] || {
        printf '%s:\n%s\n' "$1" "$lines"
        return 1
    }
}

formatting() { files '*.cpp' '*.h' | xargs -0 -r "$(llvm clang-format)" --dry-run -Werror; }

# Bash scripts, with or without an extension.
scripts() {
    files dev .ci '*.sh' 'tools/*' | while IFS= read -r -d '' file; do
        ! head -n 1 "$file" | grep -qaE '^#!.*\bbash$' || printf '%s\0' "$file"
    done
}

script_faults() { { scripts && files '*.bash'; } | xargs -0 -r shellcheck; }

manual_pages() { files 'packaging/*.1' | xargs -0 -r groff -man -ww -z 2>&1 | none 'Faults of manual pages'; }

# The headers that moc and uic write have to be there. Their CMake targets would first build the libraries that
# a target links; the command behind them does not.
generated_headers() {
    find "$build_dir" -name AutogenInfo.json -print0 \
        | xargs -0 -r -I '{}' -P "$(nproc)" cmake -E cmake_autogen '{}' Debug >"$build_dir/autogen.log" 2>&1 || {
        cat "$build_dir/autogen.log"
        return 1
    }
}

# The files that several sources are compiled in together.
unity_files() {
    sed -nE 's|^ *"file": "(.*/Unity/[^"]*)",?$|\1|p' "$build_dir/compile_commands.json" | tr '\n' '\0'
}

# Reading the headers takes most of the time, so sources are looked at together. Tests and fuzz targets, a third of
# all files, only have to compile without a warning, as do sources for Windows: see below. The warnings of system
# headers that clang-tidy counts on standard error are no finding.
tidy() {
    comm -13 <(unity_files | xargs -0 sed -nE 's/^#include "(.*)"$/\1/p' | sort) \
        <(files '*.cpp' ':!tests/*' ':!fuzz/*' ':!*_windows.cpp' | xargs -0 printf "$PWD/%s\n" | sort) | none 'In no target' || return 1
    unity_files | xargs -0 -r -n 1 -P "$(nproc)" "$(llvm clang-tidy)" -p "$build_dir" --quiet 2>"$build_dir/tidy.log" || {
        grep -vE '^[0-9]+ warnings? (generated|treated as errors?)\.?$' "$build_dir/tidy.log"
        return 1
    }
}

# The definitions and the folders of headers by which a source is compiled here, one a line.
options_of() {
    local unity
    unity=$(unity_files | xargs -0 grep -lxF "#include \"$PWD/$1\"") || return 1
    sed -nE "s|^ *\"command\": \"(.*) -c $unity\",?\$|\1|p" "$build_dir/compile_commands.json" | sed -E 's/\\(.)/\1/g' \
        | xargs -n 1 | awk '/^-[DI]/ || $0 == "-isystem" || last == "-isystem" { print } { last = $0 }'
}

# What a source for Windows needs its counterpart has, and the toolkit's headers declare what they do for any system.
# Those of a folder are looked at together, as they are built. Tests have headers alone that are for one system, which
# need less than a room with widgets.
windows_sources() {
    local compiler file folder twin options sources result=0
    local -A folders=()
    compiler=$(command -v x86_64-w64-mingw32-g++-posix) || {
        printf 'g++-mingw-w64-x86-64-posix is not installed\n'
        return 1
    }
    while IFS= read -r -d '' file; do
        folders[${file%/*}]+=" -include $file"
    done < <(files '*_windows.cpp' 'tests/support/windows/*.h')
    for folder in "${!folders[@]}"; do
        read -ra sources <<<"${folders[$folder]}"
        twin=${sources[1]%_windows.cpp}_posix.cpp
        [[ $folder != tests/* ]] || twin=app/desktop/TitleBars_posix.cpp
        mapfile -t options < <(options_of "$twin")
        ((${#options[@]})) || {
            printf '%s: it is not known how %s is compiled\n' "$folder" "$twin"
            return 1
        }
        "$compiler" -std=c++17 -fsyntax-only -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror \
            "${options[@]}" -Itests/support "${sources[@]}" -x c++ /dev/null || result=1
    done
    return "$result"
}

# search GREP_OPTIONS... reads file names: grep's findings, and no failure when there are none.
search() { xargs -0 -r grep "$@" || true; }

no_upward_includes() {
    files '*.cpp' '*.h' | search -nE '#include +["<]\.\./' | none 'A room is included by its link line'
}

# Headers are included by their names alone, and classes are named as their headers: two of one name in a program
# would be one to the linker. The tests' headers are one set for each system.
own_header_names() {
    files '*.h' ':!tests/*' | xargs -0 -r -n 1 basename | sort | uniq -d | none 'More than one header of this name'
}

rooms() { tools/rooms.sh "$1" "$build_dir"; }

licence_headers() {
    { files '*.cpp' '*.h' '*.cmake' '*CMakeLists.txt' 'packaging/*.1' 'packaging/completions/*' && scripts; } \
        | search -L 'SPDX-License-Identifier: ' | none 'No SPDX header'
}

short_files() {
    files '*.cpp' '*.h' | xargs -0 -r wc -l | awk '$2 != "total" && $1 > 500' | none 'More than 500 lines'
}

# The brackets keep these patterns from finding themselves.
nothing_left_open() {
    files ':!LICENSE*' | search -nIwE '[T]ODO|[F]IXME|[X]XX' | none 'Left open'
}

# Links to files; those with a scheme, and places within a page, are not looked at.
links_resolve() {
    local page target
    while IFS= read -r -d '' page; do
        while read -r target; do
            [[ $target == *:* || -e $(dirname "$page")/$target ]] || printf '%s: %s\n' "$page" "$target"
        done < <(grep -oE '\]\([^)#]+' "$page" | sed 's/^](//')
    done < <(files '*.md') | none 'A link to nothing'
}

# The texts that the sources have, brought into a copy, change nothing.
translations() {
    local copy=$build_dir/translations file
    rm -rf "$copy"
    mkdir -p "$copy"
    cp translations/*.ts "$copy"
    tools/update-translations.sh "$copy" || return 1
    for file in translations/*.ts; do
        cmp -s "$file" "$copy/${file##*/}" || {
            diff -U0 "$file" "$copy/${file##*/}" | grep '^[+-].*<source' || true
            printf '%s\n' "$file"
        }
    done | none 'Not up to date, ./dev translations mends it'
}

# The project owns no domain, so its id is a plain name.
desktop_files() {
    desktop-file-validate packaging/korvane.desktop || return 1
    appstreamcli validate --no-net --override=cid-desktopapp-is-not-rdns=info packaging/korvane.metainfo.xml \
        >"$build_dir/metainfo.log" || {
        cat "$build_dir/metainfo.log"
        return 1
    }
}

check 'clang-format' formatting
check 'shellcheck' script_faults
check 'includes' no_upward_includes
check 'names of headers' own_header_names
check 'licence headers' licence_headers
check 'file length' short_files
check 'arrows between rooms' rooms arrows
check 'circles of files' rooms cycles
check 'large classes' rooms classes
check 'crowded folders' rooms folders
check 'picture of the rooms' rooms plan
check 'faults of rooms are found' tools/test-rooms.sh
check 'open ends' nothing_left_open
check 'links of the documents' links_resolve
check 'desktop entry and metainfo' desktop_files
check 'manual pages' manual_pages
check 'translations' translations
check 'moc and uic' generated_headers
check 'sources for Windows' windows_sources
check 'clang-tidy' tidy

if ((${#failed[@]})); then
    printf 'lint failed: %s\n' "$(IFS=,; echo "${failed[*]}")"
    exit 1
fi
printf 'lint is clean\n'
