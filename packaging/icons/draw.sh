#!/bin/bash
# SPDX-License-Identifier: MIT
# Draws the icons of all sizes from tessarin.svg. Needs rsvg-convert (Debian: librsvg2-bin).
set -euo pipefail
cd "$(dirname "$0")"
for icon in tessarin-*.png; do
    size=${icon//[^0-9]/}
    rsvg-convert --width "$size" --height "$size" --output "$icon" tessarin.svg
done
