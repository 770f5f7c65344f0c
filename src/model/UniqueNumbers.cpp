// SPDX-License-Identifier: MIT
#include "model/UniqueNumbers.h"

#include "model/Errors.h"

#include <algorithm>

namespace tessarin {

bool UniqueNumbers::Contains(int number) const {
    return std::find(begin(), end(), number) != end();
}

void UniqueNumbers::Add(int number) {
    if (!TryAdd(number))
        throw DuplicateKeyError("the number " + std::to_string(number) + " is already there");
}

bool UniqueNumbers::TryAdd(int number) {
    if (Contains(number)) return false;
    Collection::Add(number);
    return true;
}

} // namespace tessarin
