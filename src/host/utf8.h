// Text in UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace ZrProj {

/// What may stand before a text in UTF-8.
inline constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

bool isUtf8(std::string_view text);

/// The text itself where it is UTF-8; else the same in Latin-1 as UTF-8.
std::string utf8Of(std::string_view text);

} // namespace ZrProj
