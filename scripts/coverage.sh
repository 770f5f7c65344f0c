#!/bin/bash
# SPDX-License-Identifier: MIT
# Runs the tests under AddressSanitizer and UndefinedBehaviorSanitizer. Then lists the lines of src/
# that they do not reach, by file, and the sums.
set -euo pipefail
# shellcheck source=scripts/lib.sh
source "$(dirname "$0")/lib.sh"

need "${build_packages[@]}" "${window_packages[@]}" "${test_packages[@]}" gcovr
configure_and_build coverage
find build/coverage -name '*.gcda' -delete
run_tests coverage
gcovr --root . --filter src/ --print-summary build/coverage
