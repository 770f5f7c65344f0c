// SPDX-License-Identifier: MIT
// What mouse and keys do to the controls, also during an automatic solve.
#include "QtFixture.h"

namespace tessarin {

using InputTest = QtFixture;

TEST_F(InputTest, EachLeftClickAnswersOnce) {
    TellClicks();
    const std::string field = "lblField(40)";
    TELLS(Mouse(QTest::MouseClick, field, Qt::RightButton), "");
    Focus("btnSolve");
    Mouse(QTest::MousePress, field);
    // Beside it.
    TELLS(Mouse(QTest::MouseRelease, "lblField(41)"), "");
    EXPECT_EQ(Focused(), "btnSolve");
    Mouse(QTest::MousePress, field);
    TELLS(Mouse(QTest::MouseClick, field, Qt::RightButton), "");
    TELLS(Mouse(QTest::MouseRelease, field), "field 40");
    TELLS(Mouse(QTest::MouseDClick, field), "field 40 field 40");
    // A screen reader hears only of the field that the click makes the current one.
    Focus("btnSolve");
    window.lblField.Click = [&](int) { EXPECT_EQ(Focused(), "btnSolve"); };
    Click(40);
}

TEST_F(InputTest, ArrowsMoveFromTheCurrentField) {
    grid.SetIndex(41);
    Key("Left");
    EXPECT_EQ(Focused(), "lblField(40)");
    const std::pair<const char*, int> moves[] = {
        {"Num+Down", 49}, {"Home", 46}, {"Up", 37},       {"End", 45},       {"Right", 45},
        {"Ctrl+Home", 1}, {"Up", 1},    {"Ctrl+End", 81}, {"Shift+Left", 81}};
    for (const auto& [key, field] : moves) {
        Key(key);
        EXPECT_EQ(grid.Index(), field) << key;
    }
    TellClicks();
    TELLS(Key("Space"), "field 81");
    TELLS(Key("Enter"), "field 81");
}

TEST_F(InputTest, ACharacterClicksTheButtonWithThisCaption) {
    Key("5");
    EXPECT_EQ(Grid(), "1;5;0");
    Key("Num+7");
    Key("Ctrl+3");
    EXPECT_EQ(Grid(), "1;7;0");
    Key("F");
    Key("X");
    // Is disabled for a locked field.
    Key("C");
    EXPECT_EQ(Grid(), "1;8;1");
    Key("X");
    Key("C");
    At(2).SetValue(6);
    // Is hidden, because 6 stands in the row.
    Key("6");
    EXPECT_EQ(Grid(), "2;6;0");
    grid.SetIndex(81);
    Key("Shift+>");
    EXPECT_EQ(grid.Index(), 1);
}

TEST_F(InputTest, ACharacterInAMenuOrABoxClicksNoButton) {
    Key("Alt");
    Key("4");
    Key("Down");
    Key("4");
    Key("Esc");
    EXPECT_EQ(Focused(), "lblField(1)");
    Meanwhile([&] { Key("4"); });
    Click("lblDeadEnd");
    EXPECT_EQ(Grid(), "");
}

TEST_F(InputTest, AHeldKeyClicksOnceButArrowsGoOn) {
    TellClicks();
    Focus("btnInfo");
    Down(1000, "Space");
    TELLS(Repeat(1600, "Space"), "info");
    TELLS(Repeat(1640, "Space"), "");
    TELLS(Up(1650, "Space"), "");
    TELLS(Key("Return"), "info");
    Focus("lblField(1)");
    TELLS(Down(4000, "Right"), "field 2");
    TELLS(Repeat(4600, "Right"), "field 2");
}

// The release of a key is lost if a box opens or closes while it is down.
TEST_F(InputTest, EveryPressCountsWithoutARelease) {
    Focus("lblDeadEnd");
    Meanwhile([&] {
        Down(1300, "Return");
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
        TellClicks();
        Focus("lblField(1)");
        TELLS(Down(1500, "Return"), "field 1");
        TELLS(Repeat(2100, "Return"), "");
        TELLS(Down(2101, "Return"), "field 1");
    });
    Down(1000, "Return");
}

TEST_F(InputTest, AClickBesideTheGridLeavesTheKeyboardThere) {
    Click("btnNumPad(5)");
    Click("btnInfo");
    Pace("200");
    Click("lblDeadEnd");
    EXPECT_EQ(Focused(), "lblField(1)");
    Focus("btnNumPad(6)");
    // The key hides itself, and gives the keyboard back.
    Key("Space");
    EXPECT_EQ(Focused(), "lblField(1)");
    // For good, if it was disabled.
    Focus("btnNumPad(0)");
    Key("X");
    Key("X");
    EXPECT_EQ(Focused(), "lblField(1)");
}

TEST_F(InputTest, AfterASolveTheFocusComesBackUnlessTheUserHasMovedIt) {
    Click("btnInfo");
    const auto afterSolve = [&](const std::function<void()>& meanwhile) {
        FullBut({1, 11, 21});
        Focus("btnSolve");
        Meanwhile(meanwhile);
        Key("Space");
        return Focused();
    };
    EXPECT_EQ(afterSolve([] {}), "btnSolve");
    // In the grid, where the last move has led.
    EXPECT_EQ(afterSolve([&] { Click(5); }), "lblField(21)");
    EXPECT_EQ(afterSolve([&] { Focus("optChill(1)"); }), "optChill(1)");
    EXPECT_EQ(afterSolve([&] {
                  Key("Tab");
                  Key("Shift+Tab");
              }),
              "lblField(21)");
}

TEST_F(InputTest, AKeyThatIsHiddenAfterASolveDoesNotGetTheFocusLater) {
    FullBut({1});
    Focus("btnNumPad(1)");
    Key("S");
    platform.PumpEvents(Pump::Now);
    const QPoint ring = Widget("lblField(1)").mapTo(form, QPoint(2, 20));
    EXPECT_EQ(form->screen()->grabWindow(form->winId()).toImage().pixelColor(ring), Qt::white);
    Key("C");
    EXPECT_EQ(Focused(), "lblField(1)");
}

TEST_F(InputTest, LeavingTheMenuBarGivesTheFocusBack) {
    Focus("btnNumPad(5)");
    Key("Alt");
    Click("btnInfo");
    EXPECT_EQ(Focused(), "btnNumPad(5)");
    Key("Alt");
    // Now that key is disabled: the grid gets it.
    At(1).SetLocked(true);
    Key("Alt");
    EXPECT_EQ(Focused(), "lblField(1)");
    Key("Alt");
    // Now another field is the current one.
    grid.SetIndex(5);
    Key("Alt");
    EXPECT_EQ(Focused(), "lblField(5)");
}

TEST_F(InputTest, AltWithAClickIsNoTapOnAlt) {
    Down(9000, "Alt");
    Click(5);
    Up(9100, "Alt");
    EXPECT_EQ(Focused(), "lblField(5)");
}

TEST_F(InputTest, CommandsHaveKeys) {
    At(1).SetValue(5);
    Key("Delete");
    EXPECT_EQ(Grid(), "");
    At(1).SetValue(5);
    Key("Backspace");
    EXPECT_EQ(Grid(), "");
    Key("PgDown");
    Trace({1});
    TELLS(Key("Ctrl+O"), "Import File");
    TELLS(Key("Ctrl+S"), "Export File");
    EXPECT_EQ(Grid(), "1;1;0");
    TELLS(Key("PgUp"), "-1");
    Key("Ctrl+Q");
    EXPECT_FALSE(form->isVisible());
}

TEST_F(InputTest, KeysOpenTheMenus) {
    Load("1;5;0");
    Key("Alt");
    Key("Down");
    TELLS(Key("Return"), "Import File");
    Key("Alt+E");
    // "Lock All" is the last entry, "Set" its first one.
    Key("Up");
    Key("Right");
    Key("Return");
    EXPECT_EQ(Seen({1}), "5:green/red");
    // From its first entry again, although a box has been open.
    for (int i = 0; i < 2; ++i) {
        Key("Alt+V");
        TELLS(Key("Return"), "Box(Velmora Sudoku Solver|Freedoms of fields|-)");
    }
    Key("Alt+Shift+?");
    EXPECT_NE(QApplication::activePopupWidget(), nullptr);
    Key("Esc");
    Key("F10");
    EXPECT_TRUE(MenuBar().hasFocus());
    Key("F10");
    EXPECT_EQ(Focused(), "lblField(1)");
}

TEST_F(InputTest, TabStopsOnceInTheGrid) {
    // The side column is hidden.
    Key("Shift+Tab");
    EXPECT_EQ(Focused(), "btnInfo");
    Key("Space");
    Pace("200");
    Pace("0");
    Click(12);
    Key("Tab");
    EXPECT_EQ(Focused(), "btnNumPad(1)");
    Key("Shift+Tab");
    Key("Shift+Tab");
    EXPECT_EQ(Focused(), "optChill(1)");
    Key("Tab");
    EXPECT_EQ(Focused(), "lblField(12)");
    Focus("btnNextFreeValue");
    Key("Tab");
    EXPECT_EQ(Focused(), "lblDeadEnd");
}

TEST_F(InputTest, ASolveDisablesPanelsAndKeepsTheWindow) {
    FullBut({1, 11, 21, 31});
    Meanwhile([&] {
        for (const char* const refused :
             {"btnInfo", "btnGoBack", "lblDeadEnd", "btnNumPad(11)", "mnuFileQuit"})
            TELLS(Click(refused), "");
        EXPECT_FALSE(window.InfoVisible());
        // Some desktops keep the F4 of Alt+F4.
        Down(9000, "Alt");
        form->close();
        Up(9100, "Alt");
        EXPECT_FALSE(MenuBar().hasFocus());
        EXPECT_EQ(grid.FreeCount(), 3);
        Click(5);
        EXPECT_EQ(grid.Index(), 5);
    });
    Click("btnSolve");
    EXPECT_EQ(grid.FreeCount(), 0);
    EXPECT_FALSE(HasHourglass());
    EXPECT_TRUE(form->isVisible());
}

TEST_F(InputTest, ABoxInASolveHasTheUsualPointer) {
    FullBut({1, 11});
    Meanwhile([&] {
        Meanwhile([] { EXPECT_FALSE(HasHourglass()); });
        Click("mnuAbout");
        EXPECT_TRUE(HasHourglass());
    });
    Click("btnSolve");
}

TEST_F(InputTest, AnEscThatClosesSomethingDoesNotAsk) {
    Key("Alt+E");
    Key("Right");
    // Closes the submenu alone: the next keys go to its menu.
    Key("Esc");
    Key("Right");
    platform.Answers = {"Esc"};
    Key("Return");
    Click("mnuFileExportCSV", "Esc");
    Key("Alt");
    Key("Esc");
    EXPECT_FALSE(platform.EscPressed());
}

TEST_F(InputTest, APressOfEscCountsOnce) {
    Down(1000, "Esc");
    EXPECT_TRUE(platform.EscPressed());
    Repeat(1600, "Esc");
    EXPECT_FALSE(platform.EscPressed());
    Down(1900, "Esc");
    Up(1910, "Esc");
    EXPECT_TRUE(platform.EscPressed());
    EXPECT_FALSE(platform.EscPressed());
}

// Neither ESC nor an arrow key, which would go from Yes to No.
TEST_F(InputTest, RepeatsOfAHeldKeyDoNotAnswerAQuestion) {
    FullBut({1, 11});
    Down(1000, "Esc");
    Meanwhile([&] {
        Repeat(1600, "Esc");
        Repeat(1640, "Esc");
        Repeat(1650, "Right");
    });
    TELLS(Click("btnSolve", "Return"), "+1 Box(ESC gedrückt|Abbrechen?|-)");
}

TEST_F(InputTest, TheRotorTurnsInThePausesOfASolveThatBeginsInATick) {
    platform.ReallySleeps = true;
    int shown = -1, turns = 0;
    platform.EachPump = [&] {
        int picture = -1;
        for (int i = 0; i < 12; ++i)
            if (!Widget("Image1(" + std::to_string(i) + ")").isHidden()) picture = i;
        turns += std::exchange(shown, picture) == picture ? 0 : 1;
    };
    FullBut({1, 11, 21});
    Click("btnInfo");
    Pace("100");
    QElapsedTimer time;
    time.start();
    window.ctlRotor1.SetRunning(true);
    // The first tick of the rotor pumps, and the solve begins in there.
    bool solved = false;
    AtPump(1, [&] {
        Click("btnSolve");
        solved = true;
    });
    EXPECT_TRUE(QTest::qWaitFor([&] { return solved; }));
    // Seven fields are painted, each with a pause; at the end no picture is left.
    EXPECT_GE(turns, 7);
    EXPECT_EQ(shown, -1);
    EXPECT_GE(time.elapsed(), 600);
}

} // namespace tessarin
