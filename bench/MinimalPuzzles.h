// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <numeric>
#include <random>
#include <string>

namespace tessarin {

/// Makes random puzzles with one solution, for which every one of their values is needed.
class MinimalPuzzles {
public:
    explicit MinimalPuzzles(unsigned seed) : mRandom(seed) {}

    /// 81 values, 0 for an empty field.
    std::array<int, 81> Next() {
        mCells.fill(0);
        Solutions(1);
        const auto full = mCells = mSolution;
        std::array<std::size_t, 81> order;
        std::iota(order.begin(), order.end(), 0);
        std::shuffle(order.begin(), order.end(), mRandom);
        for (const std::size_t k : order) {
            mCells[k] = 0;
            if (Solutions(2) == 2) mCells[k] = full[k];
        }
        return mCells;
    }

private:
    // Counts the solutions of mCells up to `limit`.
    int Solutions(int limit) {
        int best = 10;
        std::size_t at = 81;
        unsigned values = 0;
        for (std::size_t k = 0; k < 81; ++k) {
            if (mCells[k] != 0) continue;
            const unsigned free = Free(k);
            if (std::popcount(free) < best) {
                best = std::popcount(free);
                at = k;
                values = free;
            }
        }
        if (at == 81) {
            mSolution = mCells;
            return 1;
        }
        int found = 0;
        const int start = static_cast<int>(mRandom() % 9);
        for (int i = 0; i < 9 && found < limit; ++i) {
            const int value = (start + i) % 9 + 1;
            if ((values & 1U << value) == 0) continue;
            mCells[at] = value;
            found += Solutions(limit - found);
        }
        mCells[at] = 0;
        return found;
    }

    unsigned Free(std::size_t k) const {
        const std::size_t row = k / 9, column = k % 9, box = row / 3 * 27 + column / 3 * 3;
        unsigned taken = 0;
        for (std::size_t i = 0; i < 9; ++i)
            taken |= 1U << mCells[row * 9 + i] | 1U << mCells[i * 9 + column] |
                     1U << mCells[box + i / 3 * 9 + i % 3];
        return ~taken & 0x3FE;
    }

    std::mt19937 mRandom;
    std::array<int, 81> mCells{};
    std::array<int, 81> mSolution{};
};

} // namespace tessarin
