// Message boxes and file dialogs.
#include "QtFixture.h"

#include <QFile>

namespace tessarin {
namespace {

using DialogsTest = QtFixture;

TEST_F(DialogsTest, BoxesHaveTheirTitlesIconsAndButtons) {
    for (const auto button : {QMessageBox::No, QMessageBox::Yes}) {
        At(1).SetValue(5);
        Answer(button);
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
