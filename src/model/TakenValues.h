// Which values are taken for a field: one algorithm, for a field alone and for a pass over the
// grid. Values are bits of a word, so a grid with more than 64 values is worked in slices of 64.
#pragma once

#include "model/Field.h"
#include "model/Group.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>

namespace tessarin {

/// Up to 64 values, one bit each.
using ValueBits = std::uint64_t;

/// The number of values in each byte of ValueBits.
inline constexpr auto CountsOfBytes = [] {
    std::array<std::uint8_t, 256> counts{};
    for (unsigned byte = 0; byte < counts.size(); ++byte)
        counts.at(byte) = static_cast<std::uint8_t>(std::popcount(byte));
    return counts;
}();

/// The number of values. For processors of any age std::popcount calls a function of a library,
/// with which a pass over the grid would take a fifth longer.
inline int CountOf(ValueBits bits) {
    int count = 0;
    for (ValueBits rest = bits; rest != 0; rest >>= 8)
        count += CountsOfBytes.at(rest & 0xFF);
    return count;
}

/// Those of the values 1 to Numbers that share a word: First to First + Size - 1.
struct Slice {
    static constexpr int MaxSize = 64;

    int First;
    int Size;

    /// The slice that begins at `first`, of the values 1 to `numbers`.
    Slice(int first, int numbers) : First(first), Size(std::min(MaxSize, numbers - first + 1)) {}

    /// The bit of a value; none for a value outside the slice.
    ValueBits BitOf(int value) const {
        if (value < First || value >= First + Size) return 0;
        return ValueBits{1} << (value - First);
    }
};

/// The values that a group holds: those of the fields in its list. `bitOf(index)` gives the bit of
/// a field's value, or none if there is no such field.
template <class BitOfField>
ValueBits BitsIn(const Group& group, const BitOfField& bitOf) {
    ValueBits bits = 0;
    for (const int index : group.Fields)
        bits |= bitOf(index);
    return bits;
}

/// The values that are taken for a field: those in its groups. `bitsIn(index)` gives the values in
/// a group, or none if there is no such group.
template <class BitsInGroup>
ValueBits TakenBits(const Field& field, const BitsInGroup& bitsIn) {
    ValueBits taken = 0;
    for (const int index : field.InGroups)
        taken |= bitsIn(index);
    return taken;
}

} // namespace tessarin
