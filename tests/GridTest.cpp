// The grid: fields, cursor, counts, status and events.
#include "GameFixture.h"

namespace tessarin {

const Stories<GameFixture> stories("GridTest", R"(
    FreeIsWhatNoNeighbourHolds:
        fill 5.......1 .2....... ......... 9 & set 41 4
        // Values that the grid does not have take nothing.
        set 2 12 & set 3 -1
        free 1 > 3;4;6;7;8; & free 41 > 1;2;3;5;6;7;8;9;
    OnlyChangesAreTold:
        set 7 99 > 7=99 & set 7 99 >
        lock 7 1 > 0=0 & lock 7 1 >
    TheCursorIsOnAFieldOrNowhere:
        index -1 > & index 82 > ! no field 82
        index 5 > to 5 & index -1 > ! no field -1
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
        // The lowest dead field is told.
        fill ......... 12.345678 ......... 34.781256 & set 75 9 > 75=9 dead 12
        set 2 9 > 2=9 dead 12 & set 75 0 > 75=0 dead 12
        set 2 0 > 2=0 dead 0 & set 2 3 > 2=3
    // The window hears of an event before the pump that follows it, and of the status at the end.
    EventsAndPumpsHaveAnOrder:
        full 80 81 & tellpumps
        index 1 > from 80 (2) to 1 (2) & index 0 > from 1 (2) to 0 (2)
        set 80 7 > 80=7 (84) & set 81 8 > 81=8 (83) winner 81 (3)
        set 81 0 > 81=0 (83) winner 0 (3) & set 2 3 > 2=3 (84)
        wait 100 > (1) Sleep(100) (1) & wait 0 > (1)
    // Neither the change nor the new grid raises an event that would read the status.
    AStatusPassSeesTheChangesInItsPumps:
        csv Index;Value;Locked|1;5;0 & pump 1 csv Index;Value;Locked|1;6;1|2;7;1
        counts > 79 2 & csv
        pump 81 csv Index;Value;Locked|1;6;1|2;7;1 & counts > 79 2
)");

} // namespace tessarin
