// What fields and panels show, and the views.
#include "FakeWindow.h"
#include "model/Groups.h"
#include "support/modStringLibrary.h"
#include "support/modTaskBar.h"

namespace tessarin {

using ViewsTest = WindowFixture;

TEST_F(ViewsTest, AMarkWinsOverDeadAndDeadOverCurrent) {
    Fill(".12345678");
    // Nothing is free for field 1 now.
    At(10).SetValue(9);
    Click(2);
    EXPECT_EQ(Seen({1, 2}), ".:red 1:green");
    At(2).SetLocked(true);
    Click(1);
    Meanwhile([&] { EXPECT_EQ(Seen({1, 3}), ".:yellow 2:yellow"); });
    Click("mnuViewNeighbours");
    EXPECT_EQ(Seen({1, 2}), ".:red 1/red");
}

TEST_F(ViewsTest, DeadCellsAreRedWhileTheirNumberIsShown) {
    Fill("......... 12.345678 ......... 34.781256");
    At(75).SetValue(9);
    Meanwhile([&] { EXPECT_EQ(Seen({12, 30}), ".:red .:red"); });
    TELLS(Click("lblDeadEnd"), "Box(|Dead cells = 2|- OK)");
    EXPECT_EQ(Seen({12, 30}), ". .");
}

TEST_F(ViewsTest, NeighboursAreYellowWhileTheirNumberIsShown) {
    Click(81);
    // A view does not pause after each field.
    Pace("800");
    Meanwhile([&] {
        EXPECT_EQ(Marked().size(), 21U);
        Click("btnNextFree");
        EXPECT_EQ(grid.Index(), 1);
    });
    // Spelled like that.
    TELLS(Click("mnuViewNeighbours"), "Box(|Neigbours = 21|- OK)");
    // Those that were marked are unmarked, wherever the cursor is by then.
    EXPECT_EQ(Marked(), std::vector<int>());
}

TEST_F(ViewsTest, FreedomsShowHowManyValuesAreFree) {
    Fill(".12345678 91234567. .1234567. ......... ......... ......... ......... ......... 1234567");
    grid.SetIndex(9);
    // Locked and dead, and yet it looks normal at the end.
    At(1).SetLocked(true);
    Meanwhile([&] {
        EXPECT_EQ(Seen({1, 19}), "0:red/normal:Arial 12 1:green/red:Arial 12");
        EXPECT_EQ(Seen({80, 9}), "2:yellow/red:Arial 12 8:green");
    });
    TELLS(Click("mnuViewFreedom"), "Box(|Freedoms of fields|- OK)");
    EXPECT_EQ(Seen({1, 19, 80, 9}), ". . . 8:green");
}

TEST_F(ViewsTest, GroupsAreShownForASecondEach) {
    Meanwhile([&] { EXPECT_EQ(Marked(), std::vector({1, 2, 3, 4, 5, 6, 7, 8, 9})); });
    std::string pauses = "Sleep(1000)";
    for (int group = 2; group <= 27; ++group)
        pauses += " Sleep(1000)";
    TELLS(Click("mnuViewGroups"), pauses);
    EXPECT_EQ(Marked(), std::vector<int>());
}

TEST_F(ViewsTest, TheGroupsViewGoesOnWithItsGroupsAfterAnImport) {
    const std::weak_ptr<Group> last = game.Groups->Items.Item(27);
    Meanwhile([&] {
        // Enables the menus when it ends.
        Click("lblDeadEnd");
        Import("1;5;0");
        EXPECT_FALSE(last.expired());
    });
    Click("mnuViewGroups");
    EXPECT_EQ(Faults(), "");
}

TEST_F(ViewsTest, ThePanelDescribesTheFieldPaintedLast) {
    Fill(".12345678");
    At(10).SetValue(9);
    Click(2);
    // For Retries=1.
    TELLS(Click("btnGoBackToFreedom"), "Beep");
    At(10).SetValue(0);
    EXPECT_EQ(ReplaceAll(window.lblInfo.Caption(), "\r\n", "|"),
              "Index=10|Value=0||Freedom=7|FreeValuesList=3;4;5;6;7;8;9;||IsCursor=False|"
              "IsLocked=False|IsEmpty=True|IsDeadCell=False||Retries=1|DeadCount=0");
    Click(5);
    EXPECT_NE(window.lblInfo.Caption().find("IsCursor=True"), std::string::npos);
}

TEST_F(ViewsTest, ScreenReadersHearWhatTheColoursTell) {
    const auto heard = [&](int field) { return window.lblField(field).AccessibleName(); };
    Fill(".12345678");
    At(10).SetValue(9);
    Click(2);
    Click("btnNumPad(10)");
    Click(1);
    EXPECT_EQ(heard(2), "row 1, column 2: 1, locked");
    EXPECT_EQ(heard(1), "row 1, column 1: empty, current, dead");
    EXPECT_EQ(window.lblDeadEnd.AccessibleName(), "dead end: lit");
    EXPECT_EQ(window.lblWinner.AccessibleName(), "winner: not lit");
    EXPECT_EQ(window.btnSolve.AccessibleName(), "solve the sudoku");
    EXPECT_EQ(window.PaceOption("100").AccessibleName(), "pause 100 milliseconds");
    Meanwhile([&] { EXPECT_EQ(heard(1), "row 1, column 1: empty, current, freedom 0"); });
    Click("mnuViewFreedom");
}

TEST_F(ViewsTest, ARunningViewBlocksMenusAndFieldsButNoButtons) {
    At(1).SetValue(5);
    Meanwhile([&] {
        for (const char* const blocked :
             {"lblField(50)", "mnuFileQuit", "mnuEditLockAllSet", "mnuViewFreedom"})
            TELLS(Click(blocked), "");
        EXPECT_FALSE(platform.Closed);
        EXPECT_EQ(grid.Index(), 1);
        EXPECT_EQ(grid.LockedCount(), 0);
        Click("btnNumPad(11)");
        EXPECT_EQ(grid.FreeCount(), 81);
    });
    Click("mnuViewNeighbours");
    EXPECT_EQ(Faults(), "");
}

// The desktop, 77, is locked while the style of the window, 5, changes. The entry is 0x40000; the
// last row takes it away.
TEST_F(ViewsTest, EachActivationSetsTheTaskbarEntry) {
    // A change, so that the activation counts, and pumps.
    Load("81;3;0");
    // Has no effect in there.
    AtPump(1, [&] { window.RaiseActivate(); });
    TELLS(window.RaiseActivate(), "Lock(77) Hide(5) Style(5|0x40010) Show(5) Lock(0)");
    TELLS(ShowInTaskBar(5, false), "Lock(77) Hide(5) Style(5|0x10) Show(5) Lock(0)");
}

} // namespace tessarin
