#!/usr/bin/env bash
# SPDX-FileCopyrightText: The Korvane developers
# SPDX-License-Identifier: MIT
#
# Pictures of the real program on a virtual screen that ./dev provides, large enough for the window's frame:
#   screenshots.sh window PROGRAM PICTURE FILE...   the main window with these files open
#   screenshots.sh guides PROGRAM GUIDES SAMPLES    those of the guides in the program, of these sample folders
#   screenshots.sh all PROGRAM FOLDER GUIDES SAMPLES   the same, and every picture of the documentation
# Each start has the settings home that XDG_CONFIG_HOME names, and speaks its language.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

width=1600 height=1000
log=build/screenshots.log
started=()

die() {
    printf 'screenshots: %s\n' "$*" >&2
    [[ ! -s $log ]] || tail -n 20 "$log" >&2
    exit 1
}

finish() { ((${#started[@]} == 0)) || kill "${started[@]}" 2>/dev/null || true; }
trap finish EXIT

# visible ARGS...: the visible windows that xdotool's search finds, the largest last.
visible() {
    local id WIDTH HEIGHT
    for id in $(xdotool search --onlyvisible "$@" 2>/dev/null); do
        eval "$(xdotool getwindowgeometry --shell "$id" | grep -E '^(WIDTH|HEIGHT)=[0-9]+$')"
        echo "$((WIDTH * HEIGHT)) $id"
    done | sort -n | cut -d ' ' -f 2
}

# wait_for ARGS...: waits up to 30 s for a window that xdotool's search finds, and gives the largest.
wait_for() {
    local id
    for _ in {1..300}; do
        id=$(visible "$@" | tail -n 1)
        if [[ -n $id ]]; then
            echo "$id"
            return
        fi
        sleep 0.1
    done
    die "no window came up for the search $*"
}

# grab WINDOW PICTURE: waits until the window shows more than a bare background, then saves its place on the
# screen, with whatever lies above it.
grab() {
    local window=$1 picture=$2 place
    mkdir -p "$(dirname "$picture")"
    for _ in {1..100}; do
        place=$(xwininfo -id "$window" | awk '
            /Absolute upper-left X:/ { x = $NF }
            /Absolute upper-left Y:/ { y = $NF }
            /Width:/ { width = $NF }
            /Height:/ { height = $NF }
            END { print width "x" height "+" x "+" y }')
        import -window root -crop "$place" +repage "$picture"
        if (($(identify -format '%k' "$picture") > 64)); then
            echo "$picture"
            return
        fi
        sleep 0.2
    done
    die "the window stayed empty ($picture)"
}

window_manager() {
    openbox >>"$log" 2>&1 &
    started+=($!)
    for _ in {1..100}; do
        xdotool get_num_desktops >/dev/null 2>&1 && return
        sleep 0.1
    done
    die 'openbox did not start'
}

# korvane FILE...: starts the program and gives its main window, whose id goes into $main, the size of the pictures.
korvane() {
    "$program" "$@" >>"$log" 2>&1 &
    korvane_pid=$!
    started+=("$korvane_pid")
    main=$(wait_for --class '^korvane$')
    xdotool windowmove --sync "$main" 0 0 windowsize "$main" "$width" "$height"
    # Time for the layout to settle and for the character to take a step.
    sleep 3
}

end() {
    kill -KILL "$korvane_pid"
    wait "$korvane_pid" 2>>"$log" || true
}

# A program that is asked to end keeps its layout and unsaved work; the next picture is to begin without.
quit() {
    end
    rm -rf "$XDG_DATA_HOME/Korvane/Korvane/recovery"
}

press() {
    xdotool key --clearmodifiers "$@"
    sleep 0.5
}

# grab_dialog NAME PICTURE: waits for the window with this name, and grabs it.
grab_dialog() {
    local dialog
    dialog=$(wait_for --name "^$1")
    grab "$dialog" "$2"
}

# leave_dialog: closes it, and waits until the main window has the keys again.
leave_dialog() {
    press Escape
    for _ in {1..100}; do
        if [[ $(xdotool getactivewindow 2>>"$log") == "$main" ]]; then
            return
        fi
        sleep 0.1
    done
    die 'the dialog did not close'
}

# click X Y...: clicks at places of the main window, one after another.
click() {
    while (($#)); do
        xdotool mousemove --window "$main" "$1" "$2" click 1
        sleep 0.5
        shift 2
    done
}

# in_tree KEY...: goes to the top of the current tree and presses these keys there.
in_tree() { press ctrl+f Escape Home "$@"; }

# command NAME: does what the commands list under this name.
command() {
    press ctrl+shift+p
    wait_for --name '^Commands$' >>"$log"
    xdotool type --delay 20 "$1"
    press Return
}

# part PICTURE ARGS...: what the main window shows, cut out by ImageMagick's ARGS.
part() {
    local picture=$1 whole=build/whole.png
    shift
    grab "$main" "$whole" >>"$log"
    convert "$whole" "$@" +repage -strip -define png:compression-level=9 "$picture"
    echo "$picture"
}

# for_guide NAME ARGS...: a part for the guides in the program.
for_guide() { part "$guides/$1.png" "${@:2}"; }

# show_record WORDS: lets the filter line of the current tree find a record and goes to it.
show_record() {
    press ctrl+f
    xdotool type --delay 20 "$1"
    # It looks when the typing is done.
    sleep 1
    press Return
}

# background_of PICTURE: the colour of its first pixel.
background_of() { convert "$1" -format '%[pixel:p{0,0}]' info:; }

# page NAME: keeps the property page of the current record for pages, without the empty room below it.
page() {
    local picture=build/page-$1.png box
    part "$picture" -crop 328x690+1272+280 >>"$log"
    box=$(convert "$picture" -format '%@' info:)
    [[ $box =~ x([0-9]+)\+[0-9]+\+([0-9]+)$ ]]
    convert "$picture" -crop "328x$((BASH_REMATCH[1] + BASH_REMATCH[2]))+0+0" +repage \
        -bordercolor "$(background_of "$picture")" -border 8x10 "$picture"
}

# pages PICTURE COLUMN...: the property pages kept under the names in each column, one below another.
pages() {
    local picture=$1 column name columns=()
    shift
    for column in "$@"; do
        columns+=('(')
        for name in $column; do
            columns+=("build/page-$name.png")
        done
        columns+=(-append ')')
    done
    convert -background "$(background_of "build/page-$name.png")" "${columns[@]}" +append -strip \
        -define png:compression-level=9 "$picture"
    echo "$picture"
}

# setting NAME VALUE: what the next start finds in the settings.
setting() {
    local store=$XDG_CONFIG_HOME/Korvane/Korvane.conf
    sed -i -e "/^$1=/d" -e "s/^\[General\]/&\n$1=$2/" "$store"
}

# The first file with this extension in the game folder of the samples.
first() { find "$samples/game" -name "*.$1" | sort | head -n 1; }

model_pictures() {
    local skinned_mesh animation static_mesh broken=$samples/mod/broken.anim
    skinned_mesh=$(first skinnedmesh)
    animation=$(first anim)
    static_mesh=$(first staticmesh)

    korvane "$skinned_mesh" "$animation"
    in_tree Down Right Down Down Down
    grab "$main" "$folder/main.png"
    press F7
    grab "$main" "$folder/curves.png"
    press F7 shift+F4
    grab "$main" "$folder/textures.png"
    press shift+F4
    command 'mod browser'
    # Its small pictures are drawn beside the window.
    sleep 3
    press Down
    part "$folder/browser.png" -crop 312x560+0+60
    command 'mod browser'
    press ctrl+comma
    grab_dialog 'Options$' "$folder/options.png"
    press alt+s
    grab_dialog 'Options$' "$folder/shortcuts.png"
    leave_dialog
    press F1
    grab_dialog 'Keyboard and Mouse$' "$folder/controls.png"
    leave_dialog
    press ctrl+shift+p
    grab_dialog 'Commands$' "$folder/commands.png"
    leave_dialog
    command rotate
    grab_dialog Rotate "$folder/rotate.png"
    leave_dialog
    command scale
    grab_dialog Scale "$folder/scale.png"
    leave_dialog
    # Some steps for the history.
    in_tree Down Left Down Right Down Insert Insert Delete
    command history
    grab "$main" "$folder/history.png"
    quit

    korvane "$static_mesh"
    grab "$main" "$folder/static-mesh.png"
    quit

    # Half an animation file: the console says where it ends.
    head -c 100 "$animation" >"$broken"
    korvane "$skinned_mesh" "$animation" "$broken"
    press Return
    grab "$main" "$folder/console.png"
    quit
}

# What a file shows while it is read: one of 20 million vertices that are all alike.
opening_picture() {
    local large=$samples/mod/models/castle.staticmesh
    perl -e 'print pack "l< f<6 l< Z* l< S<3 l<", 2, (0) x 6, 1, "materials/mat_crate/wood", 1, 0, 1, 2, 20_000_000' >"$large"
    truncate -s +640000000 "$large"
    korvane "$(first staticmesh)"
    press ctrl+o
    xdotool type --delay 20 "$large"
    xdotool key Return
    sleep 0.7
    grab "$main" "$folder/opening.png"
    quit
    rm "$large"
}

# What the viewport can show beside textured models, and what finds and describes records.
view_pictures() {
    setting HideAnimData false
    korvane "$(first skinnedmesh)" "$(first anim)"
    command 'frame rate'
    press Home 6 b h
    # A few frames are counted.
    sleep 2
    part "$folder/skeleton.png" -crop 1062x840+206+90
    command 'frame rate'
    press 5 b h
    # Textured, lit and in the colors of its normals, side by side.
    local look
    for look in 0 1 2; do
        case $look in
        1) press l ;;
        2) press n ;;
        esac
        part "build/look-$look.png" -crop 400x700+540+150 -resize 320x
    done
    convert build/look-{0,1,2}.png +append -strip -define png:compression-level=9 "$folder/shading.png"
    press n shift+o
    part "$folder/onion-skin.png" -crop 500x700+490+150
    press shift+o
    boxes_picture
    press F12
    grab_dialog 'Save Picture$' "$folder/picture.png"
    leave_dialog
    press ctrl+f
    xdotool type --delay 20 'left arm'
    sleep 1
    part "$folder/filter.png" -crop 330x250+1270+90
    press Escape
    # More room for the pages.
    xdotool mousemove --window "$main" 1430 530 mousedown 1
    for _ in 1 2; do
        xdotool mousemove_relative -- 0 -130
        sleep 0.2
    done
    xdotool mouseup 1
    show_record 'tinker.skinnedmesh'
    page mesh
    show_record 'hot point 1'
    page hot-point
    show_record 'child 1'
    page child
    show_record 'surface 1'
    page surface
    show_record 'triangle index 1'
    page triangle-index
    show_record 'vertex 100'
    page vertex
    pages "$folder/pages-mesh.png" mesh hot-point vertex 'surface triangle-index child'
    press ctrl+Tab
    show_record 'tinker.anim'
    page file
    show_record 'anim 2'
    page block
    show_record 'bone 3'
    page bone
    show_record 'action 1'
    page action
    command 'view events'
    # The frame of the action, on the numbers of the timeline.
    click 747 918
    part "$folder/actions.png" -crop 1062x600+206+380
    command 'view events'
    command 'close loop'
    grab_dialog 'Close Animation Loop$' "$folder/animation-command.png"
    leave_dialog
    show_record 'frame 4'
    page frame
    show_record 'translation track 0'
    press ctrl+f Escape Right Down
    page translation
    show_record 'rotation track 1'
    press ctrl+f Escape Right Down Down
    page rotation
    pages "$folder/pages-animation.png" 'file block' bone action 'frame translation rotation'
    quit
    setting HideAnimData true
}

# The boxes of a character with one that can be dragged, and its bones by the damage that they take, side by side.
boxes_picture() {
    in_tree Down Right Down Down Down
    command 'view boxes'
    part build/look-0.png -crop 480x700+500+132
    command 'view boxes'
    command 'damage scale'
    part build/look-1.png -crop 762x700+500+132
    command 'damage off'
    convert build/look-{0,1}.png +append -strip -define png:compression-level=9 "$folder/boxes.png"
}

# What a start offers after the program could not end as it should.
recovery_pictures() {
    korvane "$(first skinnedmesh)" "$(first anim)"
    in_tree Down Down Right Down Insert
    sleep 5
    end
    korvane "$(first skinnedmesh)" "$(first anim)"
    part "$folder/notice.png" -crop 1600x130+0+0
    command recover
    grab_dialog 'Recover$' "$folder/recover.png"
    leave_dialog
    quit
}

# master_server: one on this machine that tells of three servers, so that the pictures need no other.
master_server() {
    perl -MIO::Socket::INET -e '
        my $socket = IO::Socket::INET->new(LocalAddr => "127.0.0.1:20700", Proto => "udp") or die "$@\n";
        while (defined $socket->recv(my $request, 64)) {
            $socket->send(pack "(C4v)3", 17, 2, 0, 192, 27996, 40, 100, 51, 198, 27996, 8, 113, 0, 203, 28000);
        }' >>"$log" 2>&1 &
    started+=($!)
    sleep 1
    kill -0 $! || die 'the port of the server list is taken'
}

# The tabs and windows that have nothing to do with a model.
other_pictures() {
    master_server
    korvane "$(first skinnedmesh)" "$(first anim)"
    press alt+t
    press q
    # The list is done a second after its last piece.
    sleep 2
    grab "$main" "$folder/servers.png"
    press alt+h
    press a
    grab_dialog 'About$' "$folder/about.png"
    leave_dialog
    quit

    korvane
    click 380 78
    grab "$main" "$folder/database.png"
    click 465 78
    grab "$main" "$folder/tutorials.png"
    click 555 78
    grab "$main" "$folder/community.png"
    quit
}

# choose_import FILE: opens the import dialog with that file in it.
choose_import() {
    press ctrl+i
    wait_for --name '^(Import model|Modell importieren)' >>"$log"
    xdotool type --delay 20 "$1"
    press Tab
    # It looks into the file.
    sleep 4
}

# A character with names that another program gave it, and an export that was edited there: its head is taller, and
# one of its animations has lost its number.
blender_pictures() {
    local bones=(root hips spine chest neck head visor key antenna scarf.1 scarf.2 scarf.3 pack lantern shoulder.L arm.L
        forearm.L hand.L shoulder.R arm.R forearm.R hand.R wrench thigh.L shin.L foot.L thigh.R shin.R foot.R)
    local renamed=(-e 's/"korvane":/"blender":/; s/"\[1\]"/"walk [1]"/; s/"\[0\]"/"idle [0]"/; s/"\[10\]"/"swing [10]"/'
        -e 's/"\[40\]"/"cheer [40]"/; s/"\[50\]"/"fall [50]"/; s/"yaw"/"armature"/; s/"hotpoint_00/"tip./')
    local i edited=$samples/edited/tinker.glb
    for i in "${!bones[@]}"; do
        renamed+=(-e "s/\"$(printf 'bone_%03d' "$i")\"/\"${bones[i]}\"/")
    done
    sed -i "${renamed[@]}" "$samples/import/clockwork.gltf"
    korvane
    choose_import "$samples/import/clockwork.gltf"
    press Return
    sleep 4
    # Under free names, since the character has textures of the same.
    press alt+f
    sleep 4
    press Return
    command skeleton
    in_tree Down Right Down Down Down Down Down Down
    grab "$main" "$folder/blender.png"
    quit

    mkdir -p "${edited%/*}"
    # Names of the same length, so that nothing else of the file has to change. Its first numbers are places.
    perl -0777 -pe '
        s/"\[50\]"/"wave"/;
        s/"korvane":"\{\\"block\\":4\}"/"blender":"{\\"block\\":4}"/;
        my $start = 28 + unpack "V", substr $_, 12, 4;
        my ($count) = /"count":(\d+)/;
        for my $vertex (0 .. $count - 1) {
            my $at = $start + 12 * $vertex + 8;
            my $z = unpack "f<", substr $_, $at, 4;
            substr($_, $at, 4) = pack "f<", $z + 0.3 * ($z - 150) if $z > 150;
        }' "$samples/import/tinker.glb" >"$edited"
    korvane "$(first skinnedmesh)" "$(first anim)"
    choose_import "$edited"
    press Return
    grab_dialog Update "$folder/update.png"
    quit
}

# What is about all files of the game and the mod.
mod_pictures() {
    local changed=$samples/mod/models/tinker.skinnedmesh
    cp "$(first skinnedmesh)" "$changed"
    korvane "$(first skinnedmesh)" "$(first anim)"
    in_tree Down Down Down Right Down
    command 'where is this used'
    # All files are read once.
    sleep 3
    grab "$main" "$folder/used-by.png"
    command 'replace in files'
    wait_for --name 'Replace in Files$' >>"$log"
    xdotool type --delay 20 'damageScale > 0'
    press Tab
    xdotool type --delay 20 'damageScale'
    press Tab
    xdotool type --delay 20 '*=2'
    press Return
    sleep 2
    grab_dialog 'Replace in Files' "$folder/replace-files.png"
    leave_dialog
    rm "$changed"
    command 'pack mod'
    sleep 3
    grab_dialog 'Pack Mod' "$folder/pack.png"
    leave_dialog
    command 'check whole mod'
    sleep 3
    grab "$main" "$folder/problems.png"
    # The next start would remember it.
    command 'check whole mod'
    quit

    korvane "$(first skinnedmesh)" "$samples/mod/materials/mat_tinker.kmat"
    grab "$main" "$folder/materials.png"
    quit
}

# The pictures of the guides in English and German. Most show the view and the records of a window that is hardly
# wider than a page.
guide_pictures() {
    local width=1600 height=1000 part=() WIDTH
    korvane "$(first skinnedmesh)" "$(first anim)"
    for_guide window -filter Lanczos -resize 760x
    press ctrl+comma
    grab_dialog '(Options|Optionen)$' "$guides/options.png"
    leave_dialog
    quit

    width=1010 height=880
    korvane "$(first skinnedmesh)" "$(first anim)"
    # The window may not get as narrow.
    eval "$(xdotool getwindowgeometry --shell "$main" | grep -E '^WIDTH=[0-9]+$')"
    part=(-crop "$((WIDTH - 240))x$(((WIDTH - 240) * 680 / 760))+240+90" -filter Lanczos -resize 760x)
    in_tree Down Right Down Down Down
    for_guide bone "${part[@]}"
    in_tree Down Left Down Right Down
    for_guide hot-point "${part[@]}"
    in_tree Down Down Left Down Right Down
    for_guide surface "${part[@]}"
    press ctrl+Tab
    in_tree Down Down Down Right Down Down Down Down Down Right Down
    for_guide action "${part[@]}"
    choose_import "$samples/import/tinker.glb"
    grab_dialog '(Import model|Modell importieren)' "$guides/import.png"
    mogrify -filter Lanczos -resize '760x>' "$guides/import.png"
    leave_dialog
    quit

    rm "$samples/mod/textures/"*
    width=840
    korvane "$(first skinnedmesh)"
    # The console, from the status bar.
    click $((width - 40)) $((height - 12))
    for_guide console -gravity SouthWest -crop 840x232+0+0 -filter Lanczos -resize 760x
    quit
}

verb=$1 program=$2
shift 2
mkdir -p "$(dirname "$log")"
: >"$log"
window_manager
case $verb in
guides)
    guides=$1 samples=$2
    mkdir -p "$guides"
    guide_pictures
    ;;
window)
    picture=$1
    shift
    korvane "$@"
    grab "$main" "$picture"
    quit
    ;;
all)
    folder=$1 guides=$2 samples=$3
    mkdir -p "$folder" "$guides"
    model_pictures
    opening_picture
    view_pictures
    other_pictures
    mod_pictures
    guide_pictures
    cp "$guides/import.png" "$folder/import.png"
    blender_pictures
    # The next start would offer the same again.
    recovery_pictures
    ;;
*) die "unknown verb '$verb'" ;;
esac
