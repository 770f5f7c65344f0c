// Message boxes and file dialogs.
#include "QtFixture.h"

#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QFileDialog>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTest>
#include <QTreeView>

namespace tessarin {
namespace {

using DialogsTest = QtFixture;

TEST_F(DialogsTest, BoxesHaveTheirTitlesIconsAndButtons) {
    for (const auto button : {QMessageBox::No, QMessageBox::Yes}) {
        At(1).SetValue(5);
        Answer(button, [] {
            const auto& box = dynamic_cast<QMessageBox&>(*QApplication::activeModalWidget());
            EXPECT_EQ(box.button(QMessageBox::Yes), box.defaultButton());
        });
        ASSERT_TRUE(Menu("mnuEditClearAll"));
        EXPECT_EQ(At(1).Value(), button == QMessageBox::Yes ? 0 : 5);
    }
    Answer(QMessageBox::Ok);
    Click("lblDeadEnd");
    Answer(QMessageBox::Ok);
    ASSERT_TRUE(Menu("mnuAbout"));
    EXPECT_EQ(Boxes,
              QStringList({"Velmora Sudoku Solver: Clear All? [? No Yes]",
                           "Velmora Sudoku Solver: Clear All? [? No Yes]",
                           "Velmora Sudoku Solver: Dead cells = 0 [OK]",
                           "About tessarin_qt_tests: FileDescription: Solves sudoku games\r\n"
                           "Copyright: Copyright 2022 Velmora\r\n"
                           "Internet: https://velmora.example\r\nVersion: 01.06.048\r\n"
                           "Release: 29.04.2022 - 06:49:52 [OK]"}));
}

TEST_F(DialogsTest, BoxesLeaveTheGridFreeWhereTheScreenHasRoom) {
    const QRect grid = Widget("lblField(1)").geometry() | Widget("lblField(81)").geometry();
    for (const bool room : {true, false}) {
        const QRect screen = form->screen()->availableGeometry();
        form->move(room ? screen.topLeft() : screen.topRight() - QPoint(form->width(), 0));
        bool hides = room;
        Answer(QMessageBox::Ok, [&] {
            const QRect box = QApplication::activeModalWidget()->frameGeometry();
            hides = box.intersects(
                grid.translated(form->mapToGlobal(MenuBar().geometry().bottomLeft())));
            EXPECT_TRUE(form->screen()->availableGeometry().contains(box));
        });
        ASSERT_TRUE(Menu("mnuViewNeighbours"));
        EXPECT_EQ(hides, !room);
    }
}

TEST_F(DialogsTest, FileDialogShowsItsFiltersAndColumnsWhole) {
    File("plain", "");
    File("puzzle.csv", "");
    Unexpected = [this](QDialog& dialog) {
        auto& types = *dialog.findChild<QComboBox*>("fileTypeCombo");
        auto& list = *dialog.findChild<QTreeView*>("treeView");
        dynamic_cast<QFileDialog&>(dialog).setDirectory(folder.path());
        for (const auto& [type, text] :
             {std::pair{0, "CSV Dokumente (*.csv)"}, {1, "Alle Dateien (*.*)"}}) {
            EXPECT_EQ(types.itemText(type), text);
            types.setCurrentIndex(type);
            Q_EMIT types.activated(type);
            EXPECT_TRUE(QTest::qWaitFor([&, files = type + 1] {
                return list.model()->rowCount(list.rootIndex()) == files;
            }));
        }
        QTest::qWait(50);
        for (int column = 0; column < 4; ++column) {
            const QModelIndex index = list.model()->index(0, column, list.rootIndex());
            EXPECT_GE(list.columnWidth(column), list.sizeHintForIndex(index).width()) << column;
        }
        EXPECT_EQ(list.horizontalScrollBar()->maximum(), 0);
        dialog.reject();
    };
    ASSERT_TRUE(Menu("mnuFileImportCSV"));
}

TEST_F(DialogsTest, FileNamesOfAllKinds) {
    for (const QString& name : {QString("Rätsel für \"Größe\" 'ß' & 数独.csv"),
                                QString(196, 'x') + ".csv", QString("a b;c\\d.csv")}) {
        At(1).SetValue(5);
        ChooseFile(folder.filePath(name));
        ASSERT_TRUE(Menu("mnuFileExportCSV"));
        At(1).SetValue(0);
        Import(folder.filePath(name));
        EXPECT_EQ(At(1).Value(), 5) << name.toStdString();
        EXPECT_EQ(window.lblFile.Caption(), folder.filePath(name).toStdString());
    }
}

TEST_F(DialogsTest, OnlyAnExistingFileIsOpened) {
    ChooseFile(folder.filePath("missing.csv"));
    Answer(QMessageBox::Ok);
    CancelDialog();
    ASSERT_TRUE(Menu("mnuFileImportCSV"));
    EXPECT_EQ(Boxes.size(), 1) << "the dialog refuses the missing file";
    EXPECT_EQ(window.lblFile.Caption(), "");
    for (const char* const name : {"good.csv", "plain"}) {
        Import(File(name, "Index;Value;Locked\r\n1;5;1"));
        EXPECT_EQ(window.lblFile.Caption(), folder.filePath(name).toStdString());
        EXPECT_EQ(At(1).Value(), 5);
    }
}

TEST_F(DialogsTest, AFileIsSavedWithAnExtensionInAFolderThatExists) {
    ChooseFile(folder.filePath("gone/new.csv"));
    Answer(QMessageBox::Ok);
    CancelDialog();
    ASSERT_TRUE(Menu("mnuFileExportCSV"));
    EXPECT_EQ(Boxes.size(), 1) << "the dialog refuses the missing folder";
    File("old.csv", "mine");
    File("plain", "mine");
    using Row = std::tuple<const char*, const char*, QByteArray>;
    for (const auto& [typed, name, content] :
         {Row{"new", "new.csv", "Index;Value;Locked"}, Row{"old.csv", "old.csv", "mine"},
          Row{"plain", "plain.csv", "Index;Value;Locked"}}) {
        ChooseFile(folder.filePath(typed));
        ASSERT_TRUE(Menu("mnuFileExportCSV"));
        QFile written(folder.filePath(name));
        EXPECT_TRUE(written.open(QIODevice::ReadOnly) && written.readAll() == content) << name;
    }
}

} // namespace
} // namespace tessarin
