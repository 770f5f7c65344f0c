// The commands of buttons and menus, and the automatic solve.
#include "FakeWindow.h"

namespace tessarin {

using CommandsTest = WindowFixture;

TEST_F(CommandsTest, APuzzleIsWorkedByHand) {
    // 7, 8 and 9 are left for the row.
    Import("2;1;1|3;2;1|4;3;1|5;4;1|6;5;1|7;6;1");
    Click(50);
    Click("btnNextFree");
    EXPECT_EQ(grid.Index(), 1);
    TELLS(Click("btnNextFreeAuto"), "+1");
    TELLS(Click("btnNextFreeAuto"), "+8");
    Click("btnNextFreeValue");
    EXPECT_EQ(Seen({1, 8}), "7 9:green");
    TELLS(Click("btnGoBack"), "-8");
    Click("btnNextFreeValue");
    EXPECT_EQ(Seen({1, 8}), "8:green .");
    Click(8);
    TELLS(Click("btnNumPad(7)"), "+8");
    TELLS(Click("btnGoBackToFreedom"), "-8");
    TELLS(Click("btnGoBackToFreedom"), "-1 Beep");
}

TEST_F(CommandsTest, ThePadFollowsTheCurrentField) {
    EXPECT_EQ(Pad(), "0123456789XC 0123456789C normal");
    Fill("......... ......... ......... ......... 1349.78");
    Click(41);
    EXPECT_EQ(Pad(), "0256XC 0123456789C normal");
    Click("btnNumPad(5)");
    EXPECT_EQ(Pad(), "026XC 0123456789XC normal");
    Click("btnNumPad(10)");
    EXPECT_EQ(Pad(), "026XC X red");
    Click(81);
    EXPECT_EQ(Pad(), "0123456789XC 0123456789C normal");
}

TEST_F(CommandsTest, AllValuesAreLockedAndUnlocked) {
    // Only values above 0 are locked.
    Load("1;5;0|2;3;0|4;-1;0");
    grid.SetIndex(1);
    Click("mnuEditLockAllSet");
    EXPECT_EQ(Seen({1, 2, 3, 4}), "5:green/red 3/red . -1");
    Click("mnuEditLockClear");
    EXPECT_EQ(Seen({1, 2}), "5:green 3");
    // A grid that comes meanwhile is left alone.
    AtPump(1, [&] { Import("5;3;0|9;4;0"); });
    Click("mnuEditLockAllSet");
    EXPECT_EQ(Seen({5, 9}), "3 4");
}

TEST_F(CommandsTest, ClearingAsksFirst) {
    const std::string file = Import("1;5;1|2;3;0");
    Click("btnNextFreeAuto");
    Click("mnuEditClearFree", "No");
    Click("mnuEditClearAll", "No");
    EXPECT_EQ(Seen({1, 2}), "5/red 3");
    // Keeps the history.
    TELLS(Click("mnuEditClearFree", "Yes"), "Box(|Clear Free?|? Yes No)");
    EXPECT_EQ(Grid(), "1;5;1");
    EXPECT_EQ(window.lblFile.Caption(), file);
    Click("mnuEditClearAll", "Yes");
    EXPECT_EQ(Seen({1, 2}), ".:green .");
    EXPECT_EQ(window.lblFile.Caption(), "");
}

TEST_F(CommandsTest, TheLightsStayUntilTheNextEventOrImport) {
    FullBut({81});
    At(81).SetValue(8);
    Click("mnuEditClearAll", "Yes");
    EXPECT_EQ(Lights(), "normal green");
    Fill(".12345678");
    At(10).SetValue(9);
    EXPECT_EQ(Lights(), "red green");
    // Cancelled, and yet:
    TELLS(Click("mnuFileImportCSV"), "Import File");
    EXPECT_EQ(Lights(), "normal normal");
    EXPECT_EQ(Seen({2}), "1");
}

TEST_F(CommandsTest, AboutBeginsItsTextAnew) {
    Click("mnuAbout");
    TELLS(Click("mnuAbout"), "Box(About Tessarin|FileDescription: Solves|Copyright: by X|Internet: "
                             "https://x|Version: 01.06.048|Release: 29.04.2022 - 06:49:52|- OK)");
}

TEST_F(CommandsTest, WhatCanBeReadOfABadFileIsShown) {
    At(81).SetValue(7);
    Import("12;3;0|13;x;0|14;4;0");
    EXPECT_EQ(Grid(), "12;3;0");
    EXPECT_EQ(Seen({1, 12, 81}), ".:green 3 .");
    Click("mnuFileImportCSV", folder + "missing.csv");
    EXPECT_EQ(window.lblFile.Caption(), folder + "missing.csv");
    EXPECT_EQ(Grid(), "");
}

TEST_F(CommandsTest, AnExportWritesANewFileAndStartsTheHistory) {
    At(1).SetValue(5);
    TELLS(Click("mnuFileExportCSV", folder + "new.csv"), "Export File");
    EXPECT_EQ(window.lblFile.Caption(), "");
    EXPECT_EQ(Read("new.csv"), "Index;Value;Locked|1;5;0");
    TELLS(Click("btnNumPad(9)"), "+1");
    // Keeps it.
    TELLS(Click("mnuFileExportCSV", folder + "again.csv"), "Export File");
}

TEST_F(CommandsTest, AnImportKeepsItsNameInSpiteOfANestedDialog) {
    const std::string good = Write("good.csv", "Index;Value;Locked|1;5;1");
    AtPump(1, [&] { Import("2;5;1"); });
    Click("mnuFileImportCSV", good);
    EXPECT_EQ(window.lblFile.Caption(), good);
    EXPECT_EQ(Grid(), "1;5;1");
}

TEST_F(CommandsTest, AnImportShowsNoOldNameOrGridMeanwhile) {
    Import("1;5;1|81;7;0");
    const auto loading = grid.Events.Init.Connect([this] {
        EXPECT_EQ(window.lblFile.Caption(), "");
        EXPECT_EQ(Seen({81}), ".");
    });
    Import("2;5;1");
}

// A cursor move paints two fields and a value one.
TEST_F(CommandsTest, APaceIsThePauseAfterEachPaintedField) {
    for (const std::string pace : {"100", "200", "400", "800"}) {
        FullBut({1, 11});
        Trace({});
        Pace(pace);
        const std::string sleep = " Sleep(" + pace + ")";
        TELLS(Click("btnSolve"), "+1" + sleep + sleep + sleep + sleep + " +11");
    }
}

TEST_F(CommandsTest, APaceThatIsChosenInFrontOfAPauseCounts) {
    FullBut({1});
    Pace("800");
    // One pump for each field, then that of the pause.
    AtPump(82, [&] { Pace("100"); });
    TELLS(Click("btnSolve"), "+1 Sleep(100)");
}

TEST_F(CommandsTest, QuietPaintsNothingUntilTheEnd) {
    FullBut({1, 11, 21});
    Meanwhile([&] {
        Pace("Quiet");
        // A command still paints.
        Click("mnuEditLockAllSet");
        EXPECT_EQ(Seen({2, 81}), "2/red 8/red");
        Meanwhile([&] { EXPECT_EQ(Seen({11}), "."); });
    });
    Click("btnSolve");
    EXPECT_EQ(Seen({1, 11, 21}), "1/red 5 9:green");
}

TEST_F(CommandsTest, StepMakesOneCycleForEachClick) {
    FullBut({1, 11, 21});
    Pace("Step");
    Meanwhile([&] { EXPECT_FALSE(window.ctlRotor1.Running()); });
    TELLS(Click("btnSolve"), "+1");
    EXPECT_EQ(Seen({1, 11}), "1:green .");
    EXPECT_EQ(Faults(), "");
    TELLS(Click("btnSolve"), "+11");
}

TEST_F(CommandsTest, APaceForgetsTheCancelOfAStep) {
    FullBut({1, 11, 21});
    Pace("Step");
    Meanwhile([&] { Pace("0"); });
    TELLS(Click("btnSolve"), "+1 +11 +21");
    EXPECT_EQ(Faults(), "");
}

TEST_F(CommandsTest, AStepDoesNotGoOnBehindTheClosedWindow) {
    FullBut({1, 11, 21});
    Pace("Step");
    Meanwhile([&] {
        Pace("0");
        Click("mnuFileQuit");
    });
    TELLS(Click("btnSolve"), "+1");
}

TEST_F(CommandsTest, AnErrorLeavesAUsableWindow) {
    FullBut({1, 11, 21});
    Meanwhile([] { throw "something that is no exception"; });
    TELLS(Click("btnSolve"), "+1 ! an error of an unknown kind");
    EXPECT_EQ(Faults(), "");
    TELLS(Click("btnSolve"), "+11 +21");
}

} // namespace tessarin
