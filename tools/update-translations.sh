#!/usr/bin/env bash
# SPDX-FileCopyrightText: The Korvane developers
# SPDX-License-Identifier: MIT
#
# update-translations.sh FOLDER: brings the .ts files there up to date with the texts of the sources: new ones
# come in as unfinished, vanished ones go. Texts that cannot be attributed to a context fail it.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

folder=$(realpath -- "$1")
lupdate=$(command -v /usr/lib/qt5/bin/lupdate || command -v lupdate-qt5 || command -v lupdate) || {
    echo "lupdate is missing (package qttools5-dev-tools)"
    exit 1
}
# The command line tool speaks English.
rooms=(app batch core files find gltf import json mod model motion net pictures references render undo)
said=$("$lupdate" -silent -locations none -no-obsolete -no-ui-lines "${rooms[@]}" -ts "$folder"/*.ts 2>&1 |
    grep -vE '^(Scanning directory|Updating|    Found|    Removed|    Kept|    Same-text|    Heuristically)' || true)
[[ -z $said ]] || {
    printf '%s\n' "$said"
    exit 1
}
