#!/bin/bash
# SPDX-License-Identifier: MIT
# Builds the program and opens its window. Without a display the window opens on a virtual one, which
# a VNC viewer can show with a password of this start; closing the window ends everything.
set -euo pipefail
# shellcheck source=scripts/lib.sh
source "$(dirname "$0")/lib.sh"

need "${build_packages[@]}" "${window_packages[@]}"
configure_and_build release
program=build/release/src/Tessarin

# Qt's part for Wayland is a package of its own until Debian 13.
has_wayland() { compgen -G "$(qtpaths6 --query QT_INSTALL_PLUGINS)/platforms/libqwayland*" >/dev/null; }

if [[ ${WAYLAND_DISPLAY:-} ]]; then
    if ! has_wayland && [[ ${DISPLAY:-} ]]; then
        echo 'The window opens through X11. With the package qt6-wayland it would speak Wayland.'
        exec "$program"
    fi
    has_wayland || need qt6-wayland
    exec env QT_QPA_PLATFORM="${QT_QPA_PLATFORM:-wayland;xcb}" "$program"
fi
if [[ ${DISPLAY:-} ]]; then
    exec "$program"
fi

echo "There is no display here (neither DISPLAY nor WAYLAND_DISPLAY is set): starting a virtual one."
# shellcheck source=scripts/display.sh
source scripts/display.sh
need x11vnc
start_display 1024x640
# VNC takes 8 characters. They are in a file, since everybody can read the arguments of a process.
password=$(head -c 5 /dev/urandom | base32 | tr '[:upper:]' '[:lower:]')
(umask 077 && echo "$password" >"$scratch/password")
start_process x11vnc -norc -display "$DISPLAY" -localhost -noipv6 -no6 -autoport 5900 \
    -flag "$scratch/port" -forever -shared -passwdfile "$scratch/password" -quiet \
    >"$scratch/x11vnc.log" 2>&1
wait_until 20 "VNC server" grep -qs PORT= "$scratch/port"
port=$(sed -n 's/.*PORT=//p' "$scratch/port")
cat <<END

The window is on the virtual display $DISPLAY. To see it, open this address in a VNC viewer,
which asks for the password:

    localhost:$port
    password: $password

On another machine, first open a tunnel to this one and keep it open:

    ssh -L $port:localhost:$port ${USER:-$(id -un)}@$(uname -n)

Then open the same address there. It can be reached only from this machine, and the password is good
only for this start.
Closing the window, or Ctrl-C here, ends everything that was started.

END
start_process "$program"
wait "${started[-1]}"
