#!/bin/sh
# Checks what is installed and packaged from a finished build.
# Usage: check.sh install|start|desktop|metainfo|manual|package|lintian BUILD-FOLDER
# Needs the project's data in ID, VERSION, SUMMARY, HOMEPAGE and VENDOR. Exit status: 0 passed, 77 a
# tool is missing, 1 failed.
set -eu
export LC_ALL=C.UTF-8

check=$1
build=$(cd "$2" && pwd)
sources=$(cd "$(dirname "$0")" && pwd)
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
root=$scratch/root
doc=usr/share/doc/tessarin

fail() {
    echo "FAILED: $*" >&2
    exit 1
}

need() {
    for tool; do
        command -v "$tool" >/dev/null || { echo "SKIPPED: $tool is not installed"; exit 77; }
    done
}

# Runs a command that must succeed without output.
silent() {
    output=$("$@" 2>&1) || fail "$* ended with $?: $output"
    [ -z "$output" ] || fail "$* said: $output"
}

# Every file that is installed, below the root of the system.
promised() {
    echo usr/bin/Tessarin
    echo "usr/share/applications/$ID.desktop"
    echo "usr/share/metainfo/$ID.metainfo.xml"
    echo usr/share/icons/hicolor/scalable/apps/tessarin.svg
    for size in 16 32 48 64 128 256; do
        echo "usr/share/icons/hicolor/${size}x$size/apps/tessarin.png"
    done
    echo $doc/README.md
    for puzzle in "$sources"/../puzzles/*.csv; do
        echo "usr/share/tessarin/puzzles/${puzzle##*/}"
    done
}

# compare_with_promise <folder> <file...>: the folder must hold exactly the promised files and the
# given ones, with the right modes.
compare_with_promise() {
    { promised; printf '%s\n' "$@" | sed 1d; } |
        sed 's/$/ 644/; s/^\(usr\/bin\/.*\) 644$/\1 755/' | sort >"$scratch/promised"
    (cd "$1" && find usr -type f -printf '%p %m\n') | sort >"$scratch/found"
    diff "$scratch/promised" "$scratch/found" || fail "missing (<) or unexpected (>) files"
    odd=$(find "$1/usr" -type d ! -perm 755)
    [ -z "$odd" ] || fail "folders without mode 755: $odd"
}

installed() {
    cmake --install "$build" --prefix "$root/usr" >"$scratch/log" 2>&1 ||
        { cat "$scratch/log"; fail "the installation"; }
}

packaged() {
    need dpkg-deb dpkg-shlibdeps file
    (cd "$build" && cpack -G DEB -B "$scratch/deb") >"$scratch/log" 2>&1 ||
        { cat "$scratch/log"; fail "cpack"; }
    deb=$(echo "$scratch"/deb/*.deb)
}

check_install() {
    installed
    compare_with_promise "$root" usr/share/man/man6/Tessarin.6
    for size in 16 32 48 64 128 256; do
        icon=$root/usr/share/icons/hicolor/${size}x$size/apps/tessarin.png
        found=$(od -An -tu1 -j16 -N8 "$icon" | awk '{ print $3 * 256 + $4, $7 * 256 + $8 }')
        [ "$found" = "$size $size" ] || fail "$icon measures $found"
    done
}

# The installed program must keep running and print nothing.
check_start() {
    need timeout
    installed
    mkdir -m 700 "$scratch/home"
    ended=0
    HOME=$scratch/home XDG_RUNTIME_DIR=$scratch/home QT_QPA_PLATFORM=offscreen \
        timeout 2 "$root/usr/bin/Tessarin" >"$scratch/log" 2>&1 || ended=$?
    [ $ended -eq 124 ] || { cat "$scratch/log"; fail "the program ended by itself with $ended"; }
    # Qt's offscreen platform prints one remark about itself.
    if grep -Fvx 'This plugin does not support propagateSizeHints()' "$scratch/log"; then
        fail "the program complained"
    fi
}

check_desktop() {
    need desktop-file-validate
    installed
    entry=$root/usr/share/applications/$ID.desktop
    silent desktop-file-validate "$entry"
    for key in Exec TryExec; do
        program=$(sed -n "s/^$key=//p" "$entry")
        [ -x "$root/usr/bin/$program" ] || fail "$key names $program, which is not installed"
    done
    icon=$(sed -n 's/^Icon=//p' "$entry")
    [ -f "$root/usr/share/icons/hicolor/48x48/apps/$icon.png" ] || fail "no icon $icon"
}

# Allows only one hint: the validator does not know the domain ".example".
check_metainfo() {
    need appstreamcli
    installed
    metainfo=$root/usr/share/metainfo/$ID.metainfo.xml
    appstreamcli validate --no-net --pedantic --no-color "$metainfo" >"$scratch/log" ||
        { cat "$scratch/log"; fail "the metainfo is not valid"; }
    if grep '^[EWIP]: ' "$scratch/log" | grep -v ' cid-maybe-not-rdns '; then
        fail "the validator has hints on the metainfo"
    fi
    grep -q "<release version=\"$VERSION\" " "$metainfo" || fail "no release $VERSION"
}

check_manual() {
    need man
    installed
    page=$root/usr/share/man/man6/Tessarin.6
    MANWIDTH=80 man --warnings -E UTF-8 -l -Tutf8 -Z "$page" \
        2>"$scratch/log" >/dev/null || fail "man"
    [ ! -s "$scratch/log" ] || { cat "$scratch/log"; fail "the manual page has faults"; }
    grep -q "\"Tessarin $VERSION\"" "$page" || fail "the manual is not of $VERSION"
}

check_package() {
    packaged
    dpkg-deb --extract "$deb" "$root"
    compare_with_promise "$root" usr/share/man/man6/Tessarin.6.gz $doc/changelog.gz $doc/copyright
    gzip -dc "$root/$doc/changelog.gz" | grep -q "^tessarin ($VERSION) " ||
        fail "the changelog does not know $VERSION"
    owners=$(dpkg-deb --contents "$deb" | awk '{ print $2 }' | sort -u)
    [ "$owners" = root/root ] || fail "owners: $owners"
    field() { dpkg-deb --field "$deb" "$1"; }
    [ "$(field Package) $(field Version)" = "tessarin $VERSION" ] || fail "name and version"
    [ "$(field Homepage)" = "$HOMEPAGE" ] || fail "home page"
    [ "$(field Maintainer)" = "$VENDOR <maintainer@velmora.example>" ] || fail "maintainer"
    [ "$(field Description | head -n 1)" = "$SUMMARY" ] || fail "description"
    for library in libc6 libstdc++6 libqt6core6 libqt6gui6 libqt6widgets6; do
        field Depends | tr ',' '\n' | grep -q "^ *$library (>= " || fail "no need of $library"
    done
    dpkg-deb --info "$deb"
    dpkg-deb --contents "$deb"
}

check_lintian() {
    need lintian
    packaged
    # As root lintian needs --allow-root; for other users it changes nothing.
    lintian --allow-root --info --fail-on error,warning "$deb" || fail "lintian"
}

case $check in
install | start | desktop | metainfo | manual | package | lintian) "check_$check" ;;
*) fail "unknown check $check" ;;
esac
