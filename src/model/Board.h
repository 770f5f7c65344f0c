#pragma once

#include <memory>

namespace tessarin {

class Fields;
class Groups;

/// Where the objects of the model find the grid and its groups: fields and groups refer to each
/// other by number and look the numbers up here. The program's only Board is its Game.
struct Board {
    /// Becomes the current board.
    Board();
    Board(const Board&) = delete;
    Board& operator=(const Board&) = delete;
    virtual ~Board();

    /// The current board. Throws std::logic_error when there is none.
    static Board& Current();

    std::unique_ptr<tessarin::Fields> Fields;
    std::unique_ptr<tessarin::Groups> Groups;
};

} // namespace tessarin
