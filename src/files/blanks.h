// Blanks in the text of side files: spaces, tabs and whatever ends lines.
#pragma once

#include "host/text.h"

#include <algorithm>
#include <string_view>

namespace ZrProj {

constexpr std::string_view blanks = " \t\r\n";

constexpr bool isBlank(char c) {
    return blanks.find(c) != std::string_view::npos;
}

constexpr std::string_view skipBlanks(std::string_view text) {
    return text.substr(std::min(text.find_first_not_of(blanks), text.size()));
}

constexpr std::string_view trimBlanks(std::string_view text) {
    return skipBlanks(text.substr(0, text.find_last_not_of(blanks) + 1));
}

/// How keys and the names of values are compared: neither letter case nor blanks count.
constexpr bool equalButBlanks(std::string_view a, std::string_view b) {
    for (;; a.remove_prefix(1), b.remove_prefix(1)) {
        a = skipBlanks(a);
        b = skipBlanks(b);
        if (a.empty() || b.empty())
            return a.empty() && b.empty();
        if (asciiLower(a.front()) != asciiLower(b.front()))
            return false;
    }
}

/// Whether the text begins with the other one, letter case ignored.
constexpr bool beginsWith(std::string_view text, std::string_view beginning) {
    return equalIgnoringCase(text.substr(0, beginning.size()), beginning);
}

} // namespace ZrProj
