#include "GameFixture.h"

namespace tessarin {

using PlayTest = GameFixture;

TEST_F(PlayTest, OnlyFreeValuesAreEntered) {
    // 3, 4 and 8 are free for field 1; its lock is ignored.
    Script(R"(
        fill ..125....67.......9 & index 1 & value 3 > StatusChanged(1) & trace & lock 1 1
        value 3 > & value 5 > & value 12 > & value -1 > & value 8 > StatusChanged(1) [1] & auto 4 >
        trace 1 12 & value 3 > StatusChanged(1) & auto 8 > StatusChanged(1) & next 0 > 8
        next 1 > StatusChanged(1) 8 & next 0 > 0 & next 1 > StatusChanged(1) 0
        reset > [none] & auto 0 > StatusChanged(1)
        fill .234567891 & value 1 > & auto 0 >
    )");
}

TEST_F(PlayTest, ClearingWalksBackAlongTheHistory) {
    Do("fill " + FullCells.substr(0, 80));
    Script(R"(
        trace 3 12 2 5 & index 12
        value 0 > StatusChanged(12) BeforeIndexChanged(12) IndexChanged(5) [3 2 5]
        index 81 & value 0 > BeforeIndexChanged(81) IndexChanged(5)
        value 0 > StatusChanged(5) BeforeIndexChanged(5) IndexChanged(2) [3 2]
        index 20 & value 0 > StatusChanged(20) BeforeIndexChanged(20) IndexChanged(2)
        back 0 > StatusChanged(2) BeforeIndexChanged(2) IndexChanged(3) [3]
        back 0 > StatusChanged(3) [] & back 0 >
        reset & index 70 & value 0 > StatusChanged(70) & value 0 >
        index 12 & set 12 9 & trace 5 82 & value 0 > StatusChanged(12) & back 0 >
        fill 3.125....67.......9 & set 81 1 & index 81 & trace 1 81
        back 1 > StatusChanged(81) BeforeIndexChanged(81) IndexChanged(1) StatusChanged(1) [1]
        next 0 > 8
    )");
}

TEST_F(PlayTest, NextFreeFieldIsTheMostConstrained) {
    // Only 9 is free for the fields 41 and 76.
    Script(
        "fill ....................................1234.5678...........................876.54321");
    Script("trace & goto 0 > IndexChanged(41)");
    platform.Pumps = 0;
    Script("goto 1 > StatusChanged(41) [41]");
    EXPECT_EQ(platform.Pumps, 2 + 81 + 1 + 1);
    Do("fill " + FullCells);
    Script("goto 1 >");
}

TEST_F(PlayTest, GoingBackToFreedom) {
    Do("fill " + FullCells.substr(0, 80));
    Script(R"(
        index 5 & retreat 0 > StatusChanged(5) StatusChanged(5) F Beep
        trace & retreat 1 > StatusChanged(5) StatusChanged(5) F Beep [5]
    )");
    EXPECT_EQ(play.Retries, 2);
    // Going back passes field 12 and ends at field 3: once it is empty, its value is free again.
    Do("trace 3 12 5");
    EXPECT_EQ(Do("retreat 0"), "StatusChanged(5) BeforeIndexChanged(5) IndexChanged(12) "
                               "StatusChanged(12) BeforeIndexChanged(12) IndexChanged(3) "
                               "StatusChanged(3) T []");
    Script(R"(
        fill 4.125....67.......9 & set 81 1 & index 81 & trace 1 81
        retreat 0 > StatusChanged(81) BeforeIndexChanged(81) IndexChanged(1) T [1]
        index 80 & retreat 1 > BeforeIndexChanged(80) IndexChanged(1) StatusChanged(1) T
        next 0 > 0 & fill .234567891 & trace 2 1 & retreat 1 > F Beep
        fill 12345678. & set 81 2 & index 81 & trace 9 81
        retreat 0 > StatusChanged(81) BeforeIndexChanged(81) IndexChanged(9) T [9]
    )");
}

TEST_F(PlayTest, WithoutACursorOnlyTracingChanges) {
    Script(
        "trace & value 1 > & auto 0 > & next 1 > 0 & playlock > & back 1 > & retreat 1 > F Beep");
    EXPECT_EQ(play.Retries, 1);
    EXPECT_EQ(play.Value(), 0);
    EXPECT_FALSE(play.Locked());
    Script(R"(
        trace 3 5 > [3 5] & tracing 1 > & tracing 0 > [none] & tracing 1 > [] & reset > [none]
        index 9 & playlock > StatusChanged(9)
    )");
    EXPECT_TRUE(play.Locked());
    EXPECT_TRUE(At(9).Locked());
    EXPECT_FALSE(play.Tracing());
}

} // namespace tessarin
