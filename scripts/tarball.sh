#!/bin/bash
# SPDX-License-Identifier: MIT
# Makes the upstream tarball and prints its path: tarball.sh [file]
# In a git checkout it holds the last commit, equal to the byte each time; elsewhere the folder. What is
# Debian's own, the folder debian/, is left out.
set -euo pipefail
# shellcheck source=scripts/lib.sh
source "$(dirname "$0")/lib.sh"

name=tessarin-$version
file=${1:-build/$name.tar.xz}
mkdir -p "$(dirname "$file")"
if [[ -e .git ]]; then
    need git xz-utils
    git diff --quiet HEAD || echo "$0: what is not committed is left out" >&2
    git -c tar.umask=0022 archive --format=tar --prefix="$name/" HEAD -- . ':!debian'
else
    need xz-utils
    tar --create --sort=name --owner=root:0 --group=root:0 --mode=u=rwX,go=rX \
        --exclude=./build --exclude=./debian --exclude=./obj-* --transform="s,^\.,$name," .
fi | xz --threads=1 >"$file"
echo "$file"
