// Commands that run inside the pumps of others.
#include "GameFixture.h"

namespace tessarin {

TEST(NestedTest, ChangeAtEveryPumpOfAStatusPass) {
    TestGame test;
    for (int n = 1; n <= 81; ++n) {
        test.grid.Clear();
        test.platform.AtPump(n, [&] { test.At(n).SetValue(5); });
        EXPECT_EQ(test.grid.FreeCount(), 80);
        test.ExpectRightStatus();
    }
}

// These changes raise no event, so that nothing reads the status before the pass has ended.
TEST(NestedTest, SilentChangeAtEveryPumpOfAStatusPass) {
    TestGame test;
    for (const std::string command : {"clear", "init"})
        for (int n = 1; n <= 81; ++n) {
            test.grid.Init();
            test.At(1).SetTextSDK("5");
            test.platform.AtPump(n, [&] { test.Do(command); });
            EXPECT_EQ(test.grid.FreeCount(), 81) << command << " at " << n;
        }
}

TEST(NestedTest, CursorMovesInsideAMoveOrAnEntry) {
    TestGame test;
    test.Do("index 1");
    test.platform.AtPump(1, [&] { test.grid.SetIndex(2); });
    // The relay pumps before the event reaches this record.
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

} // namespace tessarin
