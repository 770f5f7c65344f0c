// SPDX-License-Identifier: MIT
// The fixed colours of the window: blue, green, red from the highest byte.
#pragma once

#include "toolkit/Properties.h"

namespace tessarin {

constexpr Color Green = 0xFF00;
constexpr Color Red = 0xFF;
constexpr Color Yellow = 0xFFFF;

} // namespace tessarin
