// The views: what they show, and which commands they block.
#include "WindowScript.h"

namespace tessarin {

using ViewsTest = WindowFixture;

TEST_F(ViewsTest, FieldsAreMarkedWhileABoxIsOpen) {
    // No value is free for field 1.
    Script(R"(
        click lblDeadEnd > Box(Dead cells = 0||Ok|-)
        fill .12345678.9 & index 2 & lights > red normal & fields 1 > :red/text
    )");
    window.lblField(1).SetBackColor(WindowBackground);
    Script(R"(
        during fields 1 => :red/text
        click lblDeadEnd > Box(Dead cells = 1||Ok|-) & fields 1 > :normal/text & click lblField(81)
        during yellow => 9 18 27 36 45 54 61 62 63 70 71 72 73 74 75 76 77 78 79 80 81
        click mnuViewNeighbours > Box(Neigbours = 21||Ok|-) & yellow > & fields 81 > :green/text
        fill .12345678.91234567 & index 9
        during fields 1 10 19 9 => 0:red/normal:Arial:12:italic 1:green/red:Arial:12:italic 6:yellow/red:Arial:12:italic 8:green/text
        click mnuViewFreedom > Box(Freedoms of fields||Ok|-)
        fields 1 10 9 > :normal/text :normal/text 8:green/text
    )");
}

TEST_F(ViewsTest, GroupsOneAfterTheOther) {
    std::vector<std::string> shown;
    platform.Meanwhile = [&] { shown.push_back(YellowFields()); };
    EXPECT_EQ(Do("click mnuViewGroups").substr(0, 24), "Sleep(1000) Sleep(1000) ");
    ASSERT_EQ(shown.size(), 27U);
    EXPECT_EQ(shown[0], "1 2 3 4 5 6 7 8 9");
    EXPECT_EQ(shown[9], "1 10 19 28 37 46 55 64 73");
    EXPECT_EQ(shown[26], "61 62 63 70 71 72 79 80 81");
    Script("yellow > & fields 1 > :green/text");
}

TEST_F(ViewsTest, MenusAndFieldsAreBlockedUntilAViewEndsOrFails) {
    for (const std::string view :
         {"mnuViewFreedom", "mnuViewNeighbours", "mnuViewGroups", "lblDeadEnd"})
        for (const std::string ending : {"", "; fail"}) {
            Script("during busy => mnuFile mnuEdit mnuView view; click lblField(50); "
                   "click mnuFileQuit; click mnuEditLockAllSet; click mnuViewFreedom; cursor => 1; "
                   "click btnNumPad(11); click btnNumPad(4); fields 1 => 4:green/text; set 2 5" +
                   ending);
            Script("click " + view +
                   " & busy > & counts > 79 0 2 3 & set 2 0 & click btnNumPad(11)");
        }
}

} // namespace tessarin
