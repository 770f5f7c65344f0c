// SPDX-License-Identifier: MIT
// Stories of the grid, the player by hand and the automatic solve. What they leave out is in the
// model: see AgreementTest.cpp.
#include "GameFixture.h"
#include "model/Errors.h"
#include "model/Groups.h"
#include "support/modKbd.h"
#include "support/modWait.h"

#include <gtest/gtest-spi.h>

namespace tessarin {

using GridTest = GameFixture;

TEST_F(GridTest, AFailureNamesTheLineOfItsStep) {
    testing::TestPartResultArray failures;
    {
        const testing::ScopedFakeTestPartResultReporter reporter(&failures);
        TELLS(grid.SetIndex(5), "IndexChanged 6");
    }
    EXPECT_EQ(failures.GetTestPartResult(0).line_number(), __LINE__ - 2);
}

TEST_F(GridTest, LargeGridsHaveMoreValuesThanFitIntoAWord) {
    EXPECT_EQ(grid.Init(9), "");
    // 82 is no value of this grid.
    const std::pair<int, int> values[] = {{2, 1},  {3, 33}, {4, 64}, {5, 65},
                                          {6, 81}, {7, 82}, {91, 80}};
    for (const auto& [field, value] : values)
        At(field).SetValue(value);
    std::string taken;
    const UniqueNumbers free = At(1).FreeValues();
    for (int value = 1; value <= 82; ++value)
        if (!free.Contains(value)) taken += std::to_string(value) + " ";
    EXPECT_EQ(taken, "1 33 64 65 81 82 ");
    EXPECT_EQ(At(1).Freedom(), 76);
    // In the second box, which holds 80, the first row has fewer free values.
    EXPECT_EQ(grid.NextFreeField(), 10);
}

TEST_F(GridTest, AListenerOfInitCountsTheNewGridAndChangesItSilently) {
    FullBut({2});
    const Connection init = grid.Events.Init.Connect([&] {
        EXPECT_EQ(grid.FreeCount(), 81);
        At(1).SetValue(5);
    });
    TELLS(grid.Init(), "Init 0");
    EXPECT_EQ(grid.FreeCount(), 80);
    EXPECT_THROW(game.Groups->Init(), DuplicateKeyError) << "each field has its groups";
}

TEST_F(GridTest, WinnerAndDeadEndComeAndGo) {
    FullBut({81});
    grid.SetIndex(3);
    TELLS(At(9).SetValue(8), "StatusChanged 9 IsDeadEnd 81");
    // Full is enough, right or wrong.
    TELLS(At(81).SetValue(8), "StatusChanged 81 IsWinner 81");
    // A lock is told with the current field.
    TELLS(At(1).SetLocked(true), "StatusChanged 3 IsWinner 3");
    TELLS(At(80).SetValue(0), "StatusChanged 80 IsWinner 0");
    TELLS(At(2).SetValue(0), "StatusChanged 2");
}

// What a full grid hides is told with the next change.
TEST_F(GridTest, AFullGridThatIsWrong) {
    FullBut({2});
    TELLS(At(2).SetValue(1), "StatusChanged 2 IsWinner 2");
    TELLS(At(1).SetValue(0), "StatusChanged 1 IsWinner 0");
    TELLS(At(2).SetValue(0), "StatusChanged 2 IsDeadEnd 0");
}

// The window hears of an event before the two pumps that follow it. A changed value is counted
// after that, with a pump for each field; then comes the status, if it is told, and a last pump.
TEST_F(GridTest, EventsAndPumpsHaveAnOrder) {
    FullBut({80, 81});
    platform.TellsPumps = true;
    TELLS(grid.SetIndex(1), "BeforeIndexChanged 80 (2) IndexChanged 1 (2)");
    TELLS(At(80).SetValue(7), "StatusChanged 80 (84)");
    TELLS(At(81).SetValue(8), "StatusChanged 81 (83) IsWinner 81 (3)");
}

TEST_F(GridTest, AWaitPumpsBeforeAndAfterItsSleep) {
    platform.TellsPumps = true;
    TELLS(Wait(-1), "now (1)");
    TELLS(Wait(0), "now (1)");
    TELLS(Wait(), "now (1) Sleep(5) now (1)");
    int pause = 800;
    platform.EachPump = [&] { pause = 100; };
    TELLS(Wait([&] { return pause; }), "now (1) Sleep(100) now (1)");
}

TEST(PlatformTest, IsNoneWhenItHasEnded) {
    const Platform* ended = nullptr;
    {
        const ScriptedPlatform platform;
        ended = &Platform::Current();
    }
    EXPECT_NE(&Platform::Current(), ended);
}

TEST_F(GridTest, AGameThatEndsLeavesANewerOneInItsPlace) {
    auto older = std::make_unique<Game>();
    auto newer = std::make_unique<Game>();
    older.reset();
    EXPECT_EQ(goGame, newer.get());
    EXPECT_EQ(goBoard, newer.get());
    newer.reset();
    EXPECT_EQ(goGame, nullptr);
    EXPECT_EQ(goBoard, nullptr);
}

using PlayTest = GameFixture;

// Field 32 is dead because 28 holds 3: the retreat raises that. Each change cancels its solve.
TEST_F(PlayTest, ASolveRetreatsToALargerValueAndGoesOn) {
    Fill("4..815.29 92734685. .58.9..64 3152.9648 .92...517 846571293 6394..1.2 271963485 "
         "584127936");
    grid.SetIndex(28);
    const Connection changes = game.Events.StatusChanged.Connect([](int) { SetCancel(); });
    TELLS(play.Solve(), "BeforeIndexChanged 28 IndexChanged 2 StatusChanged 2 IsDeadEnd 32 "
                        "StatusChanged 2 IsDeadEnd 32 BeforeIndexChanged 2 IndexChanged 28 "
                        "StatusChanged 28 IsDeadEnd 0");
    EXPECT_EQ(At(28).Value(), 7);
    EXPECT_EQ(play.Retries, 1);
    TELLS(play.Solve(), "BeforeIndexChanged 28 IndexChanged 2 StatusChanged 2");
    EXPECT_EQ(play.Retries, 0);
}

const std::string EscBox = "Box(ESC gedrückt|Abbrechen?|- Yes No)";

TEST_F(PlayTest, EscAsksOnceForEachPress) {
    platform.EscPresses = {false, true, true};
    platform.Answers = {"No", "Yes"};
    TELLS(play.Solve(), "IndexChanged 1 StatusChanged 1 " + EscBox +
                            " BeforeIndexChanged 1 IndexChanged 2 StatusChanged 2 " + EscBox);
}

} // namespace tessarin
