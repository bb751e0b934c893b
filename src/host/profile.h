// Profiles: text files of sections with entries, "[Section]" and "key=value", which people edit and programs share.
//
// Section names and keys are equal regardless of ASCII letter case, and blanks around them and around values do not
// count. Lines beginning with ";" or "#", and those without "=", are no entries. On Windows these are the system's
// profile calls.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ZrProj {

/// An entry of a section, without the blanks around its key and its value.
struct ProfileEntry {
    std::string key, value;
};

/// The user's own profile, "zrproj.ini" in the directory where programs keep their settings; empty where there is none.
std::string defaultProfileName();

/// The entries of a section in the file's order; a file that does not exist has none. Returns nothing for a file that
/// cannot be read, is no plain file, or has more than 1 MiB.
std::optional<std::vector<ProfileEntry>> readProfile(std::string const& file, std::string_view section);

/// Sets an entry, or, without a value, removes it. The file, and the directory of the default one, is made where it
/// does not exist; every other line stays as it was, byte for byte. Whatever stops this half-way leaves the file as it
/// was before or as it is meant to be. Writers wait for each other, up to ten seconds. Returns false when nothing was
/// written, and when there was nothing to remove.
bool writeProfile(std::string const& file, std::string_view section, std::string_view key,
                  std::optional<std::string_view> value);

} // namespace ZrProj
