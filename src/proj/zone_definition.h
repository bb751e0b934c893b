// How a State Plane zone is defined: a projection, an ellipsoid, and the parameters that the definition sets.
#pragma once

#include <zrproj/ellipsoid.h>
#include <zrproj/projection.h>

#include <array>

namespace ZrProj {

/// The projection that carries a zone; None where the zone is not defined.
enum class ZoneMethod : std::int32_t {
    None = ProjTypeUndefined,
    TM = ProjTypeUniversalTransverseMercator,
    LCC = ProjTypeLambertConformalConic,
    Poly = ProjTypePolyconic,
    HOM = ProjTypeHotineObliqueMercator,
};

enum class ZoneEllipsoid : std::int32_t {
    Clarke1866 = EllipsoidTypeClarke1866,
    Grs1980 = EllipsoidTypeGrs1980Iugg1980,
    Michigan = EllipsoidTypeStatePlane1927Michigan,
};

/// Angles are texts for LatLonToDegrees with 'd'; null where the definition does not set the field. Lengths are metres.
struct ZoneDefinition {
    ZoneMethod method = ZoneMethod::None;
    ZoneEllipsoid ellipsoid = ZoneEllipsoid::Clarke1866;
    char const* Lon0 = nullptr;
    char const* Lat0 = nullptr;
    char const* Lon1 = nullptr;
    char const* Lat1 = nullptr;
    char const* Lat2 = nullptr;
    char const* Alpha = nullptr;
    double K0 = 0;
    double xOrg = 0;
    double yOrg = 0;
    bool bUseAlpha = false;
    bool bRotate = false;
    bool bUOffset = false;
};

extern std::array<ZoneDefinition, 142> const zones1927;
extern std::array<ZoneDefinition, 142> const zones1983;

} // namespace ZrProj
