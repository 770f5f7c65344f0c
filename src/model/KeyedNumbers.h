#pragma once

#include <vector>

namespace tessarin {

/// Whole numbers in the order in which they were added, each at most once. Adding in ascending
/// order, the usual case, takes constant time; finding and removing search one by one.
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
    /// Removes `number`; does nothing when it is not there.
    void Remove(int number);
    /// Allocates room for `count` numbers in advance.
    void Reserve(int count) { mNumbers.reserve(static_cast<std::size_t>(count)); }

    auto begin() const { return mNumbers.begin(); }
    auto end() const { return mNumbers.end(); }

private:
    std::vector<int> mNumbers;
    int mlHighest = 0; // an upper bound of the numbers; unused while there are none
};

} // namespace tessarin
