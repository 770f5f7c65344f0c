// SPDX-License-Identifier: MIT
#include "play/Game.h"

#include "model/Fields.h"
#include "model/Groups.h"
#include "platform/Platform.h"
#include "play/Play.h"

namespace tessarin {

namespace {

// Raises `to` whenever `from` is raised, then pumps. The grid pumps once more after its own event.
Connection Relay(Event<int>& from, const Event<int>& to) {
    return from.Connect([&to](int Index) {
        to.Raise(Index);
        PumpEvents();
    });
}

} // namespace

Game::Game() {
    goGame = this;
    goBoard = this;
    Fields = std::make_unique<tessarin::Fields>();
    auto& fromGrid = Fields->Events;
    mConnections = {Relay(fromGrid.BeforeIndexChanged, Events.BeforeIndexChanged),
                    Relay(fromGrid.IndexChanged, Events.IndexChanged),
                    Relay(fromGrid.StatusChanged, Events.StatusChanged),
                    Relay(fromGrid.IsWinner, Events.IsWinner),
                    Relay(fromGrid.IsDeadEnd, Events.IsDeadEnd),
                    fromGrid.Init.Connect([this] { Fields_Init(); })};
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
