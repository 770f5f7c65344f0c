// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

namespace tessarin {

class Fields;
class Groups;

/// The grid and its groups.
struct Board {
    std::unique_ptr<tessarin::Fields> Fields;
    std::unique_ptr<tessarin::Groups> Groups; ///< none until they are built
};

/// The board of the one game. Set and cleared with goGame, whose header lies above the model.
inline Board* goBoard = nullptr;

/// The grid of goBoard. A field, a group and the player hold no reference to the grid: they
/// find it here.
inline Fields& Grid() {
    return *goBoard->Fields;
}

} // namespace tessarin
