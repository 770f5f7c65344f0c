#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace tessarin {

/// A set of values of a grid of any size. The values up to 64, all that a grid of dimension 7 has,
/// are one word; only larger grids allocate memory.
class ValueSet {
public:
    /// An empty set for the values 1 to `numbers`.
    explicit ValueSet(int numbers) : mlNumbers(static_cast<unsigned>(numbers)) {
        if (mlNumbers > WordSize) mAbove.resize((mlNumbers - 1) / WordSize);
    }

    /// Ignores a value outside 1 to `numbers`.
    void Add(int value) {
        const unsigned place = Place(value);
        if (mlNumbers <= WordSize)
            mWord |= Word{place < mlNumbers} << place % WordSize; // no branch on what is random
        else if (place < mlNumbers)
            (place < WordSize ? mWord : mAbove[place / WordSize - 1]) |= Bit(place);
    }
    /// Adds the values of a set for the same `numbers`.
    void Add(const ValueSet& other) {
        mWord |= other.mWord;
        for (std::size_t i = 0; i < mAbove.size(); ++i)
            mAbove[i] |= other.mAbove[i];
    }
    bool Contains(int value) const {
        const unsigned place = Place(value);
        if (place >= mlNumbers) return false;
        return ((place < WordSize ? mWord : mAbove[place / WordSize - 1]) & Bit(place)) != 0;
    }
    int Count() const {
        int count = std::popcount(mWord);
        for (const Word word : mAbove)
            count += std::popcount(word);
        return count;
    }

private:
    using Word = std::uint64_t;
    static constexpr unsigned WordSize = 64;

    // The place of a value, from 0; that of 0 and of negative values is higher than any in the set.
    static unsigned Place(int value) { return static_cast<unsigned>(value) - 1; }
    static Word Bit(unsigned place) { return Word{1} << place % WordSize; }

    unsigned mlNumbers;
    Word mWord = 0;           // the values 1 to 64
    std::vector<Word> mAbove; // the others
};

} // namespace tessarin
