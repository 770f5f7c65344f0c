// SPDX-License-Identifier: MIT
#pragma once

#include "model/Collection.h"
#include "model/UniqueNumbers.h"

#include <cstdint>
#include <vector>

namespace tessarin {

class Field;
class Group;

/// The values that the groups of the board hold when the object is created, and so those that are
/// free for the fields of Grid(): one look at the grid answers for all of them. To be used before
/// the grid changes: a field's own value and groups are read when it is asked about.
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

    // Each returns bits of the given word: the bit of a value (none if the grid has no such value),
    // those of the values that a group holds, those of the values that are taken for a field.
    Word BitOf(int value, int word) const;
    Word HeldBy(const Group& group, int word) const;
    Word TakenFor(const Field& field, int word) const;

    int mlNumbers;
    std::vector<Collection<Word>> mHeld; // for each word, what HeldBy gives for each group
};

} // namespace tessarin
