#include "model/Field.h"

#include "model/Board.h"
#include "model/Fields.h"
#include "model/Groups.h"
#include "model/TakenValues.h"

#include <algorithm>

namespace tessarin {

namespace {

ValueBits TakenNow(const Field& field, const Slice& slice) {
    const auto bitOf = [&](int index) -> ValueBits {
        const auto* const listed = Grid().Items.Find(index);
        return listed != nullptr ? slice.BitOf((*listed)->Value()) : 0;
    };
    // With the field's own value, because a group that was registered by hand need not list it. The
    // count of all fields does not need that: it asks for empty fields alone.
    const auto bitsIn = [&](int index) -> ValueBits {
        const auto* const group = goBoard->Groups ? goBoard->Groups->Items.Find(index) : nullptr;
        return group != nullptr ? BitsIn(**group, bitOf) | slice.BitOf(field.Value()) : 0;
    };
    return TakenBits(field, bitsIn);
}

} // namespace

void Field::Clear() {
    mlValue = 0;
    mbLocked = false;
}

void Field::SetValue(int MyValue) {
    if (MyValue == mlValue) return;
    mlValue = MyValue;
    Grid().FieldChanged(Index);
}

void Field::SetLocked(bool MyLocked) {
    if (MyLocked == mbLocked) return;
    mbLocked = MyLocked;
    Grid().FieldChanged(0); // 0 stands for the cursor's index
}

void Field::GroupAdd(const Group& Grp) {
    InGroups.Add(Grp.Index);
    for (const int index : Grp.Fields)
        Neighbours.TryAdd(index);
}

UniqueNumbers Field::FreeValues() const {
    const int numbers = Grid().Numbers();
    UniqueNumbers free;
    free.Reserve(numbers);
    for (int first = 1; first <= numbers; first += Slice::MaxSize) {
        const Slice slice(first, numbers);
        const ValueBits taken = TakenNow(*this, slice);
        for (int value = first; value < first + slice.Size; ++value)
            if ((taken & slice.BitOf(value)) == 0) free.Add(value);
    }
    return free;
}

int Field::Freedom() const {
    const int numbers = Grid().Numbers();
    int freedom = numbers;
    for (int first = 1; first <= numbers; first += Slice::MaxSize)
        freedom -= CountOf(TakenNow(*this, Slice(first, numbers)));
    return freedom;
}

std::string Field::FreeValuesList() const {
    std::string list;
    for (const int value : FreeValues())
        list += std::to_string(value) + ";";
    return list;
}

int Field::NextFreeValue(bool SetValue) {
    const UniqueNumbers free = FreeValues();
    const auto above = std::upper_bound(free.begin(), free.end(), mlValue);
    const int next = above != free.end() ? *above : 0;
    if (SetValue) this->SetValue(next);
    return next;
}

} // namespace tessarin
