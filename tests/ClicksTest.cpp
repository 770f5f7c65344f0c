// Clicks that arrive while handlers of other clicks are running, and the window's activation.
#include "WindowScript.h"
#include "support/modTaskBar.h"

namespace tessarin {

using ClicksTest = WindowFixture;

// Every pump brings another click: far more than the stack could hold if they nested.
TEST_F(ClicksTest, AFloodDuringASolveIsAnsweredInOrderAndANewPaceAtOnce) {
    std::vector<int> sent, answered;
    window.lblField.Click = [&, click = window.lblField.Click](int index) {
        answered.push_back(index);
        click(index);
    };
    std::function<void()> user = [&] {
        if (sent.size() == 20'000) return;
        platform.AtPump(1, user);
        if (window.lblField(1).BackColor() == Green && sent.empty()) return; // not yet in a pause
        do {
            sent.push_back(static_cast<int>(sent.size()) % 81 + 1);
            window.lblField(sent.back()).RaiseClick();
        } while (sent.size() < 500);
        if (sent.size() == 500) Click("optChill(1)");
    };
    Script("import 1;1;0|2;2;0 & click optChill(5)");
    platform.AtPump(1, user);
    EXPECT_EQ(Do("click btnSolve").find("Sleep"), std::string::npos) << "without any pause";
    while (sent.size() < 20'000)
        PumpEvents();
    EXPECT_EQ(answered, sent);
    Script("busy > & click lblField(40) & cursor > 40");
}

TEST_F(ClicksTest, QueuedClicksAreCheckedWhenTheirTurnComes) {
    int clicks = 0, depth = 0;
    window.btnInfo.Click = [&] {
        window.btnInfo.SetEnabled(++clicks < 2);
        platform.ErrorExpected = true;
        throw "an error of an unknown kind";
    };
    for (const bool closes : {false, true}) {
        window.lblWinner.Click = [&] { // nests until the gate queues clicks
            if (++depth < 16) return window.lblWinner.RaiseClick();
            for (int i = 0; i < 4; ++i)
                window.btnInfo.RaiseClick();
            EXPECT_EQ(clicks, closes ? 2 : 0);
            window.lblWinner.SetVisible(false);
            window.lblWinner.RaiseClick();
            if (closes) window.Close();
        };
        window.lblWinner.RaiseClick();
        EXPECT_EQ(std::exchange(depth, 0), 16);
        EXPECT_EQ(clicks, 2);
        EXPECT_FALSE(platform.ErrorExpected) << "reported";
        window.btnInfo.SetEnabled(true);
        window.lblWinner.SetVisible(true);
    }
    window.btnInfo.RaiseClick();
    EXPECT_EQ(clicks, 2) << "the window is closed";
}

TEST_F(ClicksTest, EachActivationRepaintsAndKeepsTheTaskbarEntry) {
    mCommands["activate"] = [this](int, auto&) { window.RaiseActivate(); };
    mCommands["taskbar"] = [](int show, auto&) { ShowInTaskBar(5, show == 1); };
    window.lblField(81).SetCaption("?");
    platform.AtPump(1, [&] { window.RaiseActivate(); }); // ignored
    grid.FieldChanged(0);                                // so that painting pumps
    Script(R"(
        activate > Lock(77) Show(5|0) Get(5|-20) Set(5|-20|262160) Show(5|5) Lock(0)
        taskbar 0 > Lock(77) Show(5|0) Get(5|-20) Set(5|-20|16) Show(5|5) Lock(0)
        fields 81 > :normal/text
    )");
}

} // namespace tessarin
