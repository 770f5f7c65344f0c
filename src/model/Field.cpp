#include "model/Field.h"

#include "model/Board.h"
#include "model/Fields.h"
#include "model/Groups.h"

#include <bit>

namespace tessarin {

void Field::Clear() {
    mlValue = 0;
    mbLocked = false;
}

void Field::SetValue(int MyValue) {
    if (MyValue == mlValue) return;
    mlValue = MyValue;
    Board::Current().Fields->FieldChanged(Index);
}

void Field::SetLocked(bool MyLocked) {
    if (MyLocked == mbLocked) return;
    mbLocked = MyLocked;
    Board::Current().Fields->FieldChanged(0);
}

void Field::GroupAdd(const Group& Grp) {
    InGroups.Add(Grp.Index);
    for (const int index : Grp.Fields)
        Neighbours.TryAdd(index);
}

ValueBits Field::FreeBits(int word) const {
    const Board& board = Board::Current();
    ValueBits taken = 0;
    for (const int index : InGroups)
        if (const auto* const group = board.Groups->Items.Find(index))
            taken |= (*group)->HeldValues(board.Fields->Items, word) | BitOf(mlValue, word);
    return AllValues(board.Fields->Numbers(), word) & ~taken;
}

KeyedNumbers Field::FreeValues() const {
    const int numbers = Board::Current().Fields->Numbers();
    KeyedNumbers free;
    free.Reserve(numbers);
    for (int word = 0; word < WordCount(numbers); ++word)
        for (ValueBits bits = FreeBits(word); bits != 0; bits &= bits - 1)
            free.Add(word * ValuesInWord + std::countr_zero(bits) + 1);
    return free;
}

int Field::Freedom() const {
    const int words = WordCount(Board::Current().Fields->Numbers());
    int freedom = 0;
    for (int word = 0; word < words; ++word)
        freedom += std::popcount(FreeBits(word));
    return freedom;
}

std::string Field::FreeValuesList() const {
    std::string list;
    for (const int value : FreeValues())
        list += std::to_string(value) + ";";
    return list;
}

int Field::NextFreeValue(bool SetValue) {
    int next = 0;
    for (const int value : FreeValues()) {
        if (value <= mlValue) continue;
        next = value;
        break;
    }
    if (SetValue) this->SetValue(next);
    return next;
}

} // namespace tessarin
