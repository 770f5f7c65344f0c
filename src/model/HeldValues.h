// SPDX-License-Identifier: MIT
#pragma once

#include "model/Collection.h"
#include "model/UniqueNumbers.h"

#include <cstdint>
#include <vector>

namespace tessarin {

class Field;
class Group;

/// The values that the groups of Grid() hold when the object is created, and so those that are free
/// for its fields: one look at the grid answers for all of them.
class HeldValues {
public:
    HeldValues();

    /// See Field::FreeValues.
    UniqueNumbers FreeValues(const Field& field) const;
    /// The number of free values.
    int Freedom(const Field& field) const;

private:
    // Values are bits, of one word up to dimension 7. Larger grids have further words: value 64 is
    // the first bit of word 1.
    using Word = std::uint64_t;
    static constexpr int BitsInWord = 64;
    int WordCount() const { return mlNumbers / BitsInWord + 1; }

    // Of a value, of a group's values or of those taken for a field: the bits in that word.
    Word BitOf(int value, int word) const;
    Word HeldBy(const Group& group, int word) const;
    Word TakenFor(const Field& field, int word) const;

    int mlNumbers;
    std::vector<Collection<Word>> mHeld; // for each word, what HeldBy gives for each group
};

} // namespace tessarin
