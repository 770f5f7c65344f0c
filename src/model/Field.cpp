#include "model/Field.h"

#include "model/Board.h"
#include "model/Fields.h"
#include "model/Groups.h"

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
    for (const int index : Grp.Fields) Neighbours.TryAdd(index);
}

template <class TakenIn>
ValueSet Field::TakenValues(TakenIn takenIn) const {
    const Board& board = Board::Current();
    ValueSet taken(board.Fields->Numbers());
    for (const int group : InGroups) {
        if (!board.Groups->Items.Has(group)) continue;
        taken.Merge(takenIn(group));
        taken.Insert(mlValue);
    }
    return taken;
}

ValueSet Field::TakenValues() const {
    return TakenValues(
        [](int group) { return Board::Current().Groups->Items.Item(group)->TakenValues(); });
}

KeyedNumbers Field::FreeValues() const {
    const ValueSet taken = TakenValues();
    const int numbers = Board::Current().Fields->Numbers();
    KeyedNumbers free;
    free.Reserve(numbers);
    for (int value = 1; value <= numbers; ++value)
        if (!taken.Contains(value)) free.Add(value);
    return free;
}

int Field::Freedom() const { return Board::Current().Fields->Numbers() - TakenValues().Count(); }

int Field::Freedom(const std::vector<ValueSet>& takenByGroup) const {
    const auto takenIn = [&](int group) -> const ValueSet& {
        return takenByGroup[static_cast<std::size_t>(group) - 1];
    };
    return Board::Current().Fields->Numbers() - TakenValues(takenIn).Count();
}

std::string Field::FreeValuesList() const {
    std::string list;
    for (const int value : FreeValues()) list += std::to_string(value) + ";";
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
