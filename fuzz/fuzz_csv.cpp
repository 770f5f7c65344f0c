#include "TextTarget.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    tessarin::CheckText(
        std::string(data, data + size), [](auto& grid, auto& text) { grid.SetTextCSV(text); },
        [](const auto& grid) { return grid.TextCSV(true); });
    return 0;
}
