// The grid with its fields and groups.
#include "GameFixture.h"

namespace tessarin {

using GridTest = GameFixture;

TEST_F(GridTest, GroupsAreRowsThenColumnsThenBoxes) {
    mCommands["group"] = [this](int index, auto&) {
        const Group& group = *game.Groups->Items.Item(index);
        Tell(group.FlavorText(), " ", Text(group.Fields));
    };
    mCommands["around"] = [this](int i, auto&) { Tell(Text(At(i).Neighbours)); };
    mCommands["nth"] = [this](int n, auto&) { Tell(At(1).Neighbours.Item(n)); };
    mCommands["in"] = [this](int i, auto&) { Tell(Text(At(i).InGroups)); };
    mCommands["join"] = [this](int i, auto&) { At(1).GroupAdd(*game.Groups->Items.Item(i)); };
    Script(R"(
        group 9 > horizontal 73 74 75 76 77 78 79 80 81
        group 18 > vertikal 9 18 27 36 45 54 63 72 81 & group 20 > box 4 5 6 13 14 15 22 23 24
        group 28 > ! no item at position 28 of 27 & join 1 > ! the number 1 is already there
        around 1 > 1 2 3 4 5 6 7 8 9 10 19 28 37 46 55 64 73 11 12 20 21 & init 5
        group 51 > box 1 2 3 4 5 26 27 28 29 30 51 52 53 54 55 76 77 78 79 80 101 102 103 104 105
        in 313 > 13 38 63 & nth 65 > 105
        nth 0 > ! no number at position 0 of 65 & nth 66 > ! no number at position 66 of 65
    )");
}

TEST_F(GridTest, Fields) {
    Script(R"(
        // Free values, and the next one above the value of the field.
        fill 5.......1.2................9 & free 1 > 3;4;6;7;8; & raise 1 > 1=6 6
        fill 8.125....67.......9 & free 1 > 3;4; & raise 1 > 1=0 0 & raise 1 > 1=3 3
        raise 1 > 1=4 4 & raise 1 > 1=8 8 & raise 1 > 1=0 0
        fill .1.......1 & free 1 > 2;3;4;5;6;7;8;9; & fill .234567891 & free 1 > & raise 1 > 0
        fill 1 & set 41 2 & set 2 12 & set 3 -1 & free 1 > 2;3;4;5;6;7;8;9;

        // Only changes are reported.
        set 7 99 > 7=99 & set 7 99 > & lock 7 1 > 0=0 & lock 7 1 >
        index 3 & set 7 -5 > 7=-5 & lock 7 0 > 3=-1
    )");
    At(7).SetTextCSV("8;x"); // a line of another field
    EXPECT_EQ(At(7).TextCSV(true), "7;0;0");
    Field alone; // even its own value is free
    alone.SetValue(3);
    EXPECT_EQ(alone.NextFreeValue(), 4);
}

TEST_F(GridTest, EveryStatusPropertyCountsAtItsFirstRead) {
    EXPECT_EQ(grid.DeadCount(), 0);
    Script("index 1 & pumps");
    for (const auto& read : std::vector<std::function<int(Fields&)>>{
             &Fields::FreeCount, &Fields::LockedCount, &Fields::SetCount, &Fields::NextFreeField,
             &Fields::IsWinner, &Fields::IsDeadEnd, &Fields::Status, &Fields::DeadField}) {
        grid.Clear();
        read(grid);
        read(grid);
        Script("pumps > 81");
    }
}

TEST_F(GridTest, StatusAndCursor) {
    Script(R"(
        // Refused dimensions change nothing.
        fill .234567891 & index 5 & init 4 > Dimension darf nicht gerade sein (4)
        init 2 > Diemsion kleiner als 3 (2) & init -1 > Diemsion kleiner als 3 (-1)
        playlock > 5=5 dead 1 & counts > 72 1 8 13 1
        init 5 > Init & counts > 625 0 0 1 & set 626 1 > ! no item at position 626 of 625
        init > Init & counts > 81 0 0 1 & set 82 1 > ! no item at position 82 of 81
        playlock > & index 7 & init 217 > ! the square of 47089 is above 32 bits
        index 8 > from 7 to 8 & init 9 > Init & set 6561 70 & counts > 6560 0 1 81

        // The cursor.
        init > Init & index 0 > & index -1 > & index 82 > ! no field 82
        index 5 > to 5 & index 5 > & index -1 > ! no field -1 & index 82 > ! no field 82
        pumps & index 7 > from 5 to 7 & index 0 > from 7 to 0 & index 0 > & pumps > 8

        // It moves inside a move or an entry. The relay pumps before the event is recorded here.
        index 1 & at 1 index 2 & index 2 > from 1 to 2 from 1
        set 2 5 & trace 2 & at 1 index 9 & value 0 > from 2 to 9 2=0 []

        // Winner and dead end come and go.
        full 80 & index 3 & set 81 8 > 81=8 winner 81 & lock 1 1 > 3=3 winner 3
        set 80 0 > 80=0 winner 0 & set 80 1 & set 2 1 > 2=1 winner 2
        set 1 0 > 1=0 winner 0 & lock 80 1 > 3=3 dead 1
        fill .........12.345678.........34.781256 & set 75 9 > 75=9 dead 12
        counts > 64 2 17 4 12 30 & set 81 1 > 81=1 dead 12
        set 75 0 > 75=0 dead 0 & set 81 0 > 81=0

        // A change is compared with the last count, even of another grid.
        full 81 & init > Init & at 1 left & status > 81 0 & status > 0
        fill .234567891 & csv > Init & set 9 9 > 9=9 dead 0

        // Locking and clearing.
        fill 12 & index 4 & lock 81 1 & lockall 1 > 4=0 4=0
        set 3 3 & clear 1 > from 4 to 1 & is > |1;1;1|2;2;1 & counts > 79 3 0 3
        lockall 0 > 1=1 1=1 & clear 0 > & is > & counts > 81 0 0 1 & set 2 1 > 2=1
    )");
}

// "clear" and "init" raise no event, so that nothing reads the status before the pass has ended.
TEST_F(GridTest, ChangeAtEveryPumpOfAStatusPass) {
    for (const auto& [change, counts] :
         {std::pair{" set 9 5", "79 0 2 2"}, {" clear", "81 0 0 1"}, {" init", "81 0 0 1"}})
        for (int n = 1; n <= 81; ++n) {
            const std::string at = "at " + std::to_string(n);
            Script("csv Index;Value;Locked|1;5;0 & " + at + change + " & left & counts > " +
                   counts);
        }
}

TEST(EventTest, HandlersComeAndGoWhileAnEventIsRaised) {
    auto event = std::make_unique<Event<int>>();
    std::string heard;
    Connection added, second;
    Connection first = event->Connect([&](int) {
        heard += "a";
        first.Disconnect();
        second.Disconnect();
        added = event->Connect([&](int) { heard += "d"; });
        event->Raise(0);
    });
    second = event->Connect([&](int) { heard += "b"; });
    const auto last = event->Connect([&](int end) {
        heard += "c";
        if (end == 1) event.reset();
    });
    event->Raise(0);
    event->Raise(1);
    EXPECT_EQ(heard, "acdccd");
}

} // namespace tessarin
