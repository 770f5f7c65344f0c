#!/bin/bash
# SPDX-License-Identifier: MIT
# Works the program on Wayland, without a screen: a compositor draws on a virtual X display, and what
# xdotool sends to its window reaches the program as Wayland input. Checks what is seen by the
# colours of pictures: test-wayland.sh [folder under build/ [weston|sway...]]
set -euo pipefail
# shellcheck source=scripts/lib.sh
source "$(dirname "$0")/lib.sh"
# shellcheck source=scripts/display.sh
source scripts/display.sh

screen_width=1100
green=00ff00
white=ffffff
black=000000
background=5a6472 # of the desktop
highlight=308cc6 # of a menu title or entry
# Places in the window, from the upper left corner of the first field.
key_5=(456 66)
winner=(520 348)
first_entry=(78 -17) # of the first menu
side_column=(734 100) # its right border

# find_color <colour>: sets x and y to its first point on the screen, row by row.
find_color() {
    local at
    at=$(import -window root -depth 8 rgb:- | od -An -v -tx1 -w3 | tr -d ' ' |
        grep -m1 -nx "$1" | cut -d: -f1) || true
    [[ $at ]] && x=$(((at - 1) % screen_width)) y=$(((at - 1) / screen_width))
}

# sees <colour> <x> <y>: from the first field.
sees() {
    [[ $(import -window root -crop "1x1+$((field_x + $2))+$((field_y + $3))" -depth 8 rgb:- |
        od -An -tx1 | tr -d ' \n') == "$1" ]]
}

# The first field is the current one and therefore green, inside of its border and, while the window
# is active, the white and black frame of the focus.
is_active() { find_color $green && field_x=$((x - 5)) field_y=$((y - 5)) && sees $white 2 20; }
find_field() { wait_until 20 'active window' is_active; }
# Closes a box or dialog, which may not have the keyboard yet.
press_return() {
    local i
    for ((i = 0; i < 10; ++i)); do
        press Return
        ! is_active || return 0
    done
    fail 'the window is not active again'
}

# The window is maximised, or is not any more, when the field is elsewhere or back at $normal.
is_back() { is_active && [[ "$field_x $field_y" == "$normal" ]]; }
is_elsewhere() { is_active && [[ "$field_x $field_y" != "$normal" ]]; }
keeps_its_controls() {
    sees $white "${key_5[@]}" || fail "$1: the digit is gone, or controls have moved"
}
shows_a_menu() {
    press alt Down
    wait_until 10 "menu $1" sees $highlight "${first_entry[@]}"
    press Escape
}

# Moves the pointer into the window of the compositor anew, which is when weston learns its
# place.
click() {
    xdotool mousemove 1 1 sleep 0.3 mousemove $((field_x + $1)) $((field_y + $2)) \
        sleep 0.5 click 1 sleep 0.7
}
# click_maximise <width of the window>: the last button but one in the title bar.
click_maximise() { click $(($1 - 63)) -62; }
press_maximise() { press super+shift+m; }
no_green() { ! find_color $green; }
press() { xdotool key --delay 100 "$@" sleep 0.7; }
runs() { kill -0 "$program" 2>/dev/null || fail "$1 ended the program: $(<"$scratch/program.log")"; }
has_ended() { ! kill -0 "$program" 2>/dev/null; }

start_weston() {
    cat >"$scratch/weston.ini" <<END_OF_FILE
[core]
idle-time=0
[shell]
panel-position=none
locking=false
background-color=0xff$background
END_OF_FILE
    local backend=x11
    [[ $(weston --version) != 'weston 1'[01]* ]] || backend=x11-backend.so # its old name
    start_process env XDG_RUNTIME_DIR="$scratch/weston" weston --backend=$backend \
        --width=1000 --height=700 --socket=wayland-1 --config="$scratch/weston.ini" \
        --log="$scratch/weston.log" 2>"$scratch/weston.err"
}

# sway refuses to run as root.
start_sway() {
    cat >"$scratch/sway.conf" <<END_OF_FILE
output * mode 1000x700
output * bg #$background solid_color
END_OF_FILE
    local user=()
    cp "$XAUTHORITY" "$scratch/sway/cookie"
    if ((EUID == 0)); then
        user=(setpriv --reuid=65534 --regid=65534 --clear-groups)
        chmod 711 "$scratch"
        chown --recursive 65534 "$scratch/sway"
    fi
    export SWAYSOCK=$scratch/sway/commands
    start_process env XDG_RUNTIME_DIR="$scratch/sway" XAUTHORITY="$scratch/sway/cookie" \
        WLR_BACKENDS=x11 WLR_RENDERER=pixman \
        "${user[@]}" sway --config "$scratch/sway.conf" 2>"$scratch/sway.err"
}

# Windows can be maximised.
weston_story() {
    local way
    local -A toggle=([button]=click_maximise [key]=press_maximise)
    for way in button key; do
        echo "Maximise and back by the $way"
        ${toggle[$way]} 590
        runs "The $way to maximise"
        wait_until 10 'maximised window' is_elsewhere
        keeps_its_controls 'Maximised'
        ${toggle[$way]} 1000
        runs "The $way to restore"
        wait_until 10 'restored window' is_back
        keeps_its_controls 'Restored'
    done

    echo 'The About box, maximised'
    press alt Left Down Return # from the first title to the last
    press super+shift+m
    runs 'The maximised box'
    wait_until 5 'box over the window' no_green
    press_return
}

# Windows are tiles.
sway_story() {
    echo 'A menu in a tile'
    shows_a_menu 'in a tile'

    echo 'The side column in a tile, and then out of it'
    press i
    wait_until 5 'side column in a tile' sees $black "${side_column[@]}"
    swaymsg --quiet floating enable
    wait_until 10 'floating window' is_elsewhere
    wait_until 5 'side column of a floating window' sees $black "${side_column[@]}"
    shows_a_menu 'of a floating window'
    press i
    wait_until 5 'window without side column' sees $background "${side_column[@]}"

    echo 'A tile again, the whole screen, and back'
    swaymsg --quiet floating disable
    wait_until 10 'tile' is_back
    swaymsg --quiet fullscreen enable
    wait_until 10 'window as large as the screen' is_elsewhere
    keeps_its_controls 'As large as the screen'
    shows_a_menu 'of a window as large as the screen'
    swaymsg --quiet fullscreen disable
    wait_until 10 'tile' is_back
    keeps_its_controls 'In a tile'
}

# work <compositor>
work() {
    echo "$1: start, and a digit"
    mkdir -m 700 "$scratch/$1" "$scratch/home"
    "start_$1"
    local compositor=${started[-1]}
    wait_until 20 "$1" test -S "$scratch/$1/wayland-1"
    start_process env HOME="$scratch/home" WAYLAND_DISPLAY="$scratch/$1/wayland-1" \
        QT_QPA_PLATFORM=wayland ASAN_OPTIONS=detect_leaks=0 \
        "build/$folder/src/Tessarin" >"$scratch/program.log" 2>&1
    program=${started[-1]}
    find_field
    press 5
    wait_until 5 'digit: its key is still there' sees $white "${key_5[@]}"
    normal="$field_x $field_y"
    "$1_story"

    echo 'Two imports by typed paths, the second from the folder that is listed'
    mkdir "$scratch/home/f"
    cp puzzles/{easy-1,nearly-complete}.csv "$scratch/home/f"
    local puzzle
    for puzzle in easy-1 nearly-complete; do
        press ctrl+o
        sleep 1
        xdotool type --delay 30 "$scratch/home/f/$puzzle.csv"
        press_return
    done
    rm -r "$scratch/home/f"

    echo 'A tap on Alt during a solve'
    press i shift+Tab Down Down Down # a pace with a pause
    click 100 -20 # so that the pointer rests on no control
    press s
    sees $white "${winner[@]}" || fail 'the solve did not pause'
    xdotool keydown alt sleep 0.08 keyup alt sleep 0.7
    find_color $highlight || fail 'Alt did not go to the menus'
    press alt
    wait_until 60 'solution' sees $green "${winner[@]}"

    echo 'The end'
    press ctrl+q
    wait_until 10 'end of the program' has_ended
    wait "$program" || fail "the program ended with $?: $(<"$scratch/program.log")"
    [[ -z $(find "$scratch/home" -type f) ]] || fail "left behind: $(find "$scratch/home" -type f)"
    rmdir "$scratch/home"
    kill "$compositor"
    wait "$compositor" || true
}

(($# > 1)) || set -- "${1:-test}" weston sway
folder=$1
need "${wayland_packages[@]}"
start_display ${screen_width}x800
for compositor in "${@:2}"; do work "$compositor"; done
