// Where the files of grids are.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ZrProj::datum {

/// The folders that grids are looked for in: the caller's own, then those of the environment's ZRPROJ_GRIDS, then
/// PROJ's (PROJ_DATA, PROJ_LIB, /usr/local/share/proj, /usr/share/proj). A folder is listed once, when it is first
/// looked into: one thread at a time.
class GridFolders {
public:
    /// own: folders, ':' between them (';' on Windows).
    explicit GridFolders(std::string_view own);

    /// The path of the first plain file of that name, letter case ignored where there is none of the very name. A name
    /// may lead into folders within, but nowhere else: nothing is found for one from a root or with a "..".
    std::optional<std::string> find(std::string_view name) const;

private:
    using Listing = std::multimap<std::string, std::string>; // names, by themselves in small letters

    Listing const& listingOf(std::string const& folder) const;

    std::vector<std::string> folders_;
    mutable std::map<std::string, Listing> listings_;
};

} // namespace ZrProj::datum
