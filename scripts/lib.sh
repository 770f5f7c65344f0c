# shellcheck shell=bash
# shellcheck disable=SC2034 # the lists of packages are for the scripts that source this

# What the scripts share. Sourcing it makes the project's folder the current one.

cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit

build_packages=(g++ cmake ninja-build)
window_packages=(qt6-base-dev)
test_packages=(libgtest-dev)
# What the checks of the installation and the Debian package use.
packaging_packages=(desktop-file-utils appstream man-db dpkg-dev file lintian)
# An X server for programs that are to be shown without a screen, with a small window manager.
display_packages=(xvfb jwm)

fail() {
    echo "$0: $*" >&2
    exit 1
}

as_root() {
    if ((EUID == 0)); then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo "$@"
    else
        fail "root or sudo is needed for: $*"
    fi
}

# Installs those of the given Debian packages that are missing.
need() {
    command -v apt-get >/dev/null || return 0 # another system: the tools must be there already
    local package missing=()
    for package in "$@"; do
        dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null | grep -qx installed ||
            missing+=("$package")
    done
    ((${#missing[@]})) || return 0
    echo "Installing ${missing[*]}"
    local apt=(env DEBIAN_FRONTEND=noninteractive apt-get -qq -o DPkg::Lock::Timeout=300)
    as_root "${apt[@]}" update
    as_root "${apt[@]}" install -y --no-install-recommends "${missing[@]}" >/dev/null
}

# configure_and_build <preset> <folder under build/> [cmake options...]
configure_and_build() {
    local preset=$1 folder=build/$2
    shift 2
    cmake --preset "$preset" -B "$folder" "$@"
    cmake --build "$folder" --parallel "$(nproc)"
}

# run_tests <folder under build/> [ctest options...]: on the Qt platform $test_platform.
test_platform=offscreen
run_tests() {
    local folder=build/$1
    shift
    QT_QPA_PLATFORM=$test_platform ctest --test-dir "$folder" --output-on-failure --no-tests=error "$@"
}
