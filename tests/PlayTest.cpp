// The player by hand, and the automatic solve.
#include "GameFixture.h"

#include "support/modKbd.h"

namespace tessarin {

class PlayTest : public GameFixture {
protected:
    PlayTest() {
        mCommands["next"] = [this](int set, auto&) { Tell(play.NextFreeValue(set == 1)); };
        mCommands["goto"] = [this](int fill, auto&) { play.GotoNextFreeField(fill == 1); };
        mCommands["back"] = [this](int fill, auto&) { play.GoBack(fill == 1); };
        mCommands["retreat"] = [this](int fill, auto&) {
            Tell(play.GoBackToFreedom(fill == 1) ? "moved" : "stayed");
        };
        mCommands["tracing"] = [this](int on, auto&) { play.SetTracing(on == 1); };
        // Without the moves of the cursor.
        mCommands["solve"] = [this](int, auto&) {
            mbMovesTold = false;
            play.Solve();
        };
    }
};

TEST_F(PlayTest, WithoutACursorNothingHappens) {
    Do(R"(
        trace 5 & value 1 >
        auto 0 >
        next 1 > 0
        back 1 >
        retreat 1 > Beep stayed
    )");
    EXPECT_EQ(play.Value(), 0);
    play.SetLocked(!play.Locked());
    EXPECT_EQ(grid.LockedCount(), 0);
}

TEST_F(PlayTest, TracingStartsAndDropsTheHistory) {
    Do(R"(
        trace 3 5 & tracing 1 >
        tracing 0 > -3 -5
        history > off
        tracing 1 & history >
    )");
}

// 3, 4 and 8 are free for field 1.
TEST_F(PlayTest, OnlyFreeValuesAreEntered) {
    Do(R"(
        fill ..125.... 67....... 9
        index 1 & lock 1 1
        value 5 >
        value 12 >
        value -1 >
        value 3 > 1=3
        value 3 >
        value 8 > 1=8
        auto 4 >
    )");
}

TEST_F(PlayTest, TheNextFreeValueIsTakenWithoutHistory) {
    Do(R"(
        fill 3.125.... 67....... 9
        index 1 & trace
        next 0 > 4
        next 1 > 1=4 4
        next 1 > 1=8 8
        next 1 > 1=0 0
        auto 0 > 1=3 +1
    )");
}

TEST_F(PlayTest, AnEnteredFieldJoinsTheHistoryOnce) {
    Do(R"(
        fill ..125.... 67....... 9
        index 1 & trace 12
        value 3 > 1=3 +1
        trace 1 12 & value 4 > 1=4
    )");
}

TEST_F(PlayTest, ClearingGoesBackAlongTheHistory) {
    Do(R"(
        full 81 & trace 3 12 2 5
        index 12 & value 0 > 12=0 -12 from 12 to 5
        index 81 & value 0 > from 81 to 5
        value 0 > 5=0 -5 from 5 to 2
        index 20 & back 0 > 20=0 from 20 to 2
        back 0 > 2=0 -2 from 2 to 3
        back 0 > 3=0 -3
        back 0 >
    )");
}

TEST_F(PlayTest, ClearingWithoutHistoryStays) {
    Do(R"(
        full 81 & index 70
        value 0 > 70=0
        value 0 >
        // An entry of a larger grid that is gone.
        trace 82 & back 0 >
    )");
}

TEST_F(PlayTest, GoingBackCanRaiseTheFieldBefore) {
    Do(R"(
        fill 3.125.... 67....... 9
        set 81 1 & index 81
        trace 1 81 & back 1 > 81=0 -81 from 81 to 1 1=4
    )");
}

// Only 9 is free for the fields 41 and 76.
TEST_F(PlayTest, TheNextFreeFieldIsTheMostConstrained) {
    Do(R"(
        fill ......... ......... ......... ......... 1234.5678 ......... ......... ......... 876.54321
        trace & goto 0 > to 41
        goto 1 > 41=9 +41
        goto 0 > from 41 to 76
        full & goto 1 >
    )");
}

// Once field 3 is empty, its value is free again.
TEST_F(PlayTest, RetreatPassesFieldsWithoutFreedom) {
    Do(R"(
        full 81 80 & trace 3 12 5
        index 5 & retreat 0 > 5=0 -5 from 5 to 12 12=0 -12 from 12 to 3 3=0 -3 moved
    )");
}

TEST_F(PlayTest, RetreatStopsAtTheFirstFieldWithFreedom) {
    Do(R"(
        fill 4.125.... 67....... 9
        set 81 1 & index 81
        trace 1 81 & retreat 0 > 81=0 -81 from 81 to 1 moved
        index 80 & retreat 1 > from 80 to 1 1=8 moved
    )");
    EXPECT_EQ(play.Retries, 2);
}

TEST_F(PlayTest, ARetreatThatStaysRestoresItsField) {
    Do(R"(
        full 81 & index 5
        retreat 0 > 5=0 5=5 Beep stayed
        trace & retreat 1 > 5=0 5=5 +5 Beep stayed
    )");
}

// The newest entry is empty and has no free value: no step would change anything.
TEST_F(PlayTest, ARetreatAlongAClearedGridEnds) {
    Do(R"(
        fill .23456789 1 & trace 2 1
        index 1 & retreat 1 > Beep stayed
    )");
}

TEST_F(PlayTest, AnEntryKeepsItsFieldWhenAClickMovesTheCursor) {
    Do(R"(
        index 1 & trace 2
        pump 1 index 9
        value 3 > 1=3 from 1 to 9 +1
        index 1 & pump 1 index 9
        value 0 > 1=0 from 1 to 9 -1 from 9 to 2
    )");
}

TEST_F(PlayTest, TheFillGoesWhereAClickHasMovedTheCursor) {
    Do(R"(
        index 80
        pump 1 index 9
        goto 1 > from 80 to 9 from 9 to 1 1=1
    )");
}

// Field 2 leads to a dead end, and the retreat raises field 28.
constexpr auto NineteenEmpty = "fill 4..815.29 92734685. .58.9..64 3152.9648 .92...517 846571293 "
                               "6394..1.2 271963485 584127936";

TEST_F(PlayTest, ASolveGoesOnWhereTheFewestValuesAreFree) {
    Do(NineteenEmpty);
    Do(R"(
        index 28 & solve
        history > 28 2 3 7 18 19 22 24 25 32 37 40 41 42 59 60 62
    )");
    EXPECT_TRUE(grid.IsWinner());
    EXPECT_EQ(play.Retries, 1);
}

TEST_F(PlayTest, ADeadEndThatTheRetreatDoesNotResolveEndsTheSolve) {
    Do(R"(
        fill 58961.23. 723.956.. .6123789. .4278..6. .7.56.4.3 15.92.7.. 2143..956 .37.5.1.2 ..51423.8
        index 46 & solve > +46 6=4 dead 54 +6 6=0 dead 54 -6 46=3 dead 0 6=4 +6 9=7 +9 13=8 dead 67 +13 13=0 dead 0 -13 9=0 -9 6=0 -6 46=6 6=4 +6 9=7 +9 13=8 dead 67 +13 13=0 dead 0 -13 9=0 -9 6=0 -6 46=8 dead 39
        solve > 6=4 dead 39 +6 6=0 dead 39 -6 46=0 dead 0 -46 46=8 dead 39 Beep
    )");
    EXPECT_EQ(play.Retries, 2);
}

TEST_F(PlayTest, ASolveThatCannotMoveRestoresItsField) {
    Do(R"(
        full 81 1 & set 2 1
        index 50 & solve > +50 81=8 dead 1 +81 81=0 dead 1 -81 50=0 dead 1 -50 50=3 dead 1
    )");
}

TEST_F(PlayTest, ASolveOfAFullGridEndsAtOnce) {
    Do(R"(
        full 81 & set 81 8
        index 50 & solve > +50
    )");
}

// The retreat empties field 3, because no other value is free for it, and fills it again.
TEST_F(PlayTest, AFieldThatHasLeftTheHistoryDoesNotComeBack) {
    Do(R"(
        fill ..3456789 ..2...... ......... ......... ..1 & index 3
        solve > +3 1=1 dead 2 +1 1=0 dead 0 -1 3=0 -3 3=3 1=1 dead 2 +1 1=0 dead 0 -1 1=1 dead 2 Beep
    )");
}

TEST_F(PlayTest, EscInASolveAsksOnceForEachPress) {
    platform.Esc = {0, 1, 1, 0, 1};
    platform.Answers = {"No", "Yes", "Yes"};
    Do(R"(
        solve > 1=1 +1 Box(ESC gedrückt|Abbrechen?|- Yes No) 2=2 +2 Box(ESC gedrückt|Abbrechen?|- Yes No)
        // The last answer is forgotten.
        solve > 3=3 +3 Box(ESC gedrückt|Abbrechen?|- Yes No)
    )");
}

TEST_F(PlayTest, ACancelEndsTheSolveAfterItsCycle) {
    Listen(game.Events.StatusChanged, [](int) { SetCancel(); });
    Do(NineteenEmpty);
    Do(R"(
        index 28 & solve > +28 2=6 dead 32 +2 2=0 dead 32 -2 28=7 dead 0
        solve > 2=6 +2
    )");
}

TEST_F(PlayTest, EscDoesNotAskForWhatIsRequestedAlready) {
    Listen(game.Events.StatusChanged, [this](int) {
        SetCancel();
        platform.Esc = {1};
    });
    Do("solve > 1=1 +1");
}

} // namespace tessarin
