#pragma once

#include <vector>

namespace tessarin {

/// Whole numbers in the order in which they were added, each at most once: a collection whose items
/// are filed under themselves. Adding in ascending order takes constant time, which is how nearly
/// all of them are made; finding and removing walk the numbers.
class KeyedNumbers {
public:
    int Count() const { return static_cast<int>(mNumbers.size()); }
    /// The number at `position`. Throws std::out_of_range outside 1 to Count().
    int Item(int position) const;
    bool Contains(int number) const;

    /// Appends `number`. Throws DuplicateKeyError, and changes nothing, when it is already there.
    void Add(int number);
    /// Appends `number` unless it is already there; returns whether it was added.
    bool TryAdd(int number);
    /// Takes `number` out, wherever it stands; does nothing when it is not there.
    void Remove(int number);
    /// Makes room for `count` numbers, so that adding them does not move the others.
    void Reserve(int count) { mNumbers.reserve(static_cast<std::size_t>(count)); }

    auto begin() const { return mNumbers.begin(); }
    auto end() const { return mNumbers.end(); }
    bool operator==(const KeyedNumbers& other) const { return mNumbers == other.mNumbers; }

private:
    std::vector<int> mNumbers;
    int mlHighest = 0; // no number is above it, unless there is none at all
};

} // namespace tessarin
