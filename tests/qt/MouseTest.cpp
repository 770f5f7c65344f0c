// What a mouse does to the controls.
#include "QtFixture.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMenu>
#include <QTest>

namespace tessarin {
namespace {

using MouseTest = QtFixture;

TEST_F(MouseTest, OnlyALeftClickInsideAFieldMovesTheCursor) {
    QWidget& field = Widget("lblField(40)");
    Click(field, {9, 9}, Qt::RightButton);
    QTest::mousePress(form->windowHandle(), Qt::LeftButton, {}, field.mapTo(form, QPoint(9, 9)));
    QTest::mouseRelease(form->windowHandle(), Qt::LeftButton, {}, {9, 99});
    EXPECT_EQ(grid.Index(), 1);
    int clicks = 0;
    window.lblField.Click = [&](int) { ++clicks; };
    QTest::mouseDClick(form->windowHandle(), Qt::LeftButton, {}, field.mapTo(form, QPoint(9, 9)));
    EXPECT_EQ(clicks, 2);
}

TEST_F(MouseTest, ButtonsAndOptionsAnswerOnceForEachClick) {
    // Once the field is locked, the other keys are disabled.
    Script("click btnNumPad(5) & click btnNumPad(10) & click btnNumPad(3) & is > |1;5;1 & click "
           "btnInfo");
    std::vector<int> clicks;
    window.optChill.Click = [&](int index) { clicks.push_back(index); };
    for (const int index : {3, 3, 1, 0, 6})
        Do("click " + window.optChill(index).Name());
    Click(Widget("optChill(2)"), {56, 16}); // its whole rectangle answers
    window.optChill(1).Select();
    EXPECT_EQ(clicks, (std::vector{3, 3, 1, 0, 6, 2, 1}));
    EXPECT_TRUE(dynamic_cast<QAbstractButton&>(Widget("optChill(1)")).isChecked());
}

TEST_F(MouseTest, AViewDisablesEvenAnOpenMenu) {
    int clicks = 0;
    window.mnuFileQuit.Click = [&] { ++clicks; };
    for (const bool running : {true, false}) {
        Click(MenuBar(), {10, 5});
        auto& menu = dynamic_cast<QMenu&>(*QApplication::activePopupWidget());
        window.SetViewRunning(running);
        Click(menu, menu.actionGeometry(menu.actions().last()).center());
        EXPECT_EQ(clicks, running ? 0 : 1);
        menu.close();
        window.SetViewRunning(false);
    }
}

} // namespace
} // namespace tessarin
