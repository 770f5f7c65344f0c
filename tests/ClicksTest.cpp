// Clicks that arrive while handlers of other clicks are running, and the window's activation.
#include "WindowScript.h"

#include <cstdint>
#include <stdexcept>

namespace tessarin {

using ClicksTest = WindowFixture;

// Every pump brings another click: far more than the stack could hold if they nested.
TEST_F(ClicksTest, EveryClickOfAFloodDuringASolveIsAnswered) {
    constexpr int Clicks = 20'000;
    constexpr std::uintptr_t StackBytes = 1 << 20;
    std::vector<int> answered;
    std::uintptr_t deepest = UINTPTR_MAX;
    const auto here = [] { return reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0)); };
    window.lblField.Click = [&, click = window.lblField.Click](int index) {
        answered.push_back(index);
        deepest = std::min(deepest, here());
        click(index);
    };
    int sent = 0;
    std::function<void()> send = [&] {
        if (sent >= Clicks) return;
        platform.AtPump(1, send);
        window.lblField(sent++ % 81 + 1).RaiseClick();
    };
    platform.AtPump(1, send);
    Click("btnSolve");
    while (sent < Clicks)
        PumpEvents();
    ASSERT_EQ(answered.size(), static_cast<std::size_t>(Clicks));
    for (int i = 0; i < Clicks; ++i)
        ASSERT_EQ(answered[static_cast<std::size_t>(i)], i % 81 + 1);
    EXPECT_LT(here() - deepest, StackBytes);
    EXPECT_TRUE(window.fraAction.Enabled());
    Script("click lblField(40) & cursor > 40");
}

TEST_F(ClicksTest, QueuedClicksAreCheckedWhenTheirTurnComes) {
    int clicks = 0, depth = 0;
    platform.ErrorsExpected = true;
    window.btnInfo.Click = [&] {
        window.btnInfo.SetEnabled(++clicks < 2);
        throw std::out_of_range("a command that fails");
    };
    for (const bool closes : {false, true}) {
        window.lblWinner.Click = [&] { // nests until the gate queues clicks
            if (++depth < 16) return window.lblWinner.RaiseClick();
            for (int i = 0; i < 4; ++i)
                window.btnInfo.RaiseClick();
            EXPECT_EQ(clicks, closes ? 2 : 0);
            window.lblWinner.SetVisible(false);
            window.lblWinner.RaiseClick();
            if (closes) window.Unload();
        };
        window.lblWinner.RaiseClick();
        EXPECT_EQ(std::exchange(depth, 0), 16);
        EXPECT_EQ(clicks, 2);
        window.btnInfo.SetEnabled(true);
        window.lblWinner.SetVisible(true);
    }
}

TEST_F(ClicksTest, EachActivationRepaintsAndKeepsTheTaskbarEntry) {
    window.lblField(81).SetCaption("?");
    platform.TakeCalls();
    platform.AtPump(1, [&] { window.RaiseActivate(); }); // ignored
    grid.FieldChanged(0);                                // so that painting pumps
    platform.TakeCalls();
    window.RaiseActivate();
    EXPECT_EQ(platform.TakeCalls(),
              "Lock(77) Show(5|0) Get(5|-20) Set(5|-20|262144) Show(5|5) Lock(0) ");
    Script("fields 81 > :normal/text");
}

} // namespace tessarin
