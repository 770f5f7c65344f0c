// The window by keyboard alone.
#include "QtFixture.h"

#include <QApplication>
#include <QKeyEvent>
#include <QTest>

namespace tessarin {
namespace {

using KeyboardTest = QtFixture;

TEST_F(KeyboardTest, ArrowsGoOnFromTheCurrentField) {
    EXPECT_EQ(Focus(), "lblField(1)") << "from the start";
    using Row = std::tuple<int, Qt::Key, Qt::KeyboardModifiers, int>;
    for (const auto& [from, key, modifiers, to] : {Row{41, Qt::Key_Left, {}, 40},
                                                   {41, Qt::Key_Right, {}, 42},
                                                   {41, Qt::Key_Up, {}, 32},
                                                   {41, Qt::Key_Down, Qt::KeypadModifier, 50},
                                                   {41, Qt::Key_Home, {}, 37},
                                                   {41, Qt::Key_End, {}, 45},
                                                   {41, Qt::Key_Home, Qt::ControlModifier, 1},
                                                   {41, Qt::Key_End, Qt::ControlModifier, 81},
                                                   {41, Qt::Key_Right, Qt::ControlModifier, 41},
                                                   {41, Qt::Key_Space, {}, 41},
                                                   {9, Qt::Key_Right, {}, 9},
                                                   {73, Qt::Key_Down, {}, 73}}) {
        Grid().SetIndex(from);
        Key(key, modifiers);
        EXPECT_EQ(Grid().Index(), to) << "from " << from << " by " << key;
        EXPECT_EQ(Focus(), window.lblField(to).Name());
    }
    int clicks = 0;
    window.lblField.Click = [&](int index) { clicks += index; };
    Key(Qt::Key_Enter);
    Key(Qt::Key_Up);
    EXPECT_EQ(clicks, 73 + 64);
}

TEST_F(KeyboardTest, ACharacterClicksTheButtonThatItIsTheCaptionOf) {
    using Row = std::tuple<const char*, Qt::Key, Qt::KeyboardModifiers, int>;
    for (const auto& [focus, key, modifiers, value] :
         {Row{"lblField(1)", Qt::Key_5, {}, 5},
          {"btnSolve", Qt::Key_4, {}, 4},
          {"optChill(1)", Qt::Key_7, Qt::KeypadModifier, 7},
          {"lblField(1)", Qt::Key_3, Qt::ControlModifier, 7},
          {"lblField(1)", Qt::Key_3, Qt::AltModifier, 7},
          {"lblField(1)", Qt::Key_F, Qt::MetaModifier, 7},
          {"lblField(1)", Qt::Key_F, {}, 8},
          {"lblField(1)", Qt::Key_F, Qt::ShiftModifier, 9},
          {"lblField(1)", Qt::Key_9, {}, 9},
          {"lblField(1)", Qt::Key_C, {}, 0}}) {
        Click("btnInfo");
        Widget(focus).setFocus();
        Key(key, modifiers);
        EXPECT_EQ(At(1).Value(), value) << focus << key;
    }
    At(2).SetValue(6);
    Key(Qt::Key_6); // hidden on the pad
    QKeyEvent repeat(QEvent::KeyPress, Qt::Key_3, {}, "3", true);
    QApplication::sendEvent(form->windowHandle(), &repeat);
    EXPECT_EQ(At(1).Value(), 0);
    Grid().SetIndex(81);
    Key(Qt::Key_Greater);
    EXPECT_EQ(Grid().Index(), 1);
    Key(Qt::Key_I);
    Answer(QMessageBox::Ok, [&] { Key(Qt::Key_4); });
    Click("lblDeadEnd");
    Key(Qt::Key_Alt);
    Key(Qt::Key_4); // the menu bar has the focus
    EXPECT_EQ(At(1).Value(), 0);
}

TEST_F(KeyboardTest, TabReadsThePanelsAndStopsOnceInTheGrid) {
    Click("btnInfo");
    Grid().SetIndex(12);
    Widget("lblField(12)").setFocus();
    std::string stops;
    for (int i = 0; i < 23; ++i, Key(Qt::Key_Tab))
        stops += Focus() + (i < 21 ? "" : "!") + " ";
    EXPECT_EQ(stops, "lblField(12) btnNumPad(1) btnNumPad(2) btnNumPad(3) btnNumPad(4) "
                     "btnNumPad(5) btnNumPad(6) btnNumPad(7) btnNumPad(8) btnNumPad(9) "
                     "btnNumPad(11) btnNumPad(0) btnNextFree btnNextFreeAuto btnSolve btnGoBack "
                     "btnGoBackToFreedom btnNextFreeValue lblDeadEnd btnInfo optChill(1) "
                     "lblField(12)! btnNumPad(1)! ");
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return}) {
        Widget("lblDeadEnd").setFocus();
        Answer(QMessageBox::Ok);
        Key(key);
        Widget("btnInfo").setFocus();
        Key(key);
    }
    EXPECT_EQ(Boxes.size(), 2);
    EXPECT_TRUE(window.InfoVisible());
    Activate();
    Widget("optChill(1)").setFocus();
    int clicked = -1;
    window.optChill.Click = [&](int index) { clicked = index; };
    Key(Qt::Key_Down);
    EXPECT_EQ(clicked, 2);
}

TEST_F(KeyboardTest, TheFocusComesBack) {
    for (const char* const place : {"lblField(1)", "btnSolve", "btnInfo"}) {
        Widget(place).setFocus();
        Click(MenuBar(), {10, 5});
        Key(Qt::Key_Escape);
        EXPECT_EQ(Focus(), place) << "after a menu";
        EXPECT_EQ(MenuBar().activeAction(), nullptr);
        Answer(QMessageBox::Ok);
        ASSERT_TRUE(Menu("mnuAbout"));
        EXPECT_EQ(Focus(), place) << "after a box";
        Activate();
    }
    Widget("btnNumPad(5)").setFocus();
    Key(Qt::Key_Space); // hides the key and its value
    EXPECT_TRUE(Widget(Focus()).isEnabled());
    Key(Qt::Key_C);
    EXPECT_EQ(Focus(), "btnNumPad(5)");
    Import(TESSARIN_PUZZLES "/nearly-complete.csv");
    Widget("btnSolve").setFocus();
    std::string during;
    const auto connection =
        goGame->Events.StatusChanged.Connect([&](int) { during += Focus() + " "; });
    Key(Qt::Key_S);
    EXPECT_EQ(Focus(), "btnSolve");
    EXPECT_EQ(during.substr(0, 9), "lblField(") << "panels are disabled in a solve";
    Click("lblField(50)");
    EXPECT_EQ(Focus(), "lblField(50)");
}

} // namespace
} // namespace tessarin
