// Commands that arrive while others are under way, as the pumping of window events lets them.
#include "GameFixture.h"
#include "platform/Controls.h"
#include "platform/Form.h"

namespace tessarin {

// Runs `operation`, on a puzzle whose status is still to be counted, with `command` at its n-th
// pump; returns the number of its pumps.
int RunNested(const std::string& operation, const std::string& command, int n) {
    TestGame test;
    test.Script(R"(
        fill 58961.23.723.956...6123789..4278..6..7.56.4.315.92.7..2143..956.37.5.1.2..51423.8
        lockall 1 & clear 1 & index 6 & trace 46 28
    )");
    test.platform.Pumps = 0;
    test.platform.AtPump(n, [&] {
        test.Do(command);
        if (n % 2 == 0) test.ExpectRightStatus();
        test.platform.Esc = {false, true}; // a solve under way ends soon
        test.platform.Answers = {true};
    });
    test.Do(operation);
    const int pumps = test.platform.Pumps;
    test.ExpectRightStatus();
    const auto cursor = test.grid.Cursor;
    EXPECT_TRUE(!cursor || cursor == test.grid.Items.Item(test.grid.Index()));
    test.Do("index 2");
    EXPECT_TRUE(test.Do("playlock").starts_with("StatusChanged(2)"));
    return pumps;
}

TEST(NestedTest, CommandsAtThePumpsOfOthers) {
    std::string large = "sdk \"Sudoku\"|"; // of dimension 5, one row empty
    for (int i = 0; i < 600; ++i)
        large += std::to_string((5 * (i / 25) + i / 125 + i) % 25 + 1) + (i % 25 < 24 ? "," : "|");
    const std::string import = "csv Index;Value;Locked|1;1;1|3;3;0|81;9;1";
    for (const std::string operation :
         {"status", "auto", "value", "index 40", "index 0", "lockall 0", "retreat 1", "solve"}) {
        const int pumps = RunNested(operation, "reset", 0);
        for (const std::string& command :
             {import, large + "|", std::string("clear 1"), std::string("set 3 0"),
              std::string("lock 4 1"), std::string("index 0"), std::string("goto 1")})
            for (int n = 1; n <= pumps && !testing::Test::HasFailure(); n += pumps / 12 + 1) {
                SCOPED_TRACE(command + " at pump " + std::to_string(n) + " of " + operation);
                RunNested(operation, command, n);
            }
    }
}

TEST(NestedTest, ChangeAtEveryPumpOfAStatusPass) {
    TestGame test;
    for (int n = 1; n <= 81; ++n) {
        test.grid.Clear();
        test.platform.AtPump(n, [&] { test.At(n).SetValue(5); });
        EXPECT_EQ(test.grid.FreeCount(), 80);
        test.ExpectRightStatus();
    }
}

TEST(NestedTest, WhatOvertakesAMoveOrAnEntry) {
    TestGame test;
    test.Do("index 1");
    test.platform.AtPump(1, [&] { test.grid.SetIndex(2); });
    // The relay pumps before this record hears of the event.
    test.Script("index 2 > BeforeIndexChanged(1) IndexChanged(2) BeforeIndexChanged(1)");
    test.Do("trace");
    for (const std::string step :
         {"value 5 > BeforeIndexChanged(2) IndexChanged(9) StatusChanged(2) [2]",
          "value 0 > BeforeIndexChanged(2) IndexChanged(9) StatusChanged(2) []"}) {
        test.Do("index 2");
        test.platform.AtPump(1, [&] { test.grid.SetIndex(9); });
        test.Script(step);
    }
}

TEST(NestedTest, HandlersComeAndGoWhileAnEventIsRaised) {
    auto event = std::make_unique<Event<int>>();
    std::string heard;
    Connection own, later, added;
    own = event->Connect([&](int) {
        heard += "a";
        own.Disconnect();
        later.Disconnect();
        added = event->Connect([&](int) { heard += "d"; });
        event->Raise(0);
    });
    later = event->Connect([&](int) { heard += "b"; });
    const auto last = event->Connect([&](int end) {
        heard += "c";
        if (end == 1) event.reset();
    });
    event->Raise(0);
    EXPECT_EQ(std::exchange(heard, ""), "acdc");
    event->Raise(1);
    EXPECT_EQ(heard, "cd");
}

class ClickGateTest : public testing::Test, Toolkit {
protected:
    struct Peer : ControlPeer {
        void Changed(Property /*property*/) override {}
    };
    std::unique_ptr<ControlPeer> CreatePeer(ControlKind, Control&, Control*) override {
        return std::make_unique<Peer>();
    }
    std::optional<std::string> RunFileDialog(const FileDialogRequest&) override { return {}; }

    Form form{*this, {}};
    Frame frame{form, {}};
    CommandButton first{frame, {}};
    CommandButton second{form, {}};
    int depth = 0;

    // Clicks `first` until no further click is let in, and runs `action` there.
    void AtTheBound(const std::function<void()>& action) {
        first.Click = [this, action] {
            if (++depth < 16)
                first.RaiseClick();
            else
                action();
            --depth;
        };
        first.RaiseClick();
        EXPECT_EQ(depth, 0);
    }
};

TEST_F(ClickGateTest, FloodIsHandledInOrderAndNotLost) {
    constexpr int Flood = 20000;
    Control* const buttons[] = {&first, &second};
    int raised = 1, deepest = 0;
    std::string order, expected;
    for (Control* const button : buttons)
        button->Click = [&, button] {
            deepest = std::max(deepest, ++depth);
            order += button == &first ? '1' : '2';
            for (int i = 0; i < 3 && raised < Flood; ++i)
                buttons[raised++ % 2]->RaiseClick();
            --depth;
        };
    first.RaiseClick();
    for (int i = 0; i < Flood / 2; ++i)
        expected += "12";
    EXPECT_TRUE(order == expected) << order.size() << " clicks";
    EXPECT_EQ(deepest, 16);
}

TEST_F(ClickGateTest, ClicksAreJudgedWhenTheirTurnComes) {
    int clicks = 0;
    second.Click = [&] {
        second.SetEnabled(++clicks < 2);
        throw std::out_of_range("a command that fails");
    };
    AtTheBound([&] {
        for (int i = 0; i < 4; ++i)
            second.RaiseClick();
        EXPECT_EQ(clicks, 0);
        frame.SetVisible(false);
        first.RaiseClick();
    });
    EXPECT_EQ(clicks, 2);
    frame.SetVisible(true);
    second.SetEnabled(true);
    AtTheBound([&] {
        second.RaiseClick();
        form.Gate.Close();
    });
    second.RaiseClick();
    EXPECT_EQ(clicks, 2);
}

} // namespace tessarin
