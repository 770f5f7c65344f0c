// Sets of values as bits: word w (from 0) holds the values 64*w + 1 to 64*w + 64. Up to dimension 7
// all values of a grid are in word 0.
#pragma once

#include <cstdint>

namespace tessarin {

using ValueBits = std::uint64_t;

constexpr int ValuesInWord = 64;

/// The number of words for the values 1 to `numbers`.
constexpr int WordCount(int numbers) {
    return (numbers + ValuesInWord - 1) / ValuesInWord;
}

/// The bit of `value` in `word`; 0 when the word does not hold it.
constexpr ValueBits BitOf(int value, int word) {
    const unsigned place =
        static_cast<unsigned>(value) - 1 - static_cast<unsigned>(word * ValuesInWord);
    return place < ValuesInWord ? ValueBits{1} << place : 0;
}

/// The bits in `word` of all values 1 to `numbers`.
constexpr ValueBits AllValues(int numbers, int word) {
    const int rest = numbers - word * ValuesInWord;
    return rest >= ValuesInWord ? ~ValueBits{0} : (ValueBits{1} << rest) - 1;
}

} // namespace tessarin
