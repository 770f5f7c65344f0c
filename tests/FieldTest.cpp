#include "GameFixture.h"

namespace tessarin {

using FieldTest = GameFixture;

TEST_F(FieldTest, NeighboursAreListedByRowColumnBox) {
    EXPECT_EQ(Text(At(1).Neighbours), "1 2 3 4 5 6 7 8 9 10 19 28 37 46 55 64 73 11 12 20 21");
    const auto neighbours = At(1).Neighbours;
    EXPECT_EQ(ErrorOf([&] { At(1).GroupAdd(*game.Groups->Items.Item(1)); }), "duplicate key ");
    EXPECT_EQ(At(1).Neighbours, neighbours);
    Field alone;
    alone.SetValue(3);
    EXPECT_EQ(alone.FreeValuesList(), "1;2;3;4;5;6;7;8;9;");
    EXPECT_EQ(alone.NextFreeValue(), 4);
}

TEST_F(FieldTest, FreeValuesAndTheNextFreeValue) {
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
}

TEST_F(FieldTest, OnlyChangesAreReported) {
    Script("set 7 99 > StatusChanged(7) & set 7 99 > & lock 7 1 > StatusChanged(0) & lock 7 1 >");
    Script("index 3 & set 7 -5 > StatusChanged(7) & lock 7 0 > StatusChanged(3)");
    At(7).SetTextCSV("8;x"); // a line of another field
    EXPECT_EQ(At(7).TextCSV(true), "7;0;0");
}

} // namespace tessarin
