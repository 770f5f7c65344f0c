#pragma once

#include "platform/Controls.h"

namespace tessarin {

/// How many pictures turn the rotor by one blade, 120 degrees.
constexpr int RotorImages = 12;

/// Picture `index` (0 to 11) of a rotor with three blades, turned counterclockwise by 10 degrees
/// for each index.
Image RotorImage(int index);

} // namespace tessarin
