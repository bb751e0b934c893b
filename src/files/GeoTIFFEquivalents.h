// Parameters that say the same in another way. Angles are degrees.
#pragma once

#include <zrproj/projection.h>

namespace ZrProj::GeoTIFF {

/// The scale factor at the equator of a Mercator map that is true along a parallel.
double mercatorScale(double parallel, double flattening);

/// The scale factor at the pole of a polar stereographic map that is true along a parallel.
double polarScale(double parallel, double flattening);

/// Two parallels of a conformal cone, and the scale factor along both of them.
struct ConeParallels {
    double south, north, scale;
};

/// The cone that touches along one parallel (not the equator, nor a pole), with a scale factor there. The two parallels
/// are of true scale where there are such, otherwise some degree away from the given one.
ConeParallels coneParallels(double parallel, double scale, double flattening);

/// The northing of a latitude on the equator's Mercator map, in ellipsoid units.
double mercatorNorthing(double latitude, double radius, double flattening);

} // namespace ZrProj::GeoTIFF
