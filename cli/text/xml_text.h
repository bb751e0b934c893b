// Text for XML.
#pragma once

#include <string>
#include <string_view>

namespace ZrProj::Command {

/// The text as an XML document in UTF-8 may hold it: with its special characters written out, U+FFFD for every byte
/// that belongs to no character of UTF-8 or to one that XML has not, and without control characters.
std::string xmlText(std::string_view text);

} // namespace ZrProj::Command
