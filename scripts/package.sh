#!/bin/bash
# SPDX-License-Identifier: MIT
# Builds the Debian package from the upstream tarball and debian/ in build/package/ and prints its path.
set -euo pipefail
# shellcheck source=scripts/lib.sh
source "$(dirname "$0")/lib.sh"

need "${package_packages[@]}"
rm -rf build/package
tarball=$(scripts/tarball.sh "build/package/tessarin_$version.orig.tar.xz")
tar --extract --directory build/package --file "$tarball"
cp --recursive debian "build/package/tessarin-$version"
(
    cd "build/package/tessarin-$version"
    # scripts/test.sh runs the tests.
    DEB_BUILD_OPTIONS=nocheck DEB_BUILD_PROFILES=nocheck \
        dpkg-buildpackage --jobs="$(nproc)" --unsigned-source --unsigned-changes
)
ls build/package/tessarin_*.deb
