// Text as the library treats it everywhere: letter case is ASCII's, whatever the host's locale.
#pragma once

#include <algorithm>
#include <string_view>

namespace ZrProj {

constexpr bool isAsciiDigit(char c) {
    return c >= '0' && c <= '9';
}

constexpr char asciiLower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

constexpr bool equalIgnoringCase(std::string_view a, std::string_view b) {
    return std::ranges::equal(a, b, {}, asciiLower, asciiLower);
}

/// Copies the text and a closing null to a caller's buffer, which must hold both. A null buffer is left out.
constexpr void copyText(char* buffer, std::string_view text) {
    if (buffer)
        *std::ranges::copy(text, buffer).out = '\0';
}

} // namespace ZrProj
