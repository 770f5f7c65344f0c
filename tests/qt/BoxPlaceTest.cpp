// SPDX-License-Identifier: MIT
// Where a message box opens.
#include "qt/BoxPlace.h"

#include <gtest/gtest.h>

namespace tessarin {

TEST(BoxPlaceTest, ABoxOpensWhereTheScreenHasRoom) {
    const auto place = [](const QRect& area) {
        return qt::PlaceBeside(area, QSize(100, 50), QRect(0, 0, 1000, 800));
    };
    // On the right.
    EXPECT_EQ(place({100, 100, 400, 400}), QPoint(500, 275));
    // On the left.
    EXPECT_EQ(place({550, 100, 400, 400}), QPoint(450, 275));
    // Above.
    EXPECT_EQ(place({50, 100, 900, 400}), QPoint(450, 50));
    // Below.
    EXPECT_EQ(place({50, 0, 900, 400}), QPoint(450, 400));
    // In the corner where it covers least.
    EXPECT_EQ(place({20, 20, 960, 760}), QPoint(900, 0));
    // On the screen.
    EXPECT_EQ(place({100, 790, 400, 400}), QPoint(500, 750));
}

} // namespace tessarin
