// The player by hand, and the automatic solve.
#include "GameFixture.h"

namespace tessarin {

using PlayTest = GameFixture;

TEST_F(PlayTest, ByHand) {
    EXPECT_EQ(play.Value(), 0) << "without a cursor";
    Script(R"(
        // Without a cursor only tracing changes.
        trace & value 1 > & auto 0 > & next 1 > 0 & playlock > & back 1 > & retreat 1 > Beep F
        trace 3 5 > [3 5] & tracing 1 > & tracing 0 > [none] & tracing 1 > [] & reset > [none]
        tracing 1 > [] & reset & index 9 & playlock > 9=0 & counts > 81 1 0 1

        // Only free values are entered: 3, 4 and 8 for field 1. Its lock is ignored.
        fill ..125....67.......9 & index 1 & value 3 > 1=3 & trace & lock 1 1 & value 3 >
        value 5 > & value 12 > & value -1 > & value 8 > 1=8 [1] & auto 4 >
        trace 1 12 & value 3 > 1=3 & auto 8 > 1=4 & next 0 > 8 & next 1 > 1=8 8 & next 0 > 0
        next 1 > 1=0 0 & reset > [none] & auto 0 > 1=3 & fill .234567891 & value 1 > & auto 0 >

        // Clearing walks back along the history.
        full 80 & trace 3 12 2 5 & index 12 & value 0 > 12=0 from 12 to 5 [3 2 5]
        index 81 & value 0 > from 81 to 5 & value 0 > 5=0 from 5 to 2 [3 2]
        index 20 & value 0 > 20=0 from 20 to 2 & back 0 > 2=0 from 2 to 3 [3]
        back 0 > 3=0 [] & back 0 > & reset & index 70 & value 0 > 70=0 & value 0 >
        index 12 & set 12 9 & trace 5 82 & value 0 > 12=0 & back 0 >
        trace 81 & value 0 > from 12 to 81 & fill 3.125....67.......9 & set 81 1
        trace 1 81 & back 1 > 81=0 from 81 to 1 1=4 [1] & next 0 > 8

        // The next free field is the most constrained: only 9 is free for the fields 41 and 76.
        init & fill ....................................1234.5678...........................876.54321
        trace & pumps & goto 0 > to 41 & pumps & goto 1 > 41=9 [41] & pumps > 85 & full 81 & goto 1 >

        // Going back to freedom passes field 12 and ends at field 3: once it is empty, its value is
        // free again.
        reset & full 80 & index 5 & retreat 0 > 5=0 5=5 Beep F & trace & retreat 1 > 5=0 5=5 Beep F [5]
        trace 3 12 5 & retreat 0 > 5=0 from 5 to 12 12=0 from 12 to 3 3=0 T []
        full 80 & trace 3 12 5 & index 81
        retreat 0 > from 81 to 5 5=0 from 5 to 12 12=0 from 12 to 3 3=0 T []
        fill 4.125....67.......9 & set 81 1 & index 81 & trace 1 81
        retreat 0 > 81=0 from 81 to 1 T [1]
        index 80 & retreat 1 > from 80 to 1 1=8 T & next 0 > 0
        fill .234567891 & trace 2 1 & retreat 1 > Beep F
        fill 12345678. & set 81 2 & index 81 & trace 9 81 & retreat 0 > 81=0 from 81 to 9 T [9]
    )");
    EXPECT_TRUE(play.Tracing());
    EXPECT_EQ(play.Retries, 9);
}

TEST_F(PlayTest, MovesOfASolveAreFixed) {
    Script(R"(
        // Field 2 leads to a dead end, and the retreat raises the value of field 28.
        fill 4..815.2992734685..58.9..643152.9648.92...5178465712936394..1.2271963485584127936
        index 28 & solve > 2=6 dead 32 2=0 dead 32 28=7 dead 0 2=6 3=3 7=7 18=1 19=1 22=7 24=2 25=3 32=3 37=3 40=6 41=8 42=4 59=5 60=8 62=7 winner 62 1 [28 2 3 7 18 19 22 24 25 32 37 40 41 42 59 60 62]
        fill 58961.23.723.956...6123789..4278..6..7.56.4.315.92.7..2143..956.37.5.1.2..51423.8
        reset & index 46
        solve > 6=4 dead 54 6=0 dead 54 46=3 dead 0 6=4 9=7 13=8 dead 67 13=0 dead 0 9=0 6=0 46=6 6=4 9=7 13=8 dead 67 13=0 dead 0 9=0 6=0 46=8 dead 39 3 [46]
        solve > 6=4 dead 39 6=0 dead 39 46=0 dead 0 46=8 dead 39 Beep 2 []
        full 81 & set 1 0 & set 2 1 & reset & index 50 & solve > 50=0 dead 1 50=3 dead 1 Beep 1 []
        full 81 & reset & index 50 & solve > 0 [50]
    )");
}

TEST_F(PlayTest, EscInASolveAsksOnceForEachPressAndACancelEndsIt) {
    platform.Esc = {false, true, true, false, true};
    platform.Answers = {false, true, true};
    // The first run begins without a cursor; the last answer of it is forgotten in the second.
    Script(R"(
        solve > 1=1 Box(ESC gedrückt|Abbrechen?|- Yes No) 2=2 Box(ESC gedrückt|Abbrechen?|- Yes No) 0 [1 2]
        solve > 3=3 Box(ESC gedrückt|Abbrechen?|- Yes No) 0 [1 2 3]
    )");
    EXPECT_TRUE(gbCancel);
    // A cycle that has begun is completed, with its retreat.
    const auto step = game.Events.StatusChanged.Connect([](int) { SetCancel(); });
    Script(R"(
        fill 4..815.2992734685..58.9..643152.9648.92...5178465712936394..1.2271963485584127936
        index 28 & reset & solve > 2=6 dead 32 2=0 dead 32 28=7 dead 0 1 [28] & solve > 2=6 0 [28 2]
        fill ..3456789..................2...........................2 & reset & index 81
        solve > 1=1 dead 2 1=0 dead 0 81=1 1 [81]
    )");
}

} // namespace tessarin
