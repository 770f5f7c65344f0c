// SPDX-License-Identifier: MIT
// Loads any text in both formats into the grid of the program and of its model.
#include "Agreement.h"

#include <cstdint>
#include <cstdlib>
#include <iostream>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    for (const std::string load : {"csv ", "sdk "}) {
        const tessarin::Script script{{.Command = load + std::string(data, data + size)},
                                      {.Command = "texts"},
                                      {.Command = "count 0"}};
        const std::string disagreement = Disagreement(script, !tessarin::WithWindow);
        if (disagreement.empty()) continue;
        std::cerr << disagreement;
        std::abort();
    }
    return 0;
}
