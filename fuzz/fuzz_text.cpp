// SPDX-License-Identifier: MIT
// Loads any text into a grid in both formats. It may throw only the errors of a bad text.
// Afterwards the status can be read, and the text that the grid writes loads into the same grid.
#include "model/Errors.h"
#include "model/Fields.h"
#include "play/Game.h"

#include <cstdint>
#include <cstdlib>
#include <stdexcept>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    for (const bool csv : {true, false}) {
        tessarin::Game game;
        tessarin::Fields& grid = *game.Fields;
        const auto load = [&](const std::string& text) {
            csv ? grid.SetTextCSV(text) : grid.SetTextSDK(text);
            return csv ? grid.TextCSV() : grid.TextSDK();
        };
        std::string written;
        try {
            written = load({data, data + size});
        } catch (const tessarin::TypeMismatchError&) {
        } catch (const std::out_of_range&) {
        } catch (const std::overflow_error&) {
        }
        const int free = grid.FreeCount();
        if (!written.empty() && (load(written) != written || grid.FreeCount() != free))
            std::abort();
    }
    return 0;
}
