// Every command through the control that the user has for it.
#include "WindowFixture.h"

#include "support/modKbd.h"

#include <QFile>
#include <QTest>

namespace tessarin {
namespace {

class CommandsTest : public WindowTest {
protected:
    // The backgrounds of the indicators for dead end and winner.
    void SetIndicators(Color deadEnd, Color winner) {
        window.lblDeadEnd.SetBackColor(deadEnd);
        window.lblWinner.SetBackColor(winner);
    }
    void ExpectIndicators(Color deadEnd, Color winner) {
        EXPECT_EQ(window.lblDeadEnd.BackColor(), deadEnd);
        EXPECT_EQ(window.lblWinner.BackColor(), winner);
    }
    const QByteArray header = "Index;Value;Locked\r\n";
};

TEST_F(CommandsTest, ActionButtonsWorkAPuzzleByHand) {
    Import(File("row.csv", header + "2;1;1\r\n3;2;1\r\n4;3;1\r\n5;4;1\r\n6;5;1\r\n7;6;1"));
    ClickField(81);
    // The cursor, then what fields 1 and 8 show.
    using Row = std::pair<const char*, const char*>;
    for (const auto& [button, shown] :
         {Row{"NextFree", "1 "}, Row{"NextFreeAuto", "1 7"}, Row{"NextFreeAuto", "8 78"},
          Row{"NextFreeValue", "8 79"}, Row{"GoBack", "1 7"}, Row{"NextFreeValue", "1 8"},
          Row{"NextFreeAuto", "8 87"}, Row{"GoBackToFreedom", "1 8"},
          Row{"GoBackToFreedom", "1 8"}}) {
        Click(std::string("btn") + button);
        const int cursor = Grid().Index();
        EXPECT_EQ(std::to_string(cursor) + " " + window.lblField(1).Caption() +
                      window.lblField(8).Caption(),
                  shown);
        EXPECT_EQ(window.lblField(cursor).BackColor(), GreenColor);
    }
    EXPECT_EQ(platform.Beeps, 1) << "the second way back led nowhere";
}

TEST_F(CommandsTest, PadKeysEnterLockAndClear) {
    using Row = std::pair<int, const char*>;
    for (const auto& [key, look] :
         {Row{5, "5 green/text"}, Row{10, "5 green/red"}, Row{3, "5 green/red"},
          Row{10, "5 green/text"}, Row{9, "9 green/text"}, Row{0, " green/text"},
          Row{10, " green/text"}, Row{1, "1 green/text"}, Row{11, " green/text"}}) {
        Click(window.btnNumPad(key).Name()); // 3 is disabled on a locked field, X on an empty one
        EXPECT_EQ(Shows(1), look) << key;
    }
}

TEST_F(CommandsTest, OnlyALeftClickInsideAFieldMovesTheCursor) {
    QWidget& field = Widget("lblField(40)");
    Click(field, {9, 9}, Qt::RightButton);
    QTest::mousePress(form->windowHandle(), Qt::LeftButton, {}, field.mapTo(form, QPoint(9, 9)));
    QTest::mouseRelease(form->windowHandle(), Qt::LeftButton, {}, {9, 99});
    EXPECT_EQ(Grid().Index(), 1);
    ClickField(40);
    EXPECT_EQ(Grid().Index(), 40);
    int clicks = 0;
    window.lblField.Click = [&](int) { ++clicks; };
    QTest::mouseDClick(form->windowHandle(), Qt::LeftButton, {}, field.mapTo(form, QPoint(9, 9)));
    EXPECT_EQ(clicks, 2);
}

TEST_F(CommandsTest, ImportReplacesTheGridWhateverTheFileHolds) {
    using Row = std::tuple<const char*, QByteArray, int>;
    for (const auto& [name, content, filled] :
         {Row{"good.csv", header + "1;5;1\r\n12;3;0", 2}, Row{"plain", header + "1;5;1", 1},
          Row{"empty.csv", "", 0}, Row{"other.csv", "index;value;locked\r\n1;5;1", 0},
          Row{"halfway.csv", header + "1;5;1\r\n12;3;0\r\n13;x;0\r\n14;4;0", 2}}) {
        SCOPED_TRACE(name);
        goGame->Play->Reset();
        Enter(81, {7});
        At(81).SetLocked(true);
        window.lblFile.SetCaption("old");
        SetIndicators(RedColor, GreenColor);
        std::string duringLoad = "not loaded";
        const auto connection =
            Grid().Events.Init.Connect([&] { duringLoad = window.lblFile.Caption(); });
        Import(File(name, content));
        EXPECT_EQ(81 - Grid().FreeCount(), filled);
        EXPECT_EQ(Shows(81) + Shows(1),
                  filled > 0 ? " normal/text5 green/red" : " normal/text green/text");
        EXPECT_EQ(duringLoad, "");
        EXPECT_EQ(window.lblFile.Caption(), folder.filePath(name).toStdString());
        EXPECT_TRUE(goGame->Play->Tracing());
        ExpectIndicators(Normal, Normal);
    }
}

TEST_F(CommandsTest, CancelledImportOnlyResetsTheIndicators) {
    Enter(81, {7});
    window.lblFile.SetCaption("old");
    SetIndicators(RedColor, GreenColor);
    ChooseFile(folder.filePath("missing.csv"));
    Answer(QMessageBox::Ok);
    CancelDialog();
    ASSERT_TRUE(Menu("mnuFileImportCSV"));
    EXPECT_EQ(Boxes.size(), 1) << "the dialog refuses the missing file";
    EXPECT_EQ(At(81).Value(), 7);
    EXPECT_EQ(window.lblFile.Caption(), "old");
    EXPECT_FALSE(goGame->Play->Tracing());
    ExpectIndicators(Normal, Normal);
}

TEST_F(CommandsTest, ExportWritesANewFileAndLeavesAnExistingOne) {
    Enter(1, {5, 3});
    At(1).SetLocked(true);
    SetIndicators(RedColor, GreenColor);
    ChooseFile(folder.filePath("gone/new.csv"));
    Answer(QMessageBox::Ok);
    CancelDialog();
    ASSERT_TRUE(Menu("mnuFileExportCSV"));
    EXPECT_EQ(Boxes.size(), 1) << "the dialog refuses the missing folder";
    EXPECT_FALSE(goGame->Play->Tracing());
    File("old.csv", "mine");
    File("plain", "mine");
    using Row = std::tuple<const char*, const char*, QByteArray>;
    for (const auto& [typed, name, content] :
         {Row{"new", "new.csv", header + "1;5;1\r\n2;3;0"}, Row{"old.csv", "old.csv", "mine"},
          Row{"plain", "plain.csv", header + "1;5;1\r\n2;3;0"}}) {
        goGame->Play->Reset();
        ChooseFile(folder.filePath(typed));
        ASSERT_TRUE(Menu("mnuFileExportCSV"));
        QFile written(folder.filePath(name));
        EXPECT_TRUE(written.open(QIODevice::ReadOnly) && written.readAll() == content) << name;
        EXPECT_TRUE(goGame->Play->Tracing());
    }
    EXPECT_EQ(window.lblFile.Caption(), "");
    ExpectIndicators(RedColor, GreenColor);
}

TEST_F(CommandsTest, EditMenuLocksAndClears) {
    Enter(1, {5, 3});
    window.lblFile.SetCaption("a.csv");
    ASSERT_TRUE(Menu("mnuEditLockAllSet"));
    EXPECT_EQ(Shows(1) + Shows(2) + Shows(3), "5 green/red3 normal/red normal/text");
    EXPECT_EQ(window.fraNumPad.BackColor(), RedColor);
    ASSERT_TRUE(Menu("mnuEditLockClear"));
    EXPECT_EQ(Shows(1) + Shows(2), "5 green/text3 normal/text");
    EXPECT_EQ(window.fraNumPad.BackColor(), Normal);
    At(1).SetLocked(true);
    using Row = std::tuple<const char*, QMessageBox::StandardButton, const char*, const char*>;
    for (const auto& [entry, answer, looks, file] :
         {Row{"mnuEditClearFree", QMessageBox::No, "5 green/red3 normal/text", "a.csv"},
          Row{"mnuEditClearAll", QMessageBox::No, "5 green/red3 normal/text", "a.csv"},
          Row{"mnuEditClearFree", QMessageBox::Yes, "5 green/red normal/text", "a.csv"},
          Row{"mnuEditClearAll", QMessageBox::Yes, " green/text normal/text", ""}}) {
        Answer(answer);
        ASSERT_TRUE(Menu(entry));
        EXPECT_EQ(Shows(1) + Shows(2), looks) << entry;
        EXPECT_EQ(window.lblFile.Caption(), file) << entry;
    }
    EXPECT_EQ(Boxes[0], "Velmora Sudoku Solver: Clear Free? [? No Yes]");
    EXPECT_EQ(Boxes[1], "Velmora Sudoku Solver: Clear All? [? No Yes]");
}

TEST_F(CommandsTest, ChillOptionsAnswerEveryClickAndOneSelection) {
    Click("btnInfo");
    std::vector<int> clicks;
    const auto handler = window.optChill.Click;
    window.optChill.Click = [&](int index) {
        clicks.push_back(index);
        handler(index);
    };
    for (const int index : {3, 3, 1, 0, 6}) {
        SetCancel();
        Click(window.optChill(index).Name());
        EXPECT_FALSE(gbCancel) << index;
    }
    window.optChill(1).Select();
    EXPECT_EQ(clicks, (std::vector{3, 3, 1, 0, 6, 1}));
    Click("btnInfo");
    EXPECT_EQ(window.Width(), 8850);
}

TEST_F(CommandsTest, DeadEndIndicatorShowsTheDeadCells) {
    Answer(QMessageBox::Ok);
    Click("lblDeadEnd");
    MakeFieldOneDead();
    Grid().SetIndex(2);
    EXPECT_EQ(window.lblDeadEnd.BackColor(), RedColor);
    window.lblField(1).SetBackColor(Normal);
    Answer(QMessageBox::Ok, [&] {
        EXPECT_EQ(Shows(1), " red/text");
        ClickField(50);
    });
    Click("lblDeadEnd");
    EXPECT_EQ(Grid().Index(), 2);
    EXPECT_EQ(Shows(1), " normal/text") << "until it is painted again";
    EXPECT_EQ(Boxes, QStringList({"Velmora Sudoku Solver: Dead cells = 0 [OK]",
                                  "Velmora Sudoku Solver: Dead cells = 1 [OK]"}));
    Click("btnNumPad(0)");
    EXPECT_EQ(window.lblDeadEnd.BackColor(), Normal);
}

TEST_F(CommandsTest, NeighboursViewMarksRowColumnAndBox) {
    ClickField(81);
    Answer(QMessageBox::Ok, [&] {
        EXPECT_EQ(YellowFields(), (std::vector{9,  18, 27, 36, 45, 54, 61, 62, 63, 70, 71,
                                               72, 73, 74, 75, 76, 77, 78, 79, 80, 81}));
    });
    ASSERT_TRUE(Menu("mnuViewNeighbours"));
    EXPECT_EQ(Boxes, QStringList("Velmora Sudoku Solver: Neigbours = 21 [OK]"));
    EXPECT_TRUE(YellowFields().empty());
    EXPECT_EQ(Shows(81), " green/text");
}

TEST_F(CommandsTest, GroupsViewShowsEachGroupAndKeepsMenusAndFieldsAway) {
    ClickField(81);
    std::vector<std::vector<int>> shown;
    QTimer user;
    QObject::connect(&user, &QTimer::timeout, [&] {
        if (YellowFields().empty() || (!shown.empty() && shown.back() == YellowFields())) return;
        shown.push_back(YellowFields());
        if (shown.size() > 1) return;
        ClickField(50);
        Click("btnNumPad(4)");
        for (const char* const entry : {"mnuFileQuit", "mnuEditLockAllSet", "mnuViewFreedom"})
            EXPECT_FALSE(Menu(entry)) << entry;
        Answer(QMessageBox::Ok);
        EXPECT_TRUE(Menu("mnuAbout"));
        EXPECT_TRUE(Boxes.value(0).startsWith("About tessarin_window_tests: FileDescription:"));
    });
    user.start(0);
    ASSERT_TRUE(Menu("mnuViewGroups"));
    EXPECT_EQ(Shows(81), "4 green/text") << "the number pad can still be used";
    EXPECT_EQ(platform.Sleeps, std::vector(27, 1000));
    ASSERT_EQ(shown.size(), 27U);
    EXPECT_EQ(shown[0], (std::vector{1, 2, 3, 4, 5, 6, 7, 8, 9}));
    EXPECT_EQ(shown[9], (std::vector{1, 10, 19, 28, 37, 46, 55, 64, 73}));
    EXPECT_EQ(shown[26], (std::vector{61, 62, 63, 70, 71, 72, 79, 80, 81}));
    user.stop();
    EXPECT_TRUE(Menu("mnuEditLockAllSet"));
    EXPECT_EQ(Shows(81), "4 green/red");
}

} // namespace
} // namespace tessarin
