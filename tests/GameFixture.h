#pragma once

#include "Script.h"
#include "ScriptedPlatform.h"
#include "model/Fields.h"
#include "play/Play.h"

namespace tessarin {

struct GameParts {
    ScriptedPlatform OwnPlatform;
    Game OwnGame;
};

/// A game without a window. The events that a window would hear are told.
class GameFixture : public testing::Test, GameParts, protected Script {
protected:
    ScriptedPlatform& platform = OwnPlatform;

    GameFixture() : Script(OwnPlatform, OwnGame) {
        Listen(game.Events.StatusChanged,
               [this](int i) { Tell(i, "=", i > 0 ? At(i).Value() : 0); });
        Listen(game.Events.BeforeIndexChanged, [this](int i) {
            if (mbMovesTold) Tell("from ", i);
        });
        Listen(game.Events.IndexChanged, [this](int i) {
            if (mbMovesTold) Tell("to ", i);
        });
        Listen(game.Events.IsWinner, [this](int i) { Tell("winner ", i); });
        Listen(game.Events.IsDeadEnd, [this](int i) { Tell("dead ", i); });
    }
    void Listen(auto& event, auto handler) { mEvents.push_back(event.Connect(handler)); }

    bool mbMovesTold = true;

private:
    std::vector<Connection> mEvents;
};

} // namespace tessarin
