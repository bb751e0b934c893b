// The projection types: one row a type, in ProjType order, with everything that is said of a type anywhere. A new
// projection is its number in ProjType, its formula in src/formulas, its row here, and its data in
// tests/data/projections.
#pragma once

#include "formulas/method.h"
#include "proj/geotiff_method.h"

#include <algorithm>
#include <array>
#include <initializer_list>

namespace ZrProj {

using formulas::Method;

/// The surfaces that projections are explained by.
enum class Family { None, Conic, Cylindrical, Transverse, Azimuthal, World };

/// The parameters that a type uses, in the order in which a user interface presents them; ProjParamNone fills the rest.
using UsedParameters = std::array<ProjParam, 16>;

struct PictureParameter {
    ProjParam parameter;
    double value; // degrees, a State Plane zone, or 1 for a flag
};

struct ProjectionRow {
    ProjType type;
    char const* name;
    unsigned bits;                // capability bits, for callers only
    char const* key;              // in the names of options and files
    Family family = Family::None; // none: no map, or made of other types
    Method method = Method::none; // the formula that computes it
    char const* source = "";      // of the formula, in src/formulas
    UsedParameters parameters = {};
    std::array<PictureParameter, 6> picture = {}; // that show the type well; what is not listed is 0, factors are 1
    std::array<GeoTIFF::Method, 2> geotiff = {};  // what GeoTIFF calls the type, the first one when in doubt
};

/// What nearly every type uses, and then its own.
constexpr UsedParameters usualAnd(std::initializer_list<ProjParam> own) {
    UsedParameters result{ProjParamEllipsoid, ProjParamScale, ProjParamXOrg, ProjParamYOrg};
    std::ranges::copy(own, result.begin() + 4);
    return result;
}

// clang-format off
inline constexpr auto projectionTable = std::to_array<ProjectionRow>({
    {.type = ProjTypeUnprojectedLatLong, .name = "Unprojected Lat/Long", .bits = 0x00,
     .key = "unprojected"},
    {.type = ProjTypeMercator, .name = "Mercator", .bits = 0x2F,
     .key = "mercator", .family = Family::Cylindrical, .method = Method::mercator, .source = "pMerc",
     .parameters = usualAnd({ProjParamLon0, ProjParamLat0}),
     .geotiff = {{{.transformation = GeoTIFF::mercator, .origin = GeoTIFF::Origin::Natural, .scale = GeoTIFF::ScaleFactor::Folded}}}},
    {.type = ProjTypeAlbersEqualAreaConic, .name = "Albers Equal Area Conic", .bits = 0x2F,
     .key = "albers", .family = Family::Conic, .method = Method::albers, .source = "pAlbers",
     .parameters = usualAnd({ProjParamLon0, ProjParamLat0, ProjParamLat1, ProjParamLat2}),
     .picture = {{{ProjParamLat0, 30}, {ProjParamLon0, 10}, {ProjParamLat1, 20}, {ProjParamLat2, 60}}},
     .geotiff = {{{.transformation = GeoTIFF::albers, .origin = GeoTIFF::Origin::Natural, .latitude = ProjParamLat0, .parallels = 2}}}},
    {.type = ProjTypeMillerCylindrical, .name = "Miller Cylindrical", .bits = 0x2F,
     .key = "miller", .family = Family::Cylindrical, .method = Method::miller, .source = "pMiller",
     .parameters = usualAnd({ProjParamLon0}),
     .geotiff = {{{.transformation = GeoTIFF::miller}}}},
    {.type = ProjTypeUniversalTransverseMercator, .name = "Universal Transverse Mercator (UTM)", .bits = 0x1B,
     .key = "utm", .family = Family::Transverse, .method = Method::transverseMercator, .source = "pTMerc",
     .parameters = {ProjParamEllipsoid, ProjParamScale, ProjParamK0, ProjParamLon0, ProjParamLat0, ProjParamSouth},
     .picture = {{{ProjParamLon0, 9}}}},
    {.type = ProjTypeLambertConformalConic, .name = "Lambert Conformal Conic", .bits = 0x2F,
     .key = "lambert-conformal-conic", .family = Family::Conic, .method = Method::lambertConformalConic, .source = "pLamCC",
     .parameters = usualAnd({ProjParamLon0, ProjParamLat0, ProjParamLat1, ProjParamLat2}),
     .picture = {{{ProjParamLat0, 40}, {ProjParamLon0, -96}, {ProjParamLat1, 20}, {ProjParamLat2, 60}}},
     .geotiff = {{{.transformation = GeoTIFF::lambertConformal2, .origin = GeoTIFF::Origin::False, .latitude = ProjParamLat0, .parallels = 2},
                  {.transformation = GeoTIFF::lambertConformal1, .origin = GeoTIFF::Origin::Natural, .latitude = ProjParamLat0, .parallels = 2, .scale = GeoTIFF::ScaleFactor::Folded}}}},
    {.type = ProjTypeStereographic, .name = "Stereographic", .bits = 0x1B,
     .key = "stereographic", .family = Family::Azimuthal, .method = Method::stereographic, .source = "pStereo",
     .parameters = usualAnd({ProjParamK0, ProjParamLon0, ProjParamLat0}),
     .picture = {{{ProjParamLat0, 90}}},
     .geotiff = {{{.transformation = GeoTIFF::stereographic, .latitude = ProjParamLat0, .scale = GeoTIFF::ScaleFactor::K0},
                  {.transformation = GeoTIFF::polarStereographic, .origin = GeoTIFF::Origin::Natural, .latitude = ProjParamLat0, .scale = GeoTIFF::ScaleFactor::K0}}}},
    {.type = ProjTypeOrthographic, .name = "Orthographic", .bits = 0x1B,
     .key = "orthographic", .family = Family::Azimuthal, .method = Method::orthographic, .source = "pOrtho",
     .parameters = usualAnd({ProjParamLon0, ProjParamLat0}),
     .picture = {{{ProjParamLat0, 35}, {ProjParamLon0, 20}}},
     .geotiff = {{{.transformation = GeoTIFF::orthographic, .latitude = ProjParamLat0}}}},
    {.type = ProjTypeMollweide, .name = "Mollweide", .bits = 0x3F,
     .key = "mollweide", .family = Family::World, .method = Method::mollweide, .source = "pMollw",
     .parameters = usualAnd({ProjParamLon0})},
    {.type = ProjTypeStatePlane1927, .name = "State Plane 1927", .bits = 0x3B,
     .key = "state-plane-1927",
     .parameters = {ProjParamScale, ProjParamZone},
     .picture = {{{ProjParamZone, StateZoneTypeAlaska1}}}},
    {.type = ProjTypeStatePlane1983, .name = "State Plane 1983", .bits = 0x3B,
     .key = "state-plane-1983",
     .parameters = {ProjParamScale, ProjParamZone},
     .picture = {{{ProjParamZone, StateZoneTypeCaliforniaI}}}},
    {.type = ProjTypePolyconic, .name = "Polyconic", .bits = 0x1B,
     .key = "polyconic", .family = Family::Conic, .method = Method::polyconic, .source = "pPolyCon",
     .parameters = usualAnd({ProjParamLon0, ProjParamLat0}),
     .picture = {{{ProjParamLon0, -96}}},
     .geotiff = {{{.transformation = GeoTIFF::polyconic, .origin = GeoTIFF::Origin::Natural, .latitude = ProjParamLat0}}}},
    {.type = ProjTypeHotineObliqueMercator, .name = "Hotine Oblique Mercator", .bits = 0x03,
     .key = "hotine", .family = Family::Transverse, .method = Method::hotine, .source = "pHotine",
     .parameters = usualAnd({ProjParamK0, ProjParamUseAlpha, ProjParamLon0, ProjParamAlpha, ProjParamLat0, ProjParamLat1, ProjParamLon1, ProjParamLat2, ProjParamLon2, ProjParamRotate, ProjParamUOffset}),
     .picture = {{{ProjParamUseAlpha, 1}, {ProjParamLat0, 40}, {ProjParamLon0, 10}, {ProjParamAlpha, 45}, {ProjParamRotate, 1}, {ProjParamUOffset, 1}}},
     .geotiff = {{{.transformation = GeoTIFF::obliqueMercator, .latitude = ProjParamLat0, .scale = GeoTIFF::ScaleFactor::K0},
                  {.transformation = GeoTIFF::obliqueMercatorFromCentre, .latitude = ProjParamLat0, .scale = GeoTIFF::ScaleFactor::K0}}}},
    {.type = ProjTypeEquidistantCylindrical, .name = "Equidistant Cylindrical", .bits = 0x2F,
     .key = "equidistant-cylindrical", .family = Family::Cylindrical, .method = Method::equidistantCylindrical, .source = "pEquiCyl",
     .parameters = usualAnd({ProjParamLon0, ProjParamLat1}),
     .geotiff = {{{.transformation = GeoTIFF::equirectangular, .parallels = 1}}}},
    {.type = ProjTypeRobinson, .name = "Robinson", .bits = 0x3F,
     .key = "robinson", .family = Family::World, .method = Method::robinson, .source = "pRobin",
     .parameters = usualAnd({}),
     .geotiff = {{{.transformation = GeoTIFF::robinson, .longitude = ProjParamNone}}}},
    {.type = ProjTypeVanDerGrinten, .name = "Van Der Grinten", .bits = 0x3F,
     .key = "van-der-grinten", .family = Family::World, .method = Method::vanDerGrinten, .source = "pVanDGr",
     .parameters = usualAnd({ProjParamLon0}),
     .geotiff = {{{.transformation = GeoTIFF::vanDerGrinten}}}},
    {.type = ProjTypeCassini, .name = "Cassini", .bits = 0x3B,
     .key = "cassini", .family = Family::Transverse, .method = Method::cassini, .source = "pCassini",
     .parameters = usualAnd({ProjParamLat0, ProjParamLon0}),
     .picture = {{{ProjParamLon0, 20}}},
     .geotiff = {{{.transformation = GeoTIFF::cassini, .origin = GeoTIFF::Origin::Natural, .latitude = ProjParamLat0}}}},
    {.type = ProjTypeTransverseMercator, .name = "Transverse Mercator", .bits = 0x1B,
     .key = "transverse-mercator", .family = Family::Transverse, .method = Method::transverseMercator, .source = "pTMerc",
     .parameters = usualAnd({ProjParamK0, ProjParamLon0, ProjParamLat0}),
     .picture = {{{ProjParamLon0, 20}}},
     .geotiff = {{{.transformation = GeoTIFF::transverseMercator, .origin = GeoTIFF::Origin::Natural, .latitude = ProjParamLat0, .scale = GeoTIFF::ScaleFactor::K0}}}},
    {.type = ProjTypeGaussKruger, .name = "Gauss-Kruger / Gauss Conformal", .bits = 0x1B,
     .key = "gauss-kruger", .family = Family::Transverse, .method = Method::transverseMercator, .source = "pTMerc",
     .parameters = usualAnd({ProjParamK0, ProjParamLon0, ProjParamLat0}),
     .picture = {{{ProjParamLon0, 105}}}},
    {.type = ProjTypeSinusoidal, .name = "Sinusoidal", .bits = 0x3F,
     .key = "sinusoidal", .family = Family::World, .method = Method::sinusoidal, .source = "pSinus",
     .parameters = usualAnd({ProjParamLon0}),
     .geotiff = {{{.transformation = GeoTIFF::sinusoidal}}}},
    {.type = ProjTypeLambertAzimuthalEqualArea, .name = "Lambert Azimuthal Equal Area", .bits = 0x3B,
     .key = "lambert-azimuthal", .family = Family::Azimuthal, .method = Method::lambertAzimuthal, .source = "pLamAz",
     .parameters = usualAnd({ProjParamLon0, ProjParamLat1}),
     .picture = {{{ProjParamLon0, -100}, {ProjParamLat1, 45}}},
     .geotiff = {{{.transformation = GeoTIFF::lambertAzimuthal, .latitude = ProjParamLat1}}}},
    {.type = ProjTypeBonne, .name = "Bonne", .bits = 0x1B,
     .key = "bonne", .family = Family::Conic, .method = Method::bonne, .source = "pBonne",
     .parameters = usualAnd({ProjParamLon0, ProjParamLat1}),
     .picture = {{{ProjParamLat1, 45}}}},
    {.type = ProjTypeRobinsonSterling, .name = "Robinson-Sterling", .bits = 0x3F,
     .key = "robinson-sterling", .family = Family::World, .method = Method::robinsonSterling, .source = "pRobStir",
     .parameters = usualAnd({ProjParamLon0})},
    {.type = ProjTypeEckertIV, .name = "Eckert IV", .bits = 0x3F,
     .key = "eckert-4", .family = Family::World, .method = Method::eckertIV, .source = "pEckert4",
     .parameters = usualAnd({ProjParamLon0})},
    {.type = ProjTypeEckertVI, .name = "Eckert VI", .bits = 0x3F,
     .key = "eckert-6", .family = Family::World, .method = Method::eckertVI, .source = "pEckert6",
     .parameters = usualAnd({ProjParamLon0})},
    {.type = ProjTypeObliqueMercator, .name = "Oblique Mercator", .bits = 0x03,
     .key = "oblique-mercator", .family = Family::Transverse, .method = Method::obliqueMercator, .source = "pOblMerc",
     .parameters = usualAnd({ProjParamLon1, ProjParamLat1, ProjParamLon2, ProjParamLat2, ProjParamK0}),
     .picture = {{{ProjParamLat1, 45}, {ProjParamLat2, -10}, {ProjParamLon1, -100}, {ProjParamLon2, 20}}}},
    {.type = ProjTypeEquidistantConic, .name = "Equidistant Conic", .bits = 0x2F,
     .key = "equidistant-conic", .family = Family::Conic, .method = Method::equidistantConic, .source = "pEquiCon",
     .parameters = usualAnd({ProjParamLon0, ProjParamLat0, ProjParamLat1, ProjParamLat2}),
     .picture = {{{ProjParamLat0, 40}, {ProjParamLon0, 90}, {ProjParamLat1, 20}, {ProjParamLat2, 60}}},
     .geotiff = {{{.transformation = GeoTIFF::equidistantConic, .origin = GeoTIFF::Origin::Natural, .latitude = ProjParamLat0, .parallels = 2}}}},
    {.type = ProjTypeGnomonic, .name = "Gnomonic", .bits = 0x1B,
     .key = "gnomonic", .family = Family::Azimuthal, .method = Method::gnomonic, .source = "pGnomon",
     .parameters = usualAnd({ProjParamLon0, ProjParamLat1}),
     .picture = {{{ProjParamLon0, -30}, {ProjParamLat1, 50}}},
     .geotiff = {{{.transformation = GeoTIFF::gnomonic, .latitude = ProjParamLat1}}}},
    {.type = ProjTypeAzimuthalEquidistant, .name = "Azimuthal Equidistant", .bits = 0x3F,
     .key = "azimuthal-equidistant", .family = Family::Azimuthal, .method = Method::azimuthalEquidistant, .source = "pAzEqui",
     .parameters = usualAnd({ProjParamLon0, ProjParamLat1}),
     .picture = {{{ProjParamLon0, 150}, {ProjParamLat1, -35}}},
     .geotiff = {{{.transformation = GeoTIFF::azimuthalEquidistant, .latitude = ProjParamLat1}}}},
});
// clang-format on
static_assert(projectionTable.size() == 29);
static_assert(std::ranges::is_sorted(projectionTable, std::ranges::less_equal(), &ProjectionRow::type) &&
              projectionTable.back().type == 28);

/// The type's row; null for a number that is no type.
constexpr ProjectionRow const* projectionRow(ProjType type) {
    auto const index = static_cast<std::size_t>(type);
    return index < projectionTable.size() ? &projectionTable[index] : nullptr;
}

/// The formula that computes a type; none for a number that is no type.
constexpr Method methodOf(ProjType type) {
    auto const* const row = projectionRow(type);
    return row ? row->method : Method::none;
}

} // namespace ZrProj
