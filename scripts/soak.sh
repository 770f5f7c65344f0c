#!/bin/bash
# Drives the window at random, with the sanitizers watching: soak.sh [events]
set -euo pipefail
# shellcheck source=scripts/lib.sh
source "$(dirname "$0")/lib.sh"

need "${build_packages[@]}" "${window_packages[@]}" "${test_packages[@]}"
configure_and_build asan asan
TESSARIN_MONKEY_EVENTS=${1:-20000} run_tests asan -R Random --no-tests=error --verbose
