// The views, and what fields and panels show.
#include "FakeWindow.h"

namespace tessarin {

using ViewsTest = WindowFixture;

TEST_F(ViewsTest, AMarkWinsOverDeadAndDeadOverCurrent) {
    Do(R"(
        fill .12345678 . & set 10 9
        index 2 & fields 1 2 > .:red 1:green
        lock 1 1 & lock 2 1
        click lblField(1) & fields 1 2 > .:red/red 1/red
    )");
    window.PaintField(1, true);
    window.PaintField(3, false, true);
    Do("fields 1 3 > .:yellow/red 2:yellow");
}

TEST_F(ViewsTest, DeadCellsAreRedWhileTheirNumberIsShown) {
    Do(R"(
        click lblDeadEnd > Box(|Dead cells = 0|- OK)
        fill ......... 12.345678 ......... 34.781256 & set 75 9
        index 12
        during fields 12 30 > .:red .:red
        click lblDeadEnd > Box(|Dead cells = 2|- OK)
        fields 12 30 > . .
    )");
}

TEST_F(ViewsTest, NeighboursAreYellowWhileTheirNumberIsShown) {
    Do(R"(
        click lblField(81) & click optChill(5)
        during marked > 9 18 27 36 45 54 61 62 63 70 71 72 73 74 75 76 77 78 79 80 81
        click mnuViewNeighbours > Box(|Neigbours = 21|- OK)
        marked >
        fields 81 > .:green
    )");
}

TEST_F(ViewsTest, TheNeighboursThatWereMarkedAreUnmarked) {
    Do(R"(
        set 41 5
        during click btnNextFree
        click mnuViewNeighbours & marked >
    )");
}

TEST_F(ViewsTest, FreedomsShowHowManyValuesAreFree) {
    Do(R"(
        fill .12345678 91234567. .1234567. ......... ......... ......... ......... ......... 1234567
        index 9 & lock 1 1
        during fields 1 19 80 > 0:red/normal:Arial 12 italic 1:green/red:Arial 12 italic 2:yellow/red:Arial 12 italic
        during fields 9 > 8:green
        click mnuViewFreedom > Box(|Freedoms of fields|- OK)
        fields 1 19 80 9 > . . . 8:green
    )");
}

TEST_F(ViewsTest, GroupsAreShownForASecondEach) {
    std::vector<std::string> shown;
    platform.Meanwhile = [&] { shown.push_back(Told("marked")); };
    EXPECT_EQ(Told("click mnuViewGroups").substr(0, 24), "Sleep(1000) Sleep(1000) ");
    ASSERT_EQ(shown.size(), 27U);
    EXPECT_EQ(shown[0], "1 2 3 4 5 6 7 8 9");
    EXPECT_EQ(shown[9], "1 10 19 28 37 46 55 64 73");
    EXPECT_EQ(shown[26], "61 62 63 70 71 72 79 80 81");
    Do("fields 1 2 > .:green .");
}

class RunningViewTest : public WindowFixture, public testing::WithParamInterface<const char*> {};

INSTANTIATE_TEST_SUITE_P(Views, RunningViewTest,
                         testing::Values("lblDeadEnd", "mnuViewFreedom", "mnuViewNeighbours",
                                         "mnuViewGroups"));

TEST_P(RunningViewTest, BlocksMenusAndFieldsButNoButtons) {
    Do(R"(
        set 1 5
        during click lblField(50)
        during click mnuFileQuit
        during click mnuEditLockAllSet
        during click mnuViewFreedom
        during cursor > 1
        during counts > 80 0 1 2
        during click btnNumPad(11)
        during counts > 81 0 0 1
    )");
    Click(GetParam());
    EXPECT_EQ(Faults(), "");
    EXPECT_FALSE(platform.Closed);
}

TEST_P(RunningViewTest, EndsWithAnError) {
    platform.ErrorExpected = true;
    platform.Meanwhile = [] { throw std::runtime_error("an error"); };
    Click(GetParam());
    EXPECT_FALSE(platform.ErrorExpected);
    window.RefreshAll();
    EXPECT_EQ(Faults(), "");
}

TEST_F(ViewsTest, ThePanelDescribesTheFieldPaintedLast) {
    mCommands["info"] = [this](int, auto&) { Tell(window.lblInfo.Caption()); };
    Do(R"(
        fill .12345678 . & set 10 9
        index 11 & click btnGoBackToFreedom
        lock 11 1
        info > Index=11|Value=0||Freedom=6|FreeValuesList=3;4;5;6;7;8;||IsCursor=True|IsLocked=True|IsEmpty=True|IsDeadCell=False||Retries=1|DeadCount=1
        click lblField(1) & info > Index=1|Value=0||Freedom=0|FreeValuesList=||IsCursor=True|IsLocked=False|IsEmpty=True|IsDeadCell=True||Retries=1|DeadCount=1
    )");
}

TEST_F(ViewsTest, OneFieldIsGreenAfterAClickInsideAMove) {
    Do(R"(
        pump 1 click lblField(60)
        index 50 & fields 50 60 1 > .:green . .
    )");
}

TEST_F(ViewsTest, FieldsOfALargerGridHaveNoLabels) {
    grid.Init(5);
    Do(R"(
        index 625 & set 625 25
        set 81 24 & fields 81 > 24
        click mnuViewFreedom
    )");
}

TEST_F(ViewsTest, ScreenReadersHearWhatTheColoursTell) {
    mCommands["hear"] = [this](int, auto& name) { Tell(toolkit.Find(name).AccessibleName()); };
    Do(R"(
        hear lblField(1) > row 1, column 1: empty, current
        index 12 & set 12 5
        hear lblField(12) > row 2, column 3: 5, current
        click btnNumPad(10) & index 13
        hear lblField(12) > row 2, column 3: 5, locked
        fill .12345678 & set 10 9
        index 2 & index 1
        hear lblField(1) > row 1, column 1: empty, current, dead
        hear lblDeadEnd > dead end: lit
        hear lblWinner > winner: not lit
        hear optChill(5) > pause 800 milliseconds
        hear optChill(0) > only show result
        hear btnNumPad(10) > locke
        during hear lblField(2) > row 1, column 2: 1, marked
        click mnuViewNeighbours
        during hear lblField(1) > row 1, column 1: empty, current, freedom 0
        click mnuViewFreedom
    )");
}

TEST_F(ViewsTest, EachActivationRepaintsAndKeepsTheTaskbarEntry) {
    mCommands["activate"] = [this](int, auto&) { window.RaiseActivate(); };
    window.lblField(81).SetCaption("?");
    Do(R"(
        csv
        pump 1 activate
        activate > Lock(77) Show(5|0) Get(5|-20) Set(5|-20|262160) Show(5|5) Lock(0)
        fields 81 > .
    )");
}

TEST_F(ViewsTest, TheLayoutFollowsFromOneFieldAndItsGaps) {
    EXPECT_EQ(window.lblField(81).Left(), 5400);
    EXPECT_EQ(window.lblField(81).Top(), 5520);
    EXPECT_EQ(window.btnNumPad(9).Left(), 1650);
    EXPECT_FALSE(window.lblField(0).Visible());
    window.ctlRotor1.SetWidth(900);
    EXPECT_EQ(window.ctlRotor1.Width(), 480) << "as wide as a picture";
}

} // namespace tessarin
