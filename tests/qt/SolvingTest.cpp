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

    // Runs `step` at each change of a field, after the window has answered it.
    Connection AtEachChange(std::function<void(int)> step) {
        return goGame->Events.StatusChanged.Connect(std::move(step));
    }
    // Those that are visible.
    QList<int> RotorPictures() {
        QList<int> pictures;
        for (int i = 0; i < 12; ++i)
            if (!Widget("Image1(" + std::to_string(i) + ")").isHidden()) pictures << i;
        return pictures;
    }
    // What the system tells of the key, with its time in milliseconds.
    void Esc(QWidget& top, QEvent::Type type, quint64 time, bool repeat = false) {
        QKeyEvent event(type, Qt::Key_Escape, {}, {}, repeat);
        event.setTimestamp(time);
        QCoreApplication::sendEvent(top.windowHandle(), &event);
    }
};

TEST_F(SolvingTest, WhileItRunsThePanelsAreDeadAndTheWindowStaysOpen) {
    Click("btnInfo");
    int changes = 0;
    const auto connection = AtEachChange([&](int) {
        if (++changes > 1) return;
        ASSERT_NE(QApplication::overrideCursor(), nullptr);
        EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
        for (const char* const name : {"btnInfo", "btnGoBack", "lblDeadEnd", "btnNumPad(11)"})
            Click(name);
        EXPECT_EQ(window.Width(), 11625);
        EXPECT_EQ(Grid().FreeCount(), 3);
        EXPECT_FALSE(form->close());
        EXPECT_TRUE(Menu("mnuFileQuit"));
        EXPECT_TRUE(form->isVisible());
        Click("lblField(1)");
        EXPECT_EQ(Grid().Index(), 1);
        Answer(QMessageBox::Ok, [] { EXPECT_EQ(QApplication::overrideCursor(), nullptr); });
        EXPECT_TRUE(Menu("mnuAbout"));
        EXPECT_NE(QApplication::overrideCursor(), nullptr);
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
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_FALSE(CancelRequested());
    QTest::mouseMove(form->windowHandle(), MenuBar().mapTo(form, QPoint(12, 6)));
    ASSERT_NE(MenuBar().activeAction(), nullptr) << "the pointer is over a title";
    Key(Qt::Key_Escape);
    Answer(QMessageBox::Yes);
    Click("btnSolve");
    EXPECT_EQ(Boxes.size(), 2);
    EXPECT_EQ(Grid().FreeCount(), 4);
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

TEST_F(SolvingTest, EveryPressOfEscCountsWhateverItsTime) {
    for (const quint64 time : {0U, 0U, 1000U, 1200U, 0U}) {
        Esc(*form, QEvent::KeyPress, time);
        EXPECT_TRUE(platform.EscPressed());
        Esc(*form, QEvent::KeyRelease, time);
        EXPECT_TRUE(!platform.EscPressed()) << time;
    }
}

TEST_F(SolvingTest, RotorShowsOnePictureAfterTheOther) {
    window.ctlRotor1.SetRunning(true);
    for (int seen = 0; seen < 14; ++seen) {
        const auto last = RotorPictures();
        ASSERT_EQ(last.size(), seen == 0 ? 0 : 1);
        ASSERT_TRUE(QTest::qWaitFor([&] { return RotorPictures() != last; }));
        // On a busy machine one tick may come inside another, which skips a picture.
        EXPECT_LE((RotorPictures()[0] - last.value(0, 0) + 12) % 12, 3);
    }
    window.ctlRotor1.SetRunning(false);
    EXPECT_TRUE(RotorPictures().empty());
    EXPECT_EQ(Widget("Image1(0)").grab().toImage().pixelColor(16, 16), QColor("#2f5d8c"));
}

TEST_F(SolvingTest, RotorTurnsAfterEachPause) {
    platform.ReallySleeps = true;
    QList<int> seen = RotorPictures();
    int turns = -1;
    platform.AtPump = [&] {
        const auto last = std::exchange(seen, RotorPictures());
        turns += last != seen ? 1 : 0;
    };
    window.optChill(2).Select();
    Click("btnSolve");
    EXPECT_GE(turns, 12);
}

} // namespace
} // namespace tessarin
