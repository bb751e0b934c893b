// Profiles on Windows: the system's profile calls.
#if defined(_WIN32)

#include "host/platform.h"
#include "host/profile.h"

#include <algorithm>
#include <filesystem>
#include <windows.h>

namespace ZrProj {
namespace {

constexpr DWORD largest = 1U << 20;

/// The calls take a name without a directory to be in the system's own one.
std::string fullName(std::string const& file) {
    std::error_code error;
    return std::filesystem::absolute(file, error).string();
}

} // namespace

std::string defaultProfileName() {
    char const* const settings = environmentVariable("APPDATA");
    return settings && *settings ? std::string(settings) + "\\zrproj\\zrproj.ini" : std::string();
}

std::optional<std::vector<ProfileEntry>> readProfile(std::string const& file, std::string_view section) {
    std::string text(largest, '\0');
    DWORD const length =
        GetPrivateProfileSectionA(std::string(section).c_str(), text.data(), largest, fullName(file).c_str());
    if (length >= largest - 2) // cut short
        return std::nullopt;
    std::vector<ProfileEntry> entries;
    for (std::string_view rest(text.data(), length); !rest.empty();) {
        std::string_view const line = rest.substr(0, rest.find('\0'));
        rest.remove_prefix(std::min(line.size() + 1, rest.size()));
        std::size_t const equals = line.find('=');
        if (equals != std::string_view::npos && !line.starts_with('#'))
            entries.push_back({std::string(line.substr(0, equals)), std::string(line.substr(equals + 1))});
    }
    return entries;
}

bool writeProfile(std::string const& file, std::string_view section, std::string_view key,
                  std::optional<std::string_view> value) {
    std::string const name = fullName(file), sectionName(section), keyName(key), text(value.value_or(""));
    if (value && file == defaultProfileName())
        CreateDirectoryA(std::filesystem::path(name).parent_path().string().c_str(), nullptr);
    char before[2] = {};
    bool const isThere =
        GetPrivateProfileStringA(sectionName.c_str(), keyName.c_str(), "", before, sizeof before, name.c_str()) != 0;
    return (value || isThere) && WritePrivateProfileStringA(sectionName.c_str(), keyName.c_str(),
                                                            value ? text.c_str() : nullptr, name.c_str());
}

} // namespace ZrProj

#endif
