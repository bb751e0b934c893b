// A map as a picture, drawn in layers.
#pragma once

#include "cli/map/content.h"
#include "cli/map/projection.h"

#include <array>
#include <string>

namespace ZrProj::Command {

/// A picture's elements, to stand in an <svg>; its units are tenths of a pixel.
struct MapPicture {
    double width, height;
    std::string elements;
};

/// size: of the map's longer side, in pixels. id: of the picture among others of the file, letters and digits.
/// Throws UsageError when the choice makes no map, or none within the bounds.
MapPicture drawMap(ProjectionChoice const& choice, MapContent const& content, double size, std::string const& id);

/// A picture as a file.
std::string svgFile(MapPicture const& picture);

} // namespace ZrProj::Command
