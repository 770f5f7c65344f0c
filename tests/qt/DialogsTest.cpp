// Message boxes and file dialogs.
#include "QtFixture.h"

#include <filesystem>

namespace tessarin {

using DialogsTest = QtFixture;

TEST_F(DialogsTest, AQuestionIsAnsweredByButtonsAndKeys) {
    Do(R"(
        set 1 5 & answer No
        click mnuEditClearAll > Box(Velmora Sudoku Solver|Clear All?|? Yes No)
        answer Esc & click mnuEditClearAll
        is > |1;5;0
        answer Return & click mnuEditClearAll
        is >
    )");
}

TEST_F(DialogsTest, AboutShowsTheVersionRecord) {
    const std::string box = Told("click mnuAbout");
    EXPECT_TRUE(box.starts_with("Box(About tessarin_qt_tests|FileDescription: Solves sudoku"));
    EXPECT_NE(box.find("|Copyright: © 2022 Velmora|"), std::string::npos) << box;
}

TEST_F(DialogsTest, ABoxDoesNotCoverTheGridIfTheScreenHasRoom) {
    const QRect fields = Widget("lblField(1)").geometry() | Widget("lblField(81)").geometry();
    const QRect screen = form->screen()->availableGeometry();
    platform.Meanwhile = [&] {
        const QPoint client = form->mapToGlobal(MenuBar().geometry().bottomLeft());
        EXPECT_FALSE(Box().frameGeometry().intersects(fields.translated(client)));
        EXPECT_TRUE(screen.contains(Box().frameGeometry()));
        EXPECT_GE(Box().width(), 280) << "wide enough for its title";
    };
    for (const QPoint place : {screen.topLeft(), screen.topRight() - QPoint(form->width(), 0)}) {
        form->move(place);
        Do("click mnuViewNeighbours");
    }
}

TEST_F(DialogsTest, AFileDialogOffersTwoKindsOfFiles) {
    Do("write plain & write puzzle.csv");
    platform.Meanwhile = [this] {
        auto& types = *Box().findChild<QComboBox*>("fileTypeCombo");
        auto& list = *Box().findChild<QTreeView*>("treeView");
        dynamic_cast<QFileDialog&>(Box()).setDirectory(QString::fromStdString(folder));
        for (const int type : {0, 1}) {
            types.setCurrentIndex(type);
            Q_EMIT types.activated(type);
            const auto files = [&] { return list.model()->rowCount(list.rootIndex()); };
            EXPECT_TRUE(QTest::qWaitFor([&] { return files() == type + 1; }));
            Tell(types.currentText().toStdString());
        }
    };
    Do("click mnuFileImportCSV > Open CSV Dokumente (*.csv) Alle Dateien (*.*)");
}

TEST_F(DialogsTest, ADialogOpensInTheFolderOfTheFileBeforeAndLeavesNoSettings) {
    Do(R"(
        write good.csv Index;Value;Locked|1;5;1
        choose good.csv & click mnuFileImportCSV
    )");
    platform.Meanwhile = [this] {
        const auto& dialog = dynamic_cast<QFileDialog&>(Box());
        EXPECT_EQ(dialog.directory().path().toStdString() + "/", folder);
    };
    Do("click mnuFileExportCSV");
    EXPECT_TRUE(QDir(qEnvironmentVariable("XDG_CONFIG_HOME")).isEmpty());
}

TEST_F(DialogsTest, FileNamesOfAllKinds) {
    for (const std::string& name : {std::string("Rätsel für \"Größe\"' 数独.csv"),
                                    std::string(196, 'x') + ".csv", std::string("a b;c\\d.csv")}) {
        Do("csv Index;Value;Locked|1;5;0 & choose " + name);
        Do("click mnuFileExportCSV & csv");
        Do("choose " + name + " & click mnuFileImportCSV");
        Do("is > |1;5;0");
    }
}

TEST_F(DialogsTest, OnlyFilesThatExistAreOpened) {
    Do(R"(
        write good.csv Index;Value;Locked|1;5;1 & write plain Index;Value;Locked|2;5;1
        choose missing.csv & click mnuFileImportCSV
        choose plain & click mnuFileImportCSV
        is > |2;5;1
        // The extension is added to a name without one.
        choose good & click mnuFileImportCSV
        is > |1;5;1
    )");
}

TEST_F(DialogsTest, OnlyNewFilesInFoldersThatExistAreSaved) {
    Do(R"(
        set 1 5 & write old.csv mine
        write plain mine
        choose new & click mnuFileExportCSV
        read new.csv > Index;Value;Locked|1;5;0
        choose old.csv & click mnuFileExportCSV
        read old.csv > mine
        choose plain & click mnuFileExportCSV
        read plain.csv > Index;Value;Locked|1;5;0
        choose "q" & click mnuFileExportCSV
        read "q".csv > Index;Value;Locked|1;5;0
        choose gone/new.csv & click mnuFileExportCSV
    )");
}

} // namespace tessarin
