// What fields and panels show, and the views.
#include "FakeWindow.h"

namespace tessarin {

using ViewsTest = WindowFixture;

const Stories<WindowFixture> stories("ViewsTest", R"(
    AMarkWinsOverDeadAndDeadOverCurrent:
        fill .12345678 . & set 10 9
        index 2 & fields 1 2 > .:red 1:green
        lock 2 1 & click lblField(1)
        during fields 1 3 > .:yellow 2:yellow
        click mnuViewNeighbours & fields 1 2 > .:red 1/red
    DeadCellsAreRedWhileTheirNumberIsShown:
        click lblDeadEnd > Box(|Dead cells = 0|- OK)
        fill ......... 12.345678 ......... 34.781256 & set 75 9
        during fields 12 30 > .:red .:red
        click lblDeadEnd > Box(|Dead cells = 2|- OK) & fields 12 30 > . .
    NeighboursAreYellowWhileTheirNumberIsShown:
        click lblField(81) & pace 800
        during marked > 9 18 27 36 45 54 61 62 63 70 71 72 73 74 75 76 77 78 79 80 81
        click mnuViewNeighbours > Box(|Neigbours = 21|- OK) & marked >
        // Those that were marked are unmarked.
        during click btnNextFree
        click mnuViewNeighbours & marked >
    FreedomsShowHowManyValuesAreFree:
        fill .12345678 91234567. .1234567. ......... ......... ......... ......... ......... 1234567
        index 9 & lock 1 1
        during fields 1 19 > 0:red/normal:Arial 12 1:green/red:Arial 12
        during fields 80 9 > 2:yellow/red:Arial 12 8:green
        click mnuViewFreedom > Box(|Freedoms of fields|- OK) & fields 1 19 80 9 > . . . 8:green
    ThePanelDescribesTheFieldPaintedLast:
        fill .12345678 . & set 10 9
        click lblField(2) & click btnGoBackToFreedom > Beep
        set 10 0 & info > Index=10|Value=0||Freedom=7|FreeValuesList=3;4;5;6;7;8;9;||IsCursor=False|IsLocked=False|IsEmpty=True|IsDeadCell=False||Retries=1|DeadCount=0
    ScreenReadersHearWhatTheColoursTell:
        fill .12345678 & set 10 9
        click lblField(2) & click btnNumPad(10)
        click lblField(1) & hear lblField(2) > row 1, column 2: 1, locked
        hear lblField(1) > row 1, column 1: empty, current, dead & hear lblDeadEnd > dead end: lit
        during hear lblField(1) > row 1, column 1: empty, current, freedom 0
        click mnuViewFreedom
    ARunningViewBlocksMenusAndFieldsButNoButtons:
        set 1 5
        during click lblField(50) & click mnuFileQuit
        during click mnuEditLockAllSet & click mnuViewFreedom
        during cursor > 1 & counts > 80 0
        during click btnNumPad(11) & counts > 81 0
        click mnuViewNeighbours > Box(|Neigbours = 21|- OK) & faults >
    EachActivationRepaintsAndKeepsTheTaskbarEntry:
        csv Index;Value;Locked|81;3;0 & pump 1 activate
        activate > Lock(77) Show(5|0) Get(5|-20) Set(5|-20|262160) Show(5|5) Lock(0) & fields 81 > 3
)");

TEST_F(ViewsTest, GroupsAreShownForASecondEach) {
    std::vector<std::string> shown;
    platform.Meanwhile = [&] { shown.push_back(Told("marked")); };
    EXPECT_EQ(Told("click mnuViewGroups").substr(0, 24), "Sleep(1000) Sleep(1000) ");
    ASSERT_EQ(shown.size(), 27U);
    EXPECT_EQ(shown[26], "61 62 63 70 71 72 79 80 81");
}

} // namespace tessarin
