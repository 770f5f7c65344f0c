// Works the window with a random user who takes every choice from a byte of the input.
#include "RandomUser.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::size_t MaxBytes = 100; // longer inputs are slow and find nothing new
    GTEST_FLAG_SET(break_on_failure, true);
    if (size == 0) return 0;
    size = std::min(size, MaxBytes);
    std::size_t at = 1;
    tessarin::RandomUser user(data[0] % 2 == 1,
                              [&](int count) { return at < size ? data[at++] % count : 0; });
    while (at < size && user.IsOpen())
        user.Step();
    return 0;
}
