// The parameter catalogue: every parameter of a PROJDATA, and which of them each projection type uses.
#pragma once

#include <zrproj/projection.h>

#include <array>
#include <cstddef>

namespace ZrProj {

/// A parameter's identifier, the number that the interface knows it by.
enum ParameterId : int {
    paramNone = 0,
    paramType = 1,
    paramScale = 2,
    paramXOrg = 3,
    paramYOrg = 4,
    paramLat0 = 5,
    paramLon0 = 6,
    paramLat1 = 7,
    paramLat2 = 8,
    paramLat3 = 9,
    paramLon1 = 10,
    paramLon2 = 11,
    paramLon3 = 12,
    paramK0 = 13,
    paramSouth = 14,
    paramZone = 15,
    paramUseAlpha = 16,
    paramAlpha = 17,
    paramRotate = 18,
    paramUOffset = 19,
    paramEllipsoid = 20,
    paramMajorRadius = 21,
    paramFlattening = 22,
};

struct ParameterRow {
    ParameterId id;
    char const* name;
    ProjDataType type;
    int offset, size; // bytes, within PROJDATA
};

// clang-format off
inline constexpr std::array parameterTable{
    ParameterRow{paramType,        "Projection",                        ProjDataTypeProjection, offsetof(PROJDATA, Type),        sizeof(PROJDATA::Type)},
    ParameterRow{paramScale,       "Scale",                             ProjDataTypeDouble,     offsetof(PROJDATA, Scale),       sizeof(PROJDATA::Scale)},
    ParameterRow{paramXOrg,        "False Easting",                     ProjDataTypeDouble,     offsetof(PROJDATA, xOrg),        sizeof(PROJDATA::xOrg)},
    ParameterRow{paramYOrg,        "False Northing",                    ProjDataTypeDouble,     offsetof(PROJDATA, yOrg),        sizeof(PROJDATA::yOrg)},
    ParameterRow{paramLat0,        "Central Latitude",                  ProjDataTypeDouble,     offsetof(PROJDATA, Lat0),        sizeof(PROJDATA::Lat0)},
    ParameterRow{paramLon0,        "Central Longitude",                 ProjDataTypeDouble,     offsetof(PROJDATA, Lon0),        sizeof(PROJDATA::Lon0)},
    ParameterRow{paramLat1,        "Standard Parallel",                 ProjDataTypeDouble,     offsetof(PROJDATA, Lat1),        sizeof(PROJDATA::Lat1)},
    ParameterRow{paramLat2,        "2nd Standard Parallel",             ProjDataTypeDouble,     offsetof(PROJDATA, Lat2),        sizeof(PROJDATA::Lat2)},
    ParameterRow{paramLat3,        "3rd Standard Parallel",             ProjDataTypeDouble,     offsetof(PROJDATA, Lat3),        sizeof(PROJDATA::Lat3)},
    ParameterRow{paramLon1,        "1st Meridian",                      ProjDataTypeDouble,     offsetof(PROJDATA, Lon1),        sizeof(PROJDATA::Lon1)},
    ParameterRow{paramLon2,        "2nd Meridian",                      ProjDataTypeDouble,     offsetof(PROJDATA, Lon2),        sizeof(PROJDATA::Lon2)},
    ParameterRow{paramLon3,        "3rd Meridian",                      ProjDataTypeDouble,     offsetof(PROJDATA, Lon3),        sizeof(PROJDATA::Lon3)},
    ParameterRow{paramK0,          "Central Scale Factor (K0)",         ProjDataTypeDouble,     offsetof(PROJDATA, K0),          sizeof(PROJDATA::K0)},
    ParameterRow{paramSouth,       "Projection in Southern Hemisphere", ProjDataTypeBool,       offsetof(PROJDATA, bSouth),      sizeof(PROJDATA::bSouth)},
    ParameterRow{paramZone,        "State Zone",                        ProjDataTypeStateZone,  offsetof(PROJDATA, Zone),        sizeof(PROJDATA::Zone)},
    ParameterRow{paramUseAlpha,    "Use Alpha Parameter",               ProjDataTypeBool,       offsetof(PROJDATA, bUseAlpha),   sizeof(PROJDATA::bUseAlpha)},
    ParameterRow{paramAlpha,       "Alpha (Azimuth)",                   ProjDataTypeDouble,     offsetof(PROJDATA, Alpha),       sizeof(PROJDATA::Alpha)},
    ParameterRow{paramRotate,      "Rotate U/V to X/Y",                 ProjDataTypeBool,       offsetof(PROJDATA, bRotate),     sizeof(PROJDATA::bRotate)},
    ParameterRow{paramUOffset,     "Offset by U",                       ProjDataTypeBool,       offsetof(PROJDATA, bUOffset),    sizeof(PROJDATA::bUOffset)},
    ParameterRow{paramEllipsoid,   "Ellipsoid",                         ProjDataTypeEllipsoid,  offsetof(PROJDATA, Ellipsoid),   sizeof(PROJDATA::Ellipsoid)},
    ParameterRow{paramMajorRadius, "Ellipsoid Radius (meters)",         ProjDataTypeDouble,     offsetof(PROJDATA, MajorRadius), sizeof(PROJDATA::MajorRadius)},
    ParameterRow{paramFlattening,  "Ellipsoid Flattening",              ProjDataTypeDouble,     offsetof(PROJDATA, Flattening),  sizeof(PROJDATA::Flattening)},
};
// clang-format on
static_assert(parameterTable.size() == 22);
static_assert(sizeof(PROJDATA) == 396 && offsetof(PROJDATA, Zone) == 101 && offsetof(PROJDATA, Reserved) == 140);

/// Which parameters a type uses, in the order in which a user interface presents them; zeros fill the row.
struct ParameterUse {
    ProjType type;
    std::array<int, 20> ids;
};

// clang-format off
inline constexpr std::array parameterUseTable{
    ParameterUse{ProjTypeUnprojectedLatLong,          {}},
    ParameterUse{ProjTypeAlbersEqualAreaConic,        {20, 2, 3, 4, 6, 5, 7, 8}},
    ParameterUse{ProjTypeBonne,                       {20, 2, 3, 4, 6, 7}},
    ParameterUse{ProjTypeCassini,                     {20, 2, 3, 4, 5, 6}},
    ParameterUse{ProjTypeEckertIV,                    {20, 2, 3, 4, 6}},
    ParameterUse{ProjTypeEckertVI,                    {20, 2, 3, 4, 6}},
    ParameterUse{ProjTypeEquidistantCylindrical,      {20, 2, 3, 4, 6, 7}},
    ParameterUse{ProjTypeGaussKruger,                 {20, 2, 3, 4, 13, 6, 5}},
    ParameterUse{ProjTypeHotineObliqueMercator,       {20, 2, 3, 4, 13, 16, 6, 17, 5, 7, 10, 8, 11, 18, 19}},
    ParameterUse{ProjTypeLambertConformalConic,       {20, 2, 3, 4, 6, 5, 7, 8}},
    ParameterUse{ProjTypeLambertAzimuthalEqualArea,   {20, 2, 3, 4, 6, 7}},
    ParameterUse{ProjTypeMercator,                    {20, 2, 3, 4, 6, 5}},
    ParameterUse{ProjTypeMillerCylindrical,           {20, 2, 3, 4, 6}},
    ParameterUse{ProjTypeMollweide,                   {20, 2, 3, 4, 6}},
    ParameterUse{ProjTypeObliqueMercator,             {20, 2, 3, 4, 10, 7, 11, 8, 13}},
    ParameterUse{ProjTypeOrthographic,                {20, 2, 3, 4, 6, 5}},
    ParameterUse{ProjTypeStereographic,               {20, 2, 3, 4, 13, 6, 5}},
    ParameterUse{ProjTypePolyconic,                   {20, 2, 3, 4, 6, 5}},
    ParameterUse{ProjTypeRobinson,                    {20, 2, 3, 4}},
    ParameterUse{ProjTypeRobinsonSterling,            {20, 2, 3, 4, 6}},
    ParameterUse{ProjTypeSinusoidal,                  {20, 2, 3, 4, 6}},
    ParameterUse{ProjTypeStatePlane1927,              {2, 15}},
    ParameterUse{ProjTypeStatePlane1983,              {2, 15}},
    ParameterUse{ProjTypeTransverseMercator,          {20, 2, 3, 4, 13, 6, 5}},
    ParameterUse{ProjTypeUniversalTransverseMercator, {20, 2, 13, 6, 5, 14}},
    ParameterUse{ProjTypeVanDerGrinten,               {20, 2, 3, 4, 6}},
    ParameterUse{ProjTypeEquidistantConic,            {20, 2, 3, 4, 6, 5, 7, 8}},
    ParameterUse{ProjTypeGnomonic,                    {20, 2, 3, 4, 6, 7}},
    ParameterUse{ProjTypeAzimuthalEquidistant,        {20, 2, 3, 4, 6, 7}},
};
// clang-format on
static_assert(parameterUseTable.size() == 29);

} // namespace ZrProj
