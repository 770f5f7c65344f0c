// Message boxes and file dialogs.
#include "QtFixture.h"

namespace tessarin {

using DialogsTest = QtFixture;

TEST_F(DialogsTest, BoxesHaveTheirTitlesIconsAndButtons) {
    WhileOpen = [](QDialog& box) { EXPECT_GE(box.width(), 280) << "wide enough for its title"; };
    Script(R"(
        set 1 5 & answer No
        menu mnuEditClearAll > Box(Velmora Sudoku Solver|Clear All?|? [&Yes &No) & is > |1;5;0
        answer Esc & menu mnuEditClearAll & is > |1;5;0
        answer OK & menu mnuAbout > Box(About tessarin_qt_tests|FileDescription: Solves sudoku games|Copyright: © 2022 Velmora|Internet: https://velmora.example|Version: 01.06.048|Release: 29.04.2022 - 06:49:52|- [OK)
        answer Yes & menu mnuEditClearAll & is >
    )");
}

TEST_F(DialogsTest, BoxesDoNotCoverTheGridIfTheScreenHasRoom) {
    const QRect fields = Widget("lblField(1)").geometry() | Widget("lblField(81)").geometry();
    for (const bool onTheRight : {true, false}) {
        const QRect screen = form->screen()->availableGeometry();
        form->move(onTheRight ? screen.topLeft() : screen.topRight() - QPoint(form->width(), 0));
        WhileOpen = [&](QDialog& box) {
            const QPoint client = form->mapToGlobal(MenuBar().geometry().bottomLeft());
            EXPECT_FALSE(box.frameGeometry().intersects(fields.translated(client)));
            EXPECT_TRUE(screen.contains(box.frameGeometry()));
        };
        Script("answer OK & menu mnuViewNeighbours & activate");
    }
}

TEST_F(DialogsTest, FileDialogShowsItsFiltersAndWholeColumns) {
    Script("write plain & write puzzle.csv");
    WhileOpen = [this](QDialog& dialog) {
        auto& types = *dialog.findChild<QComboBox*>("fileTypeCombo");
        auto& list = *dialog.findChild<QTreeView*>("treeView");
        dynamic_cast<QFileDialog&>(dialog).setDirectory(QString::fromStdString(folder));
        for (const int type : {0, 1}) {
            types.setCurrentIndex(type);
            Q_EMIT types.activated(type);
            const auto files = [&] { return list.model()->rowCount(list.rootIndex()); };
            EXPECT_TRUE(QTest::qWaitFor([&] { return files() == type + 1; }));
            Tell(types.currentText().toStdString());
        }
        QTest::qWait(50);
        for (int column = 0; column < 4; ++column) {
            const QModelIndex index = list.model()->index(0, column, list.rootIndex());
            EXPECT_GE(list.columnWidth(column), list.sizeHintForIndex(index).width()) << column;
        }
        EXPECT_EQ(list.horizontalScrollBar()->maximum(), 0);
    };
    Script(R"(
        answer Esc & menu mnuFileImportCSV > Box(Import File [&Open Cancel) CSV Dokumente (*.csv) Alle Dateien (*.*)
        answer Esc & menu mnuFileExportCSV > Box(Export File [&Save Cancel)
    )");
}

TEST_F(DialogsTest, FileNamesOfAllKinds) {
    for (const std::string& name : {std::string("Rätsel für \"Größe\"'&' 数独.csv"),
                                    std::string(196, 'x') + ".csv", std::string("a b;c\\d.csv")})
        Script("clear & set 1 5 & choose " + name + " & menu mnuFileExportCSV & set 1 0 & choose " +
               name + " & menu mnuFileImportCSV & is > |1;5;0");
}

TEST_F(DialogsTest, OnlyFilesThatExistAreOpenedAndOnlyNewOnesSaved) {
    Script(R"(
        choose missing.csv & answer OK & answer Esc & menu mnuFileImportCSV & write old.csv mine
        write good.csv Index;Value;Locked|1;5;1 & write plain Index;Value;Locked|2;5;1
        choose plain & menu mnuFileImportCSV & is > |2;5;1 & choose good & menu mnuFileImportCSV
        is > |1;5;1 & choose gone/new.csv & answer OK & answer Esc & menu mnuFileExportCSV
        choose new & menu mnuFileExportCSV & read new.csv > Index;Value;Locked|1;5;1
        choose old.csv & menu mnuFileExportCSV & read old.csv > mine
        choose plain & menu mnuFileExportCSV & read plain.csv > Index;Value;Locked|1;5;1
        read plain > Index;Value;Locked|2;5;1
        choose "q" & menu mnuFileExportCSV & read "q".csv > Index;Value;Locked|1;5;1
        choose gone/"q".csv & answer OK & answer Esc & menu mnuFileExportCSV
        clear & choose "q" & menu mnuFileImportCSV & is > |1;5;1
        choose a"plain" & answer OK & answer Esc & menu mnuFileImportCSV & is > |1;5;1
    )");
}

} // namespace tessarin
