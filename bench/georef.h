// Georeferencing: fits to control points, and points mapped by them, beside GDAL where it is installed.
#pragma once

#include "table.h"

#include <zrproj/georef.h>

#include <functional>
#include <string>
#include <vector>

namespace ZrProj::bench {

struct GeorefControls {
    std::vector<GEOREFPOINT> source, target;
};

/// A contender makes a map of the method through the controls, and maps points by what it made.
struct GeorefContender {
    using Map = std::function<void(std::vector<double>& x, std::vector<double>& y)>; // in place

    std::string name;
    std::function<Map(TransformMethod method, GeorefControls const& controls)> fit;
};

/// For the affine polynomial, those of the second and third order, and the thin plate spline.
GeorefContender gdalContender();

void registerGeorefRows();
/// One line for each method: zrproj beside GDAL.
void printGeorefTable(Collector const& measured);

} // namespace ZrProj::bench
