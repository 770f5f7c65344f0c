// SPDX-License-Identifier: MIT
// The program does what its model does, whatever is asked of it.
#include "Agreement.h"

#include <gtest/gtest.h>

#include <tuple>

namespace tessarin {

constexpr unsigned SeedsInABlock = 200;

class AgreementTest : public testing::TestWithParam<std::tuple<unsigned, bool>> {};
INSTANTIATE_TEST_SUITE_P(BlocksOfSeeds, AgreementTest,
                         testing::Combine(testing::Range(0U, 10U),
                                          testing::Values(!WithWindow, WithWindow)));

TEST_P(AgreementTest, OnRandomCommands) {
    const auto [block, withWindow] = GetParam();
    for (unsigned seed = block * SeedsInABlock; seed < (block + 1) * SeedsInABlock; ++seed)
        ASSERT_EQ(Disagreement(RandomScript(Dice(seed), withWindow), withWindow), "")
            << "seed " << seed;
}

} // namespace tessarin
