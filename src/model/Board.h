#pragma once

#include <memory>

namespace tessarin {

class Fields;
class Groups;

/// The grid and its groups as the objects of the model find them: a field or group knows others by
/// number only and looks them up here. The Game is the one Board of a run.
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
