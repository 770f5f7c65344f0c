// SPDX-License-Identifier: MIT
#pragma once

#include "ScriptedPlatform.h"

namespace tessarin {

struct GameParts {
    ScriptedPlatform platform;
    Game OwnGame;
};

/// A game without a window. Its events are told.
class GameFixture : public testing::Test, protected GameParts, protected User {
protected:
    GameFixture() : User(platform, OwnGame) {
        mEvents = Listen(game, [this](const std::string& event, int index) {
            platform.Tell(event, " ", index);
        });
    }
    void TearDown() override { platform.ExpectNothingLeft(); }

private:
    std::vector<Connection> mEvents;
};

} // namespace tessarin
