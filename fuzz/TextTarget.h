// What both puzzle text formats must stand.
#pragma once

#include "model/Errors.h"
#include "play/Game.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <stdexcept>
#include <string>

namespace tessarin {

/// Loads any text into a grid: only the errors of a bad text may come out, the status can be read
/// afterwards, and what is then written loads again into the same grid.
template <class Load, class Write>
void CheckText(const std::string& text, Load load, Write write) {
    Game game;
    Fields& grid = *game.Fields;
    try {
        load(grid, text);
    } catch (const TypeMismatchError&) {
    } catch (const std::overflow_error&) {
    } catch (const std::out_of_range&) {
    }
    const int free = grid.FreeCount();
    const std::string written = write(grid);
    load(grid, written);
    if (write(grid) != written || grid.FreeCount() != free || grid.IsWinner() != (free == 0))
        std::abort();
}

} // namespace tessarin
