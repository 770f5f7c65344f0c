// The views: what they show, and which commands they block.
#include "WindowScript.h"

#include <stdexcept>

namespace tessarin {

using ViewsTest = WindowFixture;

// Row 1 holds 1 to 8 and field 11 holds 9: no value is free for field 1.
const std::string DeadFieldOne = ".12345678.9";

TEST_F(ViewsTest, DeadCells) {
    Script("click lblDeadEnd > Box(Dead cells = 0||Ok|-)");
    Do("fill " + DeadFieldOne);
    Script("index 2 & lights > red normal & fields 1 > :red/text");
    window.lblField(1).SetBackColor(WindowBackground);
    platform.AtBox = [&] { EXPECT_EQ(Shows(1), ":red/text"); };
    Script("click lblDeadEnd > Box(Dead cells = 1||Ok|-) & fields 1 > :normal/text");
}

TEST_F(ViewsTest, Neighbours) {
    Do("click lblField(81)");
    platform.AtBox = [&] {
        EXPECT_EQ(YellowFields(), "9 18 27 36 45 54 61 62 63 70 71 72 73 74 75 76 77 78 79 80 81");
    };
    Script("click mnuViewNeighbours > Box(Neigbours = 21||Ok|-) & fields 81 > :green/text");
    EXPECT_EQ(YellowFields(), "");
}

TEST_F(ViewsTest, GroupsOneAfterTheOther) {
    std::vector<std::string> shown;
    platform.AtSleep = [&] { shown.push_back(YellowFields()); };
    std::string sleeps = "Sleep(1000)";
    for (int i = 1; i < 27; ++i)
        sleeps += " Sleep(1000)";
    Script("click lblField(81) & click mnuViewGroups > " + sleeps + " & fields 81 > :green/text");
    ASSERT_EQ(shown.size(), 27U);
    EXPECT_EQ(shown[0], "1 2 3 4 5 6 7 8 9");
    EXPECT_EQ(shown[9], "1 10 19 28 37 46 55 64 73");
    EXPECT_EQ(shown[26], "61 62 63 70 71 72 79 80 81");
    EXPECT_EQ(YellowFields(), "");
}

TEST_F(ViewsTest, Freedoms) {
    Do("fill " + DeadFieldOne);
    Script("set 12 1 & set 13 2 & set 14 3 & set 15 4 & set 16 5 & set 17 6 & set 18 7 & index 9");
    platform.AtBox = [&] {
        Script("fields 1 10 19 9 > 0:red/normal:Arial:12:italic 1:green/red:Arial:12:italic "
               "6:yellow/red:Arial:12:italic 8:green/text");
    };
    Script("click mnuViewFreedom > Box(Freedoms of fields||Ok|-)");
    Script("fields 1 10 9 > :normal/text :normal/text 8:green/text");
}

TEST_F(ViewsTest, MenusAndFieldsAreBlockedUntilAViewEndsOrFails) {
    int views = 0;
    bool fails = false;
    const auto whileShown = [&] {
        ++views;
        platform.AtBox = platform.AtSleep = nullptr;
        Script(R"(
            click lblField(50) & click mnuFileQuit & click mnuEditLockAllSet & click mnuViewFreedom
            cursor > 1 & click btnNumPad(11) & click btnNumPad(4) & fields 1 > 4:green/text
        )");
        EXPECT_FALSE(platform.Closed);
        EXPECT_FALSE(At(1).Locked());
        EXPECT_TRUE(window.mnuHelp.Enabled());
        if (fails) throw std::runtime_error("no box");
    };
    for (const char* const view :
         {"mnuViewFreedom", "mnuViewNeighbours", "mnuViewGroups", "lblDeadEnd"})
        for (const bool failing : {false, true}) {
            fails = platform.ErrorsExpected = failing;
            platform.AtBox = platform.AtSleep = whileShown;
            Click(view);
            EXPECT_FALSE(window.ViewRunning()) << view;
            EXPECT_TRUE(window.mnuFile.Enabled() && window.mnuEdit.Enabled() &&
                        window.mnuView.Enabled())
                << view;
        }
    EXPECT_EQ(views, 8);
}

} // namespace tessarin
