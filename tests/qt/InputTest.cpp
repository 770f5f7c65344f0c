// SPDX-License-Identifier: MIT
// What mouse and keys do to the controls, also during an automatic solve. The fixture looks at
// window and keyboard after each step.
#include "QtFixture.h"

namespace tessarin {

using InputTest = QtFixture;

TEST_F(InputTest, EachLeftClickAnswersOnce) {
    Click("btnInfo");
    TellClicks();
    // Selected already.
    TELLS(Pace("0"), "optChill(1)");
    const std::string field = "lblField(40)";
    const auto mouse = [&](QTest::MouseAction action, const std::string& control,
                           Qt::MouseButton button = Qt::LeftButton) {
        const QPoint place = Widget(control).mapTo(form, QPoint(9, 9));
        QTest::mouseEvent(action, form->windowHandle(), button, {}, place);
    };
    TELLS(mouse(QTest::MouseClick, field, Qt::RightButton), "");
    Focus("btnSolve");
    mouse(QTest::MousePress, field);
    // Beside it.
    TELLS(mouse(QTest::MouseRelease, "lblField(41)"), "");
    mouse(QTest::MousePress, field);
    TELLS(mouse(QTest::MouseClick, field, Qt::RightButton), "");
    EXPECT_EQ(Focused(), "btnSolve");
    TELLS(mouse(QTest::MouseRelease, field), field);
    TELLS(mouse(QTest::MouseDClick, field), field + " " + field);
    // A screen reader hears only of the field that the click makes the current one.
    Focus("btnSolve");
    window.lblField(40).Click = [&] { EXPECT_EQ(Focused(), "btnSolve"); };
    Click(40);
}

TEST_F(InputTest, ArrowsMoveFromTheCurrentField) {
    grid.SetIndex(41);
    const std::pair<const char*, int> moves[] = {
        {"Left", 40},  {"Num+Down", 49}, {"Home", 46}, {"Up", 37},       {"End", 45},
        {"Right", 45}, {"Ctrl+Home", 1}, {"Up", 1},    {"Ctrl+End", 81}, {"Shift+Left", 81}};
    for (const auto& [key, field] : moves) {
        Key(key);
        EXPECT_EQ(grid.Index(), field) << key;
    }
}

TEST_F(InputTest, KeysClickTheControlsThatCanBeClicked) {
    TellClicks();
    At(1).SetValue(5);
    // Now the key 6 is hidden.
    At(2).SetValue(6);
    const std::pair<const char*, const char*> clicks[] = {{"Space", "lblField(1)"},
                                                          {"Enter", "lblField(1)"},
                                                          {"Num+7", "btnNumPad(7)"},
                                                          {"Ctrl+7", ""},
                                                          {"6", ""},
                                                          {"X", "btnNumPad(10)"},
                                                          {"Delete", "btnNumPad(11)"},
                                                          {"Num+Del", "btnNumPad(11)"},
                                                          {"Backspace", "btnNumPad(11)"},
                                                          {"Shift+>", "btnNextFree"},
                                                          {"F", "btnNextFreeValue"},
                                                          {"PgDown", "btnNextFreeAuto"},
                                                          {"PgUp", "btnGoBackToFreedom"},
                                                          {"Ctrl+O", "mnuFileImportCSV"},
                                                          {"Ctrl+S", "mnuFileExportCSV"},
                                                          {"Ctrl+Q", "mnuFileQuit"}};
    for (const auto& [key, control] : clicks)
        EXPECT_EQ(Told([this, key = key] { Key(key); }), control) << key;
    At(1).SetLocked(true);
    TELLS(Key("C"), "");
}

TEST_F(InputTest, ACharacterInABoxOrAMenuClicksNoButton) {
    Meanwhile([&] { Key("4"); });
    Click("lblDeadEnd");
    Key("Alt");
    Key("4");
    Key("Down");
    Key("4");
    Key("Esc");
    EXPECT_EQ(Grid(), "");
}

TEST_F(InputTest, AHeldKeyClicksOnceButArrowsGoOn) {
    TellClicks();
    Focus("btnInfo");
    Down(1000, "Space");
    TELLS(Repeat(1600, "Space"), "btnInfo");
    TELLS(Repeat(1640, "Space"), "");
    TELLS(Up(1650, "Space"), "");
    TELLS(Key("Return"), "btnInfo");
    TELLS(Down(2000, "PgDown"), "btnNextFreeAuto");
    TELLS(Repeat(2600, "PgDown"), "");
    Focus("lblField(1)");
    const auto hold = [&](const char* arrow, const char* field) {
        TELLS(Down(4000, arrow), field);
        TELLS(Repeat(4600, arrow), field);
    };
    hold("Right", "lblField(2)");
    hold("Down", "lblField(10)");
}

// The release of a key is lost if a box opens or closes while it is down.
TEST_F(InputTest, EveryPressCountsWithoutARelease) {
    Focus("lblDeadEnd");
    Meanwhile([&] {
        Down(1300, "Return");
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
        TellClicks();
        TELLS(Down(1500, "Return"), "lblDeadEnd");
        TELLS(Repeat(2100, "Return"), "");
        TELLS(Down(2101, "Return"), "lblDeadEnd");
    });
    Down(1000, "Return");
}

// The fixture expects that it comes to the grid and stays there.
TEST_F(InputTest, AButtonThatEndsItselfGivesTheKeyboardBack) {
    Focus("btnNumPad(6)");
    // Hides this key.
    Key("Space");
    Focus("btnNumPad(0)");
    Key("X");
    Key("X");
    // The solve has the keyboard wait for a key that it hides.
    FullBut({1});
    Focus("btnNumPad(1)");
    Key("S");
    Key("C");
}

TEST_F(InputTest, AfterASolveTheFocusComesBackUnlessTheUserHasMovedIt) {
    Click("btnInfo");
    const auto afterSolve = [&](const std::function<void()>& meanwhile) {
        FullBut({1, 11, 21});
        Focus("btnSolve");
        Meanwhile(meanwhile);
        Down(1000, "Space");
        Up(1100, "Space");
        return Focused();
    };
    const auto lookAround = [&] {
        Click("mnuAbout");
        EXPECT_NE(Picture("lblField(1)").pixelColor(2, 2), Qt::white) << "a ring in the grid";
    };
    EXPECT_EQ(afterSolve(lookAround), "btnSolve");
    // In the grid, where the last move has led.
    EXPECT_EQ(afterSolve([&] { Click(5); }), "lblField(21)");
    EXPECT_EQ(afterSolve([&] { Key("Right"); }), "lblField(21)");
    EXPECT_EQ(afterSolve([&] { Focus("optChill(1)"); }), "optChill(1)");
    const auto leaveAndReturn = [&] {
        Key("Tab");
        Key("Shift+Tab");
    };
    EXPECT_EQ(afterSolve(leaveAndReturn), "lblField(21)");
    QWidget other;
    other.show();
    EXPECT_EQ(afterSolve([&] { other.activateWindow(); }), "btnSolve");
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

TEST_F(InputTest, AltWithAClickOrAKeyOrAtTheEndIsNoTapOnAlt) {
    Down(9000, "Alt");
    Click(5);
    Up(9100, "Alt");
    EXPECT_EQ(Focused(), "lblField(5)");
    Down(9200, "Alt");
    Down(9210, "4");
    Up(9300, "Alt");
    EXPECT_EQ(Focused(), "lblField(5)");
    FullBut({1, 11});
    Meanwhile([&] {
        Down(9500, "Alt");
        // By Alt+F4, of which some desktops keep the F4. The solve refuses.
        form->close();
        Up(9600, "Alt");
        EXPECT_EQ(Focused(), "lblField(1)");
    });
    Click("btnSolve");
    EXPECT_TRUE(form->isVisible());
}

TEST_F(InputTest, KeysOpenTheMenus) {
    // From its first entry again, although a box has been open.
    for (int i = 0; i < 2; ++i) {
        Key("Alt+V");
        TELLS(Key("Return"), "Box(Velmora Sudoku Solver|Freedoms of fields|-)");
    }
    TellClicks();
    Key("Alt");
    Key("Down");
    TELLS(Key("Return"), "mnuFileImportCSV");
    Key("Alt+E");
    // "Lock All" is the last entry, "Set" its first one.
    Key("Up");
    Key("Right");
    TELLS(Key("Return"), "mnuEditLockAllSet");
    Key("Alt+Shift+?");
    TELLS(Key("Return"), "mnuAbout");
    const auto bar = [&] { return form->findChild<QMenuBar*>()->grab().toImage(); };
    const QImage plain = bar();
    Key("F10");
    EXPECT_NE(bar(), plain) << "the keyboard is not seen there";
    Key("F10");
    EXPECT_EQ(Focused(), "lblField(1)");
    // Always from the first menu.
    PointAtMenu("Edit");
    Key("F10");
    Key("Down");
    TELLS(Key("Return"), "mnuFileImportCSV");
}

TEST_F(InputTest, AHeldTabGoesThroughThePanelsRowByRow) {
    At(1).SetValue(5);
    QStringList captions;
    Down(1000, "Tab");
    for (int time = 1500; time < 1519; ++time) {
        captions << form->focusWidget()->property("text").toString();
        Repeat(time, "Tab");
    }
    // "DeadEnd" has no text. The side column is hidden, and so is the 5.
    EXPECT_EQ(captions.join(" "), "1 2 3 4 6 7 8 9 C 0 X > >I S < << F  I");
    EXPECT_EQ(Focused(), "lblField(1)");
    Click("btnInfo");
    Key("Shift+Tab");
    EXPECT_EQ(Focused(), "optChill(1)");
    Pace("200");
    Pace("0");
    Click(12);
    Key("Shift+Tab");
    EXPECT_EQ(Focused(), "optChill(1)");
    Key("Tab");
    EXPECT_EQ(Focused(), "lblField(12)");
}

// The fixture expects that no ESC has asked for an end.
TEST_F(InputTest, AnEscThatClosesSomethingDoesNotAsk) {
    At(1).SetValue(5);
    Key("Alt+E");
    Key("Right");
    // Closes the submenu alone: the next keys go to its menu.
    Key("Esc");
    Key("Right");
    platform.Answers = {"Esc"};
    TELLS(Key("Return"), "Box(Velmora Sudoku Solver|Clear Free?|?)");
    EXPECT_EQ(Grid(), "1;5;0");
    Click("mnuFileExportCSV", "Esc");
    Key("Alt");
    Key("Esc");
}

TEST_F(InputTest, APressOfEscCountsOnce) {
    Down(1000, "Esc");
    EXPECT_TRUE(platform.EscPressed());
    Repeat(1600, "Esc");
    EXPECT_FALSE(platform.EscPressed());
    PointAtMenu("Edit");
    Down(1900, "Esc");
    Up(1910, "Esc");
    EXPECT_TRUE(platform.EscPressed());
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
    // "Yes" ends the solve.
    TELLS(Click("btnSolve", "Return"), "Box(ESC gedrückt|Abbrechen?|-)");
    EXPECT_NE(grid.FreeCount(), 0);
}

TEST_F(InputTest, TheRotorTurnsInThePausesOfASolveThatBeginsInATick) {
    platform.ReallySleeps = true;
    int turns = 0;
    QImage shown;
    bool begins = false, solved = false;
    platform.EachPump = [&] {
        const QImage picture = Picture("ctlRotor1");
        turns += std::exchange(shown, picture) == picture ? 0 : 1;
        if (!std::exchange(begins, false)) return;
        Click("btnSolve");
        solved = true;
    };
    FullBut({1, 11, 21});
    Click("btnInfo");
    Pace("100");
    QElapsedTimer time;
    time.start();
    window.ctlRotor1.SetRunning(true);
    // The first tick of the rotor pumps, and the solve begins in there.
    begins = true;
    EXPECT_TRUE(QTest::qWaitFor([&] { return solved; }));
    // Seven fields are painted, each with a pause.
    EXPECT_GE(turns, 7);
    EXPECT_GE(time.elapsed(), 600);
}

} // namespace tessarin
