// The window: size, menus, what a screen reader hears, activation and closing.
#include "QtFixture.h"

namespace tessarin {

class WindowTest : public QtFixture, public testing::WithParamInterface<const char*> {};

TEST_F(WindowTest, ControlsLieAtTheirPlaces) {
    const auto place = [this](const char* name) { return Widget(name).geometry(); };
    EXPECT_EQ(place("lblField(81)"), QRect(360, 368, 40, 40));
    EXPECT_EQ(place("btnNumPad(10)"), QRect(110, 160, 40, 40));
    EXPECT_EQ(place("lblInfo"), QRect(16, 24, 137, 177));
    EXPECT_EQ(place("ctlRotor1"), QRect(17, 17, 32, 32));
    EXPECT_EQ(Widget("btnSolve").toolTip(), "solve the sudoku");
    EXPECT_EQ(Widget("btnSolve").font().pixelSize(), 19);
    EXPECT_EQ(Widget("lblField(1)").parentWidget()->pos(),
              MenuBar().geometry().bottomLeft() + QPoint(0, 1));
}

TEST_F(WindowTest, MenusHaveTheirEntries) {
    std::string entries;
    for (const QMenu* const menu : MenuBar().findChildren<QMenu*>()) {
        if (menu->title().isEmpty()) continue; // Qt's own
        entries += menu->title().toStdString() + ":";
        for (const QAction* const action : menu->actions())
            entries += (action->isSeparator() ? "|" : action->text().toStdString()) + " ";
    }
    EXPECT_EQ(entries, "File:Import Export | Quit Edit:Clear Lock All Clear:Free All "
                       "Lock All:Set Clear View:Freedom | Groups Neighbours ?:About ");
}

TEST_F(WindowTest, TheWindowIsAsWideAsItsColumnsAndItsBorderIsFixed) {
    const QSize narrow = form->frameSize();
    EXPECT_NEAR(narrow.width(), 8850 / 15, 2); // a thin frame leaves an empty strip
    EXPECT_EQ(narrow.height(), 7170 / 15);
    Do("click btnInfo");
    EXPECT_EQ(form->frameSize(), narrow + QSize(2775 / 15, 0));
    EXPECT_TRUE(Widget("fraInfo").isVisible() && Widget("fraChill").isVisible());
    Do("click btnInfo");
    EXPECT_EQ(form->frameSize(), narrow);
    EXPECT_FALSE(Widget("fraInfo").isVisible() || Widget("fraChill").isVisible());
    EXPECT_EQ(form->minimumSize(), form->maximumSize());
    EXPECT_FALSE(form->windowFlags() & Qt::WindowMinMaxButtonsHint);
    EXPECT_FALSE(form->windowIcon().isNull());
}

TEST_F(WindowTest, AReturnFromAnotherWindowActivatesButNotFromAnOwnBox) {
    Do("click lblDeadEnd > Box(Velmora Sudoku Solver|Dead cells = 0|- OK)");
    QWidget other;
    other.show();
    other.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&other));
    Do("activate > Activated");
}

TEST_F(WindowTest, ScreenReadersHearTheNewNameAndPressFields) {
    QWidget& field = Widget("lblField(2)");
    QObject::connect(qApp, &QApplication::focusChanged, &field, [&] {
        EXPECT_EQ(field.accessibleName().toStdString(), "row 1, column 2: empty, current");
    });
    Do("key Right & focus > lblField(2)");
    auto* const spoken = QAccessible::queryAccessibleInterface(&field);
    ASSERT_NE(spoken->actionInterface(), nullptr);
    Do("click lblField(40)");
    spoken->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    Do("cursor > 2");
    auto* const panel = QAccessible::queryAccessibleInterface(&Widget("fraNumPad"));
    EXPECT_EQ(panel->role(), QAccessible::Grouping);
}

// A view that sleeps, a question and a file dialog.
INSTANTIATE_TEST_SUITE_P(Commands, WindowTest,
                         testing::Values("mnuViewGroups", "mnuEditClearAll", "mnuFileImportCSV"));

TEST_P(WindowTest, TheProgramEndsSoonWhenClosedInACommand) {
    platform.ReallySleeps = true;
    QElapsedTimer sinceClose;
    const auto close = [&] {
        if (form->close() && !sinceClose.isValid()) sinceClose.start();
    };
    platform.Meanwhile = close;
    platform.EachPump = [&] {
        if (window.lblField(1).BackColor() == 0xFFFF) close();
    };
    QTimer::singleShot(
        1, form, [this] { Do(std::string("csv Index;Value;Locked|1;5;0 & click ") + GetParam()); });
    QApplication::exec();
    EXPECT_LT(sinceClose.elapsed(), 900);
    EXPECT_FALSE(form->isVisible());
    Do("is > |1;5;0"); // the question was not answered
}

TEST_F(WindowTest, ThePlatformOutlivesItsForm) {
    {
        qt::QtPlatform machine;
        qt::QtToolkit kit(machine);
        frmTessarin(kit).Show();
        EXPECT_EQ(&Platform::Current(), &machine);
        EXPECT_EQ(machine.ShowMessage({.Prompt = "without a window"}), Message::Answer::Ok);
    }
    EXPECT_EQ(Platform::Current().ProgramFolder(), ".") << "no platform is current";
}

} // namespace tessarin
