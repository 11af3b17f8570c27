#!/usr/bin/env bash
# SPDX-FileCopyrightText: The Korvane developers
# SPDX-License-Identifier: MIT
#
# test-rooms.sh: plants one fault after another in a copy of the tree, and sees that rooms.sh finds each.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

copy=$(mktemp -d)
trap 'rm -rf "$copy"' EXIT
git ls-files -z --cached --others --exclude-standard | while IFS= read -r -d '' file; do
    [[ ! -f $file ]] || printf '%s\0' "$file"
done | tar --null -cf - -T - | tar -xf - -C "$copy"
cd "$copy"
git init -q
git add -A
cmake --preset lint -DKORVANE_BENCH=OFF >configure.log 2>&1 || {
    cat configure.log
    exit 1
}
missed=0

# expect CHECK TEXT: the check fails and says this of what was planted, which then goes.
expect() {
    local found
    if found=$(tools/rooms.sh "$1" build/lint 2>&1) || [[ $found != *"$2"* ]]; then
        printf '%s does not say "%s" but "%s"\n' "$1" "$2" "$found"
        missed=1
    fi
    git checkout -q .
    git clean -dfq -e build
}
# link FOLDER TARGET
link() { sed -i "0,/    LINK /s//    LINK $2 /" "$1/CMakeLists.txt"; }

for check in arrows cycles classes folders plan; do
    tools/rooms.sh "$check" build/lint
done

echo '#include "KVTreeView.h"' >>app/view/ViewSelection.cpp
expect arrows 'app/view does not link app/tree'
echo '#include <KVTreeView.h>' >>app/view/ViewSelection.cpp
expect arrows 'app/view does not link app/tree'
link app/console korvane_model
expect arrows 'app/console links model, but includes no header of it'
link app/documents korvane_app_explorer
echo '#include "FolderTree.h"' >>app/documents/DocumentFiles.cpp
expect arrows 'app/documents links app/explorer, which does not stand below it'
link import Qt5::Widgets
expect arrows 'import links Qt5::Widgets'
cp app/tree/RecordFilter.h app/view
git add app/view/RecordFilter.h
expect arrows 'has the name of a header in'
git rm -q -f --cached app/view/RecordFilter.h
echo '#include "KVTreeView.h"' >>app/tree/RecordItem.cpp
expect cycles 'app/tree/KVTreeView'
seq 100 | sed 's|^|// |' >>app/window/MainWindow.cpp
expect classes 'MainWindow: '
for number in {1..30}; do
    echo >"app/console/More$number.cpp"
done
expect folders 'app/console: 32 sources'
link app/timeline korvane_app_documents
expect plan 'Not in the picture: app/timeline app/documents'
exit $missed
