# SPDX-License-Identifier: MIT
# shellcheck shell=bash
# A virtual X display, to show or drive a program without a screen. Every process started with
# start_process ends with the script, however the script ends.

scratch=$(mktemp -d "${TMPDIR:-/tmp}/tessarin.XXXXXX")
started=()

start_process() {
    "$@" &
    started+=($!)
}

end_started() {
    local i
    for ((i = ${#started[@]} - 1; i >= 0; --i)); do
        kill "${started[i]}" 2>/dev/null || true
        wait "${started[i]}" 2>/dev/null || true
    done
    rm -rf "$scratch"
}
trap end_started EXIT
trap 'exit 130' INT
trap 'exit 143' TERM HUP

# make_cookie: makes the file without which nobody gets onto the display, no other user of the
# machine either. It has one entry in the format of xauth, which serves for every host and display,
# since the number of the display is not known yet: address family 65535, empty address, empty
# number, name, cookie.
make_cookie() {
    export XAUTHORITY=$scratch/cookie
    (
        umask 077
        printf '\xff\xff\0\0\0\0\0\x12MIT-MAGIC-COOKIE-1\0\x10' >"$XAUTHORITY"
        head -c 16 /dev/urandom >>"$XAUTHORITY"
    )
}

# start_display <width>x<height>: starts an X server on a free number and a small window manager. With
# -noreset the server does not start anew when its only client ends, which would throw out whoever
# connects at that moment.
start_display() {
    # shellcheck disable=SC2154 # lib.sh has been sourced before
    need "${display_packages[@]}"
    make_cookie
    start_process Xvfb -displayfd 3 -screen 0 "$1x24" -noreset -nolisten tcp \
        -auth "$XAUTHORITY" 3>"$scratch/number" 2>"$scratch/Xvfb.log"
    wait_until 20 "virtual display" test -s "$scratch/number"
    DISPLAY=:$(<"$scratch/number")
    export DISPLAY
    unset WAYLAND_DISPLAY
    export XDG_RUNTIME_DIR=$scratch
    export DBUS_SESSION_BUS_ADDRESS=disabled: # there is no session
    cat >"$scratch/jwmrc" <<'END'
<JWM>
  <Desktops width="1"><Background type="solid">#5a6472</Background></Desktops>
  <FocusModel>click</FocusModel>
</JWM>
END
    start_process jwm -f "$scratch/jwmrc" >"$scratch/jwm.log" 2>&1
}

# use_noto_sans: programs that are started from now on have this font, whose lines are higher than
# those of most. It is not installed, because then the desktop would have it, too.
use_noto_sans() {
    local fonts=$PWD/build/noto-sans
    if [[ ! -d $fonts ]] && command -v apt-get >/dev/null; then
        (cd "$scratch" && apt-get -qq -o APT::Sandbox::User=root download fonts-noto-core)
        mkdir -p "$fonts"
        dpkg-deb --fsys-tarfile "$scratch"/fonts-noto-core_*.deb |
            tar -xC "$fonts" --wildcards '*/NotoSans-*'
    fi
    cat >"$scratch/fonts.conf" <<END
<fontconfig>
  <include>/etc/fonts/fonts.conf</include>
  <dir>$fonts</dir>
  <match>
    <edit name="family" mode="prepend" binding="strong"><string>Noto Sans</string></edit>
  </match>
</fontconfig>
END
    export FONTCONFIG_FILE=$scratch/fonts.conf
    [[ $(fc-match) == *'"Noto Sans"'* ]] || fail 'no font "Noto Sans"'
}
