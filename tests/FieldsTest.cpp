#include "GameFixture.h"

namespace tessarin {

using FieldsTest = GameFixture;

TEST_F(FieldsTest, EveryStatusPropertyCountsAtItsFirstRead) {
    EXPECT_EQ(Text(std::vector{grid.Dimension(), grid.Count(), grid.Index()}), "3 81 0");
    EXPECT_EQ(grid.DeadCount(), 0);
    EXPECT_EQ(platform.Pumps, 0);
    EXPECT_EQ(grid.Status(), 1);
    EXPECT_EQ(platform.Pumps, 81);
    const std::function<int()> reads[] = {
        [&] { return grid.FreeCount(); }, [&] { return grid.LockedCount(); },
        [&] { return grid.SetCount(); },  [&] { return grid.NextFreeField(); },
        [&] { return grid.DeadField(); }, [&] { return int{grid.IsDeadEnd()}; }};
    for (const auto& read : reads) {
        Script("fill .234567891 & lock 2 1");
        const int before = read();
        grid.Clear(); // raises no StatusChanged
        EXPECT_NE(read(), before) << &read - reads;
    }
    Do("fill " + FullCells);
    grid.Clear();
    EXPECT_FALSE(grid.IsWinner());
}

TEST_F(FieldsTest, Dimensions) {
    Script("fill .234567891 & index 5");
    const auto items = grid.Items;
    Script(R"(
        init 2 > Diemsion kleiner als 3 (2) & init -1 > Diemsion kleiner als 3 (-1)
        init 4 > Dimension darf nicht gerade sein (4)
        is > |2;2;0|3;3;0|4;4;0|5;5;0|6;6;0|7;7;0|8;8;0|9;9;0|10;1;0
        playlock > StatusChanged(5) IsDeadEnd(1)
    )");
    EXPECT_EQ(grid.Items, items);
    for (const auto& [init, fields] : {std::pair{"init 5 > Init", 625}, {"init > Init", 81}}) {
        Script(init);
        EXPECT_EQ(Text(std::vector{grid.Items.Count(), grid.FreeCount(), grid.Index()}),
                  Text(std::vector{fields, fields, 0}));
        EXPECT_EQ(At(fields).Freedom(), grid.Numbers());
    }
    Script("index 7 & init 217 > overflow & index 8 > BeforeIndexChanged(7) IndexChanged(8)");
}

TEST_F(FieldsTest, CursorMoves) {
    Script(R"(
        index 0 > & index -1 > & index 82 > out of range
        index 5 > IndexChanged(5) & index 5 > & index -1 > out of range & index 82 > out of range
        index 7 > BeforeIndexChanged(5) IndexChanged(7)
        index 0 > BeforeIndexChanged(7) IndexChanged(0) & index 0 >
    )");
    EXPECT_EQ(platform.Pumps, 2 + 4 + 4);
}

TEST_F(FieldsTest, WinnerAndDeadEndComeAndGo) {
    Do("fill " + FullCells.substr(0, 80));
    Script(R"(
        index 3 & set 81 8 > StatusChanged(81) IsWinner(81)
        lock 1 1 > StatusChanged(3) IsWinner(3) & set 80 0 > StatusChanged(80) IsWinner(0)
        set 79 0 > StatusChanged(79) & set 79 9 & set 80 1
        set 2 1 > StatusChanged(2) IsWinner(2) & set 1 0 > StatusChanged(1) IsWinner(0)
        lock 80 1 > StatusChanged(3) IsDeadEnd(1)
        fill .........12.345678.........34.781256 & set 75 9 > StatusChanged(75) IsDeadEnd(12)
    )");
    ExpectRightStatus();
    EXPECT_EQ(Text(*grid.DeadFields), "12 30");
    EXPECT_EQ(grid.DeadCount(), 2);
    Script(R"(
        set 81 1 > StatusChanged(81) IsDeadEnd(12) & set 75 0 > StatusChanged(75) IsDeadEnd(0)
        set 81 0 > StatusChanged(81)
    )");
}

TEST_F(FieldsTest, StatusComparesWithTheLastCountEvenOfAnotherGrid) {
    Do("fill " + FullCells);
    Script("init > Init & status > 0 & status > 0");
    Do("fill " + FullCells);
    Script(R"(
        csv > Init & set 9 9 > StatusChanged(9) IsWinner(0)
        fill .234567891 & init & status > 2 & fill 1 & init & status > 1
        fill .234567891 & csv & set 9 9 > StatusChanged(9) IsDeadEnd(0) & fill .23456789
    )");
    const auto reader = grid.Events.StatusChanged.Connect([&](int) { grid.FreeCount(); });
    Script("set 10 1 > StatusChanged(10) IsDeadEnd(1) & set 10 0 > StatusChanged(10) IsDeadEnd(0)");
}

TEST_F(FieldsTest, LockAllAndClear) {
    Script(R"(
        fill 12 & index 4 & lock 81 1 & lockall 1 > StatusChanged(4) StatusChanged(4)
        set 3 3 & clear 1 > BeforeIndexChanged(4) IndexChanged(1) & is > |1;1;1|2;2;1
    )");
    EXPECT_EQ(grid.LockedCount(), 3); // one of them is empty
    Script("lockall 0 > StatusChanged(1) StatusChanged(1) & clear 0 > & is >");
    EXPECT_EQ(grid.LockedCount(), 0);
    Script("set 2 1 > StatusChanged(2)");
}

} // namespace tessarin
