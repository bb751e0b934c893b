// Projections: parameter records, the catalogue of types and parameters, and handles that convert points.
//
//     ZrProj::PROJDATA data = {};
//     data.Type = ZrProj::ProjTypeUniversalTransverseMercator;
//     data.Ellipsoid = ZrProj::EllipsoidTypeWgs84;
//     data.Lon0 = ZrProj::ProjUTMZoneNumberToLon(17);
//     ZrProj::CProjector utm(&data);
//     ZrProj::PROJPOINT p = {-79.38, 43.65};   // longitude, latitude
//     utm.Forward(&p, 1);                      // easting, northing
//
// Angles are decimal degrees, east and north positive. Lengths are in the unit of the ellipsoid's semi-major axis, the
// metre for every ellipsoid of the catalogue. A null pointer where a function needs one makes it return false, 0 or
// null unless its comment says otherwise; it never crashes.
//
// A handle is one thread's at a time, since conversions write its result; distinct handles may be used at once.
#ifndef ZRPROJ_PROJECTION_H
#define ZRPROJ_PROJECTION_H

#include "api.h"
#include "ellipsoid.h"
#include "zones.h"

#include <cstdint>

namespace ZrProj {

class CPROJCHAIN; // preclip.h

/// A projection type, 0 to 28. Types named spherical use a sphere with the semi-major axis as its radius, whatever the
/// flattening; all others are maps of the ellipsoid.
enum ProjType : std::int32_t {
    ProjTypeUnprojectedLatLong = 0,          ///< no map: conversions leave points as they are
    ProjTypeMercator = 1,                    ///< conformal, meridians and parallels straight; the poles cannot be shown
    ProjTypeAlbersEqualAreaConic = 2,        ///< equal area, cone true along the parallels Lat1 and Lat2
    ProjTypeMillerCylindrical = 3,           ///< spherical; resembles Mercator and shows the poles
    ProjTypeUniversalTransverseMercator = 4, ///< Transverse Mercator with the false origin and scale of a UTM zone
    ProjTypeLambertConformalConic = 5,       ///< conformal, cone true along the parallels Lat1 and Lat2
    ProjTypeStereographic = 6,               ///< conformal, about the centre Lat0, Lon0
    ProjTypeOrthographic = 7,                ///< the hemisphere about Lat0, Lon0 as seen from infinitely far
    ProjTypeMollweide = 8,                   ///< spherical; equal area, the world in an ellipse
    ProjTypeStatePlane1927 = 9,              ///< the definition of 1927 of the State Plane zone in Zone
    ProjTypeStatePlane1983 = 10,             ///< the definition of 1983 of the State Plane zone in Zone
    ProjTypePolyconic = 11,                  ///< every parallel an arc that is true to scale
    ProjTypeHotineObliqueMercator = 12,      ///< conformal along an oblique line, by its azimuth or two points of it
    ProjTypeEquidistantCylindrical = 13,     ///< meridians and the parallels Lat1 and -Lat1 true to scale
    ProjTypeRobinson = 14,                   ///< spherical; the world by Robinson's table, always about longitude 0
    ProjTypeVanDerGrinten = 15,              ///< spherical; the world in a circle
    ProjTypeCassini = 16,                    ///< true to scale along the central meridian and at right angles to it
    ProjTypeTransverseMercator = 17,         ///< conformal about the meridian Lon0, by a series good for a few degrees
    ProjTypeGaussKruger = 18,                ///< the same map as TransverseMercator under its other name
    ProjTypeSinusoidal = 19,                 ///< equal area, every parallel true to scale
    ProjTypeLambertAzimuthalEqualArea = 20,  ///< equal area, about the centre Lat1, Lon0
    ProjTypeBonne = 21,                      ///< equal area, every parallel an arc true to scale, about Lat1
    ProjTypeRobinsonSterling = 22,           ///< spherical; Robinson's table by another interpolation, about Lon0
    ProjTypeEckertIV = 23,                   ///< spherical; equal area, poles half as long as the equator, ellipses
    ProjTypeEckertVI = 24,                   ///< spherical; equal area, poles half as long as the equator, sinusoids
    ProjTypeObliqueMercator = 25,            ///< spherical; conformal along the great circle through two points
    ProjTypeEquidistantConic = 26,           ///< meridians and the parallels Lat1 and Lat2 true to scale
    ProjTypeGnomonic = 27,                   ///< spherical; great circles are straight, about the centre Lat1, Lon0
    ProjTypeAzimuthalEquidistant = 28,       ///< true distances and azimuths from the centre Lat1, Lon0
    ProjTypeUndefined = 999,                 ///< no projection; such a record passes its check and converts nothing
};

/// A parameter of a projection, 1 to 22. Each line says the field of PROJDATA that holds its value, and its display
/// name.
enum ProjParam : std::int32_t {
    ProjParamNone = 0,         ///< no parameter
    ProjParamType = 1,         ///< Type, "Projection"
    ProjParamScale = 2,        ///< Scale, "Scale"
    ProjParamXOrg = 3,         ///< xOrg, "False Easting"
    ProjParamYOrg = 4,         ///< yOrg, "False Northing"
    ProjParamLat0 = 5,         ///< Lat0, "Central Latitude"
    ProjParamLon0 = 6,         ///< Lon0, "Central Longitude"
    ProjParamLat1 = 7,         ///< Lat1, "Standard Parallel"
    ProjParamLat2 = 8,         ///< Lat2, "2nd Standard Parallel"
    ProjParamLat3 = 9,         ///< Lat3, "3rd Standard Parallel"
    ProjParamLon1 = 10,        ///< Lon1, "1st Meridian"
    ProjParamLon2 = 11,        ///< Lon2, "2nd Meridian"
    ProjParamLon3 = 12,        ///< Lon3, "3rd Meridian"
    ProjParamK0 = 13,          ///< K0, "Central Scale Factor (K0)"
    ProjParamSouth = 14,       ///< bSouth, "Projection in Southern Hemisphere"
    ProjParamZone = 15,        ///< Zone, "State Zone"
    ProjParamUseAlpha = 16,    ///< bUseAlpha, "Use Alpha Parameter"
    ProjParamAlpha = 17,       ///< Alpha, "Alpha (Azimuth)"
    ProjParamRotate = 18,      ///< bRotate, "Rotate U/V to X/Y"
    ProjParamUOffset = 19,     ///< bUOffset, "Offset by U"
    ProjParamEllipsoid = 20,   ///< Ellipsoid, "Ellipsoid"
    ProjParamMajorRadius = 21, ///< MajorRadius, "Ellipsoid Radius (meters)"
    ProjParamFlattening = 22,  ///< Flattening, "Ellipsoid Flattening"
};

/// The kind of value that a parameter has, and with it the type of the field in PROJDATA.
enum ProjDataType : std::int32_t {
    ProjDataTypeDouble = 0,     ///< a double
    ProjDataTypeBool = 1,       ///< a bool of one byte
    ProjDataTypeProjection = 2, ///< a ProjType
    ProjDataTypeStateZone = 3,  ///< a StateZoneType
    ProjDataTypeEllipsoid = 4,  ///< an EllipsoidType
    ProjDataTypeNone = 5,       ///< no value; no parameter has this kind
};

/// A point: longitude in x and latitude in y, both in degrees, or easting in x and northing in y. Both coordinates hold
/// DBL_MAX where a point cannot be converted; such a point is called marked.
struct PROJPOINT {
    double x, y;
};

#pragma pack(push, 1)
/// A projection and its parameters: 396 bytes without padding. Zero the whole record, then set what the type uses;
/// ProjEnumParam lists that. Fields that a type does not use must be within their bounds all the same
/// (ProjCheckParams).
struct PROJDATA {
    ProjType Type;           ///< the projection
    double Scale;            ///< what map coordinates are multiplied by in the end, at least 0; 0 counts as 1
    double xOrg;             ///< false easting, in the ellipsoid's unit, added before Scale
    double yOrg;             ///< false northing, in the ellipsoid's unit, added before Scale
    double Lat0;             ///< latitude of the origin or the centre, degrees, within 360 either way
    double Lon0;             ///< central meridian, degrees, within 360 either way
    double Lat1;             ///< first standard parallel, first point or, for types 20, 27 and 28, the centre; degrees
    double Lat2;             ///< second standard parallel, or latitude of the second point, degrees
    double Lat3;             ///< third standard parallel, degrees; no type uses it
    double Lon1;             ///< longitude of the first point, or of the centre of Hotine's azimuth form, degrees
    double Lon2;             ///< longitude of the second point, degrees
    double Lon3;             ///< third meridian, degrees; no type uses it
    double K0;               ///< scale factor at the centre, at least 0; 0 counts as 1, for UTM as 0.9996
    bool bSouth;             ///< southern hemisphere: UTM's false northing becomes 10,000,000
    StateZoneType Zone;      ///< State Plane zone, for types 9 and 10
    bool bUseAlpha;          ///< Hotine: the line is given by Alpha instead of two points
    double Alpha;            ///< Hotine: azimuth of the line at the centre, degrees, not 0
    bool bRotate;            ///< Hotine: turn u, v, which run along and across the line, to x, y
    bool bUOffset;           ///< Hotine: measure u from the centre instead of the crossing with the equator
    EllipsoidType Ellipsoid; ///< 0: MajorRadius and Flattening are the caller's own
    double MajorRadius;      ///< semi-major axis, above 0; its unit is that of all lengths
    double Flattening;       ///< at least 0, below 1; exactly 0 is a sphere
    std::int32_t iResult;    ///< result of a handle's last conversion: 1 where it marked a point, else 0
    unsigned char Reserved[256]; ///< zero; carried along unchanged
};
#pragma pack(pop)

/// Tells how many projection types there are: 29, from 0 to 28.
ZRPROJ_API int ProjNumProjections();

/// Copies a type's display name into `name` and returns its capability bits, which are for callers only.
///
/// `name` may be null, otherwise it needs 37 bytes. It becomes "undefined" for type 999 and "" for any other number
/// that is no type; the bits are then 0.
ZRPROJ_API unsigned ProjGetProjectionInfo(ProjType type, char* name);

/// Tells how many parameters a type uses. Returns -1 for a number that is no type.
ZRPROJ_API int ProjNumParams(ProjType type);

/// Gives the identifier (a ProjParam) of a type's parameter at `index`, in the order in which a user interface presents
/// them. Returns 0, which is no parameter, for a number that is no type and for an index outside 0 to
/// ProjNumParams(type) - 1.
ZRPROJ_API int ProjEnumParam(ProjType type, int index);

/// Tells whether a type uses the parameter with an identifier. Returns false for numbers that are no type or no
/// parameter.
ZRPROJ_API bool ProjUsesParam(ProjType type, int id);

/// Describes a parameter: its display name, the kind of its value, and where it lies in PROJDATA.
///
/// Each output may be null. `name` needs 34 bytes; `offset` and `size` are in bytes from the record's beginning.
/// Returns false, with nothing written, when no parameter has the identifier.
ZRPROJ_API bool ProjParamInfo(int id, char* name, ProjDataType* type, int* offset, int* size);

/// Copies a parameter's value out of a record, as many bytes as ProjParamInfo gives for its size. Returns false, with
/// nothing written, for an unknown identifier or a null pointer.
ZRPROJ_API bool ProjGetParam(PROJDATA const* data, int id, void* value);

/// Copies a value into a parameter of a record, as many bytes as ProjParamInfo gives for its size. The value is not
/// checked; ProjCheckParams does that. Returns false, with the record untouched, for an unknown identifier or a null
/// pointer.
ZRPROJ_API bool ProjSetParam(PROJDATA* data, int id, void const* value);

/// Checks a record, which is never changed. Types 0 and 999 always pass.
///
/// Returns 0 when a handle can be made of the record, otherwise the identifier of the first parameter at fault, or 998
/// for a null record. A NaN is a fault wherever a value is checked.
///
/// `message` may be null, otherwise it needs 512 bytes; it receives the reason, "" when there is none. With `report`
/// the fault, but not the null record, also goes to the host's error callback by its number (20230 to 20256).
ZRPROJ_API int ProjCheckParams(PROJDATA const* data, char* message, bool report);

/// Makes a handle that converts points. The record is checked with ProjCheckParams first, reporting on.
///
/// What creation completes is written to the caller's record: MajorRadius and Flattening of a catalogue ellipsoid; for
/// UTM xOrg 500000, yOrg 10000000 (bSouth) or 0, and K0 0.9996 where it was 0. A State Plane record, too, needs an
/// ellipsoid, any one of the catalogue's; conversions use the zone's own.
///
/// A record may pass and yet define no map, a cone whose parallels are opposite for instance: the handle then marks
/// every point. Returns null for a null or refused record and when memory runs out. Delete the handle with
/// ProjDeleteProjection.
ZRPROJ_API void* ProjCreateProjection(PROJDATA* data);

/// Lets go of a handle; its memory is freed with the last CProjector that shares it. Null is ignored.
ZRPROJ_API void ProjDeleteProjection(void* handle);

/// Converts `count` points in place from longitude/latitude (degrees) to map coordinates,
/// (formula + false origin) * Scale.
///
/// Longitudes are taken modulo 360 and latitudes folded over the pole (100 becomes 80; the longitude is not turned).
/// Points already marked are skipped. Points that cannot be converted, infinite and NaN ones among them, are marked,
/// and ProjResult then gives 1. A point's result has the same bits wherever in an array it stands. A handle of type 0
/// leaves finite points as they are.
///
/// The Transverse Mercator family (types 4, 17, 18) evaluates its series however far a point is from the central
/// meridian, and marks nothing: the result is off by a centimetre at 6 degrees, 0.4 m at 10, and 16 km at 44;
/// ProjLLInProjection draws its line at 45.
///
/// Returns true also when points were marked. Returns false, with the points untouched, for a null pointer and a count
/// below 1; false for type 999; and false when a point raised an arithmetic exception: that point is marked and all
/// others are converted even then.
ZRPROJ_API bool ProjForward(void* handle, PROJPOINT* points, int count);

/// Converts `count` points in place from map coordinates to longitude/latitude (degrees).
///
/// Map points outside the projection's image are marked. Longitudes come out within 360 degrees either way; they are
/// not wrapped to 180. Marking, failures and return value are those of ProjForward.
ZRPROJ_API bool ProjInverse(void* handle, PROJPOINT* points, int count);

/// Gives the result of a handle's last conversion: 1 when it marked a point or failed by an arithmetic exception, else
/// 0. Returns 0 for null.
ZRPROJ_API int ProjResult(void* handle);

/// Copies a handle's record, completed as ProjCreateProjection says, to `out`. Returns false, with nothing written,
/// when either is null.
ZRPROJ_API bool ProjGetHandleInfo(void* handle, PROJDATA* out);

/// Tells whether a point (longitude and latitude, degrees) lies in the projection's usable area, where forward
/// conversion shows it.
///
/// Returns false also for a null pointer, a longitude beyond 360 degrees either way, a latitude beyond 90, a NaN, a
/// type that computes nothing, and a record that defines no map.
ZRPROJ_API bool ProjLLInProjection(void* handle, PROJPOINT const* point);

/// Tells whether an object made of these points (longitude and latitude, degrees) must be split where the projection
/// wraps around.
///
/// Returns true with `*out1` 360 when it reaches the meridian 180 degrees west of the centre, and -360 when it reaches
/// the one east of it; `*out2` is 0. Returns false, with both 0, when it need not be split or the projection does not
/// wrap. For a null pointer, a count of 0 and a type that computes nothing it returns false, with nothing written.
ZRPROJ_API bool ProjLLOffsetSplitObject(void* handle, PROJPOINT const* points, unsigned count, double* out1,
                                        double* out2);

/// Owns a projection handle. A member that forwards takes and returns what the function that it names does, and returns
/// false or 0 while no handle is owned. Copying makes a handle of its own from the source's record; assignment shares
/// the source's handle.
class ZRPROJ_API CProjector {
public:
    /// Owns no handle yet.
    CProjector();
    /// Makes a handle as Create does. IsCreated tells whether there is one.
    explicit CProjector(PROJDATA* data);
    /// Makes a handle of its own from the source's record, so that each may go to a thread of its own. Owns none where
    /// the source does not, or where memory runs out.
    CProjector(CProjector const& other);
    /// Lets go of the handle.
    virtual ~CProjector();
    /// Lets go of the present handle and shares the source's. Self-assignment is harmless.
    CProjector& operator=(CProjector const& other);

    /// Lets go of the present handle and makes a new one by ProjCreateProjection, which completes `*data`. Returns
    /// false when that fails; no handle is then owned.
    bool Create(PROJDATA* data);
    /// Lets go of the handle; ProjDeleteProjection.
    void Delete();
    /// Tells whether a handle is owned.
    bool IsCreated() const;
    /// Converts longitude/latitude to map coordinates in place; ProjForward.
    bool Forward(PROJPOINT* points, int count);
    /// Converts map coordinates to longitude/latitude in place; ProjInverse.
    bool Inverse(PROJPOINT* points, int count);
    /// Gives the last conversion's result; ProjResult.
    int Result();
    /// Copies the handle's record; ProjGetHandleInfo.
    bool GetInfo(PROJDATA* out);
    /// Tells whether a point lies in the usable area; ProjLLInProjection.
    bool LLInProjection(PROJPOINT const* point);
    /// Tells whether an object must be split; ProjLLOffsetSplitObject.
    bool LLOffsetSplitObject(PROJPOINT const* points, unsigned count, double* out1, double* out2);
    /// Cuts a line to what the map shows; ProjLLPreclipPolyline. Include preclip.h for its chains.
    bool LLPreclipPolyline(PROJPOINT const* points, unsigned count, CPROJCHAIN** chains);
    /// Cuts an area to what the map shows; ProjLLPreclipPolygon. Include preclip.h for its chains.
    bool LLPreclipPolygon(PROJPOINT const* points, unsigned count, CPROJCHAIN** chains);

private:
    void* m_handle; // null: no handle is owned
};

} // namespace ZrProj

#endif
