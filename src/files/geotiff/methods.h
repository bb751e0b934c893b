// Coordinate transformations as methods of projected systems, with their parameters as the keys have them. Angles are
// degrees.
#pragma once

#include "files/geotiff/keys.h"
#include "proj/geotiff_method.h"
#include "systems/definition.h"

#include <optional>

namespace ZrProj::GeoTIFF {

/// Why a map of an ellipsoid would be read in two ways, hundreds of metres to kilometres apart; null where it would
/// not. One of a sphere is sure.
constexpr char const* doubtOnEllipsoid(Transformation transformation) {
    switch (transformation) {
    case equirectangular:
        return "an equirectangular map of an ellipsoid is a sphere's to some programs, and an ellipsoid's to others";
    case gnomonic:
        return "a gnomonic map of an ellipsoid is a sphere's to some programs, and an ellipsoid's to others";
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

/// Whether a transformation is one along a line with an azimuth; whether it has two parallels.
bool isOblique(Transformation transformation);
bool hasParallels(Transformation transformation);

/// Gives a system its conversion. Why not, where a transformation is unknown, or has no such parameters.
std::optional<Refusal> setConversion(systems::Definition& system, Transformation transformation,
                                     Parameters const& given);

/// The northing of a latitude on the equator's Mercator map, in ellipsoid units.
double mercatorNorthing(double latitude, double radius, double flattening);

} // namespace ZrProj::GeoTIFF
