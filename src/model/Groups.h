// SPDX-License-Identifier: MIT
#pragma once

#include "model/Collection.h"
#include "model/Group.h"

#include <memory>

namespace tessarin {

/// All groups of the grid: N rows, N columns and N boxes, each of N fields, in this order.
class Groups {
public:
    Collection<std::shared_ptr<Group>> Items; ///< the group with Index g at position g

    /// Builds the groups of Grid().
    Groups() { Init(); }
    Groups(const Groups&) = delete;
    Groups& operator=(const Groups&) = delete;

    /// Replaces all groups and registers each with its fields. To be called once for each new grid:
    /// throws DuplicateKeyError if the fields have groups already.
    void Init();

private:
    void AddRowGroups();
    void AddColumnGroups();
    void AddBoxGroups();
    void AddBoxGroup(int RowOffset, int ColumnOffset);
    // Builds the group of a rectangle of fields. The offsets of its first row and column count from
    // 0.
    void AddGroup(int Flavor, int RowOffset, int ColumnOffset, int Rows, int Columns);
    void RegisterGroup(const std::shared_ptr<Group>& Grp);
};

} // namespace tessarin
