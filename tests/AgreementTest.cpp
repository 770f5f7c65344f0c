// The program does what its model does, whatever is asked of it.
#include "Agreement.h"

#include <gtest/gtest.h>

namespace tessarin {

TEST(AgreementTest, OfRandomCommandsForAGame) {
    for (unsigned seed = 0; seed < 400; ++seed)
        ASSERT_EQ(Disagreement(RandomScript(Dice(seed), {}), !WithWindow), "") << "seed " << seed;
}

TEST(AgreementTest, OfRandomCommandsForTheWindow) {
    const auto commands = WindowCommands();
    for (unsigned seed = 0; seed < 300; ++seed)
        ASSERT_EQ(Disagreement(RandomScript(Dice(seed), commands), WithWindow), "")
            << "seed " << seed;
}

} // namespace tessarin
