// The grid: fields, groups, cursor, counts and status.
#include "GameFixture.h"
#include "model/Groups.h"

namespace tessarin {

class GridTest : public GameFixture {
protected:
    GridTest() {
        mCommands["free"] = [this](int i, auto&) { Tell(At(i).FreeValuesList()); };
        mCommands["raise"] = [this](int i, auto&) { Tell(At(i).NextFreeValue(true)); };
        mCommands["init"] = [this](int dimension, auto&) { Tell(grid.Init(dimension)); };
        mCommands["lockall"] = [this](int state, auto&) { grid.SetLockAll(state == 1); };
        mCommands["clear"] = [this](int freeOnly, auto&) { grid.Clear(freeOnly == 1); };
        mCommands["tellpumps"] = [this](int, auto&) { platform.TellsPumps = true; };
        mCommands["group"] = [this](int i, auto&) {
            Tell(Text(game.Groups->Items.Item(i)->Fields));
        };
        mCommands["around"] = [this](int i, auto&) { Tell(Text(At(i).Neighbours)); };
    }
};

const Stories<GridTest> stories("GridTest", R"(
    GroupsAreRowsThenColumnsThenBoxes:
        group 9 > 73 74 75 76 77 78 79 80 81
        group 18 > 9 18 27 36 45 54 63 72 81 & group 20 > 4 5 6 13 14 15 22 23 24
        around 41 > 37 38 39 40 41 42 43 44 45 5 14 23 32 50 59 68 77 31 33 49 51
        init 5 & group 26 > 1 26 51 76 101 126 151 176 201 226 251 276 301 326 351 376 401 426 451 476 501 526 551 576 601
    FreeIsWhatNoGroupHolds:
        fill 5.......1 .2....... ......... 9 & free 1 > 3;4;6;7;8;
        fill .1....... & free 1 > 2;3;4;5;6;7;8;9;
        fill .23456789 1 & free 1 >
    ValuesThatTheGridDoesNotHaveTakeNothing:
        fill 1 & set 41 2
        set 2 12 & set 3 -1
        free 1 > 2;3;4;5;6;7;8;9;
    TheNextFreeValueLiesAboveTheValue:
        fill 8.125.... 67....... 9 & raise 1 > 1=0 0
        raise 1 > 1=3 3 & raise 1 > 1=4 4
        fill .23456789 1 & raise 1 > 0
    OnlyChangesAreTold:
        set 7 99 > 7=99 & set 7 99 >
        lock 7 1 > 0=0 & lock 7 1 >
        index 3 & lock 7 0 > 3=0
    RefusedDimensionsChangeNothing:
        fill 5 & init 4 > Dimension darf nicht gerade sein (4)
        init 2 > Diemsion kleiner als 3 (2) & init 217 > ! the square of 47089 is above 32 bits
        lock 5 1 > 0=0 & counts > 80 1 1 2
    ADimensionBringsNewFields:
        fill 5 & index 5
        init 5 > & counts > 625 0 0 1
        index 625 > to 625 & set 626 1 > ! no item at position 626 of 625
        init > & cursor > 0
    TheCursorIsOnAFieldOrNowhere:
        index 0 > & index -1 >
        index 82 > ! no field 82 & index 5 > to 5
        index 5 > & index -1 > ! no field -1
        index 7 > from 5 to 7 & index 0 > from 7 to 0
    AMoveInsideAMoveIsNotLost:
        index 1 & pump 1 index 2
        index 2 > from 1 from 1 to 2 & pump 1 index 9
        index 3 > from 2 from 2 to 9 to 3 & pump 1 init
        index 4 > from 3 to 4
    WinnerComesAndGoes:
        full 81 & index 3
        set 81 8 > 81=8 winner 81 & lock 1 1 > 3=3 winner 3
        set 80 0 > 80=0 winner 0 & set 2 0 > 2=0
    DeadEndComesAndGoes:
        fill ......... 12.345678 & set 20 9 > 20=9 dead 12
        set 1 9 > 1=9 dead 12 & set 20 0 > 20=0 dead 12
        set 1 0 > 1=0 dead 0 & set 2 3 > 2=3
    TheLowestDeadFieldIsTold:
        fill ......... 12.345678 ......... 34.781256 & set 75 9 > 75=9 dead 12
        counts > 64 0 17 4 12 30
    // The window hears of an event before the pump that follows it, and of the status at the end.
    EventsAndPumpsHaveAnOrder:
        full 80 81 & tellpumps
        index 1 > from 80 (2) to 1 (2) & index 0 > from 1 (2) to 0 (2)
        set 80 7 > 80=7 (84) & set 81 8 > 81=8 (83) winner 81 (3)
        set 81 0 > 81=0 (83) winner 0 (3) & set 2 3 > 2=3 (84)
    AllValuesAreLockedAndTheRestIsCleared:
        fill 12 & index 4
        lock 81 1 & lockall 1 > 4=0 4=0
        set 3 3 & clear 1 > from 4 to 1
        is > |1;1;1|2;2;1 & counts > 79 3 0 3
        lockall 0 > 1=1 1=1 & clear 0 >
        counts > 81 0 0 1
    // Neither the change nor the new grid raises an event that would read the status.
    AStatusPassSeesTheChangesInItsPumps:
        csv Index;Value;Locked|1;5;0 & pump 1 csv Index;Value;Locked|1;6;1|2;7;1
        counts > 79 2 0 3 & csv
        pump 81 csv Index;Value;Locked|1;6;1|2;7;1 & counts > 79 2 0 3
)");

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
