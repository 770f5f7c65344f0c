// The grid with its fields and groups.
#include "GameFixture.h"

namespace tessarin {

using GridTest = GameFixture;

TEST_F(GridTest, GroupsAreRowsThenColumnsThenBoxes) {
    mCommands["group"] = [this](int index, auto&) {
        const Group& group = *game.Groups->Items.Item(index);
        Tell(std::to_string(group.Index) + " " + group.FlavorText() + " " + Text(group.Fields));
    };
    mCommands["around"] = [this](int index, auto&) { Tell(Text(At(index).Neighbours)); };
    mCommands["join"] = [this](int index, auto&) {
        At(1).GroupAdd(*game.Groups->Items.Item(index));
    };
    mCommands["build"] = [this](int, auto&) { game.Groups->Init(); };
    Script(R"(
        group 9 > 9 horizontal 73 74 75 76 77 78 79 80 81 & group 28 > out of range
        group 18 > 18 vertikal 9 18 27 36 45 54 63 72 81
        group 20 > 20 box 4 5 6 13 14 15 22 23 24
        around 1 > 1 2 3 4 5 6 7 8 9 10 19 28 37 46 55 64 73 11 12 20 21 & join 1 > duplicate key
        around 1 > 1 2 3 4 5 6 7 8 9 10 19 28 37 46 55 64 73 11 12 20 21 & init 5 > Init
        group 51 > 51 box 1 2 3 4 5 26 27 28 29 30 51 52 53 54 55 76 77 78 79 80 101 102 103 104 105
        build > duplicate key & group 2 > out of range
    )");
    EXPECT_EQ(Text(At(313).InGroups), "13 38 63");
    EXPECT_EQ(At(313).Neighbours.Count(), 65);
    Group other;
    EXPECT_EQ(other.FlavorText(), "(unbekannt)");
    other.Flavor = 3;
    EXPECT_EQ(other.FlavorText(), "diagonal");
}

TEST_F(GridTest, FreeValuesAndTheNextFreeValue) {
    Script(R"(
        fill 5.......1.2................9 & free 1 > 3;4;6;7;8; & raise 1 > StatusChanged(1) 6
        fill 8.125....67.......9 & free 1 > 3;4; & raise 1 > StatusChanged(1) 0
        raise 1 > StatusChanged(1) 3 & raise 1 > StatusChanged(1) 4 & raise 1 > StatusChanged(1) 8
        raise 1 > StatusChanged(1) 0
        fill .1.......1 & free 1 > 2;3;4;5;6;7;8;9;
        fill .234567891 & free 1 > & raise 1 > 0
        fill 1 & set 41 2 & set 2 12 & set 3 -1 & free 1 > 2;3;4;5;6;7;8;9;
    )");
    EXPECT_EQ(At(1).Freedom(), 8);
    Field alone;
    alone.SetValue(3);
    EXPECT_EQ(alone.FreeValuesList(), "1;2;3;4;5;6;7;8;9;");
    EXPECT_EQ(alone.NextFreeValue(), 4);
}

TEST_F(GridTest, OnlyChangesOfAFieldAreReported) {
    Script("set 7 99 > StatusChanged(7) & set 7 99 > & lock 7 1 > StatusChanged(0) & lock 7 1 >");
    Script("index 3 & set 7 -5 > StatusChanged(7) & lock 7 0 > StatusChanged(3)");
    At(7).SetTextCSV("8;x"); // a line of another field
    EXPECT_EQ(At(7).TextCSV(true), "7;0;0");
}

TEST_F(GridTest, EveryStatusPropertyCountsAtItsFirstRead) {
    EXPECT_EQ(grid.DeadCount(), 0);
    Script("pumps > 0 & status > 1 & pumps > 81");
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

TEST_F(GridTest, Dimensions) {
    Script(R"(
        fill .234567891 & index 5
        init 2 > Diemsion kleiner als 3 (2) & init -1 > Diemsion kleiner als 3 (-1)
        init 4 > Dimension darf nicht gerade sein (4)
        playlock > StatusChanged(5) IsDeadEnd(1) & counts > 72 1 8 13 1
        init 5 > Init & counts > 625 0 0 1 & set 626 1 > out of range
        init > Init & counts > 81 0 0 1 & set 82 1 > out of range & playlock >
        index 7 & init 217 > overflow & index 8 > BeforeIndexChanged(7) IndexChanged(8)
    )");
    EXPECT_EQ(Text(std::vector{grid.Dimension(), grid.Numbers(), grid.Count()}), "3 9 81");
}

TEST_F(GridTest, CursorMoves) {
    Script(R"(
        index 0 > & index -1 > & index 82 > out of range
        index 5 > IndexChanged(5) & index 5 > & index -1 > out of range & index 82 > out of range
        index 7 > BeforeIndexChanged(5) IndexChanged(7)
        index 0 > BeforeIndexChanged(7) IndexChanged(0) & index 0 > & pumps > 10
    )");
}

TEST_F(GridTest, WinnerAndDeadEndComeAndGo) {
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
    EXPECT_EQ(grid.DeadCount(), 2);
    Script(R"(
        counts > 64 2 17 4 12 30
        set 81 1 > StatusChanged(81) IsDeadEnd(12) & set 75 0 > StatusChanged(75) IsDeadEnd(0)
        set 81 0 > StatusChanged(81)
    )");
}

TEST_F(GridTest, StatusComparesWithTheLastCountEvenOfAnotherGrid) {
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

TEST_F(GridTest, LockAllAndClear) {
    Script(R"(
        fill 12 & index 4 & lock 81 1 & lockall 1 > StatusChanged(4) StatusChanged(4)
        set 3 3 & clear 1 > BeforeIndexChanged(4) IndexChanged(1) & is > |1;1;1|2;2;1
        counts > 79 3 0 3 & lockall 0 > StatusChanged(1) StatusChanged(1) & clear 0 > & is >
        counts > 81 0 0 1 & set 2 1 > StatusChanged(2)
    )");
}

// Changes inside the pumps of a status pass. Those of "clear" and "init" raise no event, so that
// nothing reads the status before the pass has ended.
TEST_F(GridTest, ChangeAtEveryPumpOfAStatusPass) {
    for (const auto& [change, free] : {std::pair{"set 9 5", 79}, {"clear", 81}, {"init", 81}})
        for (int n = 1; n <= 81; ++n) {
            grid.Init();
            At(1).SetTextSDK("5");
            platform.AtPump(n, [this, step = change] { Do(step); });
            EXPECT_EQ(grid.FreeCount(), free) << change << " at " << n;
            ExpectRightStatus();
        }
}

TEST_F(GridTest, CursorMovesInsideAMoveOrAnEntry) {
    mCommands["moving"] = [this](int index, auto&) {
        platform.AtPump(1, [this, index] { grid.SetIndex(index); });
    };
    // The relay pumps before the event reaches this record.
    Script(R"(
        index 1 & moving 2 & index 2 > BeforeIndexChanged(1) IndexChanged(2) BeforeIndexChanged(1)
        trace & moving 9
        value 5 > BeforeIndexChanged(2) IndexChanged(9) StatusChanged(2) [2] & index 2 & moving 9
        value 0 > BeforeIndexChanged(2) IndexChanged(9) StatusChanged(2) []
    )");
}

TEST(EventTest, HandlersComeAndGoWhileAnEventIsRaised) {
    auto event = std::make_unique<Event<int>>();
    std::string heard;
    Connection own, later, added;
    own = event->Connect([&](int) {
        heard += "a";
        own.Disconnect();
        later.Disconnect();
        added = event->Connect([&](int) { heard += "d"; });
        event->Raise(0);
    });
    later = event->Connect([&](int) { heard += "b"; });
    const auto last = event->Connect([&](int end) {
        heard += "c";
        if (end == 1) event.reset();
    });
    event->Raise(0);
    EXPECT_EQ(std::exchange(heard, ""), "acdc");
    event->Raise(1);
    EXPECT_EQ(heard, "cd");
}

} // namespace tessarin
