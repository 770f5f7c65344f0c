#!/bin/bash
# Builds the Debian package and prints its path.
set -euo pipefail
# shellcheck source=scripts/lib.sh
source "$(dirname "$0")/lib.sh"

need "${build_packages[@]}" "${window_packages[@]}" dpkg-dev file
configure_and_build release package -DTESSARIN_BENCH=OFF -DBUILD_TESTING=OFF
cpack --config build/package/CPackConfig.cmake -B build/package
ls build/package/*.deb
