// What a failing test shows.
#include "GameFixture.h"

#include <gtest/gtest-spi.h>

namespace tessarin {

using UserTest = GameFixture;

TEST_F(UserTest, AFailureNamesItsLineTheStepWhatWasToldAndWhatWasExpected) {
    testing::TestPartResultArray failures;
    {
        const testing::ScopedFakeTestPartResultReporter reporter(&failures);
        TELLS(grid.SetIndex(5), "to 6");
    }
    ASSERT_EQ(failures.size(), 1);
    const testing::TestPartResult& failure = failures.GetTestPartResult(0);
    EXPECT_STREQ(failure.file_name(), __FILE__);
    EXPECT_EQ(failure.line_number(), __LINE__ - 5);
    const std::string text = failure.message();
    EXPECT_LT(text.find("grid.SetIndex(5)"), text.find("\"to 5\""));
    EXPECT_LT(text.find("\"to 5\""), text.find("\"to 6\""));
}

} // namespace tessarin
