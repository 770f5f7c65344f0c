// SPDX-License-Identifier: MIT
#pragma once

#include "model/Board.h"
#include "model/Event.h"
#include "play/modGame.h"

#include <array>
#include <memory>
#include <string>

namespace tessarin {

class Play;

/// Owns the puzzle being worked: grid, groups and player. It passes the grid's events on to the
/// window, each followed by one pump of window events, and rebuilds the groups when the grid has
/// new fields. There is one game, goGame.
class Game : public Board {
public:
    /// The grid's events but Init, with the same names and arguments.
    struct GameEvents {
        Event<int> BeforeIndexChanged;
        Event<int> IndexChanged;
        Event<int> StatusChanged;
        Event<int> IsWinner;
        Event<int> IsDeadEnd;
    };

    /// An empty grid of dimension 3, its groups and a player without history.
    Game();
    ~Game();

    GameEvents Events;
    std::unique_ptr<tessarin::Play> Play;

    // Puzzle files. A file that cannot be read or written is not reported.

    /// Writes the grid to a new file as CSV text; never changes an existing file. Without a name
    /// the file is created beside the program and named after it and the current time.
    void FileExportCSV(const std::string& MyFileName = "");
    /// Loads the grid from a CSV file (an unreadable one counts as empty), then drops the history
    /// and switches tracing off. Throws what Fields::SetTextCSV throws; then the player is
    /// unchanged.
    void FileImportCSV(const std::string& FileName);
    /// The same as FileExportCSV in the SDK format.
    void FileExportSDK(const std::string& MyFileName = "");
    /// Loads the grid from an SDK file, without touching the player. Throws what Fields::SetTextSDK
    /// throws.
    void FileImportSDK(const std::string& FileName);

private:
    void Fields_Init();

    std::array<Connection, 6> mConnections;
};

} // namespace tessarin
