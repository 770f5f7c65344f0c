#include "model/Field.h"

#include "model/Board.h"
#include "model/Fields.h"
#include "model/Groups.h"
#include "model/TakenValues.h"

#include <algorithm>

namespace tessarin {

namespace {

ValueSet TakenNow(const Field& field) {
    const int numbers = Grid().Numbers();
    return TakenValues(field, numbers, [numbers](int index) -> std::optional<ValueSet> {
        const auto* const group = goBoard->Groups ? goBoard->Groups->Items.Find(index) : nullptr;
        if (group == nullptr) return {};
        return ValuesIn(**group, numbers);
    });
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
    const ValueSet taken = TakenNow(*this);
    const int numbers = Grid().Numbers();
    UniqueNumbers free;
    free.Reserve(numbers);
    for (int value = 1; value <= numbers; ++value)
        if (!taken.Contains(value)) free.Add(value);
    return free;
}

int Field::Freedom() const {
    return Grid().Numbers() - TakenNow(*this).Count();
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
