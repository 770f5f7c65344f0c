#!/bin/bash
# A long run of the window under the sanitizers: soak.sh [events [step]]
# Does every command in the middle of every other one, at every step-th pump (7; 1 takes each), and
# then a number of random events (20000).
set -euo pipefail
# shellcheck source=scripts/lib.sh
source "$(dirname "$0")/lib.sh"

need "${build_packages[@]}" "${window_packages[@]}" "${test_packages[@]}"
configure_and_build asan asan
export QT_QPA_PLATFORM=offscreen
TESSARIN_NESTED_STEP=${2:-7} build/asan/tests/tessarin_window_tests --gtest_filter='Nested*'
TESSARIN_MONKEY_EVENTS=${1:-20000} TESSARIN_MONKEY_SEED=${TESSARIN_MONKEY_SEED:-$RANDOM} \
    build/asan/tests/qt/tessarin_qt_tests --gtest_filter='StressTest.*'
