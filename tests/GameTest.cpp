// SPDX-License-Identifier: MIT
// The grid: fields, cursor, counts, status and events. The player by hand, and the automatic solve.
#include "GameFixture.h"
#include "model/Groups.h"
#include "support/modKbd.h"
#include "support/modWait.h"

#include <gtest/gtest-spi.h>

namespace tessarin {

// An argument of the player's commands.
constexpr bool AutoValue = true;

using GridTest = GameFixture;

TEST_F(GridTest, AFailureNamesTheLineOfItsStep) {
    testing::TestPartResultArray failures;
    {
        const testing::ScopedFakeTestPartResultReporter reporter(&failures);
        TELLS(grid.SetIndex(5), "to 6");
    }
    EXPECT_EQ(failures.GetTestPartResult(0).line_number(), __LINE__ - 2);
}

TEST_F(GridTest, GroupsAreRowsColumnsAndBoxes) {
    std::string flavors;
    for (const int group : {1, 9, 10, 18, 19, 27})
        flavors += game.Groups->Items.Item(group)->FlavorText() + " ";
    // Spelled like that.
    EXPECT_EQ(flavors, "horizontal horizontal vertikal vertikal box box ");
}

TEST_F(GridTest, LargeGridsHaveMoreValuesThanFitIntoAWord) {
    EXPECT_EQ(grid.Init(9), "");
    // Refused: the grid stays.
    EXPECT_EQ(grid.Init(4), "Dimension darf nicht gerade sein (4)");
    TELLS(grid.Init(217), "! the square of 47089 is above 32 bits");
    // 82 is no value of this grid.
    const std::pair<int, int> values[] = {{2, 1}, {3, 64}, {4, 65}, {5, 81}, {6, 82}, {91, 80}};
    for (const auto& [field, value] : values)
        At(field).SetValue(value);
    std::vector<int> taken;
    const UniqueNumbers free = At(1).FreeValues();
    for (int value = 1; value <= 82; ++value)
        if (!free.Contains(value)) taken.push_back(value);
    EXPECT_EQ(taken, std::vector({1, 64, 65, 81, 82}));
    EXPECT_EQ(At(1).Freedom(), 77);
    // In the second box, which holds 80, the first row has fewer free values.
    EXPECT_EQ(grid.NextFreeField(), 10);
}

TEST_F(GridTest, TheCursorIsOnAFieldOrNowhere) {
    // Nowhere, as before.
    TELLS(grid.SetIndex(-1), "");
    TELLS(grid.SetIndex(82), "! no field 82");
    TELLS(grid.SetIndex(5), "to 5");
    TELLS(grid.SetIndex(-1), "! no field -1");
    TELLS(grid.SetIndex(7), "from 5 to 7");
    TELLS(grid.SetIndex(0), "from 7 to 0");
}

TEST_F(GridTest, WinnerComesAndGoes) {
    FullBut({81});
    grid.SetIndex(3);
    TELLS(At(9).SetValue(8), "9=8 dead 81");
    // Full is enough, right or wrong.
    TELLS(At(81).SetValue(8), "81=8 winner 81");
    TELLS(At(1).SetLocked(true), "3=3 winner 3");
    TELLS(At(80).SetValue(0), "80=0 winner 0");
    TELLS(At(2).SetValue(0), "2=0");
}

// What a full grid hides is told with the next change.
TEST_F(GridTest, AFullGridThatIsWrong) {
    FullBut({2});
    TELLS(At(2).SetValue(1), "2=1 winner 2");
    TELLS(At(1).SetValue(0), "1=0 winner 0");
    TELLS(At(2).SetValue(0), "2=0 dead 0");
}

TEST_F(GridTest, DeadEndComesAndGoes) {
    Fill("......... 12.345678 ......... 34.781256");
    // Field 30 is dead, too; the lowest is told.
    TELLS(At(75).SetValue(9), "75=9 dead 12");
    TELLS(At(2).SetValue(9), "2=9 dead 12");
    TELLS(At(75).SetValue(0), "75=0 dead 12");
    TELLS(At(2).SetValue(0), "2=0 dead 0");
}

// The window hears of an event before the two pumps that follow it. A changed value is counted
// after that, with a pump for each field; then comes the status, if it is told, and a last pump.
TEST_F(GridTest, EventsAndPumpsHaveAnOrder) {
    FullBut({80, 81});
    platform.TellsPumps = true;
    TELLS(grid.SetIndex(1), "from 80 (2) to 1 (2)");
    TELLS(At(80).SetValue(7), "80=7 (84)");
    TELLS(At(81).SetValue(8), "81=8 (83) winner 81 (3)");
}

TEST_F(GridTest, AWaitPumpsBeforeAndAfterItsSleep) {
    platform.TellsPumps = true;
    TELLS(Wait(100), "(1) Sleep(100) (1)");
    TELLS(Wait(0), "(1)");
    int pause = 800;
    AtPump(1, [&] { pause = 100; });
    TELLS(Wait([&] { return pause; }), "(1) Sleep(100) (1)");
}

TEST_F(GridTest, AGameThatEndsLeavesANewerOneInItsPlace) {
    auto older = std::make_unique<Game>();
    const Game newer;
    older.reset();
    EXPECT_EQ(goGame, &newer);
    EXPECT_EQ(goBoard, &newer);
}

using PlayTest = GameFixture;

TEST_F(PlayTest, ClearingGoesBackAlongTheHistory) {
    FullBut({81});
    // 82 comes from a larger grid and leads nowhere.
    Trace({82, 12, 2, 5});
    grid.SetIndex(12);
    TELLS(play.SetValue(0), "12=0 -12 from 12 to 5");
    TELLS(play.SetValue(0), "5=0 -5 from 5 to 2");
    grid.SetIndex(20);
    TELLS(play.GoBack(), "20=0 from 20 to 2");
    TELLS(play.GoBack(AutoValue), "2=0 -2 2=2 +2");
}

TEST_F(PlayTest, ARetreatPassesFieldsWithoutFreedom) {
    // No other value is free for any of them: it ends with the history.
    FullBut({81});
    Trace({3, 12, 5});
    grid.SetIndex(5);
    TELLS(EXPECT_TRUE(play.GoBackToFreedom()), "5=0 -5 from 5 to 12 12=0 -12 from 12 to 3 3=0 -3");
}

// Field 32 is dead because 28 holds 3: the retreat raises that. Each change cancels its solve.
TEST_F(PlayTest, ASolveRetreatsToALargerValueAndGoesOn) {
    Fill("4..815.29 92734685. .58.9..64 3152.9648 .92...517 846571293 6394..1.2 271963485 "
         "584127936");
    grid.SetIndex(28);
    Hear(game.Events.StatusChanged, [](int) { SetCancel(); });
    TELLS(play.Solve(), "+28 from 28 to 2 2=6 dead 32 +2 2=0 dead 32 -2 from 2 to 28 28=7 dead 0");
    EXPECT_EQ(play.Retries, 1);
    TELLS(play.Solve(), "from 28 to 2 2=6 +2");
    EXPECT_EQ(play.Retries, 0);
}

const std::string EscBox = "Box(ESC gedrückt|Abbrechen?|- Yes No)";

TEST_F(PlayTest, EscAsksOnceForEachPress) {
    platform.EscPresses = {false, true, true};
    platform.Answers = {"No", "Yes"};
    TELLS(play.Solve(), "to 1 1=1 +1 " + EscBox + " from 1 to 2 2=2 +2 " + EscBox);
}

TEST_F(PlayTest, EscDoesNotAskForWhatIsRequestedAlready) {
    Meanwhile(SetCancel);
    platform.EscPresses = {false, true};
    TELLS(play.Solve(), "to 1 1=1 +1");
    // The press waits for the next solve, which has forgotten that cancel.
    platform.Answers = {"Yes"};
    TELLS(play.Solve(), EscBox);
}

} // namespace tessarin
