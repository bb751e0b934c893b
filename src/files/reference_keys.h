// The keys of a reference file: one row a line of the file, in the file's order.
#pragma once

#include "datum/method_table.h"
#include "files/map_record.h"
#include "files/reference_values.h"

#include <array>
#include <cstddef>

namespace ZrProj {

/// The part of the record that a line belongs to.
enum class Section { Projection, Datum, Georef };

struct ReferenceKey {
    char const* key;
    Section section;
    Encoding const* encoding;
    std::size_t offset;               // of the field in MapRecord
    bool (*isUsed)(MapRecord const&); // by a record that has the section
};

constexpr bool always(MapRecord const&) {
    return true;
}

/// Whether the projection uses a parameter. The format leaves out the central scale of the oblique Mercator.
template <ProjParam parameter> bool uses(MapRecord const& map) {
    bool const isLeftOut = map.projection.Type == ProjTypeObliqueMercator && parameter == ProjParamK0;
    return !isLeftOut && ProjUsesParam(map.projection.Type, parameter);
}

inline bool hasShifts(MapRecord const& map) {
    return datumMethodIs(map.datumParameters.Method, &DatumMethodRow::hasShifts);
}
inline bool hasRotations(MapRecord const& map) {
    return datumMethodIs(map.datumParameters.Method, &DatumMethodRow::hasRotations);
}
inline bool hasCoefficients(MapRecord const& map) {
    return map.georef.Method == TransformMethodPrecalculatedAffineCoefficients;
}
inline bool hasControlPoints(MapRecord const& map) {
    return map.georef.Method >= 0 && map.georef.Method < TransformMethodNone && !hasCoefficients(map);
}

// The format has one field for the six coefficients: the first.
// clang-format off
inline constexpr std::array referenceKeys{
    ReferenceKey{"Projection Name",                               Section::Projection, &projectionName,   offsetof(MapRecord, projection.Type),               always},
    ReferenceKey{"Projection Scale",                              Section::Projection, &realValue,        offsetof(MapRecord, projection.Scale),              always},
    ReferenceKey{"Projection False Easting (meters)",             Section::Projection, &realValue,        offsetof(MapRecord, projection.xOrg),               always},
    ReferenceKey{"Projection False Northing (meters)",            Section::Projection, &realValue,        offsetof(MapRecord, projection.yOrg),               always},
    ReferenceKey{"Projection Lat0 (degrees)",                     Section::Projection, &realValue,        offsetof(MapRecord, projection.Lat0),               uses<ProjParamLat0>},
    ReferenceKey{"Projection Lon0 (degrees)",                     Section::Projection, &realValue,        offsetof(MapRecord, projection.Lon0),               uses<ProjParamLon0>},
    ReferenceKey{"Projection Lat1 (degrees)",                     Section::Projection, &realValue,        offsetof(MapRecord, projection.Lat1),               uses<ProjParamLat1>},
    ReferenceKey{"Projection Lat2 (degrees)",                     Section::Projection, &realValue,        offsetof(MapRecord, projection.Lat2),               uses<ProjParamLat2>},
    ReferenceKey{"Projection Lat3 (degrees)",                     Section::Projection, &realValue,        offsetof(MapRecord, projection.Lat3),               uses<ProjParamLat3>},
    ReferenceKey{"Projection Lon1 (degrees)",                     Section::Projection, &realValue,        offsetof(MapRecord, projection.Lon1),               uses<ProjParamLon1>},
    ReferenceKey{"Projection Lon2 (degrees)",                     Section::Projection, &realValue,        offsetof(MapRecord, projection.Lon2),               uses<ProjParamLon2>},
    ReferenceKey{"Projection Lon3 (degrees)",                     Section::Projection, &realValue,        offsetof(MapRecord, projection.Lon3),               uses<ProjParamLon3>},
    ReferenceKey{"Projection Central Scale",                      Section::Projection, &realValue,        offsetof(MapRecord, projection.K0),                 uses<ProjParamK0>},
    ReferenceKey{"Projection In Southern Hemisphere (UTM only)",  Section::Projection, &flagValue,        offsetof(MapRecord, projection.bSouth),             uses<ProjParamSouth>},
    ReferenceKey{"Projection State Zone",                         Section::Projection, &stateZoneName,    offsetof(MapRecord, projection.Zone),               uses<ProjParamZone>},
    ReferenceKey{"Projection Uses Alpha Parameter (Hotine only)", Section::Projection, &flagValue,        offsetof(MapRecord, projection.bUseAlpha),          uses<ProjParamUseAlpha>},
    ReferenceKey{"Projection Alpha",                              Section::Projection, &realValue,        offsetof(MapRecord, projection.Alpha),              uses<ProjParamAlpha>},
    ReferenceKey{"Projection Rotates UV to XY (Hotine only)",     Section::Projection, &flagValue,        offsetof(MapRecord, projection.bRotate),            uses<ProjParamRotate>},
    ReferenceKey{"Projection Offets by U (Hotine only)",          Section::Projection, &flagValue,        offsetof(MapRecord, projection.bUOffset),           uses<ProjParamUOffset>},
    ReferenceKey{"Projection Ellipsoid Type",                     Section::Projection, &ellipsoidName,    offsetof(MapRecord, projection.Ellipsoid),          always},
    ReferenceKey{"Projection Ellipsoid Radius (meters)",          Section::Projection, &realValue,        offsetof(MapRecord, projection.MajorRadius),        always},
    ReferenceKey{"Projection Ellipsoid Flattening",               Section::Projection, &realValue,        offsetof(MapRecord, projection.Flattening),         always},
    ReferenceKey{"Datum Name",                                    Section::Datum,      &datumName,        offsetof(MapRecord, datum),                         always},
    ReferenceKey{"Datum Method",                                  Section::Datum,      &datumMethodName,  offsetof(MapRecord, datumParameters.Method),        always},
    ReferenceKey{"Datum Ellipsoid Type",                          Section::Datum,      &ellipsoidName,    offsetof(MapRecord, datumParameters.Ellipsoid),     hasShifts},
    ReferenceKey{"Datum Prime Meridian Shift (degrees)",          Section::Datum,      &realValue,        offsetof(MapRecord, datumParameters.PrimeMeridian), hasShifts},
    ReferenceKey{"Datum X-Shift in meters from WGS84",            Section::Datum,      &realValue,        offsetof(MapRecord, datumParameters.dX),            hasShifts},
    ReferenceKey{"Datum Y-Shift in meters from WGS84",            Section::Datum,      &realValue,        offsetof(MapRecord, datumParameters.dY),            hasShifts},
    ReferenceKey{"Datum Z-Shift in meters from WGS84",            Section::Datum,      &realValue,        offsetof(MapRecord, datumParameters.dZ),            hasShifts},
    ReferenceKey{"Datum X-rotation in arcseconds from WGS84",     Section::Datum,      &realValue,        offsetof(MapRecord, datumParameters.rX),            hasRotations},
    ReferenceKey{"Datum Y-rotation in arcseconds from WGS84",     Section::Datum,      &realValue,        offsetof(MapRecord, datumParameters.rY),            hasRotations},
    ReferenceKey{"Datum Z-rotation in arcseconds from WGS84",     Section::Datum,      &realValue,        offsetof(MapRecord, datumParameters.rZ),            hasRotations},
    ReferenceKey{"Datum Scale relative to WGS84",                 Section::Datum,      &realValue,        offsetof(MapRecord, datumParameters.Scale),         hasRotations},
    ReferenceKey{"Datum Ellipsoid Radius (meters)",               Section::Datum,      &realValue,        offsetof(MapRecord, datumParameters.MajorRadius),   hasShifts},
    ReferenceKey{"Datum Ellipsoid Flattening",                    Section::Datum,      &realValue,        offsetof(MapRecord, datumParameters.Flattening),    hasShifts},
    ReferenceKey{"Georef Method",                                 Section::Georef,     &georefMethodName, offsetof(MapRecord, georef.Method),                 always},
    ReferenceKey{"Georef Control Point Count",                    Section::Georef,     &integerValue,     offsetof(MapRecord, georef.nControls),              hasControlPoints},
    ReferenceKey{"Georef Coefficient A",                          Section::Georef,     &realValue,        offsetof(MapRecord, georef.A),                      hasCoefficients},
    ReferenceKey{"Georef Coefficient B",                          Section::Georef,     &realValue,        offsetof(MapRecord, georef.A),                      hasCoefficients},
    ReferenceKey{"Georef Coefficient C",                          Section::Georef,     &realValue,        offsetof(MapRecord, georef.A),                      hasCoefficients},
    ReferenceKey{"Georef Coefficient D",                          Section::Georef,     &realValue,        offsetof(MapRecord, georef.A),                      hasCoefficients},
    ReferenceKey{"Georef Coefficient E",                          Section::Georef,     &realValue,        offsetof(MapRecord, georef.A),                      hasCoefficients},
    ReferenceKey{"Georef Coefficient F",                          Section::Georef,     &realValue,        offsetof(MapRecord, georef.A),                      hasCoefficients},
};
// clang-format on
static_assert(referenceKeys.size() == 43);

} // namespace ZrProj
