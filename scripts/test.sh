#!/bin/bash
# SPDX-License-Identifier: MIT
# Builds the program and its tests and runs them all, without a display.
set -euo pipefail
# shellcheck source=scripts/lib.sh
source "$(dirname "$0")/lib.sh"

need "${build_packages[@]}" "${window_packages[@]}" "${test_packages[@]}"
configure_and_build test
run_tests test --parallel "$(nproc)" "$@"
