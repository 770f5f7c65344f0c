// The automatic solve in the window: pace, disabled panels, cancel and the busy indicator.
#include "WindowScript.h"

namespace tessarin {

using SolveWindowTest = WindowFixture;

TEST_F(SolveWindowTest, EveryPaceSolvesAndOnlyQuietPaintsNothingUntilTheEnd) {
    // One pause for each of the two fields of a cursor move and one for the value. The first field
    // needs no move.
    for (const auto& [option, pause] :
         {std::pair{0, 0}, {1, 0}, {2, 100}, {3, 200}, {4, 400}, {5, 800}}) {
        SCOPED_TRACE(option);
        SetCancel(); // forgotten with the choice of a pace
        Script("holes 1 11 21 31 & click optChill(" + std::to_string(option) + ")");
        EXPECT_FALSE(gbCancel);
        std::string pauses;
        for (int i = 0; i < 10 && pause > 0; ++i)
            pauses += "Sleep(" + std::to_string(pause) + ") ";
        Do(std::string("during fields 1 => ") + (option == 0 ? "" : "1") + ":green/text");
        Script("click btnSolve > " + pauses + "[1 11 21 31] & busy > & lights > normal green");
        Script("fields 1 11 21 31 > 1:normal/text 5:normal/text 9:normal/text 5:green/text");
    }
    Script("click btnGoBack > [1 11 21] & lights > normal normal");
}

TEST_F(SolveWindowTest, StepPanelsEscErrorsAndClosing) {
    Script(R"(
        // "Step" makes one cycle for each click.
        holes 1 11 21 31 & click optChill(6) & click btnSolve > [1] & left > 3 & busy > & click btnSolve > [1 11]
        left > 2 & busy > & click btnSolve & click btnSolve & left > 0 & busy >

        // The field that the cursor has left is painted first.
        holes 1 11 21 31 & index 2 & click optChill(2) & during fields 1 2 => :normal/text 2:normal/text & click btnSolve & left > 0

        // During a solve the panels are disabled, and the window stays open. All else answers.
        holes 1 11 21 31 & click optChill(1)
        during click btnInfo; click btnGoBack; click lblDeadEnd; click btnNumPad(11); click mnuFileQuit; left => 3; busy => fraAction fraNumPad rotor hourglass; click lblField(5); cursor => 5; click optChill(0)
        click btnSolve > [1 11 21 31] & left > 0 & busy > & size > 8850 x 7170

        // Only a confirmed ESC ends the solve. The next one runs to its end.
        holes 1 11 21 31 & esc 1 & esc 1 & answer 0 & answer 1
        click btnSolve > Box(ESC gedrückt|Abbrechen?|- Yes No) Box(ESC gedrückt|Abbrechen?|- Yes No) [1]
        busy > & left > 3 & click btnSolve & left > 0 & busy >

        // An error leaves a usable window.
        holes 1 11 21 31 & during fail & click btnSolve & left > 3 & busy >

        // Closed before the solve of a step returns.
        holes 1 11 21 31 & click optChill(6) & during click optChill(1); click mnuFileQuit & click btnSolve > [1]
        left > 3 & busy > closed
    )");
}

TEST_F(SolveWindowTest, RotorShowsOnePictureAfterTheOther) {
    auto& timer = dynamic_cast<Timer&>(toolkit.Find("Timer1"));
    mCommands["tick"] = [&](int times, auto&) {
        while (times-- > 0)
            timer.RaiseTick();
        for (int i = 0; i < 12; ++i)
            if (toolkit.Find("Image1(" + std::to_string(i) + ")").Visible()) Tell(i);
    };
    mCommands["turn"] = [&](int on, auto&) { window.ctlRotor1.SetRunning(on == 1); };
    Script("turn 1 & tick 1 > 1 & tick 1 > 2 & tick 9 > 11 & tick 1 > 0 & tick 1 > 1 & tick 1 > 2");
    Script("turn 0 & tick 0 > & turn 1 & tick 1 > 1");
    EXPECT_TRUE(timer.Enabled() && timer.Interval() == 5);
    int ticks = 0;
    timer.Tick = [&] {
        ++ticks;
        timer.RaiseTick();
    };
    timer.RaiseTick();
    EXPECT_EQ(ticks, 4) << "nested ticks are bounded";
    Script("turn 0");
    EXPECT_FALSE(timer.Enabled());
}

} // namespace tessarin
