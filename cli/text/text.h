// Small helpers for text.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace ZrProj::Command {

constexpr bool isBlank(char c) {
    return c == ' ' || c == '\t';
}
constexpr bool isDigit(char c) {
    return c >= '0' && c <= '9';
}
constexpr bool isLetter(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}
constexpr char lowerCase(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

constexpr std::string_view trimmed(std::string_view text) {
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

/// The letters and digits of a text, in lower case: what "WGS 84" and "wgs84" have in common. Letters beyond ASCII stay
/// as they are.
std::string squeezed(std::string_view text);

/// How many characters a text in UTF-8 has.
std::size_t characterCount(std::string_view text);

/// What an errno means.
std::string systemMessage(int error);

/// A text in quotes, for a message: cut where it is long, and harmless on a terminal.
std::string inQuotes(std::string_view text);

/// The text as an XML document in UTF-8 may hold it: with its special characters written out, U+FFFD for every byte
/// that belongs to no character of UTF-8 or to one that XML has not, and without control characters.
std::string xmlText(std::string_view text);

} // namespace ZrProj::Command
