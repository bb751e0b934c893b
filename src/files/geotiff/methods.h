// Coordinate transformations as projections: parameters as the keys have them, those that say the same in another way,
// and the record of both. Angles are degrees.
#pragma once

#include "files/geotiff/figures.h"
#include "proj/geotiff_method.h"

#include <zrproj/projection.h>

namespace ZrProj::GeoTIFF {

/// Why a map of an ellipsoid would be read in two ways, hundreds of metres to kilometres apart; null where it would
/// not. One of a sphere is sure.
constexpr char const* doubtOnEllipsoid(Transformation transformation) {
    switch (transformation) {
    case equirectangular:
        return "an equirectangular map of an ellipsoid is a sphere's to some programs, and an ellipsoid's to others";
    case miller:
    case vanDerGrinten:
        return "programs differ in the sphere that they take for an ellipsoid in this projection";
    default:
        return nullptr;
    }
}

/// A projection's parameters as the keys have them: degrees, and metres on the ground before any scale factor.
struct Parameters {
    double latitude = 0, longitude = 0;
    double parallel1 = 0, parallel2 = 0;
    double scale = 1;
    double east = 0, north = 0;
    double azimuth = 0, gridAngle = 0;
};

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

/// The record of a transformation with its parameters; the ellipsoid is set, the unit of length is the metre.
Expected<PROJDATA> recordOf(Transformation transformation, Parameters const& given, Ellipsoid const& ellipsoid);

} // namespace ZrProj::GeoTIFF
