// Lines and items of the puzzle text formats.
#pragma once

#include <string_view>
#include <vector>

namespace tessarin {

/// Cuts `text` at every `separator` (exact comparison). The empty text has no items; any other has
/// one more than separators. The items point into `text`.
std::vector<std::string_view> Split(std::string_view text, std::string_view separator);

/// The item at `position` (from 0). Throws std::out_of_range where there is none.
std::string_view ItemAt(const std::vector<std::string_view>& items, std::size_t position);

/// The whole number written in `item`: blanks (code 32), an optional sign, digits, blanks. Throws
/// TypeMismatchError for anything else, std::overflow_error for a number outside 32 bits.
int ToNumber(std::string_view item);

} // namespace tessarin
