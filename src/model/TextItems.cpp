// SPDX-License-Identifier: MIT
#include "model/TextItems.h"

#include "model/Errors.h"

#include <charconv>
#include <stdexcept>
#include <string>

namespace tessarin {

namespace {

// Quotes an item in an error message, shortened: it may be a whole file.
std::string Quoted(std::string_view item) {
    constexpr std::size_t Longest = 40;
    std::string quoted = "\"";
    quoted.append(item.substr(0, Longest));
    return quoted.append(item.size() > Longest ? "...\"" : "\"");
}

} // namespace

TextItems::TextItems(std::string_view text, std::string_view separator)
    : msText(text), msRest(text), msSeparator(separator), mbAtEnd(text.empty()) {}

std::string_view TextItems::Next() {
    if (mbAtEnd) throw std::out_of_range("too few items in " + Quoted(msText));
    const auto end = msRest.find(msSeparator);
    const std::string_view item = msRest.substr(0, end);
    mbAtEnd = end == std::string_view::npos;
    if (!mbAtEnd) msRest.remove_prefix(end + msSeparator.size());
    return item;
}

std::size_t CountItems(TextItems items) {
    std::size_t count = 0;
    while (!items.AtEnd()) {
        items.Next();
        ++count;
    }
    return count;
}

int ToNumber(std::string_view item) {
    std::string_view text = item;
    while (text.starts_with(' '))
        text.remove_prefix(1);
    while (text.ends_with(' '))
        text.remove_suffix(1);
    // from_chars refuses a plus sign. That of "+-5" stays: without it the rest would be a number.
    if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
    int number = 0;
    const char* const end = text.data() + text.size();
    const auto [parsed, error] = std::from_chars(text.data(), end, number);
    if (parsed != end || error == std::errc::invalid_argument)
        throw TypeMismatchError(Quoted(item) + " is not a whole number");
    if (error == std::errc::result_out_of_range)
        throw std::overflow_error(Quoted(item) + " is outside the 32-bit range");
    return number;
}

} // namespace tessarin
