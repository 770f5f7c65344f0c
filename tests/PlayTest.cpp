// The player by hand, and the automatic solve.
#include "GameFixture.h"
#include "support/modKbd.h"

namespace tessarin {

class PlayTest : public GameFixture {
protected:
    PlayTest() {
        // Records each change, the number of retreats and how the solve ends.
        mCommands["run"] = [this](int, auto&) {
            std::string moves;
            const auto recorder = game.Events.StatusChanged.Connect([&](int index) {
                moves += std::to_string(index) + "=" + std::to_string(At(index).Value()) + " ";
            });
            play.Solve();
            mTold = moves;
            Tell(play.Retries);
            Tell(grid.IsWinner() ? "won" : grid.IsDeadEnd() ? "dead" : "open");
        };
    }
};

TEST_F(PlayTest, ByHand) {
    Script(R"(
        // Without a cursor only tracing changes.
        trace & value 1 > & auto 0 > & next 1 > 0 & playlock > & back 1 > & retreat 1 > F Beep
        trace 3 5 > [3 5] & tracing 1 > & tracing 0 > [none] & tracing 1 > [] & reset > [none]
        tracing 1 > [] & reset & index 9 & playlock > StatusChanged(9) & counts > 81 1 0 1

        // Only free values are entered: 3, 4 and 8 for field 1. Its lock is ignored.
        fill ..125....67.......9 & index 1 & value 3 > StatusChanged(1) & trace & lock 1 1
        value 3 > & value 5 > & value 12 > & value -1 > & value 8 > StatusChanged(1) [1] & auto 4 >
        trace 1 12 & value 3 > StatusChanged(1) & auto 8 > StatusChanged(1) & next 0 > 8
        next 1 > StatusChanged(1) 8 & next 0 > 0 & next 1 > StatusChanged(1) 0
        reset > [none] & auto 0 > StatusChanged(1) & fill .234567891 & value 1 > & auto 0 >

        // Clearing walks back along the history.
        full 80 & trace 3 12 2 5 & index 12
        value 0 > StatusChanged(12) BeforeIndexChanged(12) IndexChanged(5) [3 2 5]
        index 81 & value 0 > BeforeIndexChanged(81) IndexChanged(5)
        value 0 > StatusChanged(5) BeforeIndexChanged(5) IndexChanged(2) [3 2]
        index 20 & value 0 > StatusChanged(20) BeforeIndexChanged(20) IndexChanged(2)
        back 0 > StatusChanged(2) BeforeIndexChanged(2) IndexChanged(3) [3]
        back 0 > StatusChanged(3) [] & back 0 >
        reset & index 70 & value 0 > StatusChanged(70) & value 0 >
        index 12 & set 12 9 & trace 5 82 & value 0 > StatusChanged(12) & back 0 >
        trace 81 & value 0 > BeforeIndexChanged(12) IndexChanged(81)
        fill 3.125....67.......9 & set 81 1 & trace 1 81
        back 1 > StatusChanged(81) BeforeIndexChanged(81) IndexChanged(1) StatusChanged(1) [1]
        next 0 > 8

        // The next free field is the most constrained: only 9 is free for the fields 41 and 76.
        init & fill ....................................1234.5678...........................876.54321
        trace & pumps & goto 0 > IndexChanged(41) & pumps & goto 1 > StatusChanged(41) [41]
        pumps > 85 & full 81 & goto 1 >

        // Going back to freedom passes field 12 and ends at field 3: once it is empty, its value is
        // free again.
        reset & full 80 & index 5 & retreat 0 > StatusChanged(5) StatusChanged(5) F Beep
        trace & retreat 1 > StatusChanged(5) StatusChanged(5) F Beep [5]
        trace 3 12 5 & retreat 0 > StatusChanged(5) BeforeIndexChanged(5) IndexChanged(12) StatusChanged(12) BeforeIndexChanged(12) IndexChanged(3) StatusChanged(3) T []
        fill 4.125....67.......9 & set 81 1 & index 81 & trace 1 81
        retreat 0 > StatusChanged(81) BeforeIndexChanged(81) IndexChanged(1) T [1]
        index 80 & retreat 1 > BeforeIndexChanged(80) IndexChanged(1) StatusChanged(1) T
        next 0 > 0 & fill .234567891 & trace 2 1 & retreat 1 > F Beep
        fill 12345678. & set 81 2 & index 81 & trace 9 81
        retreat 0 > StatusChanged(81) BeforeIndexChanged(81) IndexChanged(9) T [9]
    )");
    EXPECT_TRUE(play.Tracing());
    EXPECT_EQ(play.Retries, 8);
}

TEST_F(PlayTest, MovesOfASolveAreFixed) {
    Script(R"(
        // Field 2 leads to a dead end, and the retreat raises the value of field 28.
        fill 4..815.2992734685..58.9..643152.9648.92...5178465712936394..1.2271963485584127936
        index 28 & run > 2=6 2=0 28=7 2=6 3=3 7=7 18=1 19=1 22=7 24=2 25=3 32=3 37=3 40=6 41=8 42=4 59=5 60=8 62=7 1 won [28 2 3 7 18 19 22 24 25 32 37 40 41 42 59 60 62]
        fill 58961.23.723.956...6123789..4278..6..7.56.4.315.92.7..2143..956.37.5.1.2..51423.8
        reset & index 46
        run > 6=4 6=0 46=3 6=4 9=7 13=8 13=0 9=0 6=0 46=6 6=4 9=7 13=8 13=0 9=0 6=0 46=8 3 dead [46]
        run > 6=4 6=0 46=0 46=8 2 dead Beep []
        full 81 & set 1 0 & set 2 1 & reset & index 50 & run > 50=0 50=3 1 dead Beep []
        full 81 & reset & index 50 & run > 0 won [50]
    )");
}

TEST_F(PlayTest, EscInASolveAsksOnceForEachPressAndACancelEndsIt) {
    platform.Esc = {false, true, true, false, true};
    platform.Answers = {false, true, true};
    // The first run begins without a cursor; the last answer of it is forgotten in the second.
    Script(R"(
        run > 1=1 2=2 0 open Box(Abbrechen?|ESC gedrückt|YesNo|-) Box(Abbrechen?|ESC gedrückt|YesNo|-) [1 2]
        run > 3=3 0 open Box(Abbrechen?|ESC gedrückt|YesNo|-) [1 2 3]
    )");
    EXPECT_TRUE(gbCancel);
    // A cycle that has begun is completed, with its retreat.
    const auto step = game.Events.StatusChanged.Connect([](int) { SetCancel(); });
    Script(R"(
        fill 4..815.2992734685..58.9..643152.9648.92...5178465712936394..1.2271963485584127936
        index 28 & reset & run > 2=6 2=0 28=7 1 open [28] & run > 2=6 0 open [28 2]
        fill ..3456789..................2...........................2 & reset & index 81
        run > 1=1 1=0 81=1 1 open [81]
    )");
}

} // namespace tessarin
