#include "cli/map_info.h"

#include "cli/side_files.h"
#include "cli/text.h"
#include "cli/tiff_format.h"

#include <algorithm>
#include <filesystem>
#include <stdexcept>

namespace ZrProj::Command {

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
    info.notes.insert(info.notes.end(), later.notes.begin(), later.notes.end());
}

namespace {

/// Whether a reference file's georeference is the one number that the format keeps of six coefficients.
bool isOneNumber(MapSource const& source, MapInfo const& info) {
    return source.format == &sideFormats().front() && !info.georefFile.empty() &&
           info.georef->Method == TransformMethodPrecalculatedAffineCoefficients;
}

} // namespace

std::vector<MapSource> sourcesOf(std::string const& image) {
    std::vector<MapSource> result = sideFilesOf(image);
    if (isTiffFile(image) && readTiff(image).tags.Size() > 0)
        result.push_back({&tiffFormat(), image});
    return result;
}

FileFormat const* formatOf(std::string const& file) {
    auto const formats = sideFormats();
    auto const found = std::ranges::find_if(formats, [&](FileFormat const& format) { return format.isNamed(file); });
    return found == formats.end() ? nullptr : &*found;
}

MapInfo readMap(std::string const& file) {
    if (FileFormat const* const format = formatOf(file))
        return format->read(file);
    MapInfo info, oneNumber;
    for (MapSource const& source : sourcesOf(file)) {
        MapInfo told = source.format->read(source.name);
        if (isOneNumber(source, told)) {
            std::swap(oneNumber.georef, told.georef);
            std::swap(oneNumber.georefFile, told.georefFile);
        }
        complete(info, std::move(told));
    }
    complete(info, std::move(oneNumber));
    if (info.isEmpty() && info.notes.empty())
        throw std::runtime_error("nothing is known of " + inQuotes(file) + ": no side file or tag says where it lies");
    return info;
}

} // namespace ZrProj::Command
