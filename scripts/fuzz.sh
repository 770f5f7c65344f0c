#!/bin/bash
# SPDX-License-Identifier: MIT
# Fuzzes the puzzle formats and the window: fuzz.sh [seconds for each target]
# Saves inputs that fail in build/fuzz/found.
set -euo pipefail
# shellcheck source=scripts/lib.sh
source "$(dirname "$0")/lib.sh"

seconds=${1:-180}
need "${build_packages[@]}" "${test_packages[@]}" clang libclang-rt-dev
configure_and_build fuzz

mkdir -p build/fuzz/found
for target in build/fuzz/fuzz/fuzz_*; do
    [[ -f $target && -x $target ]] || continue
    name=${target##*/}
    corpus=build/fuzz/corpus/$name
    mkdir -p "$corpus"
    length=4096
    [[ $name == fuzz_user ]] && length=400 # some scripts of commands; more is only slower
    echo "$name, $seconds s"
    "$target" -max_total_time="$seconds" -max_len=$length -timeout=30 -verbosity=0 \
        -print_funcs=0 -print_final_stats=1 -dict=fuzz/puzzle.dict \
        -artifact_prefix="build/fuzz/found/$name-" "$corpus" puzzles fuzz/seeds
done
