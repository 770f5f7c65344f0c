#pragma once

#include <memory>

namespace tessarin {

class Fields;
class Groups;

/// The grid and its groups. Fields and groups refer to each other by number and look the numbers up
/// in goBoard.
struct Board {
    std::unique_ptr<tessarin::Fields> Fields;
    std::unique_ptr<tessarin::Groups> Groups; ///< none until they are built
};

/// The board of the one game, for the model, which knows no game. Set and cleared with goGame.
inline Board* goBoard = nullptr;

} // namespace tessarin
