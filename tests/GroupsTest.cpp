#include "GameFixture.h"

namespace tessarin {

using GroupsTest = GameFixture;

TEST_F(GroupsTest, RowsThenColumnsThenBoxes) {
    const std::tuple<int, int, std::string, std::string> cases[] = {
        {3, 9, "horizontal", "73 74 75 76 77 78 79 80 81"},
        {3, 18, "vertikal", "9 18 27 36 45 54 63 72 81"},
        {3, 20, "box", "4 5 6 13 14 15 22 23 24"},
        {3, 27, "box", "61 62 63 70 71 72 79 80 81"},
        {5, 51, "box",
         "1 2 3 4 5 26 27 28 29 30 51 52 53 54 55 76 77 78 79 80 101 102 103 104 105"}};
    for (const auto& [dimension, index, flavor, fields] : cases) {
        grid.Init(dimension);
        EXPECT_EQ(game.Groups->Items.Count(), 3 * dimension * dimension);
        const Group& group = *game.Groups->Items.Item(index);
        EXPECT_EQ(group.Index, index);
        EXPECT_EQ(group.FlavorText(), flavor);
        EXPECT_EQ(Text(group.Fields), fields);
    }
    EXPECT_EQ(Text(At(313).InGroups), "13 38 63");
    EXPECT_EQ(At(313).Neighbours.Count(), 65);
    Group other;
    EXPECT_EQ(other.FlavorText(), "(unbekannt)");
    other.Flavor = 3;
    EXPECT_EQ(other.FlavorText(), "diagonal");
}

TEST_F(GroupsTest, BuildingTwiceOnTheSameFieldsFails) {
    EXPECT_EQ(ErrorOf([&] { game.Groups->Init(); }), "duplicate key ");
    EXPECT_EQ(game.Groups->Items.Count(), 1);
}

} // namespace tessarin
