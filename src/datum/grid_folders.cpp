#include "datum/grid_folders.h"

#include "host/platform.h"
#include "host/text.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace ZrProj::datum {
namespace {

namespace fs = std::filesystem;

#if defined(_WIN32)
constexpr char between = ';';
constexpr std::string_view common[] = {};
#else
constexpr char between = ':';
constexpr std::string_view common[] = {"/usr/local/share/proj", "/usr/share/proj"};
#endif

void append(std::vector<std::string>& folders, std::string_view list) {
    while (!list.empty()) {
        auto const length = std::min(list.find(between), list.size());
        if (length > 0)
            folders.emplace_back(list.substr(0, length));
        list.remove_prefix(std::min(length + 1, list.size()));
    }
}

/// Whether a path stays below where it starts.
bool isWithin(fs::path const& name) {
    return !name.has_root_path() && name.has_filename() && std::ranges::find(name, fs::path("..")) == name.end();
}

bool isPlain(fs::path const& path) {
    std::error_code error;
    return fs::is_regular_file(path, error);
}

std::string inSmallLetters(std::string name) {
    std::ranges::transform(name, name.begin(), asciiLower);
    return name;
}

} // namespace

GridFolders::GridFolders(std::string_view own) {
    append(folders_, own);
    for (char const* const variable : {"ZRPROJ_GRIDS", "PROJ_DATA", "PROJ_LIB"})
        if (char const* const value = environmentVariable(variable))
            append(folders_, value);
    for (std::string_view const folder : common)
        folders_.emplace_back(folder);
}

GridFolders::Listing const& GridFolders::listingOf(std::string const& folder) const {
    auto const [found, isNew] = listings_.try_emplace(folder);
    std::error_code error;
    if (isNew)
        for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
            std::string const name = entry->path().filename().string();
            found->second.emplace(inSmallLetters(name), name);
        }
    return found->second;
}

std::optional<std::string> GridFolders::find(std::string_view name) const {
    fs::path const wanted(name);
    if (name.find('\0') != std::string_view::npos || !isWithin(wanted))
        return std::nullopt;
    std::string const file = wanted.filename().string();
    for (fs::path const root : folders_) {
        fs::path const folder = (root / wanted).parent_path();
        auto const [first, last] = listingOf(folder.string()).equal_range(inSmallLetters(file));
        std::optional<std::string> found; // of several the least, so that it is always the same one
        for (auto each = first; each != last; ++each)
            if (isPlain(folder / each->second) &&
                (!found || each->second == file || (*found != file && each->second < *found)))
                found = each->second;
        if (found)
            return (folder / *found).string();
    }
    return std::nullopt;
}

} // namespace ZrProj::datum
