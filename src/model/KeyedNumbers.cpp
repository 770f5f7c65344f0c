#include "model/KeyedNumbers.h"

#include "model/Errors.h"

#include <algorithm>

namespace tessarin {

int KeyedNumbers::Item(int position) const {
    if (position < 1 || position > Count())
        throw std::out_of_range("no number at position " + std::to_string(position) + " of " +
                                std::to_string(Count()));
    return mNumbers[static_cast<std::size_t>(position) - 1];
}

bool KeyedNumbers::Contains(int number) const {
    return !mNumbers.empty() && number <= mlHighest &&
           std::find(mNumbers.begin(), mNumbers.end(), number) != mNumbers.end();
}

void KeyedNumbers::Add(int number) {
    if (!TryAdd(number))
        throw DuplicateKeyError("the number " + std::to_string(number) + " is already there");
}

bool KeyedNumbers::TryAdd(int number) {
    if (Contains(number)) return false;
    mlHighest = mNumbers.empty() ? number : std::max(mlHighest, number);
    mNumbers.push_back(number);
    return true;
}

void KeyedNumbers::Remove(int number) {
    std::erase(mNumbers, number);
}

} // namespace tessarin
