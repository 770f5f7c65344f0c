#include "model/TakenValues.h"

#include "model/Board.h"
#include "model/Fields.h"
#include "model/Groups.h"

#include <algorithm>
#include <bit>

namespace tessarin {

namespace {

// The union of the bits of all members, which are positions in `bits` from 1.
ValueBits Together(const std::vector<ValueBits>& bits, const auto& members) {
    ValueBits together = 0;
    for (const int number : members)
        if (const auto place = static_cast<std::size_t>(number) - 1; place < bits.size())
            together |= bits[place];
    return together;
}

} // namespace

TakenValues::TakenValues(const Board& board) : mlNumbers(board.Fields->Numbers()) {
    const auto& fields = board.Fields->Items;
    static const decltype(board.Groups->Items) None; // of a board that has no groups yet
    const auto& groups = board.Groups ? board.Groups->Items : None;
    std::vector<ValueBits> held(static_cast<std::size_t>(fields.Count()));
    mBits.resize(static_cast<std::size_t>(WordCount(mlNumbers)));
    for (int word = 0; auto& bits : mBits) {
        std::transform(fields.begin(), fields.end(), held.begin(),
                       [word](const auto& field) { return BitOf(field->Value(), word); });
        bits.reserve(static_cast<std::size_t>(groups.Count()));
        for (const auto& group : groups)
            bits.push_back(Together(held, group->Fields));
        ++word;
    }
}

int TakenValues::FreedomOfEmpty(const Field& field) const {
    int freedom = 0;
    for (int word = 0; const auto& bits : mBits)
        freedom += std::popcount(AllValues(mlNumbers, word++) & ~Together(bits, field.InGroups));
    return freedom;
}

} // namespace tessarin
