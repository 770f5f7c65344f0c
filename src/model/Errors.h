// SPDX-License-Identifier: MIT
// The errors of UniqueNumbers and of text items. A position or index that does not exist is
// std::out_of_range, a number outside the 32-bit range std::overflow_error.
#pragma once

#include <stdexcept>

namespace tessarin {

/// A number cannot be added because it is already there.
struct DuplicateKeyError : std::invalid_argument {
    using std::invalid_argument::invalid_argument;
};

/// A text is not a whole number.
struct TypeMismatchError : std::invalid_argument {
    using std::invalid_argument::invalid_argument;
};

} // namespace tessarin
