// SPDX-License-Identifier: MIT
// The window, its boxes and file dialogs: places, colours, screen reader, activation, closing.
#include "QtFixture.h"
#include "qt/QtLook.h"
#include "ui/Colors.h"

#include <algorithm>

namespace tessarin {

static bool Has(const QImage& image, QColor color) {
    for (int i = 0; i < image.width() * image.height(); ++i)
        if (image.pixelColor(i % image.width(), i / image.width()) == color) return true;
    return false;
}

// The lines of a text that is painted, each with an empty row of pixels below it.
static int Lines(const QImage& image) {
    const auto row = [&](int y) { return image.copy(0, y, image.width(), 1); };
    int lines = 0;
    for (int y = 1; y < image.height(); ++y)
        if (row(y - 1) != row(0) && row(y) == row(0)) ++lines;
    return lines;
}

// Notes what is painted.
struct Eye : QObject {
    QSet<QObject*> Painted;
    bool eventFilter(QObject* seen, QEvent* event) override {
        if (event->type() == QEvent::Paint) Painted.insert(seen);
        return false;
    }
};

class WindowTest : public QtFixture, public testing::WithParamInterface<const char*> {
protected:
    QImage Picture(const char* control) { return Widget(control).grab().toImage(); }
    /// The texts of the buttons in a panel, row by row.
    std::string Buttons(const char* panel) {
        auto buttons = Widget(panel).findChildren<QAbstractButton*>();
        std::ranges::sort(buttons, {}, [](auto* b) { return std::pair(b->y(), b->x()); });
        QStringList texts;
        for (const auto* const button : buttons)
            texts << button->text();
        return texts.join(" ").toStdString();
    }
};

// The entries of a menu, with those of its own menus in brackets.
static std::string Entries(const QWidget& menu) {
    std::string entries;
    for (const QAction* const entry : menu.actions()) {
        entries += (entry->isSeparator() ? "-" : entry->text().toStdString()) + " ";
        if (!entry->menu()) continue;
        EXPECT_EQ(entry->menu()->parent(), &menu) << "Wayland opens no such menu";
        entries += "(" + Entries(*entry->menu()) + ") ";
    }
    entries.pop_back();
    return entries;
}

TEST_F(WindowTest, ButtonsAndMenusAreInTheirPlaces) {
    EXPECT_EQ(Buttons("fraNumPad"), "1 2 3 4 5 6 7 8 9 C 0 X");
    EXPECT_EQ(Buttons("fraAction"), "> >I S < << F I");
    EXPECT_EQ(Widget("lblWinner").toolTip(), "winner");
    EXPECT_EQ(Entries(MenuBar()), "File (Import Export - Quit) Edit (Clear (Free All) "
                                  "Lock All (Set Clear)) View (Freedom - Groups Neighbours) "
                                  "? (About)");
    EXPECT_TRUE(form->isLeftToRight());
    EXPECT_FALSE(form->windowIcon().isNull());
}

TEST_F(WindowTest, AQuestionIsAnsweredByButtonsAndKeys) {
    At(1).SetValue(5);
    TELLS(Click("mnuEditClearAll", "No"), "Box(Velmora Sudoku Solver|Clear All?|?)");
    Click("mnuEditClearAll", "Esc");
    EXPECT_EQ(Grid(), "1;5;0");
    Click("mnuEditClearAll", "Return");
    EXPECT_EQ(Grid(), "");
}

TEST_F(WindowTest, OnlyFilesThatExistAreOpened) {
    Write("good.csv", "Index;Value;Locked|1;5;1");
    Write("plain", "Index;Value;Locked|2;5;1");
    Click("mnuFileImportCSV", folder + "missing.csv");
    EXPECT_EQ(window.lblFile.Caption(), "");
    Click("mnuFileImportCSV", folder + "plain");
    EXPECT_EQ(Grid(), "2;5;1");
    // The extension is added to a name without one.
    Click("mnuFileImportCSV", folder + "good");
    EXPECT_EQ(Grid(), "1;5;1");
}

TEST_F(WindowTest, ASavedFileGetsAnExtensionAndNeedsAFolder) {
    At(1).SetValue(5);
    Write("plain", "mine");
    TELLS(Click("mnuFileExportCSV", folder + "no/new.csv"),
          "Export File Box(Export File|no\nThis folder does not exist.|-)");
    for (const char* const name : {"new", "plain"})
        Click("mnuFileExportCSV", folder + name);
    EXPECT_EQ(Read("new.csv"), "Index;Value;Locked|1;5;0");
    EXPECT_EQ(Read("plain"), "mine");
    EXPECT_EQ(Read("plain.csv"), "Index;Value;Locked|1;5;0");
    TELLS(Click("mnuFileExportCSV", folder + QString(150, u'ä').toStdString()),
          "Export File Box(Export File|This file name is too long.|-)");
}

TEST_F(WindowTest, FileNamesOfAllKinds) {
    At(1).SetValue(5);
    const std::string path = folder + "Rätsel für \"Größe\"' 数独.csv";
    Click("mnuFileExportCSV", path);
    Load("");
    Click("mnuFileImportCSV", path);
    EXPECT_EQ(Grid(), "1;5;0");
}

TEST_F(WindowTest, TheNameTypedCountsWhateverTheListHasSelected) {
    qputenv("HOME", folder.c_str());
    QDir(folder.c_str()).mkdir("f");
    const std::string path = Write("f/a.csv", "Index;Value;Locked|1;5;1");
    // For the second the dialog lists the folder that the path leads to.
    for (const std::string& typed : {path, path, std::string("~/f/a.csv")}) {
        Load("");
        Click("mnuFileImportCSV", typed);
        EXPECT_EQ(Grid(), "1;5;1");
    }
}

TEST_F(WindowTest, ADialogOpensWhereTheFileIsAndOnlyChooses) {
    Import("1;5;1");
    QDir(folder.c_str()).mkdir("f");
    for (const char* const command : {"mnuFileExportCSV", "mnuFileImportCSV"}) {
        Meanwhile([&] {
            QFileDialog& dialog = Dialog();
            EXPECT_EQ(dialog.directory().path().toStdString() + "/", folder);
            EXPECT_EQ(dialog.nameFilters().join("; "),
                      "CSV Dokumente (*.csv) (*.csv); Alle Dateien (*.*) (*)");
            auto& list = *dialog.findChild<QTreeView*>("treeView");
            const QPoint first(40, 9);
            EXPECT_TRUE(QTest::qWaitFor([&] { return list.indexAt(first).data() == "f"; }));
            QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, first);
            Key("Delete");
            Key("F2");
            EXPECT_FALSE(list.findChild<QLineEdit*>() || list.dragEnabled());
            for (const char* const action : {"qt_delete_action", "qt_rename_action"})
                EXPECT_FALSE(dialog.findChild<QAction*>(action)->isVisible());
            // Opens the folder that is selected.
            ClickAt(*dialog.findChild<QPushButton*>(), {5, 5});
            EXPECT_EQ(dialog.directory().dirName(), "f");
        });
        Click(command);
    }
    EXPECT_TRUE(QDir(qEnvironmentVariable("XDG_CONFIG_HOME")).isEmpty());
}

TEST_F(WindowTest, ABoxOfAViewLiesBesideTheGrid) {
    form->move(40, 0);
    Meanwhile([&] {
        const QWidget& last = Widget("lblField(81)");
        const int gridEnd = last.mapToGlobal(last.rect().bottomRight()).x();
        const QWidget& box = *QApplication::activeModalWidget();
        EXPECT_GT(box.x(), gridEnd);
        EXPECT_EQ(box.size(), box.maximumSize());
        EXPECT_FALSE(MenuBar().actions()[0]->menu()->isEnabled());
    });
    QTest::qWait(200); // until the start is over
    form->findChild<QAction*>("mnuViewNeighbours")->trigger();
    // Nobody has made it active.
    EXPECT_TRUE(QTest::qWaitFor([&] { return form->isActiveWindow(); }));
}

// A typed key repeats there, and the name of a folder leads into it.
TEST_F(WindowTest, AKeyMayBeHeldInADialogAndAFolderIsEntered) {
    Meanwhile([&] {
        QFileDialog& dialog = Dialog();
        auto& name = *dialog.findChild<QLineEdit*>("fileNameEdit");
        dialog.setDirectory(QString::fromStdString(folder));
        Down(1000, "7");
        Repeat(1600, "7");
        EXPECT_EQ(name.text(), "77");
        name.setText("..");
        Key("Return");
        EXPECT_EQ(dialog.directory().path().toStdString() + "/", testing::TempDir());
        EXPECT_EQ(name.text(), "");
        // ESC might only close a list of names.
        dialog.reject();
    });
    Click("mnuFileExportCSV");
}

TEST_F(WindowTest, TheWindowHasTheSizeOfItsColumns) {
    const QSize narrow = form->frameSize();
    // Twips, 15 to a pixel. First grid, number pad and margins, then the side column with its gap.
    EXPECT_NEAR(narrow.width(), 8850 / 15, 2);
    EXPECT_EQ(narrow.height(), 7170 / 15);
    // A wrong state: jwm sets it for a large window.
    if (QApplication::platformName() == "xcb")
        form->windowHandle()->setWindowStates(Qt::WindowFullScreen);
    // As with a thinner frame: the edge of the side column would show.
    window.SetWidth(window.Width() + 90);
    EXPECT_FALSE(Widget("fraInfo").isVisible());
    window.SetWidth(window.Width() - 90);
    Click("btnInfo");
    EXPECT_EQ(form->frameSize(), narrow + QSize(2775 / 15, 0));
    EXPECT_EQ(form->minimumSize(), form->maximumSize());
    EXPECT_EQ(Widget("lblField(81)").geometry(), QRect(360, 368, 40, 40));
}

TEST_F(WindowTest, AReturnRepaintsUnlessFromAnOwnBox) {
    Meanwhile([&] { Load("81;3;0"); });
    Click("lblDeadEnd");
    EXPECT_EQ(Seen({81}), ".");
    QWidget other;
    other.show();
    other.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&other));
    Activate();
    EXPECT_EQ(Seen({81}), "3");
}

// A screen reader tells the name of the control that gets the focus, and a new name only where the
// focus is: during the pauses of a solve, too, that is the current field.
TEST_F(WindowTest, AFieldIsCurrentBeforeItGetsTheFocusAndReadersMayPressIt) {
    const auto look = [](auto* /*old*/, auto* field) {
        EXPECT_TRUE(!field || field->accessibleName().endsWith(", current"));
    };
    QObject::connect(qApp, &QApplication::focusChanged, form, look);
    platform.EachPump = [=, this] { look(form, form->focusWidget()); };
    FullBut({1, 11, 21});
    Click("btnInfo");
    Pace("100");
    Click("btnSolve");
    Key("Right");
    Click(40);
    auto* const spoken = QAccessible::queryAccessibleInterface(&Widget("lblField(2)"));
    spoken->actionInterface()->doAction(spoken->actionInterface()->actionNames().first());
    EXPECT_EQ(grid.Index(), 2);
}

TEST_F(WindowTest, AFieldCanBeReadInEveryColourAndTheme) {
    grid.SetIndex(12);
    At(12).SetValue(8);
    for (const QColor theme : {QColor(239, 239, 239), QColor(49, 54, 59)}) {
        QApplication::setPalette(theme);
        for (const Color color : {WindowBackground, Red, Green, Yellow}) {
            window.lblField(12).SetBackColor(color);
            Focus("btnInfo");
            const QImage field = Picture("lblField(12)");
            EXPECT_EQ(field.pixelColor(0, 20), qt::LineColor()) << "no border";
            EXPECT_EQ(field.pixelColor(3, 3), qt::ToQt(color));
            const bool isDark =
                color == Red || (color == WindowBackground && theme.lightness() < 99);
            const QColor digit = isDark ? Qt::white : Qt::black;
            EXPECT_TRUE(Has(field.copy(10, 1, 20, 38), digit)) << color;
            EXPECT_FALSE(Has(field.copy(1, 1, 8, 38), digit)) << "not in the middle";
            Focus("lblField(12)");
            const QImage frame = Picture("lblField(12)").copy(1, 1, 4, 38);
            EXPECT_TRUE(Has(frame, Qt::white) && Has(frame, Qt::black)) << color;
        }
    }
    QApplication::setPalette({});
    EXPECT_EQ(qt::TextColor(Red, Green), QColor(Qt::red)) << "a locked value";
}

TEST_F(WindowTest, EachMoveOfASolveIsSeenBeforeTheNext) {
    FullBut({1, 11, 21, 31, 41, 51});
    Eye eye;
    QWidget* changed = nullptr;
    const auto look = [&](int field) {
        EXPECT_TRUE(!changed || eye.Painted.contains(changed)) << "when " << field << " changed";
        changed = &Widget("lblField(" + std::to_string(field) + ")");
        changed->installEventFilter(&eye);
        eye.Painted.clear();
    };
    const auto moves = game.Events.IndexChanged.Connect(look);
    const auto values = game.Events.StatusChanged.Connect(look);
    TELLS(Click("btnSolve"), "+1 +11 +21 +31 +41 +51");
    EXPECT_TRUE(eye.Painted.contains(changed));
    // What looks the same is not painted again.
    eye.Painted.clear();
    window.RefreshAll();
    platform.PumpEvents(Pump::Now);
    EXPECT_TRUE(eye.Painted.isEmpty());
}

// The user and the timers wait until it has ended: a tick of the rotor would pump.
TEST_F(WindowTest, ASleepOnlyPaints) {
    platform.ReallySleeps = true;
    platform.TellsPumps = true;
    window.ctlRotor1.SetRunning(true);
    QWidget& field = Widget("lblField(40)");
    QCursor::setPos(0, 0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !field.underMouse(); }));
    Eye eye;
    field.installEventFilter(&eye);
    field.update();
    QCursor::setPos(field.mapToGlobal(QPoint(9, 9)));
    TELLS(platform.Sleep(100), "");
    EXPECT_TRUE(eye.Painted.contains(&field));
    EXPECT_FALSE(field.underMouse());
    platform.PumpEvents(Pump::Now);
    EXPECT_TRUE(field.underMouse());
    // Timers tick in a pump of what the sleep runs: that of this timer, and of the tick.
    QTimer::singleShot(0, form, [&] { platform.PumpEvents(Pump::Now); });
    TELLS(platform.Sleep(20), "(2)");
}

TEST_F(WindowTest, AllLinesOfTheInformationAreWholeInAHighFont) {
    window.lblInfo.SetFont({.Size = 8.25F});
    // Ten texts; the free values need two lines.
    EXPECT_EQ(Lines(Picture("lblInfo")), 11);
}

TEST_F(WindowTest, APathThatIsTooLongIsShortenedAndHasATip) {
    QWidget& label = Widget("lblFile");
    const auto tip = [&] {
        QHelpEvent help(QEvent::ToolTip, {5, 5}, label.mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(&label, &help);
        return QToolTip::text().remove(QRegularExpression("<.*?>")).toStdString();
    };
    // Narrower, as with a thick frame: the client ends before the label.
    window.SetWidth(window.Width() - 300);
    const int seen = label.parentWidget()->width() - label.x();
    QString path = "/";
    while (label.fontMetrics().horizontalAdvance(path) <= seen)
        path += "a/";
    window.lblFile.SetCaption(path.toStdString());
    Click("btnInfo");
    // The side column is shown, so there is room for the path.
    EXPECT_EQ(tip(), "");
    Click("btnInfo");
    EXPECT_EQ(tip(), path.toStdString());
    const QImage shown = label.grab().toImage();
    path = label.fontMetrics().elidedText(path, Qt::ElideMiddle, seen);
    window.lblFile.SetCaption(path.toStdString());
    EXPECT_EQ(label.grab().toImage(), shown);
}

// A view that sleeps, a question and a file dialog.
INSTANTIATE_TEST_SUITE_P(Commands, WindowTest,
                         testing::Values("mnuViewGroups", "mnuEditClearAll", "mnuFileImportCSV"));

TEST_P(WindowTest, TheProgramEndsSoonWhenClosedInACommand) {
    platform.ReallySleeps = true;
    QElapsedTimer sinceClose;
    Meanwhile([&] {
        form->close();
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
        sinceClose.start();
    });
    Load("1;5;0");
    QTimer::singleShot(1, form, [this] { Click(GetParam()); });
    QApplication::exec();
    // The view alone would sleep for 1000.
    EXPECT_LT(sinceClose.elapsed(), 900);
    // The question was not answered, and none is asked any more.
    EXPECT_EQ(Grid(), "1;5;0");
    TELLS(platform.ShowMessage({}), "");
}

} // namespace tessarin
