#!/bin/bash
# SPDX-License-Identifier: MIT
# Runs the README's two commands on a bare system, as a new user would: fresh.sh bookworm|trixie|forky
# Makes a minimal Debian of that release in a temporary folder, from the mirror that this machine's
# apt uses, and copies the last commit in: once with git and the history, once the plain files.
# Saves a picture of the window in build/fresh/ and removes everything else. Needs root.
set -euo pipefail
# shellcheck source=scripts/lib.sh
source "$(dirname "$0")/lib.sh"

release=${1:-}
[[ $release =~ ^(bookworm|trixie|forky)$ ]] || fail "bookworm, trixie or forky?"
((EUID == 0)) || fail "root is needed, to make a system in a folder"
need "${fresh_packages[@]}"

scratch=$(mktemp -d "${TMPDIR:-/tmp}/tessarin.XXXXXX")
system=$scratch/system
running=
clean_up() {
    [[ -z $running ]] || { kill -KILL "$running" && wait "$running"; } 2>/dev/null || true
    rm -rf --one-file-system "$scratch"
}
trap clean_up EXIT
trap 'exit 130' INT
trap 'exit 143' TERM HUP

# start <command...>: the command has process ids and mounts of its own. What it starts and mounts
# ends with it, also when it is killed.
start() {
    unshare --mount --pid --fork --kill-child --mount-proc -- "$@" >"$scratch/log" 2>&1 &
    running=$!
}

# start_as_user <shell command>: runs it in the system, in the project's folder.
start_as_user() {
    # shellcheck disable=SC2016 # the inner shell expands its arguments
    start bash -euc '
        mount --bind "$1/archives" "$1/system/var/cache/apt/archives"
        mount -t proc proc "$1/system/proc"
        mount -t devpts -o newinstance,ptmxmode=666 devpts "$1/system/dev/pts"
        mount -t tmpfs tmpfs "$1/system/dev/shm"
        chroot "$1/system" su - newcomer -c "cd tessarin; $2"
    ' - "$scratch" "$1"
}

# finish <name>: waits for the started command, which must end with 0, and tells the time it took.
begin=$SECONDS
finish() {
    local ended=0
    wait "$running" || ended=$?
    running=
    ((ended == 0)) || fail "$release, $1: ended with $ended
$(tail -n 50 "$scratch/log")"
    echo "$release, $1: $((SECONDS - begin)) s"
    begin=$SECONDS
}

window_closed() { ! kill -0 "$running" 2>/dev/null; }
window_open() {
    ! window_closed || fail "scripts/run.sh ended without a window: $(tail -n 50 "$scratch/log")"
    DISPLAY=$(sed -n 's/.* on the virtual display \(:[0-9]*\)\..*/\1/p' "$scratch/log")
    XAUTHORITY=$(echo "$system"/tmp/tessarin.*/cookie)
    export DISPLAY XAUTHORITY
    [[ $DISPLAY ]] && xdotool search --onlyvisible --name "^$title\$" >/dev/null 2>&1
}

# Others are refused: the display wants its cookie, and VNC offers nothing but the password.
others_stay_out() {
    local port vnc
    ! XAUTHORITY=/dev/null xdotool getmouselocation >/dev/null 2>&1 ||
        fail "the display $DISPLAY lets everybody in"
    port=$(sed -n 's/^ *localhost:\([0-9]*\)$/\1/p' "$scratch/log")
    exec {vnc}<>"/dev/tcp/127.0.0.1/$port"
    head -c 12 <&"$vnc" >/dev/null # the server's version
    printf 'RFB 003.008\n' >&"$vnc"
    # Their number, then each; 2 is a password.
    [[ $(head -c 2 <&"$vnc" | od -An -tx1) == ' 01 02' ]] || fail "port $port lets everybody in"
    exec {vnc}>&-
}

# try_both_commands <name>
try_both_commands() {
    start_as_user scripts/run.sh
    wait_until 1800 window window_open
    others_stay_out
    sleep 2 # until it is painted
    import -window root "build/fresh/$release.png"
    wmctrl -c "$title"
    wait_until 20 'end of scripts/run.sh after the window was closed' window_closed
    finish "$1, scripts/run.sh"
    start_as_user scripts/test.sh
    finish "$1, scripts/test.sh"
}

mkdir -p build/fresh "$scratch/archives"
# shellcheck disable=SC2016 # apt expands REPO_URI
mirror=$(apt-get indextargets --format '$(REPO_URI)' 'Created-By: Packages' 'Label: Debian' \
    'Component: main' | head -n 1)
[[ $mirror ]] || fail "apt knows no mirror of Debian: run apt-get update"
options=(--variant=minbase --include=sudo --dpkgopt=force-unsafe-io)
# The index of testing expires within a week; a mirror that is older still serves.
[[ $release != forky ]] || options+=(--aptopt='Acquire::Check-Valid-Until "false"')
start mmdebstrap "${options[@]}" "$release" "$scratch/base" "$mirror"
finish 'a minimal system'
chroot "$scratch/base" useradd --create-home --shell /bin/bash newcomer
echo 'newcomer ALL=(ALL) NOPASSWD: ALL' >"$scratch/base/etc/sudoers.d/newcomer"

echo "$release: from a clone, with git"
cp -a "$scratch/base" "$system"
git clone --quiet --no-hardlinks . "$system/home/newcomer/tessarin"
chroot "$system" chown -R newcomer: /home/newcomer/tessarin
start_as_user 'sudo apt-get -qq update && sudo apt-get -qq install -y --no-install-recommends git'
finish 'git'
try_both_commands 'with git'

echo "$release: from the plain files"
rm -rf --one-file-system "$system"
mv "$scratch/base" "$system"
mkdir "$system/home/newcomer/tessarin"
git archive HEAD | tar --extract --directory "$system/home/newcomer/tessarin"
chroot "$system" chown -R newcomer: /home/newcomer/tessarin
try_both_commands 'plain files'
