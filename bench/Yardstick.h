// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <bit>
#include <cstddef>

namespace tessarin {

/// The result of one pass over a grid of 81 fields.
struct Yardstick {
    int Free = 0, Set = 0, Locked = 0;
    int NextFreeField = 0, DeadField = 0, DeadCount = 0;
};

/// A minimal status pass: the same counts from a flat array of values, in which bit 8 marks a
/// locked field, with one mask of taken values for each row, column and box.
[[gnu::noinline]] inline Yardstick CountFlat(const std::array<int, 81>& fields) {
    std::array<unsigned, 9> rows{};
    std::array<unsigned, 9> columns{};
    std::array<unsigned, 9> boxes{};
    for (std::size_t r = 0, i = 0; r < 9; ++r)
        for (std::size_t c = 0; c < 9; ++c, ++i) {
            const unsigned bit = 1U << (fields[i] & 0xFF) >> 1;
            rows[r] |= bit;
            columns[c] |= bit;
            boxes[r / 3 * 3 + c / 3] |= bit;
        }
    Yardstick found;
    int smallest = 10;
    for (std::size_t r = 0, i = 0; r < 9; ++r)
        for (std::size_t c = 0; c < 9; ++c, ++i) {
            const bool locked = (fields[i] & 0x100) != 0;
            found.Locked += locked ? 1 : 0;
            if ((fields[i] & 0xFF) != 0) {
                found.Set += locked ? 0 : 1;
                continue;
            }
            ++found.Free;
            const int freedom = 9 - std::popcount(rows[r] | columns[c] | boxes[r / 3 * 3 + c / 3]);
            const int index = static_cast<int>(i) + 1;
            if (freedom == 0) {
                ++found.DeadCount;
                if (found.DeadField == 0) found.DeadField = index;
            } else if (freedom < smallest) {
                smallest = freedom;
                found.NextFreeField = index;
            }
        }
    return found;
}

} // namespace tessarin
