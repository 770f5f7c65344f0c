// Which values are taken for a field: one algorithm, for a field alone and for a pass over the
// grid.
#pragma once

#include "model/Board.h"
#include "model/Field.h"
#include "model/Fields.h"
#include "model/Group.h"
#include "model/ValueSet.h"

namespace tessarin {

/// The values of the fields in the group's list. Fields that do not exist are ignored.
inline ValueSet ValuesIn(const Group& group, int numbers) {
    const auto& fields = Grid().Items;
    ValueSet values(numbers);
    for (const int index : group.Fields)
        if (const auto* const field = fields.Find(index)) values.Add((*field)->Value());
    return values;
}

/// The values in the groups of `field`, and its own one, which a group registered by hand may not
/// list. None for a field without groups. `valuesOf(index)` gives the values in the group with that
/// index, as ValuesIn does, or nothing if there is no such group.
template <class ValuesOf>
ValueSet TakenValues(const Field& field, int numbers, ValuesOf valuesOf) {
    ValueSet taken(numbers);
    for (const int index : field.InGroups)
        if (const auto& values = valuesOf(index)) {
            taken.Add(*values);
            taken.Add(field.Value());
        }
    return taken;
}

} // namespace tessarin
