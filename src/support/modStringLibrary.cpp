// SPDX-License-Identifier: MIT
#include "support/modStringLibrary.h"

#include <algorithm>

namespace tessarin {

namespace {

std::string_view WithoutOuterBlanks(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

} // namespace

std::string PadLeft(std::string_view text, std::optional<std::int16_t> length,
                    std::string_view padCharacter) {
    if (length && *length <= 0) return "";
    const std::size_t width = length ? static_cast<std::size_t>(*length) : text.size();
    const std::string_view trimmed = WithoutOuterBlanks(text);
    if (trimmed.size() >= width) return std::string(trimmed.substr(trimmed.size() - width));
    const char pad = padCharacter.empty() ? ' ' : padCharacter.front();
    return std::string(width - trimmed.size(), pad).append(trimmed);
}

std::string PadNumber(int number, std::int16_t width, std::string_view padCharacter) {
    return PadLeft(std::to_string(number), width, padCharacter.empty() ? "0" : padCharacter);
}

std::string PadInteger(std::int16_t number, std::int16_t width, std::string_view padCharacter) {
    return PadNumber(number, width, padCharacter);
}

std::string ReplaceAll(std::string_view text, std::string_view find, std::string_view replacement) {
    std::string result(text);
    if (find.empty()) return result;
    auto found = result.find(find);
    while (found != std::string::npos) {
        result.replace(found, find.size(), replacement);
        found = result.find(find, found + replacement.size());
    }
    return result;
}

std::string DeleteChars(std::string_view text, std::int16_t start,
                        std::optional<std::int16_t> count) {
    std::string result(text);
    const auto size = static_cast<std::ptrdiff_t>(text.size());
    const std::ptrdiff_t end = count ? std::ptrdiff_t{start} + *count - 1 : size;
    const std::ptrdiff_t first = std::max<std::ptrdiff_t>(start, 1);
    const std::ptrdiff_t last = std::min(end, size);
    if (first > last) return result;
    return result.erase(static_cast<std::size_t>(first - 1),
                        static_cast<std::size_t>(last - first + 1));
}

std::string InsertText(std::string_view text, std::string_view insertion, std::int16_t position) {
    std::string result(text);
    if (position < 1 || static_cast<std::size_t>(position) > text.size() + 1) return result;
    return result.insert(static_cast<std::size_t>(position) - 1, insertion);
}

std::string JoinPath(std::string_view folder, std::string_view name) {
    std::string path(WithoutOuterBlanks(folder));
    std::string_view rest = WithoutOuterBlanks(name);
    if (!path.ends_with('\\')) path += '\\';
    if (rest.starts_with('\\')) rest.remove_prefix(1);
    return path.append(rest);
}

} // namespace tessarin
