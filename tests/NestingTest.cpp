// Every command of the window with others that arrive in its pumps.
#include "FakeWindow.h"

namespace tessarin {

class NestingTest : public testing::TestWithParam<std::string> {};

INSTANTIATE_TEST_SUITE_P(Commands, NestingTest, testing::ValuesIn(FakeWindow().toolkit.Commands()));

TEST_P(NestingTest, LeavesNothingStuckAndAllPainted) {
    for (const std::string inner :
         {"lblField(40)", "btnNumPad(11)", "btnNextFreeAuto", "btnSolve", "mnuEditClearAll",
          "mnuViewNeighbours", "mnuFileImportCSV", "mnuFileQuit"})
        // The first pumps follow events, the later ones are those of counts and paints.
        for (const int pump : {1, 2, 3, 5, 8, 13, 34, 89, 233, 610}) {
            SCOPED_TRACE(GetParam() + " with " + inner + " in pump " + std::to_string(pump));
            FakeWindow user;
            user.FullBut({41, 1, 9, 21, 45, 80});
            user.Trace({3, 40});
            user.Pace("100");
            user.Click(3);
            user.platform.SaysYes = true;
            bool ran = false;
            user.AtPump(pump, [&] {
                ran = true;
                user.Do(inner);
            });
            user.Do(GetParam());
            user.AtPump(0, nullptr);
            ASSERT_EQ(user.platform.Closed ? "" : user.Faults(), "");
            if (!ran) break;
        }
}

} // namespace tessarin
