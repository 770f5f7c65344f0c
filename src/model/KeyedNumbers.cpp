#include "model/KeyedNumbers.h"

#include "model/Errors.h"

#include <algorithm>

namespace tessarin {

bool KeyedNumbers::Contains(int number) const {
    return Count() > 0 && number <= mlHighest && std::find(begin(), end(), number) != end();
}

void KeyedNumbers::Add(int number) {
    if (!TryAdd(number))
        throw DuplicateKeyError("the number " + std::to_string(number) + " is already there");
}

bool KeyedNumbers::TryAdd(int number) {
    if (Contains(number)) return false;
    mlHighest = Count() == 0 ? number : std::max(mlHighest, number);
    Collection::Add(number);
    return true;
}

} // namespace tessarin
