// SPDX-License-Identifier: MIT
// The paces of the automatic solve.
#pragma once

#include <array>

namespace tessarin {

/// One option of the side column, with its place there in twips.
struct Pace {
    // Delays that are no pauses.
    static constexpr int Quiet = -1; ///< only the result is shown
    static constexpr int Step = -2;  ///< a solve ends after each move

    const char* Caption;
    const char* ToolTip;
    int Delay; ///< Quiet, Step, or the pause in milliseconds after each painted field
    float Left;
    float Top;
};

/// In the order of optChill.
inline constexpr std::array Paces{
    Pace{"Quiet", "only show result", Pace::Quiet, 1320, 240},
    Pace{"0", "ms", 0, 240, 240},
    Pace{"100", "ms", 100, 240, 600},
    Pace{"200", "ms", 200, 240, 960},
    Pace{"400", "ms", 400, 240, 1320},
    Pace{"800", "ms", 800, 240, 1680},
    Pace{"Step", "stop after every move / continue with solve", Pace::Step, 1320, 600}};

} // namespace tessarin
