#!/bin/bash
# SPDX-License-Identifier: MIT
# Starts an X server and a window manager, and runs the tests of the real window on them, then a test
# of what a screen reader hears, and the tests of how the window looks with another font: test-x11.sh
# [folder under build/ [ctest options...]]
set -euo pipefail
# shellcheck source=scripts/lib.sh
source "$(dirname "$0")/lib.sh"
# shellcheck source=scripts/display.sh
source scripts/display.sh

folder=${1:-test}
start_display 1280x1024
test_platform=xcb
run_tests "$folder" -L qt "${@:2}"

need "${reader_packages[@]}"
echo 'What a screen reader hears'
HOME=$scratch QT_QPA_PLATFORM=xcb ASAN_OPTIONS=detect_leaks=0 \
    dbus-run-session -- tests/qt/screen_reader.py "build/$folder/src/Tessarin" \
    2>"$scratch/bus.log" || fail "$(<"$scratch/bus.log")"

echo 'The window with Noto Sans'
use_noto_sans
run_tests "$folder" -L qt -R WindowTest
