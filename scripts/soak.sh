#!/bin/bash
# A long time for the window, with the sanitizers watching: soak.sh [events [step]]
# A user who does anything at random, so many events; then every command in the middle of every
# other, at every seventh of its pumps; step 1 takes each one.
set -euo pipefail
# shellcheck source=scripts/lib.sh
source "$(dirname "$0")/lib.sh"

need "${build_packages[@]}" "${window_packages[@]}" "${test_packages[@]}"
configure_and_build asan asan
TESSARIN_MONKEY_EVENTS=${1:-20000} TESSARIN_MONKEY_SEED=${TESSARIN_MONKEY_SEED:-$RANDOM} \
    TESSARIN_NESTED_STEP=${2:-7} QT_QPA_PLATFORM=offscreen \
    build/asan/tests/qt/tessarin_qt_tests --gtest_filter='StressTest.*'
