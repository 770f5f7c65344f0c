// An automatic solve in the real window: disabled panels, the mouse pointer, ESC and the rotor.
#include "QtFixture.h"

namespace tessarin {

class SolvingTest : public QtFixture {
protected:
    // Sends a press or release of ESC with its time in milliseconds.
    static void Esc(QWidget& top, QEvent::Type type, quint64 time, bool repeat = false) {
        SendKey(top, type, Qt::Key_Escape, time, repeat);
    }
};

TEST_F(SolvingTest, PanelsAreDisabledDuringASolveAndTheWindowStaysOpen) {
    mCommands["close"] = [this](int, auto&) { form->close(); };
    mCommands["pointer"] = [this](int, auto&) {
        const QCursor* const pointer = QApplication::overrideCursor();
        Tell(pointer == nullptr ? "none" : pointer->shape() == Qt::WaitCursor ? "wait" : "other");
    };
    Do(R"(
        full 1 11 21 31
        during click btnInfo
        during click btnGoBack
        during click lblDeadEnd
        during click btnNumPad(11)
        during close
        during click mnuFileQuit
        during counts > 3 0 78 11
        during pointer > wait
        during click lblField(5)
        during cursor > 5
        click btnSolve & counts > 0 0 81 0
        pointer > none
    )");
    EXPECT_TRUE(form->isVisible());
    Do("click mnuFileQuit");
    EXPECT_FALSE(form->isVisible());
}

TEST_F(SolvingTest, ABoxInASolveHasTheUsualPointer) {
    Do("full 1 11");
    const auto step = game.Events.StatusChanged.Connect([this, first = true](int) mutable {
        if (!std::exchange(first, false)) return;
        platform.Meanwhile = [] { EXPECT_EQ(QApplication::overrideCursor(), nullptr); };
        Click("mnuAbout");
        platform.Meanwhile = [] {};
        EXPECT_NE(QApplication::overrideCursor(), nullptr);
    });
    Click("btnSolve");
}

TEST_F(SolvingTest, AnEscThatClosesSomethingDoesNotAsk) {
    // ESC closes a submenu alone: the next keys go to its menu.
    Do(R"(
        click mnuEditLockAll & key Esc
        answer Esc & key Up
        key Right & key Return
        click mnuFileExportCSV
        click mnuFile & key Esc
        key Alt & key Esc
    )");
    EXPECT_FALSE(platform.EscPressed());
}

TEST_F(SolvingTest, APressCountsOnceAndWhileItIsHeld) {
    QTest::mouseMove(form->windowHandle(), MenuBar().mapTo(form, QPoint(12, 6)));
    ASSERT_NE(MenuBar().activeAction(), nullptr) << "the pointer is over a title";
    for (const quint64 time : {0U, 0U, 1000U, 1200U, 0U}) {
        Esc(*form, QEvent::KeyPress, time);
        EXPECT_TRUE(platform.EscPressed());
        EXPECT_TRUE(platform.EscPressed()) << "still down";
        Esc(*form, QEvent::KeyRelease, time);
        EXPECT_FALSE(platform.EscPressed());
    }
}

TEST_F(SolvingTest, APressCountsAfterASwitchToAnotherProgram) {
    Esc(*form, QEvent::KeyPress, 2000);
    Q_EMIT qApp->applicationStateChanged(Qt::ApplicationInactive); // the release goes there
    EXPECT_TRUE(platform.EscPressed());
    EXPECT_FALSE(platform.EscPressed());
    Esc(*form, QEvent::KeyPress, 3000);
    EXPECT_TRUE(platform.EscPressed());
}

TEST_F(SolvingTest, RepeatsOfAHeldEscDoNotAnswerItsQuestion) {
    Do("full 1 11");
    Esc(*form, QEvent::KeyPress, 1000);
    platform.Meanwhile = [] {
        Esc(Box(), QEvent::KeyPress, 1500);
        // The first repeat after the focus has changed is not marked as a repeat.
        for (const quint64 time : {1600U, 1630U, 1660U}) {
            Esc(Box(), QEvent::KeyRelease, time, time > 1600);
            Esc(Box(), QEvent::KeyPress, time, time > 1600);
        }
        EXPECT_TRUE(Box().isVisible());
        Esc(Box(), QEvent::KeyRelease, 1700);
    };
    Do("answer Yes & click btnSolve > +1 Box(ESC gedrückt|Abbrechen?|- Yes No)");
}

TEST_F(SolvingTest, TheRotorTurnsInPausesAndInsideItsTick) {
    Do("full 1 11 21 & click btnInfo");
    platform.ReallySleeps = true;
    int seen = -1, turns = 0;
    platform.EachPump = [&] {
        for (int i = 0; i < 12; ++i)
            if (!Widget("Image1(" + std::to_string(i) + ")").isHidden())
                turns += std::exchange(seen, i) == i ? 0 : 1;
    };
    Do("click optChill(2) & click btnSolve");
    EXPECT_GE(turns, 7);
    int ticks = 0; // each tick pumps
    platform.EachPump = [&] {
        if (++ticks == 1) QTest::qWait(100); // a command inside the tick
    };
    window.ctlRotor1.SetRunning(true);
    EXPECT_TRUE(QTest::qWaitFor([&] { return ticks > 5; }));
    window.ctlRotor1.SetRunning(false);
    EXPECT_EQ(Widget("Image1(0)").grab().toImage().pixelColor(16, 16), QColor("#4a86c8"));
}

TEST_F(SolvingTest, ASleepLasts) {
    platform.ReallySleeps = true;
    QElapsedTimer time;
    time.start();
    platform.Sleep(60);
    EXPECT_GE(time.elapsed(), 60);
}

} // namespace tessarin
