#include "TextTarget.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using tessarin::Fields;
    tessarin::CheckText(
        std::string(data, data + size),
        [](Fields& grid, const std::string& text) { grid.SetTextCSV(text); },
        [](const Fields& grid) { return grid.TextCSV(true); });
    return 0;
}
