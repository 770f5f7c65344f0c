// SPDX-License-Identifier: MIT
#include "model/HeldValues.h"

#include "model/Board.h"
#include "model/Field.h"
#include "model/Fields.h"
#include "model/Groups.h"

#include <bit>
#include <cstddef>

namespace tessarin {

HeldValues::HeldValues()
    : mlNumbers(Grid().Numbers()), mHeld(static_cast<std::size_t>(WordCount())) {
    if (!goBoard->Groups) return;
    const auto& groups = goBoard->Groups->Items;
    for (int word = 0; auto& held : mHeld) {
        held.Reserve(groups.Count());
        for (const auto& group : groups)
            held.Add(HeldBy(*group, word));
        ++word;
    }
}

UniqueNumbers HeldValues::FreeValues(const Field& field) const {
    UniqueNumbers free;
    for (int value = 1; value <= mlNumbers; ++value) {
        const int word = value / BitsInWord;
        if ((BitOf(value, word) & TakenFor(field, word)) == 0) free.Add(value);
    }
    return free;
}

int HeldValues::Freedom(const Field& field) const {
    int freedom = mlNumbers;
    for (int word = 0; word < WordCount(); ++word)
        freedom -= std::popcount(TakenFor(field, word));
    return freedom;
}

HeldValues::Word HeldValues::BitOf(int value, int word) const {
    if (value < 1 || value > mlNumbers || value / BitsInWord != word) return 0;
    return Word{1} << value % BitsInWord;
}

HeldValues::Word HeldValues::HeldBy(const Group& group, int word) const {
    Word held = 0;
    for (const int index : group.Fields)
        if (const auto* const field = Grid().Items.Find(index))
            held |= BitOf((*field)->Value(), word);
    return held;
}

// The field's own value counts as held by each of its groups: GroupAdd takes groups that do not
// list the field, too.
HeldValues::Word HeldValues::TakenFor(const Field& field, int word) const {
    const Word own = BitOf(field.Value(), word);
    Word taken = 0;
    for (const int group : field.InGroups)
        if (const Word* const held = mHeld[static_cast<std::size_t>(word)].Find(group))
            taken |= *held | own;
    return taken;
}

} // namespace tessarin
