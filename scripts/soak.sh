#!/bin/bash
# A long run of random users under the sanitizers: soak.sh [walks, 300 by default]
# Each walk makes 1400 steps; in the second half more steps start inside of others.
set -euo pipefail
# shellcheck source=scripts/lib.sh
source "$(dirname "$0")/lib.sh"

need "${build_packages[@]}" "${test_packages[@]}"
configure_and_build asan soak -DTESSARIN_WINDOW=OFF
build/soak/tests/tessarin_window_tests --gtest_filter='RandomWalk*' --gtest_repeat="${1:-300}" \
    --gtest_shuffle --gtest_break_on_failure --gtest_brief=1
