// SPDX-License-Identifier: MIT
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

TEST_F(CommandsTest, APaceForgetsTheCancelOfAStep) {
    FullBut({1, 11, 21});
    Pace("Step");
    Meanwhile([&] { Pace("0"); });
    TELLS(Click("btnSolve"), "+1 +11 +21");
}

TEST_F(CommandsTest, APaceThatIsChosenWhileAStepIsPaintedCounts) {
    FullBut({1, 11, 21});
    Pace("Step");
    AtPump(1, [&] { Pace("0"); });
    TELLS(Click("btnSolve"), "+1 +11 +21");
}

TEST_F(CommandsTest, AnErrorLeavesAUsableWindow) {
    FullBut({1, 11, 21});
    Meanwhile([] { throw "something that is no exception"; });
    TELLS(Click("btnSolve"), "+1 ! an error of an unknown kind");
    TELLS(Click("btnSolve"), "+11 +21");
}

} // namespace tessarin
