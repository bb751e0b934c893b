#include "cases.h"

#include <array>

namespace ZrProj::bench {
namespace {

constexpr auto wgs84 = EllipsoidTypeWgs84;
constexpr auto sphere = EllipsoidTypeStandardSphereOf6370997Meters;
constexpr Box globe{-179, 179, -89, 89};

// clang-format off
constexpr std::array table{
    Case{"Mercator", ProjTypeMercator, wgs84, {}, {-179, 179, -80, 80}, "+proj=merc +ellps=WGS84"},
    Case{"Albers", ProjTypeAlbersEqualAreaConic, wgs84, {.lon0 = -96, .lat0 = 23, .lat1 = 29.5, .lat2 = 45.5}, {-130, -60, 15, 60}, "+proj=aea +lat_0=23 +lon_0=-96 +lat_1=29.5 +lat_2=45.5 +ellps=WGS84"},
    Case{"Miller", ProjTypeMillerCylindrical, sphere, {}, globe, "+proj=mill +R=6370997"},
    Case{"UTM", ProjTypeUniversalTransverseMercator, wgs84, {.lon0 = -81}, {-84, -78, 0, 84}, "+proj=utm +zone=17 +ellps=WGS84"},
    Case{"TransverseMercator/sphere", ProjTypeTransverseMercator, sphere, {.lon0 = -81}, {-84, -78, 0, 84}, "+proj=tmerc +lon_0=-81 +R=6370997"},
    Case{"GaussKruger", ProjTypeGaussKruger, EllipsoidTypeKrassovsky1942, {.lon0 = 21}, {18, 24, 40, 75}, "+proj=tmerc +lon_0=21 +ellps=krass"},
    Case{"LambertConic", ProjTypeLambertConformalConic, wgs84, {.lon0 = -96, .lat0 = 23, .lat1 = 33, .lat2 = 45}, {-130, -60, 15, 60}, "+proj=lcc +lat_0=23 +lon_0=-96 +lat_1=33 +lat_2=45 +ellps=WGS84"},
    Case{"Stereographic", ProjTypeStereographic, wgs84, {.lon0 = 10, .lat0 = 40, .k0 = 0.9999}, {-60, 80, -20, 89}, "+proj=stere +lat_0=40 +lon_0=10 +k_0=0.9999 +ellps=WGS84"},
    Case{"Stereographic/polar", ProjTypeStereographic, wgs84, {.lat0 = 90, .k0 = 0.994}, {-179, 179, 50, 89.9}, "+proj=stere +lat_0=90 +k_0=0.994 +ellps=WGS84"},
    Case{"Orthographic", ProjTypeOrthographic, wgs84, {.lon0 = 10, .lat0 = 40}, {-30, 50, 0, 80}, "+proj=ortho +lat_0=40 +lon_0=10 +ellps=WGS84"},
    Case{"Mollweide", ProjTypeMollweide, sphere, {}, globe, "+proj=moll +R=6370997"},
    Case{"Polyconic", ProjTypePolyconic, wgs84, {.lon0 = -96, .lat0 = 30}, {-126, -66, 10, 60}, "+proj=poly +lat_0=30 +lon_0=-96 +ellps=WGS84"},
    Case{"Hotine", ProjTypeHotineObliqueMercator, wgs84, {.lat0 = 4, .lon1 = 115, .k0 = 0.99984, .alpha = 53.3}, {105, 125, -6, 14}, "+proj=omerc +lat_0=4 +lonc=115 +alpha=53.3 +k_0=0.99984 +ellps=WGS84"},
    Case{"EquidistantCylindrical", ProjTypeEquidistantCylindrical, wgs84, {.lat1 = 30}, globe, "+proj=eqc +lat_ts=30 +ellps=WGS84"},
    Case{"EquidistantCylindrical/sphere", ProjTypeEquidistantCylindrical, sphere, {.lat1 = 30}, globe, "+proj=eqc +lat_ts=30 +R=6370997"},
    Case{"Robinson", ProjTypeRobinson, sphere, {}, globe, "+proj=robin +R=6370997"},
    Case{"VanDerGrinten", ProjTypeVanDerGrinten, sphere, {}, globe, "+proj=vandg +R=6370997"},
    Case{"Cassini", ProjTypeCassini, wgs84, {.lon0 = -61, .lat0 = 10}, {-64, -58, 0, 20}, "+proj=cass +lat_0=10 +lon_0=-61 +ellps=WGS84"},
    Case{"Sinusoidal", ProjTypeSinusoidal, wgs84, {}, globe, "+proj=sinu +ellps=WGS84"},
    Case{"LambertAzimuthal", ProjTypeLambertAzimuthalEqualArea, wgs84, {.lon0 = 10, .lat1 = 52}, {-60, 80, -20, 89}, "+proj=laea +lat_0=52 +lon_0=10 +ellps=WGS84"},
    Case{"LambertAzimuthal/polar", ProjTypeLambertAzimuthalEqualArea, wgs84, {.lat1 = 90}, {-179, 179, 50, 89.9}, "+proj=laea +lat_0=90 +ellps=WGS84"},
    Case{"Bonne", ProjTypeBonne, wgs84, {.lat1 = 40}, {-100, 100, -40, 80}, "+proj=bonne +lat_1=40 +ellps=WGS84"},
    Case{"RobinsonSterling", ProjTypeRobinsonSterling, sphere, {}, globe, "+proj=robin +R=6370997"},
    Case{"EckertIV", ProjTypeEckertIV, sphere, {}, globe, "+proj=eck4 +R=6370997"},
    Case{"EckertVI", ProjTypeEckertVI, sphere, {}, globe, "+proj=eck6 +R=6370997"},
    Case{"ObliqueMercator", ProjTypeObliqueMercator, sphere, {.lat1 = 20, .lat2 = 40, .lon1 = -100, .lon2 = -60}, {-110, -50, 10, 50}, "+proj=omerc +lat_1=20 +lon_1=-100 +lat_2=40 +lon_2=-60 +R=6370997"},
    Case{"EquidistantConic", ProjTypeEquidistantConic, wgs84, {.lon0 = -96, .lat0 = 23, .lat1 = 29.5, .lat2 = 45.5}, {-130, -60, 15, 60}, "+proj=eqdc +lat_0=23 +lon_0=-96 +lat_1=29.5 +lat_2=45.5 +ellps=WGS84"},
    Case{"Gnomonic", ProjTypeGnomonic, sphere, {.lon0 = 10, .lat1 = 40}, {-30, 50, 0, 80}, "+proj=gnom +lat_0=40 +lon_0=10 +R=6370997"},
    Case{"AzimuthalEquidistant", ProjTypeAzimuthalEquidistant, wgs84, {.lon0 = 10, .lat1 = 40}, {-120, 140, -40, 89}, "+proj=aeqd +lat_0=40 +lon_0=10 +ellps=WGS84"},
    Case{"AzimuthalEquidistant/sphere", ProjTypeAzimuthalEquidistant, sphere, {.lon0 = 10, .lat1 = 40}, {-120, 140, -40, 89}, "+proj=aeqd +lat_0=40 +lon_0=10 +R=6370997"},
};

// da and df are WGS 84's figures less the datum's; a height of 0 is what zrproj takes.
constexpr std::array datumTable{
    DatumCase{DatumTypeEuropean1950Mean, {"Molodensky", {}, {}, {}, {-10, 30, 35, 70}, "+proj=molodensky +ellps=intl +dx=-87 +dy=-98 +dz=-121 +da=-251 +df=-1.4192702255886366e-05"}},
    DatumCase{DatumTypeDhdnBursaWolf, {"BursaWolf", {}, {}, {}, {5, 15, 47, 55}, "+proj=pipeline +step +proj=cart +a=6377397.155 +rf=299.152815351 +step +proj=helmert +x=582 +y=105 +z=414 +rx=1.04 +ry=0.35 +rz=-3.08 +s=8.3 +convention=position_vector +step +inv +proj=cart +ellps=WGS84"}},
};
// clang-format on

} // namespace

PROJDATA Case::record() const {
    PROJDATA result{};
    result.Type = type;
    result.Ellipsoid = ellipsoid;
    result.Lon0 = parameters.lon0;
    result.Lat0 = parameters.lat0;
    result.Lat1 = parameters.lat1;
    result.Lat2 = parameters.lat2;
    result.Lon1 = parameters.lon1;
    result.Lon2 = parameters.lon2;
    result.K0 = parameters.k0;
    result.bUseAlpha = parameters.alpha != 0;
    result.Alpha = parameters.alpha;
    result.bRotate = result.bUOffset = true;
    return result;
}

std::span<Case const> cases() {
    return table;
}

std::span<DatumCase const> datumCases() {
    return datumTable;
}

} // namespace ZrProj::bench
