// The parameter catalogue: one row a parameter of a PROJDATA, in ProjParam order.
#pragma once

#include <zrproj/projection.h>

#include <array>
#include <cstddef>

namespace ZrProj {

/// What a parameter's value means.
enum class Quantity { Projection, Ellipsoid, Zone, Flag, Factor, Metres, Longitude, Latitude, Azimuth, Flattening };

struct ParameterRow {
    ProjParam id;
    char const* key; // in options, and the field of zrproj_parameters
    char const* name;
    Quantity quantity;
    ProjDataType type;
    int offset, size; // bytes, within PROJDATA
};

// clang-format off
inline constexpr std::array parameterTable{
    ParameterRow{ProjParamType,        "type",       "Projection",                        Quantity::Projection, ProjDataTypeProjection, offsetof(PROJDATA, Type),        sizeof(PROJDATA::Type)},
    ParameterRow{ProjParamScale,       "scale",      "Scale",                             Quantity::Factor,     ProjDataTypeDouble,     offsetof(PROJDATA, Scale),       sizeof(PROJDATA::Scale)},
    ParameterRow{ProjParamXOrg,        "x0",         "False Easting",                     Quantity::Metres,     ProjDataTypeDouble,     offsetof(PROJDATA, xOrg),        sizeof(PROJDATA::xOrg)},
    ParameterRow{ProjParamYOrg,        "y0",         "False Northing",                    Quantity::Metres,     ProjDataTypeDouble,     offsetof(PROJDATA, yOrg),        sizeof(PROJDATA::yOrg)},
    ParameterRow{ProjParamLat0,        "lat0",       "Central Latitude",                  Quantity::Latitude,   ProjDataTypeDouble,     offsetof(PROJDATA, Lat0),        sizeof(PROJDATA::Lat0)},
    ParameterRow{ProjParamLon0,        "lon0",       "Central Longitude",                 Quantity::Longitude,  ProjDataTypeDouble,     offsetof(PROJDATA, Lon0),        sizeof(PROJDATA::Lon0)},
    ParameterRow{ProjParamLat1,        "lat1",       "Standard Parallel",                 Quantity::Latitude,   ProjDataTypeDouble,     offsetof(PROJDATA, Lat1),        sizeof(PROJDATA::Lat1)},
    ParameterRow{ProjParamLat2,        "lat2",       "2nd Standard Parallel",             Quantity::Latitude,   ProjDataTypeDouble,     offsetof(PROJDATA, Lat2),        sizeof(PROJDATA::Lat2)},
    ParameterRow{ProjParamLat3,        "lat3",       "3rd Standard Parallel",             Quantity::Latitude,   ProjDataTypeDouble,     offsetof(PROJDATA, Lat3),        sizeof(PROJDATA::Lat3)},
    ParameterRow{ProjParamLon1,        "lon1",       "1st Meridian",                      Quantity::Longitude,  ProjDataTypeDouble,     offsetof(PROJDATA, Lon1),        sizeof(PROJDATA::Lon1)},
    ParameterRow{ProjParamLon2,        "lon2",       "2nd Meridian",                      Quantity::Longitude,  ProjDataTypeDouble,     offsetof(PROJDATA, Lon2),        sizeof(PROJDATA::Lon2)},
    ParameterRow{ProjParamLon3,        "lon3",       "3rd Meridian",                      Quantity::Longitude,  ProjDataTypeDouble,     offsetof(PROJDATA, Lon3),        sizeof(PROJDATA::Lon3)},
    ParameterRow{ProjParamK0,          "k0",         "Central Scale Factor (K0)",         Quantity::Factor,     ProjDataTypeDouble,     offsetof(PROJDATA, K0),          sizeof(PROJDATA::K0)},
    ParameterRow{ProjParamSouth,       "south",      "Projection in Southern Hemisphere", Quantity::Flag,       ProjDataTypeBool,       offsetof(PROJDATA, bSouth),      sizeof(PROJDATA::bSouth)},
    ParameterRow{ProjParamZone,        "zone",       "State Zone",                        Quantity::Zone,       ProjDataTypeStateZone,  offsetof(PROJDATA, Zone),        sizeof(PROJDATA::Zone)},
    ParameterRow{ProjParamUseAlpha,    "use_alpha",  "Use Alpha Parameter",               Quantity::Flag,       ProjDataTypeBool,       offsetof(PROJDATA, bUseAlpha),   sizeof(PROJDATA::bUseAlpha)},
    ParameterRow{ProjParamAlpha,       "alpha",      "Alpha (Azimuth)",                   Quantity::Azimuth,    ProjDataTypeDouble,     offsetof(PROJDATA, Alpha),       sizeof(PROJDATA::Alpha)},
    ParameterRow{ProjParamRotate,      "rotate",     "Rotate U/V to X/Y",                 Quantity::Flag,       ProjDataTypeBool,       offsetof(PROJDATA, bRotate),     sizeof(PROJDATA::bRotate)},
    ParameterRow{ProjParamUOffset,     "u_offset",   "Offset by U",                       Quantity::Flag,       ProjDataTypeBool,       offsetof(PROJDATA, bUOffset),    sizeof(PROJDATA::bUOffset)},
    ParameterRow{ProjParamEllipsoid,   "ellipsoid",  "Ellipsoid",                         Quantity::Ellipsoid,  ProjDataTypeEllipsoid,  offsetof(PROJDATA, Ellipsoid),   sizeof(PROJDATA::Ellipsoid)},
    ParameterRow{ProjParamMajorRadius, "radius",     "Ellipsoid Radius (meters)",         Quantity::Metres,     ProjDataTypeDouble,     offsetof(PROJDATA, MajorRadius), sizeof(PROJDATA::MajorRadius)},
    ParameterRow{ProjParamFlattening,  "flattening", "Ellipsoid Flattening",              Quantity::Flattening, ProjDataTypeDouble,     offsetof(PROJDATA, Flattening),  sizeof(PROJDATA::Flattening)},
};
// clang-format on
static_assert(parameterTable.size() == 22 && parameterTable.back().id == 22);
static_assert(sizeof(PROJDATA) == 396 && offsetof(PROJDATA, Zone) == 101 && offsetof(PROJDATA, Reserved) == 140);

/// The parameter's row; null for a number that is no parameter.
constexpr ParameterRow const* parameterRow(int id) {
    return id > 0 && id <= static_cast<int>(parameterTable.size()) ? &parameterTable[static_cast<std::size_t>(id - 1)]
                                                                   : nullptr;
}

} // namespace ZrProj
