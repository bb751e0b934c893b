// The keys of a reference file: one row a line of the file, in the file's order.
#pragma once

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
    std::size_t offset; // of the field in MapRecord
    int usage;          // 0: always used; others as reference_usage.h lists them
};

// The format has one field for the six coefficients: the first.
// clang-format off
inline constexpr std::array referenceKeys{
    ReferenceKey{"Projection Name", Section::Projection, &projectionName, offsetof(MapRecord, projection.Type), 0},
    ReferenceKey{"Projection Scale", Section::Projection, &realValue, offsetof(MapRecord, projection.Scale), 0},
    ReferenceKey{"Projection False Easting (meters)", Section::Projection, &realValue, offsetof(MapRecord, projection.xOrg), 0},
    ReferenceKey{"Projection False Northing (meters)", Section::Projection, &realValue, offsetof(MapRecord, projection.yOrg), 0},
    ReferenceKey{"Projection Lat0 (degrees)", Section::Projection, &realValue, offsetof(MapRecord, projection.Lat0), 1},
    ReferenceKey{"Projection Lon0 (degrees)", Section::Projection, &realValue, offsetof(MapRecord, projection.Lon0), 2},
    ReferenceKey{"Projection Lat1 (degrees)", Section::Projection, &realValue, offsetof(MapRecord, projection.Lat1), 3},
    ReferenceKey{"Projection Lat2 (degrees)", Section::Projection, &realValue, offsetof(MapRecord, projection.Lat2), 4},
    ReferenceKey{"Projection Lat3 (degrees)", Section::Projection, &realValue, offsetof(MapRecord, projection.Lat3), 5},
    ReferenceKey{"Projection Lon1 (degrees)", Section::Projection, &realValue, offsetof(MapRecord, projection.Lon1), 6},
    ReferenceKey{"Projection Lon2 (degrees)", Section::Projection, &realValue, offsetof(MapRecord, projection.Lon2), 7},
    ReferenceKey{"Projection Lon3 (degrees)", Section::Projection, &realValue, offsetof(MapRecord, projection.Lon3), 8},
    ReferenceKey{"Projection Central Scale", Section::Projection, &realValue, offsetof(MapRecord, projection.K0), 9},
    ReferenceKey{"Projection In Southern Hemisphere (UTM only)", Section::Projection, &flagValue, offsetof(MapRecord, projection.bSouth), 10},
    ReferenceKey{"Projection State Zone", Section::Projection, &stateZoneName, offsetof(MapRecord, projection.Zone), 11},
    ReferenceKey{"Projection Uses Alpha Parameter (Hotine only)", Section::Projection, &flagValue, offsetof(MapRecord, projection.bUseAlpha), 12},
    ReferenceKey{"Projection Alpha", Section::Projection, &realValue, offsetof(MapRecord, projection.Alpha), 13},
    ReferenceKey{"Projection Rotates UV to XY (Hotine only)", Section::Projection, &flagValue, offsetof(MapRecord, projection.bRotate), 14},
    ReferenceKey{"Projection Offets by U (Hotine only)", Section::Projection, &flagValue, offsetof(MapRecord, projection.bUOffset), 15},
    ReferenceKey{"Projection Ellipsoid Type", Section::Projection, &ellipsoidName, offsetof(MapRecord, projection.Ellipsoid), 0},
    ReferenceKey{"Projection Ellipsoid Radius (meters)", Section::Projection, &realValue, offsetof(MapRecord, projection.MajorRadius), 0},
    ReferenceKey{"Projection Ellipsoid Flattening", Section::Projection, &realValue, offsetof(MapRecord, projection.Flattening), 0},
    ReferenceKey{"Datum Name", Section::Datum, &datumName, offsetof(MapRecord, datum), 0},
    ReferenceKey{"Datum Method", Section::Datum, &datumMethodName, offsetof(MapRecord, datumParameters.Method), 0},
    ReferenceKey{"Datum Ellipsoid Type", Section::Datum, &ellipsoidName, offsetof(MapRecord, datumParameters.Ellipsoid), 16},
    ReferenceKey{"Datum Prime Meridian Shift (degrees)", Section::Datum, &realValue, offsetof(MapRecord, datumParameters.PrimeMeridian), 17},
    ReferenceKey{"Datum X-Shift in meters from WGS84", Section::Datum, &realValue, offsetof(MapRecord, datumParameters.dX), 18},
    ReferenceKey{"Datum Y-Shift in meters from WGS84", Section::Datum, &realValue, offsetof(MapRecord, datumParameters.dY), 19},
    ReferenceKey{"Datum Z-Shift in meters from WGS84", Section::Datum, &realValue, offsetof(MapRecord, datumParameters.dZ), 20},
    ReferenceKey{"Datum X-rotation in arcseconds from WGS84", Section::Datum, &realValue, offsetof(MapRecord, datumParameters.rX), 21},
    ReferenceKey{"Datum Y-rotation in arcseconds from WGS84", Section::Datum, &realValue, offsetof(MapRecord, datumParameters.rY), 22},
    ReferenceKey{"Datum Z-rotation in arcseconds from WGS84", Section::Datum, &realValue, offsetof(MapRecord, datumParameters.rZ), 23},
    ReferenceKey{"Datum Scale relative to WGS84", Section::Datum, &realValue, offsetof(MapRecord, datumParameters.Scale), 24},
    ReferenceKey{"Datum Ellipsoid Radius (meters)", Section::Datum, &realValue, offsetof(MapRecord, datumParameters.MajorRadius), 25},
    ReferenceKey{"Datum Ellipsoid Flattening", Section::Datum, &realValue, offsetof(MapRecord, datumParameters.Flattening), 26},
    ReferenceKey{"Georef Method", Section::Georef, &georefMethodName, offsetof(MapRecord, georef.Method), 0},
    ReferenceKey{"Georef Control Point Count", Section::Georef, &integerValue, offsetof(MapRecord, georef.nControls), 28},
    ReferenceKey{"Georef Coefficient A", Section::Georef, &realValue, offsetof(MapRecord, georef.A), 29},
    ReferenceKey{"Georef Coefficient B", Section::Georef, &realValue, offsetof(MapRecord, georef.A), 30},
    ReferenceKey{"Georef Coefficient C", Section::Georef, &realValue, offsetof(MapRecord, georef.A), 31},
    ReferenceKey{"Georef Coefficient D", Section::Georef, &realValue, offsetof(MapRecord, georef.A), 32},
    ReferenceKey{"Georef Coefficient E", Section::Georef, &realValue, offsetof(MapRecord, georef.A), 33},
    ReferenceKey{"Georef Coefficient F", Section::Georef, &realValue, offsetof(MapRecord, georef.A), 34},
};
// clang-format on
static_assert(referenceKeys.size() == 43);

} // namespace ZrProj
