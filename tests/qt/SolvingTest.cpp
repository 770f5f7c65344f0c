// An automatic solve in the real window: disabled panels, the mouse pointer, ESC and the rotor.
#include "QtFixture.h"

#include "support/modKbd.h"

#include <QApplication>
#include <QKeyEvent>
#include <QTest>

#include <utility>

namespace tessarin {
namespace {

class SolvingTest : public QtFixture {
protected:
    // Four fields are empty.
    SolvingTest() { Import(TESSARIN_PUZZLES "/nearly-complete.csv"); }

    // What the system tells of the key, with its time in milliseconds.
    void Esc(QWidget& top, QEvent::Type type, quint64 time, bool repeat = false) {
        QKeyEvent event(type, Qt::Key_Escape, {}, {}, repeat);
        event.setTimestamp(time);
        QCoreApplication::sendEvent(top.windowHandle(), &event);
    }
};

TEST_F(SolvingTest, WhileItRunsThePanelsAreDeadAndTheWindowStaysOpen) {
    int changes = 0;
    const auto connection = goGame->Events.StatusChanged.Connect([&](int) {
        if (++changes > 1) return;
        for (const char* const name : {"btnInfo", "btnGoBack", "lblDeadEnd", "btnNumPad(11)"})
            Click(name);
        EXPECT_TRUE(Menu("mnuFileQuit"));
        EXPECT_FALSE(form->close());
        EXPECT_EQ(Grid().FreeCount(), 3);
        Click("lblField(1)");
        EXPECT_EQ(Grid().Index(), 1);
        Answer(QMessageBox::Ok, [] { EXPECT_EQ(QApplication::overrideCursor(), nullptr); });
        EXPECT_TRUE(Menu("mnuAbout"));
        ASSERT_NE(QApplication::overrideCursor(), nullptr);
        EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    });
    Click("btnSolve");
    EXPECT_EQ(changes, 4);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    EXPECT_TRUE(Menu("mnuFileQuit"));
    EXPECT_FALSE(form->isVisible());
}

TEST_F(SolvingTest, OnlyAnEscThatClosesNothingAsks) {
    CancelDialog();
    ASSERT_TRUE(Menu("mnuFileExportCSV"));
    CancelDialog();
    ASSERT_TRUE(Menu("mnuEditClearAll"));
    Activate();
    Click(MenuBar(), {10, 5});
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    Key(Qt::Key_Escape);
    EXPECT_FALSE(platform.EscPressed());
    QTest::mouseMove(form->windowHandle(), MenuBar().mapTo(form, QPoint(12, 6)));
    ASSERT_NE(MenuBar().activeAction(), nullptr) << "the pointer is over a title";
    for (const quint64 time : {0U, 0U, 1000U, 1200U, 0U}) {
        Esc(*form, QEvent::KeyPress, time);
        EXPECT_TRUE(platform.EscPressed());
        EXPECT_TRUE(platform.EscPressed()) << "still down";
        Esc(*form, QEvent::KeyRelease, time);
        EXPECT_FALSE(platform.EscPressed());
    }
    Esc(*form, QEvent::KeyPress, 2000);
    Q_EMIT qApp->applicationStateChanged(Qt::ApplicationInactive); // the release goes elsewhere
    EXPECT_TRUE(platform.EscPressed());
    EXPECT_FALSE(platform.EscPressed());
}

TEST_F(SolvingTest, RepeatsOfAHeldEscDoNotAnswerItsQuestion) {
    Esc(*form, QEvent::KeyPress, 1000);
    bool staysOpen = false;
    Answer(QMessageBox::Yes, [&] {
        QWidget& box = *QApplication::activeModalWidget();
        // The first repeat after the focus has changed is not marked as one.
        for (const quint64 time : {1600U, 1630U, 1660U}) {
            Esc(box, QEvent::KeyRelease, time, time > 1600);
            Esc(box, QEvent::KeyPress, time, time > 1600);
        }
        staysOpen = box.isVisible();
        Esc(box, QEvent::KeyRelease, 1700);
    });
    Click("btnSolve");
    EXPECT_TRUE(staysOpen);
    EXPECT_EQ(Grid().FreeCount(), 4);
}

TEST_F(SolvingTest, RotorTurnsAfterEachPauseAndInACommandThatItsTickLetsIn) {
    platform.ReallySleeps = true;
    int seen = -1, turns = 0;
    const auto look = [&] {
        for (int i = 0; i < 12; ++i)
            if (!Widget("Image1(" + std::to_string(i) + ")").isHidden() &&
                std::exchange(seen, i) != i)
                ++turns;
    };
    platform.AtPump = look;
    window.optChill(2).Select();
    Click("btnSolve");
    EXPECT_GE(turns, 11);
    bool inTick = false;
    platform.AtPump = [&] {
        look();
        if (!std::exchange(inTick, true)) QTest::qWait(100);
    };
    turns = 0;
    window.ctlRotor1.SetRunning(true);
    EXPECT_TRUE(QTest::qWaitFor([&] { return inTick; }));
    EXPECT_GE(turns, 5);
    window.ctlRotor1.SetRunning(false);
    EXPECT_EQ(Widget("Image1(0)").grab().toImage().pixelColor(16, 16), QColor("#2f5d8c"));
}

} // namespace
} // namespace tessarin
