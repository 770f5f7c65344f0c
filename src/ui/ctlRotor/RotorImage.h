#pragma once

#include "platform/Controls.h"

#include <array>

namespace tessarin {

/// How many pictures turn the rotor by one blade, 120 degrees.
constexpr int RotorImages = 12;

/// The pictures of a rotor with three blades, each turned counterclockwise by 10 degrees against
/// the one before.
std::array<Image, RotorImages> DrawRotor();

} // namespace tessarin
