// Every command, through the control that starts it.
#include "WindowScript.h"

#include "support/modKbd.h"

namespace tessarin {

using CommandsTest = WindowFixture;

TEST_F(CommandsTest, ButtonsAndTheEditMenu) {
    Script(R"(
        // A puzzle by hand.
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

        // The pad enters, locks and clears.
        csv & refresh & click btnNumPad(5) & click btnNumPad(10) & click btnNumPad(3)
        fields 1 > 5:green/red & click btnNumPad(10) & fields 1 > 5:green/text
        click btnNumPad(9) & fields 1 > 9:green/text & click btnNumPad(0) & click btnNumPad(10)
        fields 1 > :green/text & click btnNumPad(1) & fields 1 > 1:green/text & click btnNumPad(11) & fields 1 > :green/text
        click lblField(40) & cursor > 40 & fields 1 40 > :normal/text :green/text
        click lblField(1)

        // The menu locks and clears.
        set 1 5 & set 2 3 & click mnuEditLockAllSet
        fields 1 2 3 > 5:green/red 3:normal/red :normal/text & pad > 01246789XC X red
        click mnuEditLockClear & fields 1 2 > 5:green/text 3:normal/text & lock 1 1
        answer 0 & click mnuEditClearFree > Box(Clear Free?||YesNo|?)
        answer 0 & click mnuEditClearAll > Box(Clear All?||YesNo|?)
        fields 1 2 > 5:green/red 3:normal/text
        answer 1 & click mnuEditClearFree > Box(Clear Free?||YesNo|?)
        fields 1 2 > 5:green/red :normal/text & caption lblFile > import.csv
        answer 1 & click mnuEditClearAll > Box(Clear All?||YesNo|?)
        fields 1 2 > :green/text :normal/text & caption lblFile >
        pad > 0123456789XC 0123456789C normal

        // About and the information.
        click mnuAbout & click mnuAbout > Box(FileDescription: Solves|Copyright: by X|Internet: https://x|Version: 01.06.048|Release: 29.04.2022 - 06:49:52|About Tessarin|Ok|-)
        click btnInfo & width > 11625 & click btnInfo & width > 8850
    )");
    for (int option = 0; option <= 6; ++option) {
        SetCancel();
        Click(window.optChill(option).Name());
        EXPECT_FALSE(gbCancel) << option;
    }
}

TEST_F(CommandsTest, FilesAreImportedAndExported) {
    mCommands["dialog"] = [this](int, auto&) {
        const FileDialogRequest& shown = toolkit.Dialog;
        Tell(shown.Title + "|" + shown.Filter + "|" + shown.DefaultExt);
        Tell(Text(std::vector<int>{shown.Saving, shown.FileMustExist, shown.PathMustExist}));
    };
    // Both dialogs are cancelled, or answered with an empty name.
    for (const std::size_t empty : {0U, 2U}) {
        toolkit.Files.assign(empty, "");
        window.lblFile.SetCaption("old");
        Script(R"(
            full 79 & set 81 7 & set 80 8 & lights > red green
            click mnuFileExportCSV > & lights > red green
            dialog > Export File|CSV Dokumente (*.csv)|*.csv|Alle Dateien (*.*)|*.*|.csv 1 0 1
            click mnuFileImportCSV > & lights > normal normal & caption lblFile > old & left > 0
            dialog > Import File|CSV Dokumente (*.csv)|*.csv|Alle Dateien (*.*)|*.*|.csv 0 1 1
        )");
    }
    const auto loading = grid.Events.Init.Connect(
        [this] { mTold += window.lblFile.Caption() + window.lblField(81).Caption(); });
    Script(R"(
        write good.csv Index;Value;Locked|1;5;1|12;3;0 & write plain Index;Value;Locked|1;5;1
        full 79 & set 81 7 & set 80 8 & lights > red green
        choose good.csv & click mnuFileImportCSV > [] & is > |1;5;1|12;3;0
        caption lblFile > good.csv & lights > normal normal & fields 1 81 > 5:green/red :normal/text
        choose plain & reset & click mnuFileImportCSV > [] & caption lblFile > plain & is > |1;5;1
        write empty.csv & write other.csv index;value;locked|1;5;1
        choose empty.csv & reset & click mnuFileImportCSV > [] & is > & caption lblFile > empty.csv
        set 81 7 & choose other.csv & reset & click mnuFileImportCSV > [] & is >
        write bad.csv Index;Value;Locked|1;5;1|12;3;0|13;x;0|14;4;0
        set 81 7 & choose bad.csv & reset & click mnuFileImportCSV > [] & is > |1;5;1|12;3;0
        caption lblFile > bad.csv & fields 1 81 > 5:green/red :normal/text
        choose new.csv & click mnuFileExportCSV > & caption lblFile > bad.csv
        read new.csv > Index;Value;Locked|1;5;1|12;3;0 & reset > [none]
        choose good.csv & click mnuFileExportCSV > [] & read good.csv > Index;Value;Locked|1;5;1|12;3;0
        choose gone/new.csv & click mnuFileExportCSV >
    )");
    EXPECT_TRUE(play.Tracing());
}

} // namespace tessarin
