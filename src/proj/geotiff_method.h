// How GeoTIFF says a projection: the transformation's code, and which keys and fields of the record carry the
// parameters.
#pragma once

#include <zrproj/projection.h>

#include <cstdint>

namespace ZrProj::GeoTIFF {

/// Coordinate transformations: how the parameters of a projection are to be read. The last two are no part of the
/// standard, but what common writers use.
enum Transformation : std::uint16_t {
    transverseMercator = 1,
    obliqueMercator = 3,
    obliqueMercatorLaborde = 4,
    obliqueMercatorRosenmund = 5,
    mercator = 7,
    lambertConformal2 = 8,
    lambertConformal1 = 9,
    lambertAzimuthal = 10,
    albers = 11,
    azimuthalEquidistant = 12,
    equidistantConic = 13,
    stereographic = 14,
    polarStereographic = 15,
    obliqueStereographic = 16,
    equirectangular = 17,
    cassini = 18,
    gnomonic = 19,
    miller = 20,
    orthographic = 21,
    polyconic = 22,
    robinson = 23,
    sinusoidal = 24,
    vanDerGrinten = 25,
    newZealandMapGrid = 26,
    transverseMercatorSouth = 27,
    cylindricalEqualArea = 28,
    obliqueMercatorFromCentre = 9815,
};

/// Where the scale factor goes: K0; into Scale, there being no K0; or it has none.
enum class ScaleFactor { MustBeOne, K0, Folded };
/// Which keys name the origin: those of the natural origin, of the centre, or of the false origin.
enum class Origin { Natural, Centre, False };

struct Method {
    Transformation transformation{}; // 0: none
    Origin origin = Origin::Centre;
    ProjParam latitude = ProjParamNone;  // of the origin in the record; none: it must be 0
    ProjParam longitude = ProjParamLon0; // the same
    int parallels = 0;
    ScaleFactor scale = ScaleFactor::MustBeOne;
};

} // namespace ZrProj::GeoTIFF
