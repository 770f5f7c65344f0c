// The automatic solve in the window: pace, disabled panels, cancel and the busy indicator.
#include "WindowScript.h"

#include <stdexcept>

namespace tessarin {

class SolveWindowTest : public WindowFixture {
protected:
    SolveWindowTest() {
        // Only the fields 1, 11, 21 and 31 are empty.
        mCommands["load"] = [this](int, auto&) {
            std::string cells = FullCells;
            cells[0] = cells[10] = cells[20] = cells[30] = '.';
            Fill(cells);
            play.Reset();
        };
        // The number of empty fields, and whether the window looks as without a solve.
        mCommands["left"] = [this](int, auto&) {
            const bool idle = window.fraAction.Enabled() && window.fraNumPad.Enabled() &&
                              !window.ctlRotor1.Running() && !platform.Hourglass;
            Tell(std::to_string(grid.FreeCount()) + (idle ? " idle" : " busy"));
        };
        // Sets the steps for the next change of a field, with "=>" for ">" and "; " between steps.
        mCommands["during"] = [this](int, auto& steps) { mDuring = steps; };
        Do("load");
    }

    std::string mDuring;
    Connection mChanges = game.Events.StatusChanged.Connect([this](int) {
        Script(ReplaceAll(ReplaceAll(std::exchange(mDuring, ""), "; ", "\n"), "=>", ">"));
    });
};

TEST_F(SolveWindowTest, EveryPaceSolvesAndOnlyQuietPaintsNothingUntilTheEnd) {
    // One pause for each of the two fields of a cursor move and one for the value. The first field
    // needs no move.
    for (const auto& [option, pause] :
         {std::pair{0, 0}, {1, 0}, {2, 100}, {3, 200}, {4, 400}, {5, 800}}) {
        SCOPED_TRACE(option);
        Script("index 1 & load & click optChill(" + std::to_string(option) + ")");
        std::string pauses;
        for (int i = 0; i < 10 && pause > 0; ++i)
            pauses += "Sleep(" + std::to_string(pause) + ") ";
        Do(std::string("during fields 1 => ") + (option == 0 ? "" : "1") + ":green/text");
        Script("click btnSolve > " + pauses + "[1 11 21 31] & fields 31 > 5:green/text");
        Script("fields 1 11 21 > 1:normal/text 5:normal/text 9:normal/text & left > 0 idle");
        Script("lights > normal green");
    }
    Script("click btnGoBack > [1 11 21] & lights > normal normal");
}

TEST_F(SolveWindowTest, StepMakesOneCycleForEachClick) {
    Script(R"(
        click optChill(6) & click btnSolve > [1] & left > 3 idle & click btnSolve > [1 11]
        left > 2 idle & click btnSolve & click btnSolve & left > 0 idle
    )");
}

TEST_F(SolveWindowTest, PanelsAreDisabledDuringASolveAndAllElseAnswers) {
    Script(R"(
        during click btnInfo; click btnGoBack; click lblDeadEnd; click btnNumPad(11); click mnuFileQuit; left => 3 busy; click lblField(5); cursor => 5; click optChill(0)
        click optChill(1) & click btnSolve > [1 11 21 31] & left > 0 idle
    )");
    EXPECT_EQ(window.Width(), 8850);
    EXPECT_FALSE(platform.Closed);
    Do("click mnuFileQuit");
    EXPECT_TRUE(platform.Closed);
}

TEST_F(SolveWindowTest, ANewPaceTakesEffectBeforeQueuedClicks) {
    Do("click optChill(5)");
    int sent = 0;
    std::function<void()> user = [&] {
        platform.AtPump(1, user);
        if (platform.LastPump != Pump::Now) return; // not yet in a pause
        while (sent < 500)
            window.lblField(++sent % 81 + 1).RaiseClick();
        if (sent++ == 500) Click("optChill(1)");
    };
    platform.AtPump(1, user);
    Script("click btnSolve > [1 11 21 31] & left > 0 idle"); // without any pause
}

TEST_F(SolveWindowTest, OnlyAConfirmedEscEndsTheSolve) {
    platform.Esc = {true, true};
    const std::string box = "Box(Abbrechen?|ESC gedrückt|YesNo|-)";
    Script("answer 0 & answer 1 & click btnSolve > " + box + " " + box + " [1] & left > 3 idle");
    Script("click btnSolve & left > 0 idle"); // the last cancel is forgotten
}

TEST_F(SolveWindowTest, ClosedBeforeTheSolveOfAStepReturns) {
    Script(
        "click optChill(6) & during click optChill(1); click mnuFileQuit & click btnSolve > [1]");
    Script("left > 3 idle");
    EXPECT_TRUE(platform.Closed);
}

TEST_F(SolveWindowTest, AFailingSolveLeavesAUsableWindow) {
    platform.ErrorsExpected = true;
    const auto failing =
        game.Events.StatusChanged.Connect([](int) -> void { throw std::runtime_error("no more"); });
    Script("click btnSolve & left > 3 idle & click mnuFileQuit");
    EXPECT_TRUE(platform.Closed) << "the solve has ended";
}

TEST_F(SolveWindowTest, RotorShowsOnePictureAfterTheOther) {
    auto& timer = dynamic_cast<Timer&>(toolkit.Find("Timer1"));
    const auto shown = [&] {
        std::string pictures;
        for (int i = 0; i < 12; ++i)
            if (toolkit.Find("Image1(" + std::to_string(i) + ")").Visible())
                pictures += std::to_string(i);
        return pictures;
    };
    for (int run = 0; run < 2; ++run) {
        window.ctlRotor1.SetRunning(true);
        for (int tick = 1; tick <= 13; ++tick) {
            timer.RaiseTick();
            EXPECT_EQ(shown(), std::to_string(tick % 12));
        }
    }
    EXPECT_TRUE(timer.Enabled() && timer.Interval() == 5);
    int ticks = 0;
    timer.Tick = [&] {
        ++ticks;
        timer.RaiseTick();
    };
    timer.RaiseTick();
    EXPECT_EQ(ticks, 4) << "nested ticks are bounded";
    window.ctlRotor1.SetRunning(false);
    EXPECT_EQ(shown(), "");
    EXPECT_FALSE(timer.Enabled());
}

} // namespace tessarin
