// Message boxes and file dialogs.
#include "QtFixture.h"

namespace tessarin {

using DialogsTest = QtFixture;

const Stories<QtFixture> stories("DialogsTest", R"(
    AQuestionIsAnsweredByButtonsAndKeys:
        set 1 5 & answer No
        click mnuEditClearAll > Box(Velmora Sudoku Solver|Clear All?)
        answer Esc & click mnuEditClearAll
        is > |1;5;0 & answer Return
        click mnuEditClearAll & is >
    OnlyFilesThatExistAreOpened:
        write good.csv Index;Value;Locked|1;5;1 & write plain Index;Value;Locked|2;5;1
        choose missing.csv & click mnuFileImportCSV
        choose plain & click mnuFileImportCSV
        // The extension is added to a name without one.
        is > |2;5;1 & choose good
        click mnuFileImportCSV & is > |1;5;1
    OnlyNewFilesInFoldersThatExistAreSaved:
        set 1 5 & write old.csv mine
        choose old.csv & click mnuFileExportCSV
        read old.csv > mine & choose gone/new.csv
        click mnuFileExportCSV & choose new
        click mnuFileExportCSV & read new.csv > Index;Value;Locked|1;5;0
        write plain mine & choose plain
        click mnuFileExportCSV & read plain.csv > Index;Value;Locked|1;5;0
        choose "q" & click mnuFileExportCSV
        read "q".csv > Index;Value;Locked|1;5;0
    FileNamesOfAllKinds:
        set 1 5 & choose Rätsel für "Größe"' 数独.csv
        click mnuFileExportCSV & choose a b;c\d.csv
        click mnuFileExportCSV & csv
        choose Rätsel für "Größe"' 数独.csv & click mnuFileImportCSV
        is > |1;5;0 & csv
        choose a b;c\d.csv & click mnuFileImportCSV
        is > |1;5;0
)");

TEST_F(DialogsTest, ABoxLiesBesideTheGridIfTheScreenHasRoom) {
    form->move(0, 0);
    platform.Meanwhile = [this] {
        const QRect fields = Widget("lblField(1)").geometry() | Widget("lblField(81)").geometry();
        const QPoint client = form->mapToGlobal(MenuBar().geometry().bottomLeft());
        EXPECT_FALSE(Box().frameGeometry().intersects(fields.translated(client)));
        EXPECT_TRUE(form->screen()->availableGeometry().contains(Box().frameGeometry()));
    };
    Click("mnuViewNeighbours");
}

TEST_F(DialogsTest, ADialogOpensInTheFolderOfTheFileBeforeAndLeavesNoSettings) {
    Do("import 1;5;1");
    platform.Meanwhile = [this] {
        const auto& dialog = dynamic_cast<QFileDialog&>(Box());
        EXPECT_EQ(dialog.directory().path().toStdString() + "/", folder);
    };
    Click("mnuFileExportCSV");
    EXPECT_TRUE(QDir(qEnvironmentVariable("XDG_CONFIG_HOME")).isEmpty());
}

} // namespace tessarin
