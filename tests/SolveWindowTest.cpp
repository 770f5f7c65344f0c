// The automatic solve as the window shows it: pace, disabled panels, cancel and the busy indicator.
#include "WindowScript.h"

#include "support/modKbd.h"

namespace tessarin {

class SolveWindowTest : public WindowFixture {
protected:
    SolveWindowTest() { Load(); }

    // A grid in which the fields 1, 11, 21 and 31 are empty.
    void Load() {
        std::string cells = FullCells;
        cells[0] = cells[10] = cells[20] = cells[30] = '.';
        Do("fill " + cells);
        play.Reset();
    }
    Connection AtEachChange(std::function<void(int)> step) {
        return game.Events.StatusChanged.Connect(std::move(step));
    }
    bool IsIdle() {
        return window.fraAction.Enabled() && window.fraNumPad.Enabled() &&
               !window.ctlRotor1.Running() && !platform.Hourglass;
    }
};

TEST_F(SolveWindowTest, EveryPaceSolvesAndOnlyQuietPaintsNothingUntilTheEnd) {
    // A pause for each of the two fields of a cursor move and for the value. The first field is the
    // current one already.
    for (const auto& [option, pause] :
         {std::pair{0, 0}, {1, 0}, {2, 100}, {3, 200}, {4, 400}, {5, 800}}) {
        SCOPED_TRACE(option);
        Do("index 1");
        Load();
        Click(window.optChill(option).Name());
        int painted = 0;
        const auto connection =
            AtEachChange([&](int index) { painted += !window.lblField(index).Caption().empty(); });
        const std::string told = Do("click btnSolve");
        EXPECT_EQ(std::count(told.begin(), told.end(), 'S'), pause == 0 ? 0 : 10);
        EXPECT_EQ(told.find("Sleep(" + std::to_string(pause) + ")") == std::string::npos,
                  pause == 0);
        EXPECT_EQ(painted, option == 0 ? 0 : 4);
        for (int k = 1; k <= 81; ++k)
            EXPECT_EQ(window.lblField(k).Caption(), std::to_string(At(k).Value())) << k;
        EXPECT_EQ(window.lblField(grid.Index()).BackColor(), Green);
        Script("lights > normal green");
        EXPECT_TRUE(IsIdle());
    }
    Script("click btnGoBack & lights > normal normal");
}

TEST_F(SolveWindowTest, StepMakesOneCycleForEachClick) {
    Do("click optChill(6)");
    for (int left = 3; left >= 0; --left) {
        Do("click btnSolve");
        EXPECT_EQ(grid.FreeCount(), left);
        EXPECT_TRUE(IsIdle());
    }
}

TEST_F(SolveWindowTest, WhileItRunsThePanelsAreDeadAndAllElseAnswers) {
    Do("click optChill(2)");
    int changes = 0;
    const auto connection = AtEachChange([&](int) {
        if (++changes > 1) return;
        EXPECT_TRUE(platform.Hourglass && window.ctlRotor1.Running());
        for (const char* const name :
             {"btnInfo", "btnGoBack", "lblDeadEnd", "btnNumPad(11)", "mnuFileQuit"})
            Click(name);
        EXPECT_EQ(window.Width(), 8850);
        EXPECT_EQ(grid.FreeCount(), 3);
        EXPECT_FALSE(platform.Closed);
        Click("lblField(5)");
        EXPECT_EQ(grid.Index(), 5);
        Click("optChill(0)"); // quiet from here on
        platform.TakeCalls();
    });
    Script("click btnSolve > [1 11 21 31]");
    EXPECT_EQ(changes, 4);
    EXPECT_TRUE(IsIdle());
    Do("click mnuFileQuit");
    EXPECT_TRUE(platform.Closed);
}

TEST_F(SolveWindowTest, APaceCountsAtOnceHoweverManyClicksWait) {
    Do("click optChill(5)");
    int sent = 0;
    std::function<void()> user = [&] {
        platform.AtPump(1, user);
        if (platform.LastPump != Pump::Now) return; // until a pause begins
        while (sent < 500)
            window.lblField(++sent % 81 + 1).RaiseClick();
        if (sent++ == 500) Click("optChill(1)");
    };
    platform.AtPump(1, user);
    const std::string told = Do("click btnSolve");
    EXPECT_EQ(told.find("Sleep"), std::string::npos);
    EXPECT_TRUE(grid.IsWinner() && IsIdle());
}

TEST_F(SolveWindowTest, OnlyAConfirmedEscEndsIt) {
    platform.Esc = {true, true};
    const std::string box = "Box(Abbrechen?|ESC gedrückt|YesNo|-)";
    Script("answer 0 & answer 1 & click btnSolve > " + box + " " + box + " [1]");
    EXPECT_TRUE(IsIdle());
    Do("click btnSolve"); // the cancel before is forgotten
    EXPECT_TRUE(grid.IsWinner());
}

TEST_F(SolveWindowTest, AFailingSolveLeavesAUsableWindow) {
    platform.ErrorsExpected = true;
    const auto connection = AtEachChange([](int) { throw std::runtime_error("no more"); });
    Do("click btnSolve");
    EXPECT_TRUE(IsIdle());
    Do("click mnuFileQuit");
    EXPECT_TRUE(platform.Closed) << "no solve runs any more";
}

// The solve of a step has still to return when the window closes.
TEST_F(SolveWindowTest, ClosedInTheTailOfAStep) {
    Do("click optChill(6)");
    const auto connection = AtEachChange([&](int) {
        Click("optChill(1)");
        Click("mnuFileQuit");
    });
    Script("click btnSolve > [1]");
    EXPECT_TRUE(platform.Closed);
    EXPECT_EQ(grid.FreeCount(), 3);
    EXPECT_TRUE(IsIdle());
}

TEST_F(SolveWindowTest, RotorShowsOnePictureAfterTheOther) {
    auto& timer = dynamic_cast<Timer&>(toolkit.Find("Timer1"));
    const auto shown = [&] {
        std::vector<int> pictures;
        for (int i = 0; i < 12; ++i)
            if (toolkit.Find("Image1(" + std::to_string(i) + ")").Visible()) pictures.push_back(i);
        return Text(pictures);
    };
    EXPECT_EQ(timer.Interval(), 5);
    for (int run = 0; run < 2; ++run) {
        window.ctlRotor1.SetRunning(true);
        for (int tick = 1; tick <= 13; ++tick) {
            timer.RaiseTick();
            EXPECT_EQ(shown(), std::to_string(tick % 12));
        }
    }
    EXPECT_TRUE(timer.Enabled());
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
