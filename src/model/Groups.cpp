// SPDX-License-Identifier: MIT
#include "model/Groups.h"

#include "model/Board.h"
#include "model/Fields.h"

namespace tessarin {

void Groups::Init() {
    Items = {};
    AddRowGroups();
    AddColumnGroups();
    AddBoxGroups();
}

void Groups::AddRowGroups() {
    const int n = Grid().Numbers();
    for (int r = 0; r < n; ++r)
        AddGroup(Group::Horizontal, r, 0, 1, n);
}

void Groups::AddColumnGroups() {
    const int n = Grid().Numbers();
    for (int c = 0; c < n; ++c)
        AddGroup(Group::Vertical, 0, c, n, 1);
}

void Groups::AddBoxGroups() {
    const int d = Grid().Dimension();
    for (int i = 0; i < d; ++i)
        for (int j = 0; j < d; ++j)
            AddBoxGroup(i * d, j * d);
}

void Groups::AddBoxGroup(int RowOffset, int ColumnOffset) {
    const int d = Grid().Dimension();
    AddGroup(Group::Box, RowOffset, ColumnOffset, d, d);
}

void Groups::AddGroup(int Flavor, int RowOffset, int ColumnOffset, int Rows, int Columns) {
    const int n = Grid().Numbers();
    const auto group = std::make_shared<Group>();
    group->Index = Items.Count() + 1;
    group->Flavor = Flavor;
    group->Fields.Reserve(n);
    for (int r = RowOffset; r < RowOffset + Rows; ++r)
        for (int c = ColumnOffset; c < ColumnOffset + Columns; ++c)
            group->Fields.Add(r * n + c + 1);
    RegisterGroup(group);
}

void Groups::RegisterGroup(const std::shared_ptr<Group>& Grp) {
    Items.Add(Grp);
    for (const int index : Grp->Fields)
        Grid().Items.Item(index)->GroupAdd(*Grp);
}

} // namespace tessarin
