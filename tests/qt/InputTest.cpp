// What mouse and keys do to the controls.
#include "QtFixture.h"

namespace tessarin {

using InputTest = QtFixture;

TEST_F(InputTest, EachLeftClickAnswersOnce) {
    QWindow* const top = form->windowHandle();
    const QPoint field = Widget("lblField(40)").mapTo(form, QPoint(9, 9));
    Do(R"(
        click btnInfo & record
        click optChill(3) > pace 3
        click optChill(3) > pace 3
    )");
    QTest::mouseClick(top, Qt::RightButton, {}, field);
    QTest::mousePress(top, Qt::LeftButton, {}, field);
    QTest::mouseRelease(top, Qt::LeftButton, {}, {9, 99});
    EXPECT_EQ(platform.Record, "") << "no left click in the field";
    QTest::mousePress(top, Qt::LeftButton, {}, field);
    QTest::mouseRelease(top, Qt::RightButton, {}, field);
    QTest::mouseRelease(top, Qt::LeftButton, {}, field);
    QTest::mouseDClick(top, Qt::LeftButton, {}, field);
    ClickAt(Widget("optChill(2)"), {56, 16}); // its whole rectangle answers
    EXPECT_EQ(platform.Record, "field 40 field 40 field 40 pace 2 ");
}

TEST_F(InputTest, AButtonAnswersTheReleaseNotThePress) {
    QWindow* const top = form->windowHandle();
    const QPoint key = Widget("btnNumPad(5)").mapTo(form, QPoint(9, 9));
    QTest::mousePress(top, Qt::LeftButton, {}, key);
    Do("is >");
    QTest::mouseRelease(top, Qt::LeftButton, {}, {9, 99});
    Do("is >");
    QTest::mouseClick(top, Qt::LeftButton, {}, key);
    Do("is > |1;5;0");
}

TEST_F(InputTest, AViewDisablesEvenAnOpenMenu) {
    ClickAt(MenuBar(), {10, 5});
    auto& menu = dynamic_cast<QMenu&>(*QApplication::activePopupWidget());
    window.SetViewRunning(true);
    ClickAt(menu, menu.actionGeometry(menu.actions().last()).center());
    EXPECT_TRUE(form->isVisible());
    menu.close();
    Do("click mnuFileQuit > shut");
    window.SetViewRunning(false);
    Do("click mnuFileQuit");
    EXPECT_FALSE(form->isVisible());
}

TEST_F(InputTest, ArrowsMoveFromTheCurrentField) {
    Do(R"(
        focus > lblField(1)
        index 41 & key Left
        focus > lblField(40)
        index 41 & key Num+Down
        cursor > 50
        key Home & cursor > 46
        key Up & cursor > 37
        key End & cursor > 45
        key Right & cursor > 45
        key Ctrl+Home & cursor > 1
        key Up & cursor > 1
        key Ctrl+Right & cursor > 1
        key Ctrl+End & cursor > 81
        key Shift+Left & cursor > 81
        record & key Space > field 81
        key Enter > field 81
    )");
}

TEST_F(InputTest, ACharacterClicksTheButtonWithThisCaption) {
    Do(R"(
        key 5 & is > |1;5;0
        key Num+7 & is > |1;7;0
        key Ctrl+3 & key Meta+F
        is > |1;7;0
        key F & is > |1;8;0
        key Shift+F & is > |1;9;0
        key X & is > |1;9;1
        // Disabled for a locked field.
        key C & is > |1;9;1
        key X & key C
        // A hidden key: 6 stands in the row.
        set 2 6 & key 6
        is > |2;6;0
        index 81 & key Shift+>
        cursor > 1
        // The keyboard is in the menu bar.
        key Alt & key 4
        is > |2;6;0
        key Esc & focus > lblField(1)
    )");
    platform.Meanwhile = [this] { Key("4"); };
    Do("click lblDeadEnd & is > |2;6;0");
}

TEST_F(InputTest, AHeldKeyClicksOnceButArrowsGoOn) {
    window.btnInfo.Click = [this] { Tell("click"); };
    Do("record");
    const auto hold = [this](const char* name, int key) {
        Widget(name).setFocus();
        for (const quint64 time : {1000U, 1200U, 1230U})
            SendKey(*form, QEvent::KeyPress, key, time, time > 1000);
        SendKey(*form, QEvent::KeyRelease, key, 1240);
        return std::exchange(platform.Record, "");
    };
    EXPECT_EQ(hold("lblField(1)", Qt::Key_I), "click ");
    EXPECT_EQ(hold("btnInfo", Qt::Key_Space), "click ");
    EXPECT_EQ(hold("btnInfo", Qt::Key_Return), "click ");
    EXPECT_EQ(hold("lblField(1)", Qt::Key_Space), "field 1 ");
    EXPECT_EQ(hold("lblField(1)", Qt::Key_Right), "field 2 field 2 field 2 ");
}

TEST_F(InputTest, AClickBesideTheGridLeavesTheKeyboardThere) {
    Do(R"(
        click btnNumPad(5) & focus > lblField(1)
        click btnInfo & click optChill(3)
        click lblDeadEnd & key Space
        is > |1;5;0 & key Right
        cursor > 2
    )");
    Widget("btnNumPad(6)").setFocus();
    Do("key Space & is > |1;5;0|2;6;0");
    Do("focus > lblField(2)"); // the key is hidden now
}

TEST_F(InputTest, AfterASolveTheFocusComesBackUnlessTheUserHasMovedIt) {
    for (const std::string& move : {std::string("focus"), std::string("click lblField(5)")}) {
        Do("full 1 11 21");
        Widget("btnSolve").setFocus();
        Do("during " + move);
        Do("key Space");
        EXPECT_EQ(Told("focus") == "btnSolve", move == "focus") << move;
    }
}

TEST_F(InputTest, CommandsHaveKeys) {
    Do(R"(
        key 5 & key Delete
        is > & key 5
        key Backspace & is >
        key PgDown & is > |1;1;0
        key Ctrl+O > Open & key Ctrl+S > Save
        trace 1 & key PgUp > -1
        key Ctrl+Q
    )");
    EXPECT_FALSE(form->isVisible());
}

TEST_F(InputTest, TheMenuBarShowsWhereTheKeyboardIs) {
    Key("Alt");
    ASSERT_NE(MenuBar().activeAction(), nullptr);
    EXPECT_EQ(MenuBar().activeAction()->text(), "File");
    Key("Esc");
    Key("Alt+E");
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(dynamic_cast<QMenu&>(*QApplication::activePopupWidget()).title(), "Edit");
}

TEST_F(InputTest, TabVisitsThePanelsAndStopsOnceInTheGrid) {
    mCommands["tabs"] = [this](int count, auto&) {
        for (int i = 0; i < count; ++i) {
            Key("Tab");
            Tell(form->focusWidget()->objectName().toStdString());
        }
    };
    Do(R"(
        click btnInfo & click lblField(12)
        tabs 11 > btnNumPad(1) btnNumPad(2) btnNumPad(3) btnNumPad(4) btnNumPad(5) btnNumPad(6) btnNumPad(7) btnNumPad(8) btnNumPad(9) btnNumPad(11) btnNumPad(0)
        tabs 10 > btnNextFree btnNextFreeAuto btnSolve btnGoBack btnGoBackToFreedom btnNextFreeValue lblDeadEnd btnInfo optChill(1) lblField(12)
    )");
}

} // namespace tessarin
