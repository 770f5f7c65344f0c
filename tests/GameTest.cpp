// The grid: fields, cursor, counts, status and events. The player by hand, and the automatic solve.
#include "GameFixture.h"

namespace tessarin {

const Stories<GameFixture> gridStories("GridTest", R"(
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
        index 1 & pump 1 index 9
        index 3 > from 1 from 1 to 9 to 3 & pump 1 init
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

const Stories<GameFixture> playStories("PlayTest", R"(
    // 3, 4 and 8 are free for field 1.
    OnlyFreeValuesAreEntered:
        fill ..125.... 67....... 9 & index 1
        lock 1 1 & value 5 >
        value 12 > & value 3 > 1=3
        value 3 > & value 8 > 1=8
        auto 4 >
    TheNextFreeValueIsTakenWithoutHistory:
        fill 3.125.... 67....... 9 & index 1
        trace & next 1 > 1=4 4
        next 0 > 8 & next 1 > 1=8 8
        next 1 > 1=0 0 & auto 0 > 1=3 +1
    AnEnteredFieldJoinsTheHistoryOnce:
        index 1 & trace 12
        value 3 > 1=3 +1 & value 4 > 1=4
    ClearingGoesBackAlongTheHistory:
        full 81 & trace 82 12 2 5
        index 12 & value 0 > 12=0 -12 from 12 to 5
        value 0 > 5=0 -5 from 5 to 2
        index 20 & back > 20=0 from 20 to 2
        // An entry of a larger grid leads nowhere.
        back > 2=0 -2 & back >
    // Only 9 is free for the fields 41 and 76.
    TheNextFreeFieldIsTheMostConstrained:
        fill ......... ......... ......... ......... 1234.5678 ......... ......... ......... 876.54321
        trace & goto 0 > to 41
        goto 1 > 41=9 +41 & goto 0 > from 41 to 76
    // Once field 3 is empty, its value is free again.
    ARetreatPassesFieldsWithoutFreedom:
        full 81 80 & trace 3 12 5
        index 5 & retreat 0 > 5=0 -5 from 5 to 12 12=0 -12 from 12 to 3 3=0 -3 moved
    ARetreatStopsAtTheFirstFieldWithFreedom:
        fill 4.125.... 67....... 9 & trace 1 81
        set 81 1 & index 81
        retreat 0 > 81=0 -81 from 81 to 1 moved & index 80
        retreat 1 > from 80 to 1 1=8 moved & retries > 2
    // The newest entry is empty and has no free value: no step would change anything.
    ARetreatAlongAClearedGridEnds:
        fill .23456789 1 & trace 2 1
        index 1 & retreat 1 > Beep stayed
    AnEntryKeepsItsFieldWhenAClickMovesTheCursor:
        index 1 & trace 2
        pump 1 index 9 & value 3 > 1=3 from 1 to 9 +1
        index 1 & pump 1 index 9
        value 0 > 1=0 from 1 to 9 -1 from 9 to 2
    TheFillGoesWhereAClickHasMovedTheCursor:
        index 80 & counts
        pump 3 index 9 & goto 1 > from 80 to 1 from 1 to 9 9=1
    // Field 2 leads to a dead end, and the retreat raises field 28.
    ASolveGoesOnWhereTheFewestValuesAreFree:
        fill 4..815.29 92734685. .58.9..64 3152.9648 .92...517 846571293 6394..1.2 271963485 584127936
        index 28 & cancel
        solve > +28 from 28 to 2 2=6 dead 32 +2 2=0 dead 32 -2 from 2 to 28 28=7 dead 0 & retries > 1
        solve > from 28 to 2 2=6 +2 & retries > 0
    ADeadEndThatTheRetreatDoesNotResolveEndsTheSolve:
        fill 58961.23. 723.956.. .6123789. .4278..6. .7.56.4.3 15.92.7.. 2143..956 .37.5.1.2 ..51423.8
        index 46 & solve
        solve > from 46 to 6 6=4 dead 39 +6 6=0 dead 39 -6 from 6 to 46 46=0 dead 0 -46 46=8 dead 39 Beep
    // The retreat empties field 3, because no other value is free for it, and fills it again.
    AFieldThatHasLeftTheHistoryDoesNotComeBack:
        fill ..3456789 ..2...... ......... ......... ..1 & index 3
        solve > +3 from 3 to 1 1=1 dead 2 +1 1=0 dead 0 -1 from 1 to 3 3=0 -3 3=3 from 3 to 1 1=1 dead 2 +1 1=0 dead 0 -1 1=1 dead 2 Beep
    EscAsksOnceForEachPress:
        esc 0 1 1 & answer No
        answer Yes & solve > to 1 1=1 +1 Box(ESC gedrückt|Abbrechen?|- Yes No) from 1 to 2 2=2 +2 Box(ESC gedrückt|Abbrechen?|- Yes No)
    // Also the cancel of an earlier solve is forgotten.
    EscDoesNotAskForWhatIsRequestedAlready:
        cancel & esc 0 1
        solve > to 1 1=1 +1 & answer Yes
        solve > Box(ESC gedrückt|Abbrechen?|- Yes No)
)");

} // namespace tessarin
