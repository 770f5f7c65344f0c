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
    const int n = Grid().Numbers();
    const int d = Grid().Dimension();
    Items = {};
    for (int r = 0; r < n; ++r)
        AddGroup(Group::Horizontal, r, 0, 1, n);
    for (int c = 0; c < n; ++c)
        AddGroup(Group::Vertical, 0, c, n, 1);
    for (int r = 0; r < n; r += d)
        for (int c = 0; c < n; c += d)
            AddGroup(Group::Box, r, c, d, d);
}

void Groups::AddGroup(int flavor, int row, int column, int rows, int columns) {
    const int n = Grid().Numbers();
    const auto group = std::make_shared<Group>();
    group->Index = Items.Count() + 1;
    group->Flavor = flavor;
    group->Fields.Reserve(n);
    for (int r = row; r < row + rows; ++r)
        for (int c = column; c < column + columns; ++c)
            group->Fields.Add(r * n + c + 1);
    Items.Add(group);
    for (const int index : group->Fields)
        Grid().Items.Item(index)->GroupAdd(*group);
}

} // namespace tessarin
