#include "RandomPlayer.h"

#include <iostream>
#include <random>

namespace tessarin {

TEST(RandomWalkTest, WhatAlwaysHolds) {
    const int seed = testing::UnitTest::GetInstance()->random_seed();
    std::cout << "To walk again: --gtest_random_seed=" << seed << '\n';
    std::mt19937 random(static_cast<unsigned>(seed));
    for (const bool impatient : {false, true}) {
        RandomPlayer player(impatient, [&](int count) {
            return static_cast<int>(random() % static_cast<unsigned>(count));
        });
        for (int step = 0; step < 700 && !testing::Test::HasFailure(); ++step)
            player.Step();
    }
}

} // namespace tessarin
