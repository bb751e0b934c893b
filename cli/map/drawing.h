// A map as a picture.
#pragma once

#include "cli/map/projection.h"

#include <array>
#include <string>

namespace ZrProj::Command {

struct LabelledPlace {
    PROJPOINT place;
    std::string name; // may be empty
};

/// What to draw.
struct MapContent {
    std::vector<Places> const* land = nullptr; // none when null
    double graticule = 0;                      // degrees between two lines; none when 0
    double ellipses = 0;                       // degrees between two distortion ellipses; none when 0
    std::vector<LabelledPlace> points;
    std::string title;                           // none when empty
    std::optional<std::array<double, 4>> bounds; // west, south, east, north, instead of the usual frame
};

/// A picture's elements, to stand in an <svg>; its units are tenths of a pixel.
struct MapPicture {
    double width, height;
    std::string elements;
};

/// size: of the map's longer side, in pixels. id: of the picture among others of the file, letters and digits.
/// Throws UsageError when the record makes no map, or none within the bounds.
MapPicture drawMap(PROJDATA const& record, MapContent const& content, double size, std::string const& id);

/// A picture as a file.
std::string svgFile(MapPicture const& picture);

} // namespace ZrProj::Command
