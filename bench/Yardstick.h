#pragma once

#include <array>

namespace tessarin::bench {

/// What one pass over a grid of 81 fields finds.
struct Yardstick {
    int Free = 0;
    int Set = 0;
    int Locked = 0;
    int NextFreeField = 0;
    int DeadField = 0;
    int DeadCount = 0;
};

/// The least that a status pass can cost: the same counts from a flat array of values, in which bit
/// 8 marks a locked field, with one mask of taken values for each row, column and box.
Yardstick CountFlat(const std::array<int, 81>& fields);

} // namespace tessarin::bench
