// The window: places in pixels, size, menus, texts, what a screen reader finds, activation and
// closing.
#include "QtFixture.h"

namespace tessarin {

class WindowTest : public QtFixture, public testing::WithParamInterface<const char*> {};

TEST_F(WindowTest, ControlsHaveTheirPlacesTextsAndFonts) {
    // Left, top, width and height in pixels, the container, what a screen reader finds, the
    // caption, the tip and the height of the font.
    mCommands["see"] = [this](int, auto& name) {
        QWidget& widget = Widget(name);
        const QRect place = widget.geometry();
        Tell(Text(std::vector{place.left(), place.top(), place.width(), place.height()}));
        Tell(widget.parentWidget()->objectName().toStdString());
        auto* const spoken = QAccessible::queryAccessibleInterface(&widget);
        Tell(spoken->role() == QAccessible::Grouping ? "group" : "");
        for (const QString& text : {spoken->text(QAccessible::Name),
                                    widget.property("text").toString(), widget.toolTip()})
            Tell(text.toStdString());
        Tell(widget.font().pixelSize());
    };
    mCommands["menus"] = [this](int, auto&) {
        for (const QMenu* const menu : MenuBar().findChildren<QMenu*>()) {
            if (menu->title().isEmpty()) continue; // Qt's own
            Tell(menu->title().toStdString(), ":");
            for (const QAction* const action : menu->actions())
                Tell(action->isSeparator() ? "|" : action->text().toStdString());
        }
    };
    Script(R"(
        menus > File: Import Export | Quit Edit: Clear Lock All Clear: Free All Lock All: Set Clear View: Freedom | Groups Neighbours ?: About
        see lblField(1) > 20 28 40 40 row 1, column 1: empty, current 27
        see fraNumPad > 410 28 160 210 group 12 & see lblWinner > 110 110 40 40 fraAction winner: not lit winner 19
        see ctlRotor1 > 17 17 32 32 fraRotor 12 & see optChill(2) > 16 40 57 17 fraChill pause 100 milliseconds 100 ms 10
        see btnNumPad(10) > 110 160 40 40 fraNumPad locke X locke 27 & see btnSolve > 110 10 40 40 fraAction solve the sudoku S solve the sudoku 19
        set 81 5 & see lblField(81) > 360 368 40 40 row 9, column 9: 5 27
        see lblInfo > 16 24 137 177 fraInfo Index=81|Value=5||Freedom=8|FreeValuesList=1;2;3;4;6;7;8;9;||IsCursor=False|IsLocked=False|IsEmpty=False|IsDeadCell=False||Retries=0|DeadCount=0 10
    )");
    EXPECT_EQ(Widget("lblField(1)").parentWidget()->pos(),
              MenuBar().geometry().bottomLeft() + QPoint(0, 1));
    EXPECT_EQ(Widget("btnSolve").font().family(), "Arial");
    EXPECT_EQ(MenuBar().font().pixelSize(), 12);
}

TEST_F(WindowTest, WindowIsAsWideAsItsColumnsAndItsBorderIsFixed) {
    const QSize narrow = form->frameSize();
    EXPECT_NEAR(narrow.width(), 8850 / 15, 2); // a thin frame leaves an empty strip
    EXPECT_EQ(narrow.height(), 7170 / 15);
    for (const bool wide : {false, true, false}) {
        window.SetInfoVisible(wide);
        EXPECT_EQ(form->frameSize(), narrow + QSize(wide ? 2775 / 15 : 0, 0));
        EXPECT_EQ(Widget("fraInfo").isVisible(), wide);
        EXPECT_EQ(Widget("fraChill").isVisible(), wide);
    }
    EXPECT_EQ(form->minimumSize(), form->maximumSize());
    EXPECT_FALSE(form->windowFlags() & Qt::WindowMinMaxButtonsHint);
    EXPECT_FALSE(form->windowIcon().isNull());
}

TEST_F(WindowTest, ReturningFromAnotherWindowActivatesButNotFromAnOwnBox) {
    Script("answer OK & click lblDeadEnd & activate >");
    QWidget other;
    other.show();
    other.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&other));
    Script("activate > Taskbar & busy >");
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
    WhileOpen = [&](QDialog&) { close(); };
    platform.AtPump = [&] {
        if (window.lblField(1).BackColor() == 0xFFFF) close();
    };
    QTimer::singleShot(1, form, [this] { Script(std::string("set 1 5 & menu ") + GetParam()); });
    QApplication::exec();
    EXPECT_LT(sinceClose.elapsed(), 1000);
    Script("busy > closed & is > |1;5;0"); // the question was not answered
}

TEST_F(WindowTest, PumpsAreSkippedOnlyShortlyAfterOthers) {
    int handled = 0, pumps = 0;
    const auto pumped = [&](Pump pump) {
        QTimer::singleShot(0, form, [&] { ++handled; });
        platform.PumpEvents(pump);
        return std::exchange(handled, 0) > 0 ? 1 : 0;
    };
    for (int i = 0; i < 20; ++i) {
        EXPECT_TRUE(pumped(Pump::Now));
        EXPECT_TRUE(pumped(Pump::WhenDue)) << "the first one after it";
    }
    for (int i = 0; i < 800; ++i)
        pumps += pumped(Pump::WhenDue);
    EXPECT_LE(pumps, 100);
    QTest::qSleep(1);
    while (pumped(Pump::WhenDue) == 0)
        EXPECT_LE(++pumps, 110) << "due after a millisecond";
}

TEST_F(WindowTest, ThePlatformOutlivesItsForm) {
    {
        qt::QtPlatform machine;
        qt::QtToolkit kit(machine);
        frmTessarin(kit).Show();
        EXPECT_EQ(&Platform::Current(), &machine);
        Do("answer OK");
        EXPECT_EQ(machine.ShowMessage({.Prompt = "without a window"}), Message::Answer::Ok);
    }
    EXPECT_EQ(Platform::Current().ProgramFolder(), ".") << "no platform is current";
}

} // namespace tessarin
