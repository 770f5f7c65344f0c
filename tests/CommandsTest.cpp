// Every command, through the control that starts it.
#include "WindowScript.h"

#include "support/modKbd.h"
#include "support/modTextStream.h"

namespace tessarin {

using CommandsTest = WindowFixture;

TEST_F(CommandsTest, ActionButtonsWorkAPuzzleByHand) {
    Script(R"(
        import 2;1;1|3;2;1|4;3;1|5;4;1|6;5;1|7;6;1 > [] & click lblField(81)
        click btnNextFree & cursor > 1
        click btnNextFreeAuto > [1] & fields 1 8 > 7:green/text :normal/text
        click btnNextFreeAuto > [1 8] & fields 1 8 > 7:normal/text 8:green/text
        click btnNextFreeValue & fields 1 8 > 7:normal/text 9:green/text
        click btnGoBack > [1] & fields 1 8 > 7:green/text :normal/text
        click btnNextFreeValue & click btnNextFreeAuto > [1 8]
        fields 1 8 > 8:normal/text 7:green/text
        click btnGoBackToFreedom > [1] & fields 1 8 > 8:green/text :normal/text
        click btnGoBackToFreedom > Beep [] & cursor > 1
    )");
}

TEST_F(CommandsTest, PadKeysEnterLockAndClear) {
    Script(R"(
        click btnNumPad(5) & click btnNumPad(10) & click btnNumPad(3) & fields 1 > 5:green/red
        click btnNumPad(10) & fields 1 > 5:green/text & click btnNumPad(9) & fields 1 > 9:green/text
        click btnNumPad(0) & click btnNumPad(10) & fields 1 > :green/text
        click btnNumPad(1) & fields 1 > 1:green/text & click btnNumPad(11) & fields 1 > :green/text
        click lblField(40) & cursor > 40 & fields 1 40 > :normal/text :green/text
    )");
}

TEST_F(CommandsTest, ImportReplacesTheGridWhateverTheFileHolds) {
    const std::string header = "Index;Value;Locked\r\n";
    using Row = std::tuple<const char*, std::string, int>;
    for (const auto& [name, content, filled] :
         {Row{"good.csv", header + "1;5;1\r\n12;3;0", 2}, Row{"plain", header + "1;5;1", 1},
          Row{"empty.csv", "", 0}, Row{"other.csv", "index;value;locked\r\n1;5;1", 0},
          Row{"halfway.csv", header + "1;5;1\r\n12;3;0\r\n13;x;0\r\n14;4;0", 2}}) {
        SCOPED_TRACE(name);
        play.Reset();
        Do("set 81 7 & lock 81 1");
        window.lblFile.SetCaption("old");
        window.lblDeadEnd.SetBackColor(Red);
        window.lblWinner.SetBackColor(Green);
        std::string whileLoading = "not loaded";
        const auto connection =
            grid.Events.Init.Connect([&] { whileLoading = window.lblFile.Caption(); });
        toolkit.Files = {folder.Write(name, content)};
        Script("click mnuFileImportCSV > [] & lights > normal normal");
        EXPECT_EQ(81 - grid.FreeCount(), filled);
        EXPECT_EQ(Shows(81) + Shows(1),
                  filled > 0 ? ":normal/text5:green/red" : ":normal/text:green/text");
        EXPECT_EQ(whileLoading, "");
        EXPECT_EQ(window.lblFile.Caption(), folder.File(name));
        EXPECT_TRUE(play.Tracing());
    }
}

TEST_F(CommandsTest, CancelledDialogs) {
    window.lblFile.SetCaption("old");
    for (const auto& [entry, title, mustExist, lights] :
         {std::tuple{"mnuFileExportCSV", "Export File", false, "red green"},
          {"mnuFileImportCSV", "Import File", true, "normal normal"}})
        for (const bool emptyName : {false, true}) {
            SCOPED_TRACE(entry);
            Do("set 81 7");
            window.lblDeadEnd.SetBackColor(Red);
            window.lblWinner.SetBackColor(Green);
            if (emptyName) toolkit.Files = {""};
            Script(std::string("click ") + entry + " > & fields 81 > 7:normal/text & file > old");
            Script(std::string("lights > ") + lights);
            const FileDialogRequest& dialog = toolkit.Dialogs.back();
            EXPECT_EQ(dialog.Title, title);
            EXPECT_EQ(dialog.Filter, "CSV Dokumente (*.csv)|*.csv|Alle Dateien (*.*)|*.*");
            EXPECT_EQ(dialog.DefaultExt, ".csv");
            EXPECT_EQ(dialog.FileMustExist, mustExist);
            EXPECT_EQ(dialog.Saving, !mustExist);
            EXPECT_TRUE(dialog.PathMustExist);
        }
}

TEST_F(CommandsTest, ExportWritesANewFileAndLeavesAnExistingOne) {
    Do("set 1 5");
    Do("lock 1 1");
    const std::string old = folder.Write("old.csv", "mine");
    Script(R"(
        choose new.csv & click mnuFileExportCSV > [] & file >
        reset > [none] & choose old.csv & click mnuFileExportCSV > []
        choose gone/new.csv & click mnuFileExportCSV >
    )");
    EXPECT_EQ(ReadTextFile(folder.File("new.csv")), "Index;Value;Locked\r\n1;5;1");
    EXPECT_EQ(ReadTextFile(old), "mine");
}

TEST_F(CommandsTest, EditMenuLocksAndClears) {
    window.lblFile.SetCaption("a.csv");
    Script(R"(
        set 1 5 & set 2 3 & click mnuEditLockAllSet & fields 1 2 3 > 5:green/red 3:normal/red :normal/text
        pad > 01246789XC X red
        click mnuEditLockClear & fields 1 2 > 5:green/text 3:normal/text & lock 1 1
        answer 0 & click mnuEditClearFree > Box(Clear Free?||YesNo|?)
        answer 0 & click mnuEditClearAll > Box(Clear All?||YesNo|?)
        fields 1 2 > 5:green/red 3:normal/text
        answer 1 & click mnuEditClearFree > Box(Clear Free?||YesNo|?)
        fields 1 2 > 5:green/red :normal/text & file > a.csv
        answer 1 & click mnuEditClearAll > Box(Clear All?||YesNo|?)
        fields 1 2 > :green/text :normal/text & file > & pad > 0123456789XC 0123456789C normal
    )");
}

TEST_F(CommandsTest, PacesClearAPendingCancelAndInfoShowsTheSideColumn) {
    for (int option = 0; option <= 6; ++option) {
        SetCancel();
        Click(window.optChill(option).Name());
        EXPECT_FALSE(gbCancel) << option;
    }
    for (const float width : {11625.F, 8850.F}) {
        Click("btnInfo");
        EXPECT_EQ(window.Width(), width);
    }
    window.SetInfoVisible(false);
    EXPECT_EQ(window.Width(), 8850);
}

} // namespace tessarin
