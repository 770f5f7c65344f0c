#pragma once

#include "model/ValueBits.h"

#include <vector>

namespace tessarin {

struct Board;
class Field;

/// The values that are taken in each group, collected once for a pass over all fields. Valid until
/// a field changes.
class TakenValues {
public:
    explicit TakenValues(const Board& board);

    /// The Freedom of a field without a value.
    int FreedomOfEmpty(const Field& field) const;

private:
    int mlNumbers;
    std::vector<std::vector<ValueBits>> mBits; // by word, then by group
};

} // namespace tessarin
