#include "cli/text/text.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
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

namespace {

/// How many bytes a character that begins with this one has; 0 for a byte that begins none.
std::size_t lengthFrom(unsigned char first) {
    if (first < 0x80)
        return 1;
    if (first < 0xC2)
        return 0;
    return first < 0xE0 ? 2 : first < 0xF0 ? 3 : first < 0xF5 ? 4 : 0;
}

bool isXmlCharacter(std::uint32_t code, std::size_t length) {
    constexpr std::uint32_t least[] = {0, 0, 0x80, 0x800, 0x10000}; // by length: no longer than need be
    return code >= least[length] && code <= 0x10FFFF && (code < 0xD800 || code > 0xDFFF) && code != 0xFFFE &&
           code != 0xFFFF;
}

/// The length of the character that the text, which is not empty, begins with; 0 where it is none.
std::size_t characterLength(std::string_view text) {
    auto const byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    std::size_t const length = lengthFrom(byte(0));
    if (length <= 1)
        return length;
    if (length > text.size())
        return 0;
    std::uint32_t code = byte(0) & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i) {
        if ((byte(i) & 0xC0) != 0x80)
            return 0;
        code = code << 6 | (byte(i) & 0x3FU);
    }
    return isXmlCharacter(code, length) ? length : 0;
}

} // namespace

std::string xmlText(std::string_view text) {
    constexpr std::string_view special = "<>&\"", replacement = "\xEF\xBF\xBD";
    std::string result;
    while (!text.empty()) {
        std::size_t const length = characterLength(text);
        if (length == 0)
            result += replacement;
        else if (special.find(text[0]) != std::string_view::npos)
            result += "&#" + std::to_string(static_cast<int>(text[0])) + ';';
        else if (length > 1 || static_cast<unsigned char>(text[0]) >= 0x20)
            result += text.substr(0, length);
        text.remove_prefix(length == 0 ? 1 : length);
    }
    return result;
}

} // namespace ZrProj::Command
