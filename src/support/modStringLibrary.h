// SPDX-License-Identifier: MIT
// Text helpers for file names, dates and version numbers. Texts are 8-bit, positions count from 1,
// and a blank is only the character 32.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tessarin {

/// Trims the outer blanks of `text` and right-aligns it in `length` characters (by default the
/// untrimmed length; 0 or less gives ""). Pads on the left with the first character of
/// `padCharacter`, or a blank if that is empty. Of a longer text the last characters remain.
std::string PadLeft(std::string_view text, std::optional<std::int16_t> length = std::nullopt,
                    std::string_view padCharacter = " ");

/// The decimal digits of `number`, a minus sign in front when negative, through PadLeft; an empty
/// pad character means "0". 7 with width 4 gives 0007, 12345 gives 2345.
std::string PadNumber(int number, std::int16_t width, std::string_view padCharacter);
/// The same for 16 bits.
std::string PadInteger(std::int16_t number, std::int16_t width, std::string_view padCharacter);

/// `text` with every occurrence of `find` replaced, from left to right; the replacement is not
/// searched again. An empty `find` changes nothing.
std::string ReplaceAll(std::string_view text, std::string_view find, std::string_view replacement);

/// `text` without `count` characters from `start` on (by default to its end). The end is computed
/// from `start` as given, then both are clamped to the text. A start beyond the end or a count
/// below 1 changes nothing.
std::string DeleteChars(std::string_view text, std::int16_t start,
                        std::optional<std::int16_t> count = std::nullopt);

/// `text` with `insertion` before the character at `position` (1 to one past the end; any other
/// position changes nothing).
std::string InsertText(std::string_view text, std::string_view insertion, std::int16_t position);

/// Folder and name, both without outer blanks, with one backslash between them.
std::string JoinPath(std::string_view folder, std::string_view name);

} // namespace tessarin
