#include "RandomUser.h"

#include <iostream>
#include <memory>
#include <random>

namespace tessarin {

TEST(RandomWalkTest, InvariantsHoldAfterEveryStep) {
    const int seed = testing::UnitTest::GetInstance()->random_seed();
    std::cout << "To walk again: --gtest_random_seed=" << seed << '\n';
    std::mt19937 random(static_cast<unsigned>(seed));
    const auto below = [&](int count) {
        return static_cast<int>(random() % static_cast<unsigned>(count));
    };
    for (const bool impatient : {false, true}) {
        std::unique_ptr<RandomUser> user;
        for (int step = 0; step < 700 && !testing::Test::HasFailure(); ++step) {
            if (!user || !user->IsOpen()) {
                user.reset(); // only one may live at a time
                user = std::make_unique<RandomUser>(impatient, below);
            }
            user->Step();
        }
    }
}

} // namespace tessarin
