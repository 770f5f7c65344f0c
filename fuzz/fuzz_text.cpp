// Loads any text into a grid in both formats. It may throw only the errors of a bad text.
// Afterwards the status can be read, and the text that the grid writes loads into the same grid.
#include "model/Errors.h"
#include "play/Game.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <stdexcept>
#include <string>

namespace {

void CheckText(const std::string& text, auto load, auto write) {
    tessarin::Game game;
    tessarin::Fields& grid = *game.Fields;
    try {
        load(grid, text);
    } catch (const tessarin::TypeMismatchError&) {
    } catch (const std::overflow_error&) {
    } catch (const std::out_of_range&) {
    }
    const int free = grid.FreeCount();
    const std::string written = write(grid);
    load(grid, written);
    if (write(grid) != written || grid.FreeCount() != free || grid.IsWinner() != (free == 0))
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string input(data, data + size);
    CheckText(
        input, [](auto& grid, auto& text) { grid.SetTextCSV(text); },
        [](auto& grid) { return grid.TextCSV(true); });
    CheckText(
        input, [](auto& grid, auto& text) { grid.SetTextSDK(text); },
        [](auto& grid) { return grid.TextSDK(); });
    return 0;
}
