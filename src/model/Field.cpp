#include "model/Field.h"

#include "model/Board.h"
#include "model/Fields.h"
#include "model/Groups.h"
#include "model/ValueSet.h"

#include <algorithm>

namespace tessarin {

void Field::Clear() {
    mlValue = 0;
    mbLocked = false;
}

void Field::SetValue(int MyValue) {
    if (MyValue == mlValue) return;
    mlValue = MyValue;
    goBoard->Fields->FieldChanged(Index);
}

void Field::SetLocked(bool MyLocked) {
    if (MyLocked == mbLocked) return;
    mbLocked = MyLocked;
    goBoard->Fields->FieldChanged(0);
}

void Field::GroupAdd(const Group& Grp) {
    InGroups.Add(Grp.Index);
    for (const int index : Grp.Fields)
        Neighbours.TryAdd(index);
}

ValueSet Field::TakenValues() const {
    ValueSet taken(goBoard->Fields->Numbers());
    for (const int index : InGroups) {
        const auto* const group = goBoard->Groups ? goBoard->Groups->Items.Find(index) : nullptr;
        if (group == nullptr) continue;
        taken.Add(mlValue); // a group that was registered by hand might not list this field
        for (const int member : (*group)->Fields)
            if (const auto* const field = goBoard->Fields->Items.Find(member))
                taken.Add((*field)->Value());
    }
    return taken;
}

KeyedNumbers Field::FreeValues() const {
    const ValueSet taken = TakenValues();
    const int numbers = goBoard->Fields->Numbers();
    KeyedNumbers free;
    free.Reserve(numbers);
    for (int value = 1; value <= numbers; ++value)
        if (!taken.Contains(value)) free.Add(value);
    return free;
}

int Field::Freedom() const {
    return goBoard->Fields->Numbers() - TakenValues().Count();
}

std::string Field::FreeValuesList() const {
    std::string list;
    for (const int value : FreeValues())
        list += std::to_string(value) + ";";
    return list;
}

int Field::NextFreeValue(bool SetValue) {
    const KeyedNumbers free = FreeValues();
    const auto above = std::upper_bound(free.begin(), free.end(), mlValue);
    const int next = above != free.end() ? *above : 0;
    if (SetValue) this->SetValue(next);
    return next;
}

} // namespace tessarin
