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

/// The plain file in a folder whose name is equal but for letter case; of several the one whose name is the least, so
/// that it is always the same one.
std::optional<std::string> findIgnoringCase(fs::path const& folder, std::string const& name) {
    std::error_code error;
    std::optional<std::string> found;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error))
        if (equalIgnoringCase(entry->path().filename().string(), name) && isPlain(entry->path()))
            found = std::min(found.value_or(entry->path().string()), entry->path().string());
    return found;
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

std::optional<std::string> GridFolders::find(std::string_view name) const {
    fs::path const wanted(name);
    if (name.find('\0') != std::string_view::npos || !isWithin(wanted))
        return std::nullopt;
    for (fs::path const folder : folders_) {
        fs::path const path = folder / wanted;
        if (isPlain(path))
            return path.string();
        if (auto found = findIgnoringCase(path.parent_path(), wanted.filename().string()))
            return found;
    }
    return std::nullopt;
}

} // namespace ZrProj::datum
