// SPDX-License-Identifier: MIT
#pragma once

#include "model/Collection.h"

namespace tessarin {

/// Whole numbers in the order in which they were added, each at most once. They are few: adding,
/// finding and removing search one by one.
class UniqueNumbers : private Collection<int> {
public:
    using Collection::begin;
    using Collection::Count;
    using Collection::end;
    using Collection::Item;
    using Collection::Reserve;

    bool Contains(int number) const;

    /// Appends `number`. Throws DuplicateKeyError, and changes nothing, when it is already there.
    void Add(int number);
    /// Appends `number` unless it is already there; returns whether it was added.
    bool TryAdd(int number);
    /// Removes `number`; does nothing when it is not there.
    using Collection::Remove;
};

} // namespace tessarin
