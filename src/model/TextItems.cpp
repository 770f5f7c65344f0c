#include "model/TextItems.h"

#include "model/Errors.h"

#include <charconv>
#include <string>

namespace tessarin {

namespace {

// An item as it is quoted in an error message: not all of a file that is no puzzle.
std::string Quoted(std::string_view item) {
    constexpr std::size_t Longest = 40;
    std::string quoted = "\"";
    quoted.append(item.substr(0, Longest));
    return quoted.append(item.size() > Longest ? "...\"" : "\"");
}

} // namespace

std::vector<std::string_view> Split(std::string_view text, std::string_view separator) {
    std::vector<std::string_view> items;
    if (text.empty()) return items;
    std::size_t start = 0;
    for (auto end = text.find(separator); end != std::string_view::npos;
         end = text.find(separator, start)) {
        items.push_back(text.substr(start, end - start));
        start = end + separator.size();
    }
    items.push_back(text.substr(start));
    return items;
}

std::string_view ItemAt(const std::vector<std::string_view>& items, std::size_t position) {
    if (position >= items.size())
        throw std::out_of_range("no item " + std::to_string(position) + " among " +
                                std::to_string(items.size()));
    return items[position];
}

int ToNumber(std::string_view item) {
    std::string_view text = item;
    while (text.starts_with(' '))
        text.remove_prefix(1);
    while (text.ends_with(' '))
        text.remove_suffix(1);
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
