// Coordinate transformations as projection types, one row each: which parameters a transformation has, and which keys
// carry them when it is written.
#pragma once

#include "files/GeoTIFFKeys.h"

#include <zrproj/projection.h>

#include <array>

namespace ZrProj::GeoTIFF {

/// Where the scale factor goes: K0; into Scale, there being no K0; or it has none.
enum class ScaleFactor { MustBeOne, K0, Folded };
/// Which keys name the origin: those of the natural origin, of the centre, or of the false origin.
enum class Origin { Natural, Centre, False };

struct Method {
    Transformation transformation;
    ProjType type;
    ProjParam latitude, longitude; // of the origin in the record; none: must be 0
    int parallels;
    ScaleFactor scale;
    Origin origin;
};

// Equivalents (one parallel of a Lambert cone, a parallel of true scale) are put into these parameters first.
// clang-format off
inline constexpr std::array methodTable{
    Method{transverseMercator,        ProjTypeTransverseMercator,        ProjParamLat0, ProjParamLon0, 0, ScaleFactor::K0,        Origin::Natural},
    Method{obliqueMercator,           ProjTypeHotineObliqueMercator,     ProjParamLat0, ProjParamLon0, 0, ScaleFactor::K0,        Origin::Centre},
    Method{mercator,                  ProjTypeMercator,                  ProjParamNone, ProjParamLon0, 0, ScaleFactor::Folded,    Origin::Natural},
    Method{lambertConformal2,         ProjTypeLambertConformalConic,     ProjParamLat0, ProjParamLon0, 2, ScaleFactor::MustBeOne, Origin::False},
    Method{lambertConformal1,         ProjTypeLambertConformalConic,     ProjParamLat0, ProjParamLon0, 2, ScaleFactor::Folded,    Origin::Natural},
    Method{lambertAzimuthal,          ProjTypeLambertAzimuthalEqualArea, ProjParamLat1, ProjParamLon0, 0, ScaleFactor::MustBeOne, Origin::Centre},
    Method{albers,                    ProjTypeAlbersEqualAreaConic,      ProjParamLat0, ProjParamLon0, 2, ScaleFactor::MustBeOne, Origin::Natural},
    Method{azimuthalEquidistant,      ProjTypeAzimuthalEquidistant,      ProjParamLat1, ProjParamLon0, 0, ScaleFactor::MustBeOne, Origin::Centre},
    Method{equidistantConic,          ProjTypeEquidistantConic,          ProjParamLat0, ProjParamLon0, 2, ScaleFactor::MustBeOne, Origin::Natural},
    Method{stereographic,             ProjTypeStereographic,             ProjParamLat0, ProjParamLon0, 0, ScaleFactor::K0,        Origin::Centre},
    Method{polarStereographic,        ProjTypeStereographic,             ProjParamLat0, ProjParamLon0, 0, ScaleFactor::K0,        Origin::Natural},
    Method{equirectangular,           ProjTypeEquidistantCylindrical,    ProjParamNone, ProjParamLon0, 1, ScaleFactor::MustBeOne, Origin::Centre},
    Method{cassini,                   ProjTypeCassini,                   ProjParamLat0, ProjParamLon0, 0, ScaleFactor::MustBeOne, Origin::Natural},
    Method{gnomonic,                  ProjTypeGnomonic,                  ProjParamLat1, ProjParamLon0, 0, ScaleFactor::MustBeOne, Origin::Centre},
    Method{miller,                    ProjTypeMillerCylindrical,         ProjParamNone, ProjParamLon0, 0, ScaleFactor::MustBeOne, Origin::Centre},
    Method{orthographic,              ProjTypeOrthographic,              ProjParamLat0, ProjParamLon0, 0, ScaleFactor::MustBeOne, Origin::Centre},
    Method{polyconic,                 ProjTypePolyconic,                 ProjParamLat0, ProjParamLon0, 0, ScaleFactor::MustBeOne, Origin::Natural},
    Method{robinson,                  ProjTypeRobinson,                  ProjParamNone, ProjParamNone, 0, ScaleFactor::MustBeOne, Origin::Centre},
    Method{sinusoidal,                ProjTypeSinusoidal,                ProjParamNone, ProjParamLon0, 0, ScaleFactor::MustBeOne, Origin::Centre},
    Method{vanDerGrinten,             ProjTypeVanDerGrinten,             ProjParamNone, ProjParamLon0, 0, ScaleFactor::MustBeOne, Origin::Centre},
    Method{obliqueMercatorFromCentre, ProjTypeHotineObliqueMercator,     ProjParamLat0, ProjParamLon0, 0, ScaleFactor::K0,        Origin::Centre},
};
// clang-format on

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

} // namespace ZrProj::GeoTIFF
