#!/bin/bash
# SPDX-License-Identifier: MIT
# Builds the Debian package twice and checks it: both are the same to the byte, lintian and the
# validators find nothing, what the package says agrees with CMakeLists.txt, and its program solves a
# puzzle.
set -euo pipefail
# shellcheck source=scripts/lib.sh
source "$(dirname "$0")/lib.sh"

need "${package_packages[@]}" "${package_check_packages[@]}" "${test_packages[@]}" \
    "${display_packages[@]}"
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
field() { dpkg-deb --field "$deb" "$1"; }
[[ $(changelog Version) == "$version"-* ]] || fail "the changelog is not of version $version"
contains CMakeLists.txt "HOMEPAGE_URL \"$(field Homepage)\""
contains CMakeLists.txt "set(TESSARIN_VENDOR $(changelog Maintainer | sed 's/ <.*//'))"

echo 'Files'
id=$(sed -n 's/^set(TESSARIN_ID \(.*\))/\1/p' CMakeLists.txt)
{
    echo 755 usr/games/Tessarin
    echo 644 "usr/share/applications/$id.desktop"
    printf '644 usr/share/doc/tessarin/%s\n' README.md changelog.Debian.gz copyright docs/*.png
    printf '644 usr/share/icons/hicolor/%s\n' {16x16,32x32,48x48,64x64,128x128,256x256}/apps/tessarin.png
    echo 644 usr/share/icons/hicolor/scalable/apps/tessarin.svg
    echo 644 usr/share/lintian/overrides/tessarin
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
silent mandoc -T lint "$root/usr/share/man/man6/Tessarin.6.gz"

echo 'The test of the installed program, on the unpacked package'
debian/tests/solve "$root"

echo 'lintian'
# --allow-root changes nothing for other users. The tags left out depend on the age of lintian: older
# ones do not know the current Policy, newer ones do not like what Debian 12 still needs.
outdated=newer-standards-version,recommended-field,silent-on-rules-requiring-root
outdated+=,package-uses-old-debhelper-compat-version
silent lintian --allow-root --display-experimental --display-info --pedantic \
    --suppress-tags "$outdated" build/package/tessarin_*.changes

echo 'The same tarball from a user with another umask'
(umask 077 && scripts/tarball.sh "$scratch/$version.tar.xz")
cmp build/package/tessarin_*.orig.tar.xz "$scratch/$version.tar.xz"

echo 'The same package from another folder that was used before, built with its tests as Debian does'
mkdir "$scratch/again"
dsc=$(realpath build/package/tessarin_*.dsc)
(
    cd "$scratch/again"
    dpkg-source --extract "$dsc"
    cd "tessarin-$version"
    mkdir build
    echo used >build/object
    dpkg-buildpackage --jobs="$(nproc)" --unsigned-source --unsigned-changes
)
for package in "$deb" build/package/tessarin_*.tar.xz; do
    cmp "$package" "$scratch/again/${package##*/}"
done

echo 'Installed without a package, by a user with another umask'
(umask 077 && cmake --install "$scratch/again/tessarin-$version"/obj-* \
    --prefix "$scratch/installed" >/dev/null)
hidden=$(find "$scratch/installed" ! -perm -444)
[[ -z $hidden ]] || fail "not everybody can read: $hidden"
dpkg-deb --info "$deb"
