#include "texts.h"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <string>
#include <vector>

namespace ZrProj::docs {
namespace {

// clang-format off
constexpr Member conic[]{
    {ProjTypeLambertConformalConic,       "pLamCC",   "LambertConic"},
    {ProjTypeAlbersEqualAreaConic,        "pAlbers",  "Albers"},
    {ProjTypeEquidistantConic,            "pEquiCon", "EquidistantConic"},
    {ProjTypePolyconic,                   "pPolyCon", "Polyconic"},
    {ProjTypeBonne,                       "pBonne",   "Bonne"},
};
constexpr Member cylindrical[]{
    {ProjTypeMercator,                    "pMerc",    "Mercator"},
    {ProjTypeMillerCylindrical,           "pMiller",  "Miller"},
    {ProjTypeEquidistantCylindrical,      "pEquiCyl", "EquidistantCylindrical"},
};
constexpr Member transverse[]{
    {ProjTypeTransverseMercator,          "pTMerc",   "UTM"},
    {ProjTypeGaussKruger,                 "pTMerc",   "GaussKruger"},
    {ProjTypeUniversalTransverseMercator, "pTMerc",   "UTM"},
    {ProjTypeCassini,                     "pCassini", "Cassini"},
    {ProjTypeHotineObliqueMercator,       "pHotine",  "Hotine"},
    {ProjTypeObliqueMercator,             "pOblMerc", "ObliqueMercator"},
};
constexpr Member azimuthal[]{
    {ProjTypeStereographic,               "pStereo",  "Stereographic"},
    {ProjTypeLambertAzimuthalEqualArea,   "pLamAz",   "LambertAzimuthal"},
    {ProjTypeAzimuthalEquidistant,        "pAzEqui",  "AzimuthalEquidistant"},
    {ProjTypeOrthographic,                "pOrtho",   "Orthographic"},
    {ProjTypeGnomonic,                    "pGnomon",  "Gnomonic"},
};
constexpr Member world[]{
    {ProjTypeMollweide,                   "pMollw",   "Mollweide"},
    {ProjTypeSinusoidal,                  "pSinus",   "Sinusoidal"},
    {ProjTypeEckertIV,                    "pEckert4", "EckertIV"},
    {ProjTypeEckertVI,                    "pEckert6", "EckertVI"},
    {ProjTypeRobinson,                    "pRobin",   "Robinson"},
    {ProjTypeRobinsonSterling,            "pRobStir", "RobinsonSterling"},
    {ProjTypeVanDerGrinten,               "pVanDGr",  "VanDerGrinten"},
};

constexpr Family table[]{
    {"Conic", R"($ echo -75,35 | zrproj forward --projection albers --ellipsoid 'Clarke 1866' --lat1 29.5 --lat2 45.5 --lat0 23 --lon0 -96
1885472.726,1535925.005
)", conic},
    {"Cylindrical", R"($ echo 10,60 | zrproj forward --projection mercator --ellipsoid 'WGS 84'
1113194.908,8362698.549
)", cylindrical},
    {"Transverse and oblique", R"($ echo -79.387139,43.642567 | zrproj forward --utm 17N
630084.301,4833438.586
)", transverse},
    {"Azimuthal", R"($ echo 2.3522,48.8566 | zrproj forward --projection 'azimuthal equidistant' --ellipsoid 'WGS 84' --lat1 51.4779
172639.702,-288833.868
)", azimuthal},
    {"World maps", R"($ echo 100,40 | zrproj forward --projection mollweide --ellipsoid 'WGS 84'
8492765.183,4789399.150
)", world},
};

constexpr std::array fields{
    "",     "Type", "Scale", "xOrg",   "yOrg", "Lat0",      "Lon0",  "Lat1",    "Lat2",    "Lat3",      "Lon1",        "Lon2",
    "Lon3", "K0",   "bSouth", "Zone",  "bUseAlpha", "Alpha", "bRotate", "bUOffset", "Ellipsoid", "MajorRadius", "Flattening",
};
static_assert(fields.size() == 23);

struct Meaning {
    ProjParam parameter;
    std::vector<ProjType> types; // none: whatever the type; the first row that fits counts
    char const* text;
};

std::vector<Meaning> const meanings{
    {ProjParamScale,     {},                                                                                                                               "map scale, applied after the false origin; 0 counts as 1"},
    {ProjParamXOrg,      {},                                                                                                                               "added to x, in the ellipsoid's unit"},
    {ProjParamYOrg,      {},                                                                                                                               "added to y, in the ellipsoid's unit"},
    {ProjParamLat0,      {ProjTypeStereographic, ProjTypeOrthographic},                                                                                    "latitude of the centre, degrees"},
    {ProjParamLat0,      {ProjTypeHotineObliqueMercator},                                                                                                  "latitude of the centre, a point of the line, degrees"},
    {ProjParamLat0,      {},                                                                                                                               "latitude where y is 0 on the central meridian, degrees"},
    {ProjParamLon0,      {ProjTypeStereographic, ProjTypeOrthographic, ProjTypeLambertAzimuthalEqualArea, ProjTypeGnomonic, ProjTypeAzimuthalEquidistant}, "longitude of the centre, degrees"},
    {ProjParamLon0,      {ProjTypeHotineObliqueMercator},                                                                                                  "by azimuth: longitude of the centre where `Lon1` is 0, degrees"},
    {ProjParamLon0,      {},                                                                                                                               "central meridian, degrees"},
    {ProjParamLat1,      {ProjTypeLambertAzimuthalEqualArea, ProjTypeGnomonic, ProjTypeAzimuthalEquidistant},                                              "latitude of the centre, degrees"},
    {ProjParamLat1,      {ProjTypeObliqueMercator, ProjTypeHotineObliqueMercator},                                                                         "latitude of the line's first point, degrees"},
    {ProjParamLat1,      {ProjTypeBonne},                                                                                                                  "latitude that is true to scale, and where y is 0 on the central meridian, degrees"},
    {ProjParamLat1,      {},                                                                                                                               "latitude that is true to scale, degrees"},
    {ProjParamLat2,      {ProjTypeObliqueMercator, ProjTypeHotineObliqueMercator},                                                                         "latitude of the line's second point, degrees"},
    {ProjParamLat2,      {},                                                                                                                               "the other latitude that is true to scale, degrees"},
    {ProjParamLon1,      {ProjTypeHotineObliqueMercator},                                                                                                  "longitude of the line's first point; by azimuth: of the centre; degrees"},
    {ProjParamLon1,      {},                                                                                                                               "longitude of the line's first point, degrees"},
    {ProjParamLon2,      {},                                                                                                                               "longitude of the line's second point, degrees"},
    {ProjParamK0,        {ProjTypeUniversalTransverseMercator},                                                                                            "scale along the central meridian; 0 counts as 0.9996"},
    {ProjParamK0,        {ProjTypeTransverseMercator, ProjTypeGaussKruger},                                                                                "scale along the central meridian; 0 counts as 1"},
    {ProjParamK0,        {ProjTypeStereographic},                                                                                                          "scale at the centre; 0 counts as 1"},
    {ProjParamK0,        {},                                                                                                                               "scale along the line; 0 counts as 1"},
    {ProjParamSouth,     {},                                                                                                                               "whether the false northing is that of the south, 10 000 km"},
    {ProjParamUseAlpha,  {},                                                                                                                               "whether the line is given by its azimuth at the centre, not by two points"},
    {ProjParamAlpha,     {},                                                                                                                               "azimuth of the line at the centre, degrees from north to east"},
    {ProjParamRotate,    {},                                                                                                                               "whether x and y are turned to east and north, not along the line and across it"},
    {ProjParamUOffset,   {},                                                                                                                               "whether the way along the line counts from the centre, not from the equator"},
    {ProjParamEllipsoid, {},                                                                                                                               "the ellipsoid; 0: `MajorRadius` and `Flattening` are the caller's"},
};
// clang-format on

bool fits(Meaning const& meaning, int parameter, ProjType type) {
    return meaning.parameter == parameter &&
           (meaning.types.empty() || std::ranges::find(meaning.types, type) != meaning.types.end());
}

} // namespace

char const* const introduction =
    R"(# The projection types

Every type that computes a map, by family; the two State Plane types are made of these, [zones.md](zones.md), and type
0 leaves points as they are. Records, handles and marking are explained in [projections.md](projections.md);
the [gallery](gallery.md) shows a map of each.

Accuracy is what the tests hold at every processor level. A length is how far a map may be off on an ellipsoid as large
as the Earth, at scale 1: beside evaluations to 40 digits that are stored, with worked examples from the literature, in
`tests/data`. A round trip comes back within the degrees or, where that is more, the length on the map, all over the area
that `ProjLLInProjection` tells of, its edges, poles and antipodes included. Names like
`geodesic.h` are sources in `src/formulas`. Speeds are of arrays of a million points.

This page is made by `./dev docs` from the library's catalogue, the formulas' own comments and a run of the benchmarks.
)";

std::span<Family const> families() {
    return table;
}

char const* fieldOf(int parameter) {
    return fields.at(static_cast<std::size_t>(parameter));
}

char const* meaningOf(int parameter, ProjType type) {
    for (auto const& meaning : meanings)
        if (fits(meaning, parameter, type))
            return meaning.text;
    throw std::runtime_error("no meaning of parameter " + std::to_string(parameter) + " of type " +
                             std::to_string(type));
}

} // namespace ZrProj::docs
