// Every command, through the control that starts it.
#include "WindowScript.h"

namespace tessarin {

using CommandsTest = WindowFixture;

TEST_F(CommandsTest, ButtonsAndTheEditMenu) {
    Script(R"(
        // A puzzle by hand.
        import 2;1;1|3;2;1|4;3;1|5;4;1|6;5;1|7;6;1 > [] & click lblField(81) & click btnNextFree & cursor > 1
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
        click lblField(40) & cursor > 40 & fields 1 40 > :normal/text :green/text & click lblField(1)

        // The menu locks and clears.
        set 1 5 & set 2 3 & click mnuEditLockAllSet
        fields 1 2 3 > 5:green/red 3:normal/red :normal/text & pad > 01246789XC X red
        click mnuEditLockClear & fields 1 2 > 5:green/text 3:normal/text & lock 1 1
        answer 0 & click mnuEditClearFree > Box(|Clear Free?|? Yes No)
        answer 0 & click mnuEditClearAll > Box(|Clear All?|? Yes No)
        fields 1 2 > 5:green/red 3:normal/text
        answer 1 & click mnuEditClearFree > Box(|Clear Free?|? Yes No)
        fields 1 2 > 5:green/red :normal/text & caption lblFile > import.csv
        answer 1 & click mnuEditClearAll > Box(|Clear All?|? Yes No)
        fields 1 2 > :green/text :normal/text & caption lblFile >
        pad > 0123456789XC 0123456789C normal

        // About and the information.
        click mnuAbout & click mnuAbout > Box(About Tessarin|FileDescription: Solves|Copyright: by X|Internet: https://x|Version: 01.06.048|Release: 29.04.2022 - 06:49:52|- Ok)
        click btnInfo & size > 11625 x 7170 & click btnInfo & size > 8850 x 7170
    )");
}

TEST_F(CommandsTest, FilesAreImportedAndExported) {
    mCommands["dialog"] = [this](int, auto&) {
        const CommonDialog& shown = window.CommonDialog1;
        Tell(shown.DialogTitle, "|", shown.Filter, "|", shown.DefaultExt, " ", toolkit.Saving,
             shown.FileMustExist, shown.PathMustExist);
    };
    // Both dialogs are cancelled, or answered with an empty name.
    for (const auto& file : {std::optional<std::string>(), {""}}) {
        toolkit.File = file;
        window.lblFile.SetCaption("old");
        Script(R"(
            full 79 & set 81 7 & set 80 8 & lights > red green
            click mnuFileExportCSV > & lights > red green
            dialog > Export File|CSV Dokumente (*.csv)|*.csv|Alle Dateien (*.*)|*.*|.csv 101
            click mnuFileImportCSV > & lights > normal normal & caption lblFile > old & left > 0
            dialog > Import File|CSV Dokumente (*.csv)|*.csv|Alle Dateien (*.*)|*.*|.csv 011
        )");
    }
    const auto loading = grid.Events.Init.Connect(
        [this] { mRecorder.Told += window.lblFile.Caption() + window.lblField(81).Caption(); });
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
}

TEST_F(CommandsTest, ViewsMarkFieldsWhileABoxIsOpen) {
    // No value is free for field 1.
    Script(R"(
        click lblDeadEnd > Box(|Dead cells = 0|- Ok)
        fill .12345678.9 & index 2 & lights > red normal & paint 1 N & during fields 1 => :red/text
        click lblDeadEnd > Box(|Dead cells = 1|- Ok) & fields 1 > :normal/text & click lblField(81)
        during yellow => 9 18 27 36 45 54 61 62 63 70 71 72 73 74 75 76 77 78 79 80 81
        click mnuViewNeighbours > Box(|Neigbours = 21|- Ok) & yellow > & fields 81 > :green/text
        fill .12345678.91234567 & index 9 & lock 1 1
        during fields 1 10 19 9 => 0:red/normal:Arial:12:italic 1:green/red:Arial:12:italic 6:yellow/red:Arial:12:italic 8:green/text
        click mnuViewFreedom > Box(|Freedoms of fields|- Ok)
        fields 1 10 9 > :normal/text :normal/text 8:green/text
    )");
}

TEST_F(CommandsTest, ViewOfGroupsOneAfterTheOther) {
    std::vector<std::string> shown;
    platform.Meanwhile = [&] { shown.push_back(YellowFields()); };
    EXPECT_EQ(Do("click mnuViewGroups").substr(0, 24), "Sleep(1000) Sleep(1000) ");
    ASSERT_EQ(shown.size(), 27U);
    EXPECT_EQ(shown[0], "1 2 3 4 5 6 7 8 9");
    EXPECT_EQ(shown[9], "1 10 19 28 37 46 55 64 73");
    EXPECT_EQ(shown[26], "61 62 63 70 71 72 79 80 81");
    Script("yellow > & fields 1 > :green/text");
}

TEST_F(CommandsTest, MenusAndFieldsAreBlockedUntilAViewEndsOrFails) {
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
