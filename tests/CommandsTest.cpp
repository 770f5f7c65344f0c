// The commands of buttons and menus, and files.
#include "FakeWindow.h"

namespace tessarin {

using CommandsTest = WindowFixture;

TEST_F(CommandsTest, APuzzleIsWorkedByHand) {
    Do(R"(
        import 2;1;1|3;2;1|4;3;1|5;4;1|6;5;1|7;6;1
        click lblField(81) & click btnNextFree
        cursor > 1
        click btnNextFreeAuto > +1
        fields 1 8 > 7:green .
        click btnNextFreeAuto > +8
        fields 1 8 > 7 8:green
        click btnNextFreeValue >
        fields 1 8 > 7 9:green
        click btnGoBack > -8
        fields 1 8 > 7:green .
        click btnNextFreeValue & click btnNextFreeAuto
        fields 1 8 > 8 7:green
        click btnGoBackToFreedom > -8
        fields 1 8 > 8:green .
        click btnGoBackToFreedom > -1 Beep
        fields 1 8 > 8:green .
    )");
}

TEST_F(CommandsTest, ThePadEntersLocksAndClears) {
    Do(R"(
        click btnNumPad(5) & click btnNumPad(10)
        fields 1 > 5:green/red
        // It is disabled for a locked field.
        click btnNumPad(3) & fields 1 > 5:green/red
        click btnNumPad(10) & click btnNumPad(9)
        fields 1 > 9:green
        click btnNumPad(0) & fields 1 > .:green
        click btnNumPad(1) & click btnNumPad(11)
        fields 1 > .:green
        // An empty field offers no lock.
        click btnNumPad(10) & fields 1 > .:green
    )");
}

TEST_F(CommandsTest, ThePadFollowsTheCurrentField) {
    Do(R"(
        pad > 0123456789XC 0123456789C normal
        fill ......... ......... ......... ......... 1349.78 & index 41
        pad > 0256XC 0123456789C normal
        set 41 5 & pad > 026XC 0123456789XC normal
        lock 41 1 & pad > 026XC X red
        click lblField(81) & pad > 0123456789XC 0123456789C normal
    )");
}

TEST_F(CommandsTest, AllValuesAreLockedAndUnlocked) {
    Do(R"(
        set 1 5 & set 2 3
        click mnuEditLockAllSet & fields 1 2 3 > 5:green/red 3/red .
        click mnuEditLockClear & fields 1 2 > 5:green 3
    )");
}

TEST_F(CommandsTest, ClearingAsksFirst) {
    Do(R"(
        import 1;5;1|2;3;0
        answer No & click mnuEditClearFree > Box(|Clear Free?|? Yes No)
        answer No & click mnuEditClearAll > Box(|Clear All?|? Yes No)
        fields 1 2 > 5:green/red 3
        answer Yes & click mnuEditClearFree
        fields 1 2 > 5:green/red .
        file > import.csv
        answer Yes & click mnuEditClearAll
        fields 1 2 > .:green .
        file >
    )");
}

TEST_F(CommandsTest, TheLightsStayUntilTheNextEventOrImport) {
    Do(R"(
        full 81 & set 81 8
        lights > normal green
        answer Yes & click mnuEditClearAll
        lights > normal green
        fill .12345678 & set 10 9
        lights > red green
        import 5;3;1 & lights > normal normal
    )");
}

TEST_F(CommandsTest, TheSideColumnComesAndGoes) {
    Do(R"(
        click btnInfo & width > 11625
        click btnInfo & width > 8850
    )");
}

TEST_F(CommandsTest, AboutIsShown) {
    const std::string box = Told("click mnuAbout");
    EXPECT_EQ(box.substr(0, 48), "Box(About Tessarin|FileDescription: Solves|Copyr");
    EXPECT_EQ(Told("click mnuAbout"), box);
}

TEST_F(CommandsTest, ACancelledDialogChangesOnlyTheLights) {
    Do(R"(
        import 1;5;1
        full 80 81 & set 80 7
        set 81 8 & click mnuFileExportCSV > Save
        lights > normal green
        click mnuFileImportCSV > Open
        lights > normal normal
        file > import.csv
        counts > 0 0 81 0
    )");
}

TEST_F(CommandsTest, AnImportReplacesTheGrid) {
    const auto loading = grid.Events.Init.Connect(
        [this] { EXPECT_EQ(window.lblFile.Caption() + window.lblField(81).Caption(), ""); });
    Do(R"(
        fill 12 & lock 1 1
        set 81 7 & trace 5
        import 1;5;1|12;3;0 > Open -5
        is > |1;5;1|12;3;0
        fields 1 2 81 > 5:green/red . .
        file > import.csv
        history >
    )");
}

TEST_F(CommandsTest, WhatCanBeReadOfABadFileIsShown) {
    Do(R"(
        set 81 7 & import 12;3;0|13;x;0|14;4;0
        is > |12;3;0
        fields 1 12 81 > .:green 3 .
        history >
        write other.csv index;value;locked|1;5;1
        choose other.csv & click mnuFileImportCSV
        is >
        choose missing.csv & click mnuFileImportCSV
        file > missing.csv
    )");
}

TEST_F(CommandsTest, AnExportWritesTheGridAndStartsTheHistory) {
    Do(R"(
        set 1 5 & choose new.csv
        click mnuFileExportCSV & history >
        read new.csv > Index;Value;Locked|1;5;0
        file >
        set 1 6 & choose new.csv
        click mnuFileExportCSV & read new.csv > Index;Value;Locked|1;5;0
        choose gone/new.csv & click mnuFileExportCSV > Save
    )");
}

TEST_F(CommandsTest, AnImportKeepsItsNameInSpiteOfANestedDialog) {
    Do("write good.csv Index;Value;Locked|1;5;1 & index 2");
    platform.AtPump(1, [this] {
        Told("choose other.csv");
        Told("click mnuFileExportCSV");
    });
    Do(R"(
        choose good.csv & click mnuFileImportCSV
        file > good.csv
        is > |1;5;1
    )");
}

TEST_F(CommandsTest, DialogsAskForCSVFiles) {
    const CommonDialog& dialog = window.CommonDialog1;
    Do("click mnuFileExportCSV > Save");
    EXPECT_EQ(dialog.DialogTitle + dialog.DefaultExt, "Export File.csv");
    EXPECT_FALSE(dialog.FileMustExist);
    Do("click mnuFileImportCSV > Open");
    EXPECT_EQ(dialog.DialogTitle, "Import File");
    EXPECT_TRUE(dialog.FileMustExist && dialog.PathMustExist);
}

} // namespace tessarin
