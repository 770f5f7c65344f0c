#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace tessarin {

/// A set of the values 1 to Numbers of a grid, one bit each. The first 64 values, more than a grid
/// of dimension 7 has, need no memory of their own.
class ValueSet {
    static constexpr int WordBits = 64;

    static std::size_t RestIndex(int value) {
        return static_cast<std::size_t>((value - 1) / WordBits - 1);
    }
    static std::uint64_t Bit(int value) { return std::uint64_t{1} << ((value - 1) % WordBits); }
    template <class Set>
    static auto& Word(Set& set, int value) {
        return value <= WordBits ? set.mFirst : set.mRest[RestIndex(value)];
    }

public:
    explicit ValueSet(int numbers) : mlNumbers(numbers) {
        if (numbers > WordBits) mRest.resize(RestIndex(numbers) + 1);
    }

    /// Adds `value`; a value outside 1 to Numbers is left out.
    void Insert(int value) {
        if (value >= 1 && value <= mlNumbers) Word(*this, value) |= Bit(value);
    }

    /// Adds all values of `other`, which belongs to the same grid.
    void Merge(const ValueSet& other) {
        mFirst |= other.mFirst;
        for (std::size_t i = 0; i < mRest.size(); ++i) mRest[i] |= other.mRest[i];
    }

    bool Contains(int value) const {
        return value >= 1 && value <= mlNumbers && (Word(*this, value) & Bit(value)) != 0;
    }

    int Count() const {
        int count = std::popcount(mFirst);
        for (const auto word : mRest) count += std::popcount(word);
        return count;
    }

private:
    int mlNumbers;
    std::uint64_t mFirst = 0;         // values 1 to 64
    std::vector<std::uint64_t> mRest; // 64 more in each word
};

} // namespace tessarin
