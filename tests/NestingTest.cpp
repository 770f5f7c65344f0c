// Every command of the window with others that arrive in its pumps.
#include "FakeWindow.h"
#include "support/modStringLibrary.h"

namespace tessarin {

class NestingTest : public testing::TestWithParam<std::string> {};

INSTANTIATE_TEST_SUITE_P(Commands, NestingTest, testing::ValuesIn(WindowScript::Commands));

TEST_P(NestingTest, LeavesNothingStuckAndAllPainted) {
    const std::string outer = ReplaceAll(ReplaceAll(GetParam(), "#", "50"), "*", "5");
    for (const std::string inner :
         {"click lblField(40)", "click btnNumPad(11)", "click btnNextFreeAuto", "click btnSolve",
          "click mnuEditClearAll", "click mnuViewNeighbours", "import 3;7;1|41;4;0",
          "click mnuFileQuit"})
        for (const int pump : {1, 2, 3, 5, 8, 13, 34, 89, 233, 610}) {
            SCOPED_TRACE(outer + " with " + inner + " in pump " + std::to_string(pump));
            FakeWindow user;
            user.Do("full 41 1 9 21 45 80 & trace 3 40");
            user.Do("pace 100 & click lblField(3)");
            user.platform.Answers.assign(9, "Yes");
            bool ran = false;
            user.platform.AtPump(pump, [&] {
                ran = true;
                EXPECT_EQ(user.Told(inner).find("! "), std::string::npos);
            });
            EXPECT_EQ(user.Told(outer).find("! "), std::string::npos);
            if (!ran) break;
            ASSERT_EQ(user.platform.Closed ? "" : user.Faults(), "");
        }
}

} // namespace tessarin
