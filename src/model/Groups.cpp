#include "model/Groups.h"

#include "model/Board.h"
#include "model/Fields.h"

namespace tessarin {

namespace {

Fields& Grid() {
    return *goBoard->Fields;
}

} // namespace

void Groups::Init() {
    Items = {};
    mlGroupCount = 0;
    AddRowGroups();
    AddColumnGroups();
    AddBoxGroups();
}

void Groups::AddRowGroups() {
    const int n = Grid().Numbers();
    for (int r = 1; r <= n; ++r) {
        const auto group = NewGroup(Group::Horizontal);
        for (int c = 1; c <= n; ++c)
            group->Fields.Add((r - 1) * n + c);
        RegisterGroup(group);
    }
}

void Groups::AddColumnGroups() {
    const int n = Grid().Numbers();
    for (int c = 1; c <= n; ++c) {
        const auto group = NewGroup(Group::Vertical);
        for (int r = 1; r <= n; ++r)
            group->Fields.Add((r - 1) * n + c);
        RegisterGroup(group);
    }
}

void Groups::AddBoxGroups() {
    const int d = Grid().Dimension();
    for (int i = 1; i <= d; ++i)
        for (int j = 1; j <= d; ++j)
            AddBoxGroup((i - 1) * d, (j - 1) * d);
}

void Groups::AddBoxGroup(int RowOffset, int ColumnOffset) {
    const int n = Grid().Numbers();
    const int d = Grid().Dimension();
    const auto group = NewGroup(Group::Box);
    for (int r = 1; r <= d; ++r)
        for (int c = 1; c <= d; ++c)
            group->Fields.Add((RowOffset + r - 1) * n + ColumnOffset + c);
    RegisterGroup(group);
}

std::shared_ptr<Group> Groups::NewGroup(int flavor) {
    auto group = std::make_shared<Group>();
    group->Flavor = flavor;
    group->Index = ++mlGroupCount;
    group->Fields.Reserve(Grid().Numbers());
    return group;
}

void Groups::RegisterGroup(const std::shared_ptr<Group>& Grp) {
    Items.Add(Grp);
    for (const int index : Grp->Fields)
        Grid().Items.Item(index)->GroupAdd(*Grp);
}

} // namespace tessarin
