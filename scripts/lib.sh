# SPDX-License-Identifier: MIT
# shellcheck shell=bash
# shellcheck disable=SC2034 # the scripts that source this use what is set here

# Shared by the scripts. Sourcing it changes to the project's folder.

cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit

version=$(sed -n 's/^project(Tessarin VERSION \([0-9.]*\) .*/\1/p' CMakeLists.txt)
title=$(sed -n 's/.*{\.Caption = "\([^"]*\)",.*/\1/p' src/ui/frmTessarin.cpp) # of the window

build_packages=(g++ cmake ninja-build)
window_packages=(qt6-base-dev)
test_packages=(libgtest-dev)
package_packages=(build-essential cmake debhelper fakeroot qt6-base-dev)
package_check_packages=(appstream desktop-file-utils file lintian man-db mandoc xdotool)
# To make a bare system, and to look at its window from outside.
fresh_packages=(mmdebstrap git xdotool wmctrl imagemagick)
# An X server that needs no screen, and a small window manager.
display_packages=(xvfb jwm)
# Compositors, hands on them, and pictures of them.
wayland_packages=(weston sway qt6-wayland imagemagick xdotool)
# To hear what a screen reader hears.
reader_packages=(at-spi2-core dbus gir1.2-atspi-2.0 python3-gi xdotool)

fail() {
    echo "$0: $*" >&2
    exit 1
}

[[ $title ]] || fail 'no title in src/ui/frmTessarin.cpp'

# wait_until <seconds> <name> <command...>: waits until the command succeeds; fails with "no <name>".
wait_until() {
    local end=$((SECONDS + $1)) what=$2
    shift 2
    until "$@"; do
        ((SECONDS < end)) || fail "no $what"
        sleep 0.05
    done
}

can_be_root() { ((EUID == 0)) || command -v sudo >/dev/null; }

as_root() {
    can_be_root || fail "root or sudo is needed for: $*"
    if ((EUID == 0)); then
        "$@"
    else
        sudo "$@"
    fi
}

# Installs those of the given Debian packages that are missing.
need() {
    command -v apt-get >/dev/null || return 0 # not Debian: the tools must be there
    local package missing=()
    for package in "$@"; do
        dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null | grep -qx installed ||
            missing+=("$package")
    done
    ((${#missing[@]})) || return 0
    if can_be_root; then
        echo "Installing with apt: ${missing[*]}" >&2
        ((EUID == 0)) || echo "This needs more rights: sudo may ask for your password." >&2
    fi
    local apt=(env DEBIAN_FRONTEND=noninteractive apt-get -qq -o DPkg::Lock::Timeout=300)
    if ! { can_be_root && as_root "${apt[@]}" update &&
        as_root "${apt[@]}" install -y --no-install-recommends "${missing[@]}" >/dev/null; }; then
        fail "these Debian packages are needed. An administrator can install them with:
    apt-get install --no-install-recommends ${missing[*]}"
    fi
}

# configure_and_build <preset>
configure_and_build() {
    cmake --preset "$1"
    cmake --build --preset "$1" --parallel "$(nproc)"
}

# run_tests <folder under build/> [ctest options...]: runs them on the Qt platform $test_platform.
test_platform=offscreen
run_tests() {
    local folder=build/$1
    shift
    QT_QPA_PLATFORM=$test_platform ctest --test-dir "$folder" --output-on-failure --no-tests=error "$@"
}
