#!/bin/bash
# Runs the tests of the real window on an X server with a window manager, both started for them:
# test-x11.sh [folder under build/ [ctest options...]]
set -euo pipefail
# shellcheck source=scripts/lib.sh
source "$(dirname "$0")/lib.sh"
# shellcheck source=scripts/display.sh
source scripts/display.sh

folder=${1:-test}
start_display 1280x1024
test_platform=xcb
run_tests "$folder" -L qt "${@:2}"
