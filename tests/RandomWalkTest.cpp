#include "GameFixture.h"
#include "support/modKbd.h"

#include <iostream>
#include <random>

namespace tessarin {

using RandomWalkTest = GameFixture;

TEST_F(RandomWalkTest, WhatAlwaysHolds) {
    const int seed = testing::UnitTest::GetInstance()->random_seed();
    std::cout << "To walk again: --gtest_random_seed=" << seed << '\n';
    std::mt19937 random(static_cast<unsigned>(seed));
    std::map<int, int> told; // the values as far as the events tell
    const auto mirror = grid.Events.StatusChanged.Connect([&](int index) {
        if (index > 0) told[index] = At(index).Value();
        SetCancel(); // a solve makes one cycle
    });
    // Each with an argument below the number.
    const std::pair<std::string, unsigned> moves[] = {
        {"index", 82}, {"value", 10},  {"value", 10},   {"goto", 2},
        {"goto", 2},   {"back", 2},    {"solve", 1},    {"solve", 1},
        {"next", 2},   {"auto", 1},    {"retreat", 2},  {"clear", 40},
        {"csv", 1},    {"tracing", 2}, {"playlock", 1}, {"lockall", 2}};
    for (int step = 0; step < 1000 && !HasFailure(); ++step) {
        const auto& [move, count] = moves[random() % std::size(moves)];
        const std::string argument = std::to_string(random() % count), all = grid.TextCSV(true);
        SCOPED_TRACE("step " + std::to_string(step) + ": " + move + " " + argument);
        if (move == "csv") {
            grid.SetTextCSV(all);
            EXPECT_EQ(grid.TextCSV(true), all);
        } else if (move != "clear" || argument < "2") {
            Do(move + " " + argument);
        }
        ExpectRightStatus();
        for (const auto& field : grid.Items) {
            const int value = field->Value();
            if (move == "clear") told[field->Index] = value; // does not tell of the values
            EXPECT_EQ(told[field->Index], value);
            int alike = 0; // the player enters free values only
            for (const int i : field->Neighbours)
                alike += At(i).Value() == value ? 1 : 0;
            EXPECT_TRUE(value == 0 || alike == 1);
        }
    }
}

} // namespace tessarin
