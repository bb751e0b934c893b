#include "cli/files/map_info.h"

#include "cli/files/side_files.h"
#include "cli/files/tiff_file.h"
#include "cli/text/output.h"
#include "cli/text/text.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <limits>
#include <span>
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

/// One that cannot be read may; reading it tells why not.
bool mayHaveTags(std::string const& image) {
    try {
        return readTiff(image).tags.Size() > 0;
    } catch (std::runtime_error const&) {
        return true;
    }
}

MapInfo readIfGood(MapSource const& source) {
    try {
        return source.format->read(source.name);
    } catch (std::runtime_error const& error) {
        std::fprintf(stderr, "zrproj: %s; passed over\n", error.what());
        return {};
    }
}

} // namespace

std::vector<MapSource> sourcesOf(std::string const& image) {
    std::vector<MapSource> result = sideFilesOf(image);
    if (isTiffFile(image) && mayHaveTags(image))
        result.push_back({&tiffFormat(), image});
    return result;
}

FileFormat const* formatOf(std::string const& file) {
    if (isTiffFile(file))
        return nullptr;
    auto const formats = sideFormats();
    auto const found = std::ranges::find_if(formats, [&](FileFormat const& format) { return format.isNamed(file); });
    return found == formats.end() ? nullptr : &*found;
}

MapInfo readImage(std::string const& image) {
    MapInfo info, oneNumber;
    for (MapSource const& source : sourcesOf(image)) {
        MapInfo told = readIfGood(source);
        if (isOneNumber(source, told)) {
            std::swap(oneNumber.georef, told.georef);
            std::swap(oneNumber.georefFile, told.georefFile);
        }
        complete(info, std::move(told));
    }
    complete(info, std::move(oneNumber));
    return info;
}

MapInfo readMap(std::string const& file) {
    if (FileFormat const* const format = formatOf(file))
        return format->read(file);
    MapInfo info = readImage(file);
    if (info.isEmpty() && info.notes.empty())
        throw std::runtime_error("nothing is known of " + inQuotes(file) + ": no side file or tag says where it lies");
    return info;
}

namespace {

/// The root of the sum of the squared distances from their middle.
double spread(std::span<GEOREFPOINT const> points) {
    auto const count = static_cast<double>(points.size());
    double x = 0, y = 0, sum = 0;
    for (GEOREFPOINT const& point : points) {
        x += point.x / count;
        y += point.y / count;
    }
    for (GEOREFPOINT const& point : points)
        sum += (point.x - x) * (point.x - x) + (point.y - y) * (point.y - y);
    return std::sqrt(sum);
}

} // namespace

std::optional<ControlMiss> controlMiss(GEOREF const& georef, TransformMethod method) {
    GEOREF record = georef;
    record.Method = method;
    double onMap = std::numeric_limits<double>::max();
    if (!CGeorefTransform(&record).ComputeError(&onMap, nullptr) || !(onMap < std::numeric_limits<double>::max()))
        return std::nullopt;
    auto const count = static_cast<std::size_t>(georef.nControls);
    double const pixel = spread({georef.pTarget, count}) / spread({georef.pSource, count});
    return ControlMiss{onMap, onMap == 0 ? 0 : onMap / pixel};
}

std::string missText(ControlMiss const& miss) {
    std::string text;
    appendFixed(text, miss.onMap, 3);
    text += " (";
    if (std::isfinite(miss.pixels))
        appendFixed(text, miss.pixels, 2);
    else
        text += "countless";
    return text + " pixels) on the average";
}

} // namespace ZrProj::Command
