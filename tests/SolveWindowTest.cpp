// The automatic solve in the window, and clicks that arrive while handlers are running.
#include "FakeWindow.h"
#include "model/Fields.h"

namespace tessarin {

using SolveWindowTest = WindowFixture;

const Stories<WindowFixture> stories("SolveWindowTest", R"(
    // A cursor move paints two fields and a value one.
    APaceIsThePauseAfterEachPaintedField:
        full 1 11 & click optChill(2)
        click btnSolve > +1 Sleep(100) Sleep(100) Sleep(100) Sleep(100) +11
        fields 1 11 > 1 5:green & lights > normal green
        full 1 & click optChill(5)
        click btnSolve > Sleep(800)
    QuietPaintsNothingUntilTheEnd:
        full 1 11 21 & click optChill(0)
        during fields 1 > .:green
        click btnSolve & fields 1 11 21 > 1 5 9:green
    QuietChosenInASolveRepaintsAtItsEnd:
        full 1 11 21
        during click optChill(0)
        // A command still paints.
        during click mnuEditLockAllSet & fields 2 81 > 2/red 8/red
        click btnSolve & fields 1 11 21 > 1/red 5 9:green
    StepMakesOneCycleForEachClick:
        full 1 11 21 & click optChill(6)
        during hourglass > 0
        click btnSolve > +1 & fields 1 11 > 1:green .
        faults > & click btnSolve > +11
        click btnSolve > +21 & fields 21 > 9:green
    APaceForgetsTheCancelOfAStep:
        full 1 11 21 & click optChill(6)
        during click optChill(1)
        click btnSolve > +1 +11 +21 & faults >
    AnErrorLeavesAUsableWindow:
        full 1 11 21
        during fail
        click btnSolve > ! an error of an unknown kind & faults >
        click btnSolve > +11 +21
)");

TEST_F(SolveWindowTest, TheRotorStartsAgainAfterItsFirstPicture) {
    auto& timer = dynamic_cast<Timer&>(toolkit.Find("Timer1"));
    for (const int picture : {1, 2, 1, 2}) {
        if (picture == 1) window.ctlRotor1.SetRunning(true);
        timer.RaiseTick();
        EXPECT_TRUE(toolkit.Find("Image1(" + std::to_string(picture) + ")").Visible());
    }
}

// Every pump brings more clicks: far more than the stack could hold if they nested.
TEST_F(SolveWindowTest, AFloodOfClicksIsAnsweredInOrder) {
    int sent = 0, answered = 0;
    window.lblField.Click = [&](int index) {
        EXPECT_EQ(index, answered++ % 80 + 1);
        grid.SetIndex(index);
    };
    const std::function<void()> user = [&] {
        if (sent < 20'000) platform.AtPump(1, user);
        for (int i = 0; i < 80; ++i)
            window.lblField(sent++ % 80 + 1).RaiseClick();
    };
    user();
    while (answered < sent || sent < 20'000)
        PumpEvents();
}

} // namespace tessarin
