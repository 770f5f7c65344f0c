#!/bin/bash
# SPDX-License-Identifier: MIT
# A long run of random users under the sanitizers: soak.sh [users, 300 by default]
# Each of them gives hundreds of commands to the program and its model, many of them inside others, and
# stops where the two do not do the same.
set -euo pipefail
# shellcheck source=scripts/lib.sh
source "$(dirname "$0")/lib.sh"

need "${build_packages[@]}" "${test_packages[@]}" clang libclang-rt-dev
configure_and_build fuzz
users=build/fuzz/users
rm -rf $users
mkdir $users
for ((i = 0; i < ${1:-300}; ++i)); do
    head -c 4000 /dev/urandom >$users/$i
done
build/fuzz/fuzz/fuzz_user -runs=0 -max_len=4000 -timeout=60 -artifact_prefix=build/fuzz/ $users
