// SPDX-License-Identifier: MIT
// A random user of the program and its model, who takes every choice from the input.
#include "Agreement.h"

#include <fuzzer/FuzzedDataProvider.h>

#include <cstdlib>
#include <iostream>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider input(data, size);
    const auto choose = [&](int last) { return input.ConsumeIntegralInRange(0, last); };
    while (input.remaining_bytes() > 0) {
        const bool withWindow = input.ConsumeBool();
        const auto script = tessarin::RandomScript(choose, withWindow);
        const std::string disagreement = tessarin::Disagreement(script, withWindow);
        if (disagreement.empty()) continue;
        std::cerr << disagreement;
        std::abort();
    }
    return 0;
}
