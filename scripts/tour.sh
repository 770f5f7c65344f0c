#!/bin/bash
# SPDX-License-Identifier: MIT
# Drives the real program with mouse and keys on a virtual display and saves pictures in build/tour/.
set -euo pipefail
# shellcheck source=scripts/lib.sh
source "$(dirname "$0")/lib.sh"
# shellcheck source=scripts/display.sh
source scripts/display.sh

menu_height=20 # the controls begin below the menu bar
red=FF0000
green=00FF00
steel=4A86C8
solve=(545 281)
info=(495 376)
dead_end=(445 376)
winner=(545 376)
rotor=(707 357)
pace_0=(616 284)
pace_100=(616 308)

# pixel <x> <y>: prints the colour at a point of the window below the menu bar.
pixel() {
    import -window "$main" -crop "1x1+$1+$(($2 + menu_height))" -depth 8 rgb:- |
        od -An -tx1 | tr -d ' \n' | tr a-f A-F
}
has_color() { [[ $(pixel "$1" "$2") == "$3" ]]; }

# A solve is over when the rotor has stopped. Before that an indicator may go out again.
solved_to() { has_color "$@" && ! has_color "${rotor[@]}" $steel; }

click() {
    xdotool mousemove --sync --window "$main" "$1" "$(($2 + menu_height))" click 1
}

# choose <menu> <entry>: counts menus from the left, entries without separators. Uses the keyboard,
# because places depend on fonts.
choose() {
    local keys=(Alt_L) i
    for ((i = 1; i < $1; ++i)); do keys+=(Right); done
    for ((i = 1; i <= $2; ++i)); do keys+=(Down); done
    xdotool key --delay 30 "${keys[@]}" Return
}

# Sets box to the visible window with the given title that is not the main one.
find_box() {
    box=$(xdotool search --onlyvisible --name "^$1\$" | grep -vxF "$main" | head -n 1) &&
        [[ $box ]]
}
box_gone() { ! find_box "$1"; }
wait_for_box() { wait_until 10 "window \"$1\"" find_box "$1"; }
answer_box() {
    xdotool key Return
    wait_until 10 "end of window \"$1\"" box_gone "$1"
}

# take <name>: saves a picture of the screen without the empty desktop around the windows.
take() {
    sleep 0.3 # until the last change is painted
    import -window root png:- | convert - -trim +repage "build/tour/$1.png"
    echo "build/tour/$1.png"
}

# import_puzzle <name> [picture of the dialog]
import_puzzle() {
    choose 1 1
    wait_for_box 'Import File'
    xdotool type --delay 5 "$HOME/$1.csv"
    [[ -z ${2:-} ]] || take "$2"
    xdotool key Return
    wait_until 10 'end of the file dialog' box_gone 'Import File'
    sleep 0.5
}

has_window_manager() { xdotool get_num_desktops >"$scratch/desktops" 2>&1; }

open_window() {
    main=none
    start_process env --chdir="$HOME" QT_QPA_PLATFORM=xcb "$program"
    wait_until 20 'main window' find_box "$title"
    main=$box
    xdotool windowactivate --sync "$main"
}
window_closed() { ! kill -0 "${started[-1]}" 2>/dev/null; }
close_window() {
    choose 1 3
    wait_until 10 'end of the program' window_closed
}

need "${build_packages[@]}" "${window_packages[@]}" xdotool imagemagick
configure_and_build release
mkdir -p build/tour
rm -f build/tour/*.png
program=$PWD/build/release/src/Tessarin
start_display 1280x960
# A window that opens before would get no frame for the first pictures.
wait_until 10 'window manager' has_window_manager
export HOME=$scratch XDG_CONFIG_HOME=$scratch # the file dialog keeps its state there
cp puzzles/hard-1.csv puzzles/dead-end.csv "$HOME"

open_window
take 01-start

import_puzzle hard-1 02-import-dialog
take 03-imported

choose 3 1
wait_for_box "$title"
take 04-freedom
answer_box "$title"

choose 3 3
wait_for_box "$title"
take 05-neighbours
answer_box "$title"

click "${info[@]}"
click "${pace_100[@]}"
click "${solve[@]}"
sleep 4
has_color "${winner[@]}" $green && fail 'the puzzle was solved without a pause'
take 06-solving
click "${pace_0[@]}"
wait_until 120 'solution' solved_to "${winner[@]}" $green
take 07-solved

import_puzzle dead-end
click "${solve[@]}"
wait_until 120 'dead end' solved_to "${dead_end[@]}" $red
take 08-dead-end
click "${dead_end[@]}"
wait_for_box "$title"
take 09-dead-end-box
answer_box "$title"

choose 4 1
wait_for_box 'About Tessarin'
take 10-about
answer_box 'About Tessarin'

close_window

use_noto_sans
open_window
xdotool key --delay 50 i 5 Right # the information has a list that needs two lines
take 11-noto-sans
close_window
