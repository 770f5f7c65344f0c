#!/bin/bash
# Builds the Debian package twice and checks it: both are the same to the byte, lintian and the
# validators find nothing, and what the package says agrees with CMakeLists.txt.
set -euo pipefail
# shellcheck source=scripts/lib.sh
source "$(dirname "$0")/lib.sh"

need "${package_packages[@]}" "${package_check_packages[@]}" "${test_packages[@]}"
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
export LC_ALL=C.UTF-8

scripts/package.sh
deb=$(echo build/package/tessarin_*.deb)
root=$scratch/root
dpkg-deb --extract "$deb" "$root"

# Runs a command that must succeed without output.
silent() {
    local said
    said=$("$@" 2>&1) || fail "$* ended with $?: $said"
    [[ -z $said ]] || fail "$* said: $said"
}

# contains <file> <text>
contains() { grep -qF -- "$2" "$1" || fail "$1 does not contain: $2"; }

echo 'Version and names'
changelog() { dpkg-parsechangelog --show-field "$1"; }
released() { date --utc --date "$(changelog Date)" "+$1"; }
field() { dpkg-deb --field "$deb" "$1"; }
contains CMakeLists.txt "project(Tessarin VERSION $(changelog Version) DESCRIPTION \"$(field Description | head -n 1)\""
contains CMakeLists.txt "HOMEPAGE_URL \"$(field Homepage)\""
contains CMakeLists.txt "set(TESSARIN_RELEASE_DATE $(released %F))"
contains CMakeLists.txt "set(TESSARIN_RELEASE_TIME $(released %T))"
contains CMakeLists.txt "set(TESSARIN_VENDOR $(changelog Maintainer | sed 's/ <.*//'))"

echo 'Files'
id=$(sed -n 's/^set(TESSARIN_ID \(.*\))/\1/p' CMakeLists.txt)
{
    echo 755 usr/games/Tessarin
    echo 644 "usr/share/applications/$id.desktop"
    printf '644 usr/share/doc/tessarin/%s\n' README.md changelog.gz copyright docs/*.png
    printf '644 usr/share/icons/hicolor/%s\n' {16x16,32x32,48x48,64x64,128x128,256x256}/apps/tessarin.png
    echo 644 usr/share/icons/hicolor/scalable/apps/tessarin.svg
    echo 644 usr/share/man/man6/Tessarin.6.gz
    echo 644 "usr/share/metainfo/$id.metainfo.xml"
    printf '644 usr/share/tessarin/%s\n' puzzles/*.csv
} | sort >"$scratch/promised"
(cd "$root" && find . -type f -printf '%m %P\n') | sort >"$scratch/found"
diff "$scratch/promised" "$scratch/found" || fail 'missing (<) or unexpected (>) files'
for size in 16 32 48 64 128 256; do
    icon=$root/usr/share/icons/hicolor/${size}x$size/apps/tessarin.png
    [[ $(file --brief "$icon") == *" $size x $size,"* ]] || fail "$icon has another size"
done
while read -r picture; do
    [[ -f $root/usr/share/doc/tessarin/$picture ]] || fail "the README shows $picture"
done < <(grep -o 'docs/[a-z-]*\.png' README.md)

echo 'Libraries'
for library in libc.so.6 libstdc++.so.6 libQt6Core.so.6 libQt6Gui.so.6 libQt6Widgets.so.6; do
    package=$(dpkg-query --search "*/$library" | sed 's/:.*//' | sort -u)
    field Depends | grep -qF "$package (>= " || fail "no dependency on $package for $library"
done

echo 'Desktop entry'
entry=$root/usr/share/applications/$id.desktop
silent desktop-file-validate "$entry"
contains "$entry" Exec=Tessarin # Debian's users have /usr/games in their PATH
contains "$entry" Icon=tessarin

echo 'Metainfo'
# Two hints are expected: the validator does not know the domain ".example", and older ones do not
# know the tag "developer", without which newer ones complain.
metainfo=$root/usr/share/metainfo/$id.metainfo.xml
said=$(appstreamcli validate --no-net --pedantic --no-color "$metainfo") || fail "$said"
! grep '^[EWIP]: ' <<<"$said" | grep -v -e ' cid-maybe-not-rdns ' -e ' unknown-tag developer' ||
    fail 'the validator has hints on the metainfo'

echo 'Manual'
manual() {
    MANWIDTH=80 man --warnings -E UTF-8 -l -Tutf8 -Z "$root/usr/share/man/man6/Tessarin.6.gz" >/dev/null
}
silent manual

echo 'Start'
ended=0
HOME=$scratch XDG_RUNTIME_DIR=$scratch QT_QPA_PLATFORM=offscreen \
    timeout 2 "$root/usr/games/Tessarin" >"$scratch/log" 2>&1 || ended=$?
((ended == 124)) || fail "the program ended by itself with $ended: $(<"$scratch/log")"
# Qt's offscreen platform prints one remark about itself.
! grep -Fvx 'This plugin does not support propagateSizeHints()' "$scratch/log" ||
    fail 'the program complained'

echo 'lintian'
# --allow-root changes nothing for other users.
lintian --allow-root --display-info --fail-on error,warning build/package/tessarin_*.changes |
    tee "$scratch/lintian"
! grep -q hardening- "$scratch/lintian" || fail 'the program is not hardened'

echo 'The same package from another folder, built with its tests as Debian does'
mkdir "$scratch/again"
tar --extract --directory "$scratch/again" --file build/package/tessarin_*.tar.xz
(cd "$scratch"/again/* && dpkg-buildpackage --jobs="$(nproc)" --unsigned-source --unsigned-changes)
for package in "$deb" build/package/tessarin_*.tar.xz; do
    cmp "$package" "$scratch/again/${package##*/}"
done
dpkg-deb --info "$deb"
