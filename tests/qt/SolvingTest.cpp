// An automatic solve in the real window: disabled panels, the mouse pointer, ESC and the rotor.
#include "QtFixture.h"

namespace tessarin {

using SolvingTest = QtFixture;

const Stories<QtFixture> stories("SolvingTest", R"(
    PanelsAreDisabledDuringASolveAndTheWindowStaysOpen:
        full 1 11 21 31
        during click btnInfo & click btnGoBack
        during click lblDeadEnd & click btnNumPad(11)
        during close & click mnuFileQuit
        during counts > 3 0 78 11 & hourglass > 1
        during click lblField(5) & cursor > 5
        click btnSolve & counts > 0 0 81 0
        hourglass > 0 & open > 1
        click mnuFileQuit & open > 0
    ABoxInASolveHasTheUsualPointer:
        full 1 11
        during during hourglass > 0
        during click mnuAbout & hourglass > 1
        click btnSolve
    AnEscThatClosesSomethingDoesNotAsk:
        // It closes a submenu alone: the next keys go to its menu.
        click mnuEditLockAll & key Esc
        answer Esc & key Up
        key Right & key Return
        click mnuFileExportCSV & click mnuFile
        key Esc & key Alt
        key Esc & esc > 0
    APressCountsOnceAndWhileItIsHeld:
        down 1000 Esc & esc > 1
        esc > 1 & up 1100 Esc
        esc > 0 & key Esc
        esc > 1 & esc > 0
    APressCountsAfterASwitchToAnotherProgram:
        down 2000 Esc & away
        esc > 1 & esc > 0
        down 3000 Esc & esc > 1
    // The first repeat after the focus has changed is not marked as a repeat.
    RepeatsOfAHeldEscDoNotAnswerItsQuestion:
        full 1 11 & down 1000 Esc
        during again 1500 Esc & up 1600 Esc
        during down 1600 Esc & again 1630 Esc
        during up 1700 Esc & answer Yes
        click btnSolve > +1 Box(ESC gedrückt|Abbrechen?)
)");

TEST_F(SolvingTest, TheRotorTurnsInPauses) {
    platform.ReallySleeps = true;
    int shown = -1, turns = 0;
    platform.EachPump = [&] {
        for (int i = 0; i < 12; ++i)
            if (!Widget("Image1(" + std::to_string(i) + ")").isHidden())
                turns += std::exchange(shown, i) == i ? 0 : 1;
    };
    QElapsedTimer time;
    time.start();
    Do("full 1 11 21 & click btnInfo");
    Do("click optChill(2) & click btnSolve");
    EXPECT_GE(turns, 7);
    EXPECT_GE(time.elapsed(), 600);
}

} // namespace tessarin
