// SPDX-License-Identifier: MIT
// The controls of a window, apart from this program's window.
#include "FakeWindow.h"

namespace tessarin {

struct ToolkitTest : testing::Test {
    ScriptedPlatform platform;
    FakeToolkit toolkit{platform};
    Form form{toolkit, "form", {}};
    Frame frame{form, "frame", {}};
    CommandButton button{frame, "button", {}};
    int clicks = 0;

    ToolkitTest() {
        button.Click = [this] { ++clicks; };
        button.RaiseClick(); // does nothing: the form is not shown yet
        form.Show();
    }
    /// Does a step in the innermost of as many clicks as may nest: another click has to wait.
    void AtGreatestDepth(const std::function<void()>& step) {
        CommandButton outer{form, "outer", {}};
        int depth = 0;
        outer.Click = [&] {
            if (++depth < ClickGate::MaxDepth)
                outer.RaiseClick();
            else
                step();
        };
        outer.RaiseClick();
    }
};

// The error of the handler changes nothing in its answer.
TEST_F(ToolkitTest, AClosedFormTakesNoClicks) {
    bool refuse = true;
    form.Unload = [&](bool& cancel) {
        cancel = refuse;
        throw std::runtime_error("failed");
    };
    EXPECT_FALSE(form.RaiseUnload());
    button.RaiseClick();
    refuse = false;
    OptionButton option{form, "option", {}};
    option.Click = button.Click;
    EXPECT_TRUE(form.RaiseUnload());
    button.RaiseClick();
    option.RaiseClick();
    EXPECT_EQ(clicks, 1);
}

// Each click brings two more, in the end far more than the stack could hold if they nested.
TEST_F(ToolkitTest, AFloodOfClicksIsAnsweredInOrder) {
    ControlArray<CommandButton> keys{form, "keys", {}};
    keys.Add(1, {});
    int sent = 0;
    keys.Click = [&](int key) {
        EXPECT_EQ(key, clicks++ % 2);
        for (int i = 0; i < 2 && sent < 20'000; ++i)
            keys(sent++ % 2).RaiseClick();
    };
    keys(sent++).RaiseClick();
    EXPECT_EQ(clicks, 20'000);
}

TEST_F(ToolkitTest, AWaitingClickIsDroppedIfItsControlCannotBeClickedByThen) {
    const std::function<void()> reasons[] = {[&] { frame.SetEnabled(false); },
                                             [&] { button.SetVisible(false); },
                                             [&] { form.RaiseUnload(); }};
    for (const auto& reason : reasons) {
        AtGreatestDepth([&] {
            button.RaiseClick();
            reason();
        });
        frame.SetEnabled(true);
        button.SetVisible(true);
    }
    EXPECT_EQ(clicks, 0);
}

TEST_F(ToolkitTest, AnOptionAnswersAtOnce) {
    OptionButton option{form, "option", {}};
    option.Click = [&] { ++clicks; };
    AtGreatestDepth([&] {
        button.RaiseClick();
        option.RaiseClick();
        EXPECT_EQ(clicks, 1) << "the button waits, the option does not";
    });
    // By code also while nobody can click it; errors are the caller's.
    option.SetVisible(false);
    option.Select();
    EXPECT_EQ(clicks, 3);
    option.Click = [] { throw std::runtime_error("failed"); };
    platform.Record.clear();
    EXPECT_THROW(option.Select(), std::runtime_error);
    EXPECT_EQ(platform.Record, "selected ");
}

TEST_F(ToolkitTest, ACancelledDialogKeepsTheFileChosenBefore) {
    CommonDialog dialog(toolkit);
    platform.Answers = {"/folder/file"};
    EXPECT_TRUE(dialog.ShowOpen());
    EXPECT_FALSE(dialog.ShowSave());
    EXPECT_EQ(dialog.FileName, "/folder/file");
}

TEST_F(ToolkitTest, TicksNestFourDeepAndErrorsAreReported) {
    Timer timer{form, "timer"};
    int ticks = 0;
    timer.Tick = [&] {
        if (++ticks < 99) timer.RaiseTick();
    };
    timer.RaiseTick();
    EXPECT_EQ(ticks, 4);
    EXPECT_FALSE(timer.Enabled());
    timer.Tick = form.Activate = [] { throw std::runtime_error("failed"); };
    timer.RaiseTick();
    form.RaiseActivate();
    EXPECT_EQ(platform.Record, "! failed ! failed ");
}

} // namespace tessarin
