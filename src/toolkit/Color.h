#pragma once

#include <cstdint>

namespace tessarin {

/// A colour 0x00BBGGRR, or a system colour made by SystemColor.
using Color = std::uint32_t;

/// The system colour `index` (5 window background, 18 button text), looked up when it is painted.
constexpr Color SystemColor(std::uint32_t index) {
    return 0x80000000U | index;
}

} // namespace tessarin
