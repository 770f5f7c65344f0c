#!/bin/bash
# The tests under AddressSanitizer and UndefinedBehaviorSanitizer, and which lines of src/ they
# reach: a table of all files with the lines left out, and the sum.
set -euo pipefail
# shellcheck source=scripts/lib.sh
source "$(dirname "$0")/lib.sh"

need "${build_packages[@]}" "${window_packages[@]}" "${test_packages[@]}" gcovr
configure_and_build coverage coverage
find build/coverage -name '*.gcda' -delete
run_tests coverage -LE meta
gcovr --root . --filter src/ --print-summary build/coverage
