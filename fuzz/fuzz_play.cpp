// Plays the input: each byte says what the player or the grid does, or a number it takes.
#include "RandomPlayer.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::size_t MaxBytes = 100; // more of them are slow and show nothing new
    GTEST_FLAG_SET(break_on_failure, true);
    if (size == 0) return 0;
    size = std::min(size, MaxBytes);
    std::size_t at = 1;
    tessarin::RandomPlayer player(data[0] % 2 == 1,
                                  [&](int count) { return at < size ? data[at++] % count : 0; });
    while (at < size)
        player.Step();
    return 0;
}
