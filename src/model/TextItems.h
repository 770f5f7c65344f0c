// SPDX-License-Identifier: MIT
// Lines and items of the puzzle text formats.
#pragma once

#include <cstddef>
#include <string_view>

namespace tessarin {

/// Splits a text wherever its separator occurs, one item after the other. The empty text has no
/// items; any other text has one item more than separators. The items point into the text.
class TextItems {
public:
    TextItems(std::string_view text, std::string_view separator);

    bool AtEnd() const { return mbAtEnd; }
    /// Throws std::out_of_range at the end.
    std::string_view Next();

private:
    std::string_view msText;
    std::string_view msRest;
    std::string_view msSeparator;
    bool mbAtEnd;
};

/// The number of items that are left.
std::size_t CountItems(TextItems items);

/// The whole number written in `item`: blanks (code 32), an optional sign, digits, blanks. Throws
/// TypeMismatchError for anything else, std::overflow_error for a number outside 32 bits.
int ToNumber(std::string_view item);

} // namespace tessarin
