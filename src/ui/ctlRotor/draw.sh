#!/bin/bash
# SPDX-License-Identifier: MIT
# Draws the rotor's twelve pictures from rotor.svg, each turned 10 degrees counterclockwise from the
# one before. Needs rsvg-convert (Debian: librsvg2-bin).
set -euo pipefail
cd "$(dirname "$0")"
for i in {0..11}; do
    sed "s/rotate(0 16 16)/rotate($((-10 * i)) 16 16)/" rotor.svg |
        rsvg-convert --width 32 --height 32 --output "rotor-$i.png"
done
