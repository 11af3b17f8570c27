# SPDX-FileCopyrightText: The Korvane developers
# SPDX-License-Identifier: MIT
# shellcheck shell=bash

# Completion of korvane-tool for bash.

# _korvane_tool_files [EXTENSIONS]: folders, and the files with one of these extensions ("a|b").
_korvane_tool_files() {
    local name
    compopt -o filenames 2>/dev/null
    while IFS= read -r name; do
        if [[ -z ${1:-} || -d $name || ${name,,} =~ \.($1)$ ]]; then
            COMPREPLY+=("$name")
        fi
    done < <(compgen -f -- "$cur")
}

_korvane_tool() {
    local cur=${COMP_WORDS[COMP_CWORD]} prev=${COMP_WORDS[COMP_CWORD - 1]} verb=${COMP_WORDS[1]:-}
    local verbs='info check resave dump build set animate fit-boxes find replace runs uses diff pack import export render' options=''
    COMPREPLY=()

    if ((COMP_CWORD == 1)) || [[ $verb == help ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$verbs help --help --version" -- "$cur")
        return
    fi

    case $prev in
    -o | --output)
        _korvane_tool_files
        return
        ;;
    --game-path | --mod-path | --texture-folder)
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen -d -- "$cur")
        return
        ;;
    --anim)
        _korvane_tool_files anim
        return
        ;;
    --kmat)
        _korvane_tool_files kmat
        return
        ;;
    --background)
        mapfile -t COMPREPLY < <(compgen -W 'transparent black white gray' -- "$cur")
        return
        ;;
    --around)
        mapfile -t COMPREPLY < <(compgen -W 'loops always never' -- "$cur")
        return
        ;;
    --of)
        mapfile -t COMPREPLY < <(compgen -W 'material: texture: animation: sound: particle: actor: voice: impact:
            damage:' -- "$cur")
        return
        ;;
    --unused)
        mapfile -t COMPREPLY < <(compgen -W 'materials textures animations sounds particles actors voices impacts' \
            -- "$cur")
        return
        ;;
    --mesh | --source-mesh)
        _korvane_tool_files skinnedmesh
        return
        ;;
    --shading)
        mapfile -t COMPREPLY < <(compgen -W 'textured lit normals' -- "$cur")
        return
        ;;
    --up)
        mapfile -t COMPREPLY < <(compgen -W 'y z auto' -- "$cur")
        return
        ;;
    --format)
        mapfile -t COMPREPLY < <(compgen -W 'text json sarif' -- "$cur")
        return
        ;;
    --where | --leave-out | --scale | --rate | --clips | --time-limit | --block | --frame | --size | --yaw | --pitch)
        return
        ;;
    esac

    case $verb in
    info) options='--json --help' ;;
    check) options='--mod --silenced --format --json --all --game-path --mod-path --help' ;;
    resave) options='--output --force --help' ;;
    dump) options='--output --force --schema --help' ;;
    find) options='--json --help' ;;
    replace) options='--list --json --skip --help' ;;
    runs) options='--undo --finish --forget --help' ;;
    uses) options='--of --unused --json --game-path --mod-path --help' ;;
    diff) options='--json --all --help' ;;
    build) options='--output --force --help' ;;
    pack) options='--output --force --list --json --with-errors --leave-out --game-path --help' ;;
    animate)
        options='--block --all --output --in-place --force --keep-speed --around --mesh --source-mesh --help'
        ;;
    fit-boxes) options='--output --in-place --force --bones --model --anim --game-path --mod-path --help' ;;
    set) options='--output --force --where --help' ;;
    import)
        options='--output --static --force --keep-materials --no-normals --flip-uv --flip-winding --no-rotate --scale
            --ready --up --rate --clips --extra-bones --mod-path --create-kmat --copy-textures --kmat
            --texture-folder --time-limit --update --anim --drop-missing --help'
        ;;
    export)
        options='--output --gltf --anim --block --pose --frame --force --game-path --mod-path --help'
        ;;
    render)
        options='--output --each --sheet --columns --force --anim --block --frame --frames --step --turntable --size
            --background --shading --yaw --pitch --lens --game-path --mod-path --help'
        ;;
    esac
    if [[ $cur == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$options" -- "$cur")
        return
    fi

    case $verb in
    info | check) _korvane_tool_files 'skinnedmesh|anim|staticmesh|kmat' ;;
    resave | dump | set | fit-boxes | find | replace | diff | export | render) _korvane_tool_files 'skinnedmesh|anim|staticmesh' ;;
    animate)
        _korvane_tool_files anim
        mapfile -t -O "${#COMPREPLY[@]}" COMPREPLY < <(compgen -W 'resample rate reverse trim shift close-loop mirror
            extract-yaw apply-yaw remove-unused join-equal renumber copy-from' -- "$cur")
        ;;
    uses) _korvane_tool_files 'skinnedmesh|anim|staticmesh|kmat|png|tga|jpg|jpeg|bmp|gif' ;;
    build) _korvane_tool_files json ;;
    pack)
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen -d -- "$cur")
        ;;
    import) _korvane_tool_files ;;
    esac
}

complete -F _korvane_tool korvane-tool
