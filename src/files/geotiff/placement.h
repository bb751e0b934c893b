// Where the pixels are: pixel scale, tie points and transformation matrix as a georeference.
#pragma once

#include "files/geotiff/keys.h"

#include <zrproj/georef.h>

#include <optional>
#include <vector>

namespace ZrProj::GeoTIFF {

/// X = A x + B y + C, Y = D x + E y + F, pixels being counted from the upper left corner.
struct Coefficients {
    double A = 0, B = 0, C = 0, D = 0, E = 0, F = 0;
};

struct TiePoint {
    GEOREFPOINT pixel, map;
};

/// Coefficients, control points, or neither.
struct Placement {
    std::optional<Coefficients> coefficients;
    std::vector<TiePoint> points;
    std::string noticed{}; // what there is to tell about it
};

/// Reads the three tags. `pixelIsPoint`: whether they place a pixel's centre.
Expected<Placement> readPlacement(ZrBitmapTagList const& tags, bool pixelIsPoint);

/// The contents of the three tags; what is not to be written is empty.
struct PlacementTags {
    std::vector<double> pixelScale, tiePoints, matrix;
};

/// Refused when a georeference is none that tags can say.
Expected<PlacementTags> writePlacement(GEOREF const& georef);

} // namespace ZrProj::GeoTIFF
