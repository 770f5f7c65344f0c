// SPDX-License-Identifier: MIT
// The program does what its model does, whatever is asked of it.
#include "Agreement.h"

#include <gtest/gtest.h>

namespace tessarin {

class AgreementTest : public testing::TestWithParam<bool> {};
INSTANTIATE_TEST_SUITE_P(GameAndWindow, AgreementTest, testing::Values(!WithWindow, WithWindow));

TEST_P(AgreementTest, OnRandomCommands) {
    const bool withWindow = GetParam();
    for (unsigned seed = 0; seed < 1000; ++seed)
        ASSERT_EQ(Disagreement(RandomScript(Dice(seed), withWindow), withWindow), "")
            << "seed " << seed;
}

} // namespace tessarin
