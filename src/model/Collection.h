// SPDX-License-Identifier: MIT
#pragma once

#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace tessarin {

static_assert(sizeof(int) == 4, "values, indices and counts have 32 bits");

/// Items in the order in which they were added, at the positions 1 to Count().
template <class T>
class Collection {
public:
    int Count() const { return static_cast<int>(mItems.size()); }

    /// The item at `position`. Throws std::out_of_range outside 1 to Count().
    const T& Item(int position) const {
        if (const T* const item = Find(position)) return *item;
        throw std::out_of_range("no item at position " + std::to_string(position) + " of " +
                                std::to_string(Count()));
    }

    /// The item at `position`, or nullptr outside 1 to Count().
    const T* Find(int position) const {
        const auto offset = static_cast<std::size_t>(position) - 1; // huge for 0 and below
        return offset < mItems.size() ? &mItems[offset] : nullptr;
    }
    bool Has(int position) const { return Find(position) != nullptr; }

    void Add(T item) { mItems.push_back(std::move(item)); }
    /// Removes all items that equal `item`.
    void Remove(const T& item) { std::erase(mItems, item); }
    /// Allocates room for `count` items in advance.
    void Reserve(int count) { mItems.reserve(static_cast<std::size_t>(count)); }

    auto begin() const { return mItems.begin(); }
    auto end() const { return mItems.end(); }

private:
    std::vector<T> mItems;
};

} // namespace tessarin
