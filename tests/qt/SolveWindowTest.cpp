// The automatic solve as the user sees it: pace, disabled panels, ESC and the busy indicator.
#include "WindowFixture.h"

#include "support/modKbd.h"

#include <QApplication>
#include <QKeyEvent>
#include <QTest>

#include <utility>

namespace tessarin {
namespace {

class SolveWindowTest : public WindowTest {
protected:
    // Four fields are empty.
    SolveWindowTest() { Import(TESSARIN_PUZZLES "/nearly-complete.csv"); }

    // Runs `step` at each change of a field, after the window has answered it.
    Connection AtEachChange(std::function<void(int)> step) {
        return goGame->Events.StatusChanged.Connect(std::move(step));
    }
    bool IsIdle() {
        return window.fraAction.Enabled() && window.fraNumPad.Enabled() &&
               !window.ctlRotor1.Running() && QApplication::overrideCursor() == nullptr;
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

TEST_F(SolveWindowTest, EveryPaceSolvesAndOnlyQuietPaintsNothingUntilTheEnd) {
    Click("btnInfo");
    // A pause for each of the two fields of a cursor move and for the value.
    using Row = std::pair<int, std::vector<int>>;
    for (const auto& [option, pauses] :
         {Row{0, {}}, Row{1, {}}, Row{2, std::vector(12, 100)}, Row{5, std::vector(12, 800)}}) {
        Import(TESSARIN_PUZZLES "/nearly-complete.csv");
        Click(window.optChill(option).Name());
        platform.Sleeps.clear();
        int painted = 0;
        const auto connection =
            AtEachChange([&](int index) { painted += !window.lblField(index).Caption().empty(); });
        Click("btnSolve");
        EXPECT_EQ(painted, option == 0 ? 0 : 4);
        EXPECT_EQ(platform.Sleeps, pauses);
        for (int k = 1; k <= 81; ++k)
            EXPECT_EQ(window.lblField(k).Caption(), std::to_string(At(k).Value())) << k;
        EXPECT_EQ(window.lblField(Grid().Index()).BackColor(), GreenColor);
        EXPECT_EQ(window.lblWinner.BackColor(), GreenColor);
        EXPECT_TRUE(IsIdle());
    }
    Click("btnGoBack");
    EXPECT_EQ(window.lblWinner.BackColor(), Normal);
}

TEST_F(SolveWindowTest, StepMakesOneCycleForEachClick) {
    Click("btnInfo");
    Click("optChill(6)");
    for (int left = 3; left >= 0; --left) {
        Click("btnSolve");
        EXPECT_EQ(Grid().FreeCount(), left);
        EXPECT_TRUE(IsIdle());
    }
}

TEST_F(SolveWindowTest, WhileItRunsThePanelsAreDeadAndAllElseAnswers) {
    Click("btnInfo");
    Click("optChill(2)");
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
        ClickField(1);
        EXPECT_EQ(Grid().Index(), 1);
        Answer(QMessageBox::Ok, [] { EXPECT_EQ(QApplication::overrideCursor(), nullptr); });
        EXPECT_TRUE(Menu("mnuAbout"));
        EXPECT_NE(QApplication::overrideCursor(), nullptr);
        Click("optChill(0)"); // quiet from here on
        platform.Sleeps.clear();
    });
    Click("btnSolve");
    EXPECT_EQ(changes, 4);
    EXPECT_TRUE(platform.Sleeps.empty());
    EXPECT_TRUE(IsIdle());
    EXPECT_TRUE(Menu("mnuFileQuit"));
    EXPECT_FALSE(form->isVisible());
}

TEST_F(SolveWindowTest, EscAsksAndOnlyYesEndsTheSolve) {
    int changes = 0;
    const auto connection = AtEachChange([&](int) {
        if (++changes <= 2) Key(Qt::Key_Escape);
    });
    Answer(QMessageBox::No);
    Answer(QMessageBox::Yes);
    Click("btnSolve");
    EXPECT_EQ(changes, 2);
    EXPECT_TRUE(IsIdle());
    EXPECT_EQ(Boxes, QStringList(2, "ESC gedrückt: Abbrechen? [No Yes]"));
    Click("btnSolve"); // the confirmed cancel is forgotten
    EXPECT_TRUE(Grid().IsWinner());
}

TEST_F(SolveWindowTest, OnlyAnEscThatClosesNothingAsks) {
    CancelDialog();
    ASSERT_TRUE(Menu("mnuFileExportCSV"));
    CancelDialog();
    ASSERT_TRUE(Menu("mnuEditClearAll"));
    form->activateWindow(); // as a window manager does when the box is gone
    EXPECT_TRUE(QTest::qWaitForWindowActive(form));
    Widget("btnSolve").setFocus();
    Click(MenuBar(), {10, 5});
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    Key(Qt::Key_Escape);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    Key(Qt::Key_Escape); // leaves the menu bar
    EXPECT_FALSE(CancelRequested());
    QTest::mouseMove(form->windowHandle(), MenuBar().mapTo(form, QPoint(12, 6)));
    ASSERT_NE(MenuBar().activeAction(), nullptr) << "the pointer is over a title";
    Key(Qt::Key_Escape);
    Answer(QMessageBox::Yes);
    Click("btnSolve");
    EXPECT_EQ(Boxes.size(), 2);
    EXPECT_EQ(Grid().FreeCount(), 4);
}

TEST_F(SolveWindowTest, RepeatsOfAHeldEscDoNotAnswerItsQuestion) {
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

TEST_F(SolveWindowTest, RotorShowsOnePictureAfterTheOther) {
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
    window.ctlRotor1.SetWidth(900);
    EXPECT_EQ(window.ctlRotor1.Width(), 480) << "as wide as a picture";
}

TEST_F(SolveWindowTest, RotorTurnsAfterEachPause) {
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
