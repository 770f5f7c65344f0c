#include "play/Game.h"

#include "model/Fields.h"
#include "model/Groups.h"
#include "platform/Platform.h"
#include "play/Play.h"

namespace tessarin {

namespace {

Connection Relay(Event<int>& from, const Event<int>& to) {
    return from.Connect([&to](int Index) {
        to.Raise(Index);
        PumpEvents();
    });
}

} // namespace

// Here the two roads to the game begin, which lead to the same object: play and the window read
// goGame; the model, which may not include play, reads goBoard.
Game::Game() {
    goGame = this;
    goBoard = this;
    Fields = std::make_unique<tessarin::Fields>();
    auto& grid = Fields->Events;
    mConnections = {Relay(grid.BeforeIndexChanged, Events.BeforeIndexChanged),
                    Relay(grid.IndexChanged, Events.IndexChanged),
                    Relay(grid.StatusChanged, Events.StatusChanged),
                    Relay(grid.IsWinner, Events.IsWinner),
                    Relay(grid.IsDeadEnd, Events.IsDeadEnd),
                    grid.Init.Connect([this] { Fields_Init(); })};
    Groups = std::make_unique<tessarin::Groups>();
    Play = std::make_unique<tessarin::Play>();
}

void Game::Fields_Init() {
    Groups->Init();
}

Game::~Game() {
    Play.reset();
    Groups.reset();
    Fields.reset();
    if (goGame != this) return; // another game has taken its place
    goBoard = nullptr;
    goGame = nullptr;
}

} // namespace tessarin
