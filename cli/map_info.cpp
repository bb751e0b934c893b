#include "cli/map_info.h"

#include "cli/side_files.h"
#include "cli/text.h"

#include <algorithm>
#include <filesystem>
#include <stdexcept>

namespace ZrProj::Command {
namespace {

/// Takes from a later file what the earlier ones did not tell.
void complete(MapInfo& info, MapInfo&& later) {
    if (info.projectionFile.empty()) {
        info.projection = later.projection;
        info.projectionFile = later.projectionFile;
    }
    if (info.datumFile.empty()) {
        info.datum = later.datum;
        info.datumParameters = later.datumParameters;
        info.datumFile = later.datumFile;
    }
    if (info.georefFile.empty()) {
        info.georef = std::move(later.georef);
        info.georefFile = later.georefFile;
    }
}

} // namespace

FileFormat const* formatOf(std::string const& file) {
    auto const formats = sideFormats();
    auto const found = std::ranges::find_if(formats, [&](FileFormat const& format) { return format.isNamed(file); });
    return found == formats.end() ? nullptr : &*found;
}

MapInfo readMap(std::string const& file) {
    if (FileFormat const* const format = formatOf(file))
        return format->read(file);
    MapInfo info;
    for (SideFile const& side : sideFilesOf(file))
        complete(info, side.format->read(side.name));
    if (info.isEmpty())
        throw std::runtime_error("nothing is known of " + inQuotes(file) + ": no side file says where it lies");
    return info;
}

} // namespace ZrProj::Command
