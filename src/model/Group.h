// SPDX-License-Identifier: MIT
#pragma once

#include "model/Collection.h"

#include <string>

namespace tessarin {

/// A set of fields of which no two may hold the same value: a row, a column or a box.
class Group {
public:
    /// The grid has no diagonal groups.
    enum : int { Horizontal = 1, Vertical = 2, Diagonal = 3, Box = 4 };

    int Index = 0;          ///< number of the group, from 1, its position in Groups::Items
    int Flavor = 0;         ///< the kind of group; 0 when it was never set
    Collection<int> Fields; ///< indices of its fields, in building order

    /// The name of the flavor: "horizontal", "vertikal", "diagonal", "box" or "(unbekannt)".
    std::string FlavorText() const;
};

} // namespace tessarin
