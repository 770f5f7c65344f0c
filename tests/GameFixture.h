// SPDX-License-Identifier: MIT
#pragma once

#include "ScriptedPlatform.h"

namespace tessarin {

struct GameParts {
    ScriptedPlatform platform;
    Game OwnGame;
};

/// A game without a window. The events that a window would hear are told.
class GameFixture : public testing::Test, protected GameParts, protected User {
protected:
    GameFixture() : User(platform, OwnGame) {
        platform.Folder = folder;
        Hear(game.Events.StatusChanged,
             [this](int i) { platform.Tell(i, "=", i > 0 ? At(i).Value() : 0); });
        for (const auto& [event, name] : {std::pair(&game.Events.BeforeIndexChanged, "from "),
                                          {&game.Events.IndexChanged, "to "},
                                          {&game.Events.IsWinner, "winner "},
                                          {&game.Events.IsDeadEnd, "dead "}})
            Hear(*event, [this, name = name](int i) { platform.Tell(name, i); });
    }
    void TearDown() override { platform.ExpectNothingLeft(); }
    void Hear(auto& event, auto handler) { mEvents.push_back(event.Connect(handler)); }

private:
    std::vector<Connection> mEvents;
};

} // namespace tessarin
