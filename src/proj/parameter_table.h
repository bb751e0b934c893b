// The parameter catalogue: every parameter of a PROJDATA, and which of them each projection type uses.
#pragma once

#include <zrproj/projection.h>

#include <array>
#include <cstddef>

namespace ZrProj {

struct ParameterRow {
    ProjParam id;
    char const* name;
    ProjDataType type;
    int offset, size; // bytes, within PROJDATA
};

// clang-format off
inline constexpr std::array parameterTable{
    ParameterRow{ProjParamType,        "Projection",                        ProjDataTypeProjection, offsetof(PROJDATA, Type),        sizeof(PROJDATA::Type)},
    ParameterRow{ProjParamScale,       "Scale",                             ProjDataTypeDouble,     offsetof(PROJDATA, Scale),       sizeof(PROJDATA::Scale)},
    ParameterRow{ProjParamXOrg,        "False Easting",                     ProjDataTypeDouble,     offsetof(PROJDATA, xOrg),        sizeof(PROJDATA::xOrg)},
    ParameterRow{ProjParamYOrg,        "False Northing",                    ProjDataTypeDouble,     offsetof(PROJDATA, yOrg),        sizeof(PROJDATA::yOrg)},
    ParameterRow{ProjParamLat0,        "Central Latitude",                  ProjDataTypeDouble,     offsetof(PROJDATA, Lat0),        sizeof(PROJDATA::Lat0)},
    ParameterRow{ProjParamLon0,        "Central Longitude",                 ProjDataTypeDouble,     offsetof(PROJDATA, Lon0),        sizeof(PROJDATA::Lon0)},
    ParameterRow{ProjParamLat1,        "Standard Parallel",                 ProjDataTypeDouble,     offsetof(PROJDATA, Lat1),        sizeof(PROJDATA::Lat1)},
    ParameterRow{ProjParamLat2,        "2nd Standard Parallel",             ProjDataTypeDouble,     offsetof(PROJDATA, Lat2),        sizeof(PROJDATA::Lat2)},
    ParameterRow{ProjParamLat3,        "3rd Standard Parallel",             ProjDataTypeDouble,     offsetof(PROJDATA, Lat3),        sizeof(PROJDATA::Lat3)},
    ParameterRow{ProjParamLon1,        "1st Meridian",                      ProjDataTypeDouble,     offsetof(PROJDATA, Lon1),        sizeof(PROJDATA::Lon1)},
    ParameterRow{ProjParamLon2,        "2nd Meridian",                      ProjDataTypeDouble,     offsetof(PROJDATA, Lon2),        sizeof(PROJDATA::Lon2)},
    ParameterRow{ProjParamLon3,        "3rd Meridian",                      ProjDataTypeDouble,     offsetof(PROJDATA, Lon3),        sizeof(PROJDATA::Lon3)},
    ParameterRow{ProjParamK0,          "Central Scale Factor (K0)",         ProjDataTypeDouble,     offsetof(PROJDATA, K0),          sizeof(PROJDATA::K0)},
    ParameterRow{ProjParamSouth,       "Projection in Southern Hemisphere", ProjDataTypeBool,       offsetof(PROJDATA, bSouth),      sizeof(PROJDATA::bSouth)},
    ParameterRow{ProjParamZone,        "State Zone",                        ProjDataTypeStateZone,  offsetof(PROJDATA, Zone),        sizeof(PROJDATA::Zone)},
    ParameterRow{ProjParamUseAlpha,    "Use Alpha Parameter",               ProjDataTypeBool,       offsetof(PROJDATA, bUseAlpha),   sizeof(PROJDATA::bUseAlpha)},
    ParameterRow{ProjParamAlpha,       "Alpha (Azimuth)",                   ProjDataTypeDouble,     offsetof(PROJDATA, Alpha),       sizeof(PROJDATA::Alpha)},
    ParameterRow{ProjParamRotate,      "Rotate U/V to X/Y",                 ProjDataTypeBool,       offsetof(PROJDATA, bRotate),     sizeof(PROJDATA::bRotate)},
    ParameterRow{ProjParamUOffset,     "Offset by U",                       ProjDataTypeBool,       offsetof(PROJDATA, bUOffset),    sizeof(PROJDATA::bUOffset)},
    ParameterRow{ProjParamEllipsoid,   "Ellipsoid",                         ProjDataTypeEllipsoid,  offsetof(PROJDATA, Ellipsoid),   sizeof(PROJDATA::Ellipsoid)},
    ParameterRow{ProjParamMajorRadius, "Ellipsoid Radius (meters)",         ProjDataTypeDouble,     offsetof(PROJDATA, MajorRadius), sizeof(PROJDATA::MajorRadius)},
    ParameterRow{ProjParamFlattening,  "Ellipsoid Flattening",              ProjDataTypeDouble,     offsetof(PROJDATA, Flattening),  sizeof(PROJDATA::Flattening)},
};
// clang-format on
static_assert(parameterTable.size() == 22);
static_assert(sizeof(PROJDATA) == 396 && offsetof(PROJDATA, Zone) == 101 && offsetof(PROJDATA, Reserved) == 140);

/// Which parameters a type uses, in the order in which a user interface presents them; ProjParamNone fills the row.
struct ParameterUse {
    ProjType type;
    std::array<ProjParam, 16> ids;
};

// clang-format off
inline constexpr std::array parameterUseTable{
    ParameterUse{ProjTypeUnprojectedLatLong,          {}},
    ParameterUse{ProjTypeAlbersEqualAreaConic,        {ProjParamEllipsoid, ProjParamScale, ProjParamXOrg, ProjParamYOrg, ProjParamLon0, ProjParamLat0, ProjParamLat1, ProjParamLat2}},
    ParameterUse{ProjTypeBonne,                       {ProjParamEllipsoid, ProjParamScale, ProjParamXOrg, ProjParamYOrg, ProjParamLon0, ProjParamLat1}},
    ParameterUse{ProjTypeCassini,                     {ProjParamEllipsoid, ProjParamScale, ProjParamXOrg, ProjParamYOrg, ProjParamLat0, ProjParamLon0}},
    ParameterUse{ProjTypeEckertIV,                    {ProjParamEllipsoid, ProjParamScale, ProjParamXOrg, ProjParamYOrg, ProjParamLon0}},
    ParameterUse{ProjTypeEckertVI,                    {ProjParamEllipsoid, ProjParamScale, ProjParamXOrg, ProjParamYOrg, ProjParamLon0}},
    ParameterUse{ProjTypeEquidistantCylindrical,      {ProjParamEllipsoid, ProjParamScale, ProjParamXOrg, ProjParamYOrg, ProjParamLon0, ProjParamLat1}},
    ParameterUse{ProjTypeGaussKruger,                 {ProjParamEllipsoid, ProjParamScale, ProjParamXOrg, ProjParamYOrg, ProjParamK0, ProjParamLon0, ProjParamLat0}},
    ParameterUse{ProjTypeHotineObliqueMercator,       {ProjParamEllipsoid, ProjParamScale, ProjParamXOrg, ProjParamYOrg, ProjParamK0, ProjParamUseAlpha, ProjParamLon0, ProjParamAlpha, ProjParamLat0, ProjParamLat1, ProjParamLon1, ProjParamLat2, ProjParamLon2, ProjParamRotate, ProjParamUOffset}},
    ParameterUse{ProjTypeLambertConformalConic,       {ProjParamEllipsoid, ProjParamScale, ProjParamXOrg, ProjParamYOrg, ProjParamLon0, ProjParamLat0, ProjParamLat1, ProjParamLat2}},
    ParameterUse{ProjTypeLambertAzimuthalEqualArea,   {ProjParamEllipsoid, ProjParamScale, ProjParamXOrg, ProjParamYOrg, ProjParamLon0, ProjParamLat1}},
    ParameterUse{ProjTypeMercator,                    {ProjParamEllipsoid, ProjParamScale, ProjParamXOrg, ProjParamYOrg, ProjParamLon0, ProjParamLat0}},
    ParameterUse{ProjTypeMillerCylindrical,           {ProjParamEllipsoid, ProjParamScale, ProjParamXOrg, ProjParamYOrg, ProjParamLon0}},
    ParameterUse{ProjTypeMollweide,                   {ProjParamEllipsoid, ProjParamScale, ProjParamXOrg, ProjParamYOrg, ProjParamLon0}},
    ParameterUse{ProjTypeObliqueMercator,             {ProjParamEllipsoid, ProjParamScale, ProjParamXOrg, ProjParamYOrg, ProjParamLon1, ProjParamLat1, ProjParamLon2, ProjParamLat2, ProjParamK0}},
    ParameterUse{ProjTypeOrthographic,                {ProjParamEllipsoid, ProjParamScale, ProjParamXOrg, ProjParamYOrg, ProjParamLon0, ProjParamLat0}},
    ParameterUse{ProjTypeStereographic,               {ProjParamEllipsoid, ProjParamScale, ProjParamXOrg, ProjParamYOrg, ProjParamK0, ProjParamLon0, ProjParamLat0}},
    ParameterUse{ProjTypePolyconic,                   {ProjParamEllipsoid, ProjParamScale, ProjParamXOrg, ProjParamYOrg, ProjParamLon0, ProjParamLat0}},
    ParameterUse{ProjTypeRobinson,                    {ProjParamEllipsoid, ProjParamScale, ProjParamXOrg, ProjParamYOrg}},
    ParameterUse{ProjTypeRobinsonSterling,            {ProjParamEllipsoid, ProjParamScale, ProjParamXOrg, ProjParamYOrg, ProjParamLon0}},
    ParameterUse{ProjTypeSinusoidal,                  {ProjParamEllipsoid, ProjParamScale, ProjParamXOrg, ProjParamYOrg, ProjParamLon0}},
    ParameterUse{ProjTypeStatePlane1927,              {ProjParamScale, ProjParamZone}},
    ParameterUse{ProjTypeStatePlane1983,              {ProjParamScale, ProjParamZone}},
    ParameterUse{ProjTypeTransverseMercator,          {ProjParamEllipsoid, ProjParamScale, ProjParamXOrg, ProjParamYOrg, ProjParamK0, ProjParamLon0, ProjParamLat0}},
    ParameterUse{ProjTypeUniversalTransverseMercator, {ProjParamEllipsoid, ProjParamScale, ProjParamK0, ProjParamLon0, ProjParamLat0, ProjParamSouth}},
    ParameterUse{ProjTypeVanDerGrinten,               {ProjParamEllipsoid, ProjParamScale, ProjParamXOrg, ProjParamYOrg, ProjParamLon0}},
    ParameterUse{ProjTypeEquidistantConic,            {ProjParamEllipsoid, ProjParamScale, ProjParamXOrg, ProjParamYOrg, ProjParamLon0, ProjParamLat0, ProjParamLat1, ProjParamLat2}},
    ParameterUse{ProjTypeGnomonic,                    {ProjParamEllipsoid, ProjParamScale, ProjParamXOrg, ProjParamYOrg, ProjParamLon0, ProjParamLat1}},
    ParameterUse{ProjTypeAzimuthalEquidistant,        {ProjParamEllipsoid, ProjParamScale, ProjParamXOrg, ProjParamYOrg, ProjParamLon0, ProjParamLat1}},
};
// clang-format on
static_assert(parameterUseTable.size() == 29);

} // namespace ZrProj
