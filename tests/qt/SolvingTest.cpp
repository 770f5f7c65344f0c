// An automatic solve in the real window: disabled panels, the mouse pointer, ESC and the rotor.
#include "QtFixture.h"

namespace tessarin {

class SolvingTest : public QtFixture {
protected:
    // A puzzle with four empty fields.
    SolvingTest() { Do("import nearly-complete.csv"); }

    // Sends an event of the ESC key with its time in milliseconds.
    static void Esc(QWidget& top, QEvent::Type type, quint64 time, bool repeat = false) {
        QKeyEvent event(type, Qt::Key_Escape, {}, {}, repeat);
        event.setTimestamp(time);
        QCoreApplication::sendEvent(top.windowHandle(), &event);
    }
};

TEST_F(SolvingTest, PanelsAreDisabledDuringASolveAndTheWindowStaysOpen) {
    const auto step = game.Events.StatusChanged.Connect([this, first = true](int) mutable {
        if (!std::exchange(first, false)) return;
        WhileOpen = [this](QDialog&) { Script("busy >"); };
        EXPECT_FALSE(form->close());
        Script(R"(
            click btnInfo & click btnGoBack & click lblDeadEnd & click btnNumPad(11)
            menu mnuFileQuit > & left > 3 & click lblField(1) & cursor > 1
            answer OK & menu mnuAbout & busy > hourglass
        )");
    });
    Script("click btnSolve & left > 0 & busy > & menu mnuFileQuit > & busy > closed");
}

TEST_F(SolvingTest, OnlyAnEscThatClosesNothingAsks) {
    // ESC closes a submenu alone: the next keys go to its menu.
    Script(R"(
        answer Esc & menu mnuEditLockAll & key Esc & key Up & key Right & key Return & activate
        answer Esc & menu mnuFileExportCSV & activate & menu mnuFile & key Esc & key Alt & key Esc
    )");
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
    WhileOpen = [](QDialog& box) {
        Esc(box, QEvent::KeyPress, 1500);
        // The first repeat after the focus has changed is not marked as a repeat.
        for (const quint64 time : {1600U, 1630U, 1660U}) {
            Esc(box, QEvent::KeyRelease, time, time > 1600);
            Esc(box, QEvent::KeyPress, time, time > 1600);
        }
        EXPECT_TRUE(box.isVisible());
        Esc(box, QEvent::KeyRelease, 1700);
    };
    Script("answer Yes & click btnSolve > Box(ESC gedrückt|Abbrechen?|- [&Yes &No) [1] & left > 4");
}

TEST_F(SolvingTest, RotorTurnsAfterEachPauseAndDuringACommandInsideItsTick) {
    platform.ReallySleeps = true;
    int seen = -1, turns = 0;
    platform.AtPump = [&] {
        for (int i = 0; i < 12; ++i)
            if (!Widget("Image1(" + std::to_string(i) + ")").isHidden())
                turns += std::exchange(seen, i) == i ? 0 : 1;
    };
    window.optChill(2).Select();
    Do("click btnSolve");
    EXPECT_GE(turns, 11);
    int ticks = 0; // each tick pumps
    platform.AtPump = [&] {
        if (++ticks > 1) return;
        QTest::qWait(100);
        EXPECT_GE(ticks, 5);
    };
    window.ctlRotor1.SetRunning(true);
    EXPECT_TRUE(QTest::qWaitFor([&] { return ticks > 5; }));
    const int before = ticks;
    platform.Sleep(30);
    EXPECT_EQ(ticks, before) << "ticks wait for the next pump";
    window.ctlRotor1.SetRunning(false);
    EXPECT_EQ(Widget("Image1(0)").grab().toImage().pixelColor(16, 16), QColor("#4a86c8"));
}

} // namespace tessarin
