// SPDX-License-Identifier: MIT
#include "model/Field.h"

#include "model/Board.h"
#include "model/Fields.h"
#include "model/Group.h"
#include "model/HeldValues.h"

#include <algorithm>

namespace tessarin {

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
    return HeldValues().FreeValues(*this);
}

int Field::Freedom() const {
    return HeldValues().Freedom(*this);
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
