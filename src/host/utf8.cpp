#include "host/utf8.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace ZrProj {
namespace {

/// How many bytes the character at the front takes; 0 where there is none that is well formed.
std::size_t characterLength(std::string_view text) {
    constexpr std::array<std::uint32_t, 5> least{0, 0, 0x80, 0x800, 0x10000}; // by length, what needs so many bytes
    auto const first = static_cast<unsigned char>(text.front());
    if (first < 0x80)
        return 1;
    std::size_t const length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
    if (first < 0xC0 || first >= 0xF8 || text.size() < length)
        return 0;
    std::uint32_t code = first & (0x7FU >> length);
    for (char const c : text.substr(1, length - 1)) {
        auto const byte = static_cast<unsigned char>(c);
        if ((byte & 0xC0U) != 0x80U)
            return 0;
        code = code << 6U | (byte & 0x3FU);
    }
    bool const isSurrogate = code >= 0xD800 && code < 0xE000;
    return code >= least[length] && code < 0x110000 && !isSurrogate ? length : 0;
}

} // namespace

bool isUtf8(std::string_view text) {
    while (!text.empty()) {
        std::size_t const length = characterLength(text);
        if (length == 0)
            return false;
        text.remove_prefix(length);
    }
    return true;
}

std::string utf8Of(std::string_view text) {
    if (isUtf8(text))
        return std::string(text);
    std::string made;
    for (char const c : text) {
        auto const byte = static_cast<unsigned char>(c);
        if (byte < 0x80) {
            made += c;
            continue;
        }
        made += static_cast<char>(0xC0U | byte >> 6U);
        made += static_cast<char>(0x80U | (byte & 0x3FU));
    }
    return made;
}

} // namespace ZrProj
