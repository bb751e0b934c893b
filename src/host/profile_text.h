// The text of a profile: taken apart, and edited without touching what an edit is not about.
#pragma once

#include "host/profile.h"

namespace ZrProj {

/// The entries of a section, which may be continued further down in the text.
std::vector<ProfileEntry> profileEntries(std::string_view text, std::string_view section);

/// The text with the key's first entry replaced, or one added at the end of the section. The line ends are the text's.
std::string withEntry(std::string_view text, std::string_view section, std::string_view key, std::string_view value);

/// The text without any of the key's entries; nothing where the text has none.
std::optional<std::string> withoutEntry(std::string_view text, std::string_view section, std::string_view key);

} // namespace ZrProj
