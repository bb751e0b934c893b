#include "cli/text/text.h"

#include <algorithm>
#include <cstddef>
#include <system_error>

namespace ZrProj::Command {

std::string squeezed(std::string_view text) {
    std::string result;
    for (char c : text)
        if (isLetter(c) || isDigit(c) || static_cast<unsigned char>(c) >= 0x80)
            result += lowerCase(c);
    return result;
}

std::size_t characterCount(std::string_view text) {
    return static_cast<std::size_t>(
        std::count_if(text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

std::string systemMessage(int error) {
    return std::generic_category().message(error);
}

std::string inQuotes(std::string_view text) {
    constexpr std::size_t longest = 40;
    std::string result = "\"";
    for (char c : text.substr(0, longest))
        result += static_cast<unsigned char>(c) < 0x20 || c == 0x7F ? '?' : c;
    return result + (text.size() > longest ? "...\"" : "\"");
}

} // namespace ZrProj::Command
