// What mouse and keys do to the controls.
#include "QtFixture.h"

namespace tessarin {

using InputTest = QtFixture;

TEST_F(InputTest, EachLeftClickAnswersOnce) {
    EXPECT_TRUE(Widget("optChill(1)").property("checked").toBool());
    QWindow* const top = form->windowHandle();
    const QPoint field = Widget("lblField(40)").mapTo(form, QPoint(9, 9));
    Script("click btnInfo & record & click optChill(3) > pace 3 & click optChill(3) > pace 3");
    QTest::mouseClick(top, Qt::RightButton, {}, field);
    QTest::mousePress(top, Qt::LeftButton, {}, field);
    QTest::mouseRelease(top, Qt::RightButton, {}, field);
    QTest::mouseRelease(top, Qt::LeftButton, {}, {9, 99});
    QTest::mouseDClick(top, Qt::LeftButton, {}, field);
    Click(Widget("optChill(2)"), {56, 16}); // its whole rectangle answers
    EXPECT_EQ(mRecorder.Told, "field 40 field 40 pace 2 ");
}

TEST_F(InputTest, AViewDisablesEvenAnOpenMenu) {
    for (const bool running : {true, false}) {
        Click(MenuBar(), {10, 5});
        auto& menu = dynamic_cast<QMenu&>(*QApplication::activePopupWidget());
        window.SetViewRunning(running);
        Click(menu, menu.actionGeometry(menu.actions().last()).center());
        EXPECT_EQ(form->isVisible(), running);
        EXPECT_EQ(menu.isEnabled(), !running);
        menu.close();
        if (running) Script("menu mnuFileQuit > shut");
        window.SetViewRunning(false);
    }
}

TEST_F(InputTest, ArrowsMoveFromTheCurrentField) {
    Script(R"(
        focus > lblField(1) & index 41 & key Left & cursor > 40 & focus > lblField(40)
        index 41 & key Right & cursor > 42 & key Num+Down & cursor > 51 & key Up & cursor > 42
        key Home & cursor > 37 & key End & cursor > 45 & key Right & cursor > 45
        key Ctrl+Home & cursor > 1 & key Up & cursor > 1 & key Left & cursor > 1
        key Ctrl+Right & cursor > 1 & key Ctrl+End & cursor > 81 & key Down & cursor > 81
        focus > lblField(81) & key Shift+Left & cursor > 81
        record & key Space > field 81 & key Enter > field 81 & key Up > field 72
    )");
}

TEST_F(InputTest, ACharacterClicksTheButtonWithThisCaption) {
    Script(R"(
        click btnInfo & key 5 & is > |1;5;0 & to btnSolve & key 4 & is > |1;4;0
        to optChill(1) & key Num+7 & is > |1;7;0 & to lblField(1)
        key Ctrl+3 & key Alt+3 & key Meta+F & is > |1;7;0 & key F & is > |1;8;0
        key Shift+F & is > |1;9;0 & key X & is > |1;9;1 & key C & is > |1;9;1 & key X
        key C & is > & set 2 6 & key 6 & is > |2;6;0
        index 81 & key Shift+> & cursor > 1 & key Alt & key 4 & is > |2;6;0 & index 3 & key Alt & focus > lblField(3)
    )");
    QKeyEvent repeat(QEvent::KeyPress, Qt::Key_3, {}, "3", true);
    QApplication::sendEvent(form->windowHandle(), &repeat);
    WhileOpen = [&](QDialog&) { Key("4"); };
    Script("answer OK & click lblDeadEnd & is > |2;6;0");
}

TEST_F(InputTest, TabVisitsThePanelsAndStopsOnceInTheGrid) {
    mCommands["tabs"] = [this](int count, auto&) {
        for (int i = 0; i < count; ++i, Key("Tab"))
            Tell(Do("focus"));
    };
    Script(R"(
        click btnInfo & index 12 & to lblField(12)
        tabs 12 > lblField(12) btnNumPad(1) btnNumPad(2) btnNumPad(3) btnNumPad(4) btnNumPad(5) btnNumPad(6) btnNumPad(7) btnNumPad(8) btnNumPad(9) btnNumPad(11) btnNumPad(0)
        tabs 11 > btnNextFree btnNextFreeAuto btnSolve btnGoBack btnGoBackToFreedom btnNextFreeValue lblDeadEnd btnInfo optChill(1) lblField(12) btnNumPad(1)
        to lblDeadEnd & answer OK & key Space & activate & answer OK & key Return & activate
        record & to optChill(1) & key Down > pace 2 & to btnInfo & key Return & tabs 2 > btnInfo lblField(12)
    )");
}

TEST_F(InputTest, TheFocusComesBack) {
    for (const std::string place : {"lblField(1)", "btnSolve", "btnInfo"})
        Script("to " + place + " & menu mnuFile & key Esc & focus > " + place +
               " & answer OK & menu mnuAbout & focus > " + place + " & activate");
    // The entry of a value hides its key.
    Script("to btnNumPad(5) & key Space & focus > btnNumPad(6) & key C & focus > btnNumPad(5)");
    // After a solve, unless the user has gone to the grid while the panels were disabled.
    for (const std::string move : {"left", "key Left", "click lblField(5)"}) {
        const auto step = game.Events.StatusChanged.Connect([&](int) { Do(move); });
        Script("import nearly-complete.csv & activate & to btnSolve & key S");
        EXPECT_EQ(Do("focus").substr(0, 8), move == "left" ? "btnSolve" : "lblField") << move;
    }
}

} // namespace tessarin
