#!/bin/bash
# Builds the Debian package from a copy of the sources in build/package/ and prints its path.
set -euo pipefail
# shellcheck source=scripts/lib.sh
source "$(dirname "$0")/lib.sh"

need "${package_packages[@]}"
rm -rf build/package
mkdir -p build/package/tessarin
tar --create --exclude=./build --exclude=./.git . | tar --extract --directory build/package/tessarin
(
    cd build/package/tessarin
    # scripts/test.sh runs the tests.
    DEB_BUILD_OPTIONS=nocheck DEB_BUILD_PROFILES=nocheck \
        dpkg-buildpackage --jobs="$(nproc)" --unsigned-source --unsigned-changes
)
ls build/package/tessarin_*.deb
