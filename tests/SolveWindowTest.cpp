// The automatic solve in the window, and clicks that arrive while handlers are running.
#include "FakeWindow.h"
#include "model/Fields.h"

namespace tessarin {

class SolveWindowTest : public WindowFixture {
protected:
    SolveWindowTest() {
        mCommands["hourglass"] = [this](int, auto&) { Tell(platform.Hourglass ? "yes" : "no"); };
        mCommands["esc"] = [this](int, auto& presses) { platform.Esc = Numbers(presses); };
        mCommands["turn"] = [this](int on, auto&) { window.ctlRotor1.SetRunning(on == 1); };
        mCommands["tick"] = [this](int times, auto&) {
            while (times-- > 0)
                timer.RaiseTick();
            for (int i = 0; i < 12; ++i)
                if (toolkit.Find("Image1(" + std::to_string(i) + ")").Visible()) Tell(i);
        };
    }
    Timer& timer = dynamic_cast<Timer&>(toolkit.Find("Timer1"));
};

const Stories<SolveWindowTest> stories("SolveWindowTest", R"(
    // A cursor move paints two fields and a value one.
    APaceIsThePauseAfterEachPaintedField:
        full 1 11 & click optChill(2)
        click btnSolve > +1 Sleep(100) Sleep(100) Sleep(100) Sleep(100) +11
        fields 1 11 > 1 5:green & lights > normal green
        full 1 & click optChill(3)
        click btnSolve > Sleep(200) & full 1
        click optChill(4) & click btnSolve > Sleep(400)
        full 1 & click optChill(5)
        click btnSolve > Sleep(800) & full 1
        click optChill(1) & click btnSolve >
    TheFieldThatIsLeftIsPaintedFirst:
        full 1 & click optChill(2)
        index 2
        during fields 1 2 > . 2
        click btnSolve
    QuietPaintsNothingUntilTheEnd:
        full 1 11 21 & click optChill(0)
        during fields 1 > .:green
        click btnSolve & fields 1 11 21 > 1 5 9:green
        click btnGoBack & fields 11 21 > 5:green .
    QuietChosenInASolveRepaintsAtItsEnd:
        full 1 11 21
        during click optChill(0)
        click btnSolve & fields 1 11 21 > 1 5 9:green
    ACommandPaintsInAQuietSolve:
        full 1 11 21 & click optChill(0)
        during click mnuEditLockAllSet & fields 2 81 > 2/red 8/red
        click btnSolve
    StepMakesOneCycleForEachClick:
        full 1 11 21 & click optChill(6)
        during hourglass > no
        click btnSolve > +1 & fields 1 11 > 1:green .
        faults > & click btnSolve > +11
        click btnSolve > +21 & fields 21 > 9:green
    PanelsAndClosingAreBlockedDuringASolve:
        full 1 11 21 31
        during hourglass > yes & click btnInfo
        during click btnGoBack & click lblDeadEnd
        during click btnNumPad(11) & click mnuFileQuit
        during counts > 3 0 78 11 & click lblField(5)
        during cursor > 5
        click btnSolve > +1 +11 +21 +31 & hourglass > no
        faults >
    OnlyAConfirmedEscEndsTheSolve:
        full 1 11 21 & esc 1 1
        answer No & answer Yes
        click btnSolve > +1 Box(ESC gedrückt|Abbrechen?|- Yes No) Box(ESC gedrückt|Abbrechen?|- Yes No)
        faults > & click btnSolve > +11 +21
    APaceForgetsTheCancelOfAStep:
        full 1 11 21 & click optChill(6)
        during click optChill(1)
        click btnSolve > +1 +11 +21 & faults >
    AClosedWindowSolvesNoFurther:
        full 1 11 21 & click optChill(6)
        during click optChill(1) & click mnuFileQuit
        click btnSolve > +1
    TheRotorShowsOnePictureAfterTheOther:
        turn 1 & tick 0 >
        tick 1 > 1 & tick 10 > 11
        tick 1 > 0 & tick 3 > 3
        turn 1 & tick 1 > 1
        turn 0 & tick 0 >
)");

TEST_F(SolveWindowTest, AnErrorLeavesAUsableWindow) {
    Do("full 1 11 21");
    platform.ErrorExpected = true;
    auto step = game.Events.StatusChanged.Connect([](int) { throw "of an unknown kind"; });
    Click("btnSolve");
    step.Disconnect();
    EXPECT_FALSE(platform.ErrorExpected);
    Do("faults > & click btnSolve > +11 +21");
}

TEST_F(SolveWindowTest, NestedTicksAreBounded) {
    int ticks = 0;
    timer.Tick = [&] {
        if (++ticks < 100) timer.RaiseTick();
    };
    timer.RaiseTick();
    EXPECT_EQ(ticks, 4);
}

// Every pump brings another click: far more than the stack could hold if they nested.
TEST_F(SolveWindowTest, AFloodOfClicksIsAnsweredInOrderAndANewPaceAtOnce) {
    Do("full 1 11 & click optChill(5)");
    std::vector<int> sent, answered;
    window.lblField.Click = [&](int index) {
        answered.push_back(index);
        grid.SetIndex(index);
    };
    const std::function<void()> user = [&] {
        if (sent.size() == 20'000) return;
        platform.AtPump(1, user);
        do {
            sent.push_back(static_cast<int>(sent.size()) % 81 + 1);
            window.lblField(sent.back()).RaiseClick();
        } while (sent.size() < 500);
        if (sent.size() == 500) Click("optChill(1)");
    };
    platform.Meanwhile = [&] { // from the first pause on
        if (sent.empty()) user();
    };
    EXPECT_EQ(Told("click btnSolve"), "+1 Sleep(800) +11");
    while (sent.size() < 20'000)
        PumpEvents();
    EXPECT_EQ(answered, sent);
    EXPECT_EQ(Faults(), "");
}

// Sixteen handlers nest; what comes then is queued, and checked when its turn comes.
TEST_F(SolveWindowTest, AQueuedClickOnADisabledOrClosedControlIsDropped) {
    int depth = 0, clicks = 0;
    window.btnInfo.Click = [&] { window.btnInfo.SetEnabled(++clicks < 2); };
    window.lblWinner.Click = [&] {
        if (++depth < 16) return window.lblWinner.RaiseClick();
        for (int i = 0; i < 4; ++i)
            window.btnInfo.RaiseClick();
        EXPECT_EQ(clicks, 0);
        window.lblWinner.SetVisible(false);
        window.lblWinner.RaiseClick();
    };
    window.lblWinner.RaiseClick();
    EXPECT_EQ(depth * 10 + clicks, 162);
    window.btnInfo.SetEnabled(true);
    window.Close();
    window.btnInfo.RaiseClick();
    EXPECT_EQ(clicks, 2);
}

} // namespace tessarin
