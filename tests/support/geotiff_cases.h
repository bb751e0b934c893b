// The tags of TIFF files that other programs wrote, and what these programs make of points: tests/data/geotiff.
#pragma once

#include <zrproj/zrproj.h>

#include <string>
#include <vector>

namespace ZrProj::test {

struct GeoTIFFPoint {
    PROJPOINT degrees, map;
};

struct GeoTIFFCase {
    std::string system;
    ZrBitmapTagList tags;
    std::vector<GeoTIFFPoint> points;
    std::string refused; // the beginning of the reason; "" for a system that is read
};

/// The blocks of a file below tests/data/geotiff.
std::vector<GeoTIFFCase> readGeoTIFFCases(std::string const& fileName);

/// A tag of doubles, shorts or text, added to a list.
void addDoubles(ZrBitmapTagList& tags, std::uint16_t id, std::vector<double> const& values);
void addShorts(ZrBitmapTagList& tags, std::uint16_t id, std::vector<std::uint16_t> const& values);
void addText(ZrBitmapTagList& tags, std::uint16_t id, std::string const& text);

} // namespace ZrProj::test
