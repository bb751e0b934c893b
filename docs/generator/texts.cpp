#include "texts.h"

#include <array>
#include <stdexcept>
#include <string>

namespace ZrProj::docs {
namespace {

// clang-format off
constexpr FamilyText table[]{
    {Family::Conic, "Conic", R"($ echo -75,35 | zrproj forward --projection albers --ellipsoid 'Clarke 1866' --lat1 29.5 --lat2 45.5 --lat0 23 --lon0 -96
1885472.726,1535925.005
)"},
    {Family::Cylindrical, "Cylindrical", R"($ echo 10,60 | zrproj forward --projection mercator --ellipsoid 'WGS 84'
1113194.908,8362698.549
)"},
    {Family::Transverse, "Transverse and oblique", R"($ echo -79.387139,43.642567 | zrproj forward --utm 17N
630084.301,4833438.586
)"},
    {Family::Azimuthal, "Azimuthal", R"($ echo 2.3522,48.8566 | zrproj forward --projection 'azimuthal equidistant' --ellipsoid 'WGS 84' --lat1 51.4779
172639.702,-288833.868
)"},
    {Family::World, "World maps", R"($ echo 100,40 | zrproj forward --projection mollweide --ellipsoid 'WGS 84'
8492765.183,4789399.150
)"},
};

constexpr std::array fields{
    "",     "Type", "Scale", "xOrg",   "yOrg", "Lat0",      "Lon0",  "Lat1",    "Lat2",    "Lat3",      "Lon1",        "Lon2",
    "Lon3", "K0",   "bSouth", "Zone",  "bUseAlpha", "Alpha", "bRotate", "bUOffset", "Ellipsoid", "MajorRadius", "Flattening",
};
// clang-format on
static_assert(fields.size() == 23);

bool ofAny(ProjectionRow const&) {
    return true;
}
bool isAzimuthal(ProjectionRow const& type) {
    return type.family == Family::Azimuthal;
}
bool isTransverseMercator(ProjectionRow const& type) {
    return type.method == Method::transverseMercator;
}
bool goesThroughPoints(ProjectionRow const& type) {
    return ProjUsesParam(type.type, ProjParamLon2);
}
template <ProjType type> bool is(ProjectionRow const& row) {
    return row.type == type;
}

struct Meaning {
    ProjParam parameter;
    bool (*fits)(ProjectionRow const& type);
    char const* text;
};

// The first row that fits counts.
// clang-format off
constexpr std::array meanings{
    Meaning{ProjParamScale,     ofAny,                                   "map scale, applied after the false origin; 0 counts as 1"},
    Meaning{ProjParamXOrg,      ofAny,                                   "added to x, in the ellipsoid's unit"},
    Meaning{ProjParamYOrg,      ofAny,                                   "added to y, in the ellipsoid's unit"},
    Meaning{ProjParamLat0,      isAzimuthal,                             "latitude of the centre, degrees"},
    Meaning{ProjParamLat0,      is<ProjTypeHotineObliqueMercator>,       "latitude of the centre, a point of the line, degrees"},
    Meaning{ProjParamLat0,      ofAny,                                   "latitude where y is 0 on the central meridian, degrees"},
    Meaning{ProjParamLon0,      isAzimuthal,                             "longitude of the centre, degrees"},
    Meaning{ProjParamLon0,      is<ProjTypeHotineObliqueMercator>,       "by azimuth: longitude of the centre where `Lon1` is 0, degrees"},
    Meaning{ProjParamLon0,      ofAny,                                   "central meridian, degrees"},
    Meaning{ProjParamLat1,      isAzimuthal,                             "latitude of the centre, degrees"},
    Meaning{ProjParamLat1,      goesThroughPoints,                       "latitude of the line's first point, degrees"},
    Meaning{ProjParamLat1,      is<ProjTypeBonne>,                       "latitude that is true to scale, and where y is 0 on the central meridian, degrees"},
    Meaning{ProjParamLat1,      ofAny,                                   "latitude that is true to scale, degrees"},
    Meaning{ProjParamLat2,      goesThroughPoints,                       "latitude of the line's second point, degrees"},
    Meaning{ProjParamLat2,      ofAny,                                   "the other latitude that is true to scale, degrees"},
    Meaning{ProjParamLon1,      is<ProjTypeHotineObliqueMercator>,       "longitude of the line's first point; by azimuth: of the centre; degrees"},
    Meaning{ProjParamLon1,      ofAny,                                   "longitude of the line's first point, degrees"},
    Meaning{ProjParamLon2,      ofAny,                                   "longitude of the line's second point, degrees"},
    Meaning{ProjParamK0,        is<ProjTypeUniversalTransverseMercator>, "scale along the central meridian; 0 counts as 0.9996"},
    Meaning{ProjParamK0,        isTransverseMercator,                    "scale along the central meridian; 0 counts as 1"},
    Meaning{ProjParamK0,        isAzimuthal,                             "scale at the centre; 0 counts as 1"},
    Meaning{ProjParamK0,        ofAny,                                   "scale along the line; 0 counts as 1"},
    Meaning{ProjParamSouth,     ofAny,                                   "whether the false northing is that of the south, 10 000 km"},
    Meaning{ProjParamUseAlpha,  ofAny,                                   "whether the line is given by its azimuth at the centre, not by two points"},
    Meaning{ProjParamAlpha,     ofAny,                                   "azimuth of the line at the centre, degrees from north to east"},
    Meaning{ProjParamRotate,    ofAny,                                   "whether x and y are turned to east and north, not along the line and across it"},
    Meaning{ProjParamUOffset,   ofAny,                                   "whether the way along the line counts from the centre, not from the equator"},
    Meaning{ProjParamEllipsoid, ofAny,                                   "the ellipsoid; 0: `MajorRadius` and `Flattening` are the caller's"},
};
// clang-format on

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

std::span<FamilyText const> families() {
    return table;
}

char const* fieldOf(int parameter) {
    return fields.at(static_cast<std::size_t>(parameter));
}

char const* meaningOf(ProjParam parameter, ProjectionRow const& type) {
    for (auto const& meaning : meanings)
        if (meaning.parameter == parameter && meaning.fits(type))
            return meaning.text;
    throw std::runtime_error("no meaning of parameter " + std::to_string(parameter) + " of " + type.name);
}

} // namespace ZrProj::docs
