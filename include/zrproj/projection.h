// Projections: parameter records, the catalogue of types and parameters, and handles that convert points.
//
//     ZrProj::PROJDATA data = {};
//     data.Type = ZrProj::ProjTypeUniversalTransverseMercator;
//     data.Ellipsoid = ZrProj::EllipsoidTypeWgs84;
//     data.Lon0 = ZrProj::ProjUTMZoneNumberToLon(17);
//     ZrProj::CProjector utm(&data);
//     ZrProj::PROJPOINT p = {-79.38, 43.65};   // longitude, latitude
//     utm.Forward(&p, 1);                      // easting, northing
#ifndef ZRPROJ_PROJECTION_H
#define ZRPROJ_PROJECTION_H

#include "api.h"
#include "ellipsoid.h"
#include "zones.h"

#include <cstdint>

namespace ZrProj {

class CPROJCHAIN; // preclip.h

/// A projection type, 0 to 28. 999 stands for an undefined projection.
enum ProjType : std::int32_t {
    ProjTypeUnprojectedLatLong = 0,
    ProjTypeMercator = 1,
    ProjTypeAlbersEqualAreaConic = 2,
    ProjTypeMillerCylindrical = 3,
    ProjTypeUniversalTransverseMercator = 4,
    ProjTypeLambertConformalConic = 5,
    ProjTypeStereographic = 6,
    ProjTypeOrthographic = 7,
    ProjTypeMollweide = 8,
    ProjTypeStatePlane1927 = 9,
    ProjTypeStatePlane1983 = 10,
    ProjTypePolyconic = 11,
    ProjTypeHotineObliqueMercator = 12,
    ProjTypeEquidistantCylindrical = 13,
    ProjTypeRobinson = 14,
    ProjTypeVanDerGrinten = 15,
    ProjTypeCassini = 16,
    ProjTypeTransverseMercator = 17,
    ProjTypeGaussKruger = 18,
    ProjTypeSinusoidal = 19,
    ProjTypeLambertAzimuthalEqualArea = 20,
    ProjTypeBonne = 21,
    ProjTypeRobinsonSterling = 22,
    ProjTypeEckertIV = 23,
    ProjTypeEckertVI = 24,
    ProjTypeObliqueMercator = 25,
    ProjTypeEquidistantConic = 26,
    ProjTypeGnomonic = 27,
    ProjTypeAzimuthalEquidistant = 28,
    ProjTypeUndefined = 999,
};

/// What a parameter's value is.
enum ProjDataType : std::int32_t {
    ProjDataTypeDouble = 0,     ///< double
    ProjDataTypeBool = 1,       ///< bool, one byte
    ProjDataTypeProjection = 2, ///< ProjType
    ProjDataTypeStateZone = 3,  ///< StateZoneType
    ProjDataTypeEllipsoid = 4,  ///< EllipsoidType
    ProjDataTypeNone = 5,       ///< the catalogue's end mark
};

/// A point: longitude and latitude in degrees, or easting and northing. Both coordinates hold DBL_MAX where a point
/// cannot be converted.
struct PROJPOINT {
    double x, y;
};

#pragma pack(push, 1)
/// A projection and its parameters: 396 bytes without padding. Zero the whole record, then set what the type uses
/// (ProjEnumParam lists it).
struct PROJDATA {
    ProjType Type;
    double Scale;                ///< map scale, applied after the false origin; 0 counts as 1
    double xOrg;                 ///< false easting, ellipsoid units
    double yOrg;                 ///< false northing, ellipsoid units
    double Lat0;                 ///< central latitude, degrees
    double Lon0;                 ///< central longitude, degrees
    double Lat1;                 ///< first standard parallel, degrees
    double Lat2;                 ///< second standard parallel, degrees
    double Lat3;                 ///< third standard parallel, degrees
    double Lon1;                 ///< first meridian, degrees
    double Lon2;                 ///< second meridian, degrees
    double Lon3;                 ///< third meridian, degrees
    double K0;                   ///< scale factor at the centre; 0 counts as 1, for UTM as 0.9996
    bool bSouth;                 ///< southern hemisphere (UTM)
    StateZoneType Zone;          ///< State Plane zone
    bool bUseAlpha;              ///< azimuth instead of two points (Hotine Oblique Mercator)
    double Alpha;                ///< azimuth, degrees
    bool bRotate;                ///< turn u, v to x, y (Hotine Oblique Mercator)
    bool bUOffset;               ///< measure u from the centre (Hotine Oblique Mercator)
    EllipsoidType Ellipsoid;     ///< 0: MajorRadius and Flattening are the caller's own
    double MajorRadius;          ///< semi-major axis, metres
    double Flattening;           ///< at least 0, below 1; exactly 0 is a sphere
    std::int32_t iResult;        ///< result of the last conversion: 0, or 1 where a point could not be converted
    unsigned char Reserved[256]; ///< zero; carried along unchanged
};
#pragma pack(pop)

/// The number of projection types, 29.
ZRPROJ_API int ProjNumProjections();

/// Copies a type's name into `name` unless that is null (37 bytes hold the longest) and returns its capability bits.
/// For 999 the name is "undefined", for any other number it is ""; the bits are then 0.
ZRPROJ_API unsigned ProjGetProjectionInfo(ProjType type, char* name);

/// How many parameters a type uses; -1 for a number that is no type.
ZRPROJ_API int ProjNumParams(ProjType type);

/// The identifier (1 to 22) of a type's parameter at `index`, in the order in which a user interface presents them; 0
/// when the index is not below ProjNumParams(type), or negative.
ZRPROJ_API int ProjEnumParam(ProjType type, int index);

/// Whether a type uses the parameter.
ZRPROJ_API bool ProjUsesParam(ProjType type, int id);

/// Describes a parameter: copies its display name (34 bytes hold the longest), value type, and offset and size within
/// PROJDATA (bytes) to whichever outputs are not null. False, nothing written, when no parameter has the identifier.
ZRPROJ_API bool ProjParamInfo(int id, char* name, ProjDataType* type, int* offset, int* size);

/// Copies a parameter's bytes out of a record, as many as ProjParamInfo's size. False for an unknown identifier or a
/// null pointer.
ZRPROJ_API bool ProjGetParam(PROJDATA const* data, int id, void* value);

/// Copies a parameter's bytes into a record, as many as ProjParamInfo's size; the value is not checked. False for an
/// unknown identifier or a null pointer.
ZRPROJ_API bool ProjSetParam(PROJDATA* data, int id, void const* value);

/// Checks a record. Returns 0 when it can be used, otherwise the identifier of the first parameter at fault, or 998 for
/// a null record. `message` (at least 512 bytes, or null) receives the reason, "" when there is none. With `report` the
/// failure also goes to the host's error callback. Never changes the record; types 0 and 999 always pass.
ZRPROJ_API int ProjCheckParams(PROJDATA const* data, char* message, bool report);

/// Makes a handle that converts points, after checking the record with ProjCheckParams and reporting on.
///
/// Writes to the caller's record: a catalogue ellipsoid's MajorRadius and Flattening; for UTM xOrg 500000, yOrg
/// 10000000 (bSouth) or 0, and K0 0.9996 where it was 0. A State Plane record, too, needs an ellipsoid (any of the
/// catalogue's: the zone's own is used). Returns null for a null or refused record, or when memory runs out. Delete the
/// handle with ProjDeleteProjection.
ZRPROJ_API void* ProjCreateProjection(PROJDATA* data);

/// Lets go of a handle; its memory is freed with the last CProjector that shares it. Null is ignored.
ZRPROJ_API void ProjDeleteProjection(void* handle);

/// Converts `count` points in place from longitude/latitude (degrees) to map coordinates,
/// (formula + false origin) * Scale.
///
/// Longitudes are taken modulo 360 and latitudes folded over the pole (100 becomes 80; the longitude is not turned).
/// Points already marked are skipped. Points that cannot be converted, infinite and NaN ones among them, are marked,
/// and ProjResult then gives 1. A type-0 handle leaves points as they are.
///
/// The Transverse Mercator family (types 4, 17, 18) evaluates its series however far a point is from the central
/// meridian, and marks nothing: the result is off by some centimetres at 6 degrees, half a metre at 10, and kilometres
/// at 45, which is where ProjLLInProjection draws its line.
///
/// Returns false for a null pointer, a count below 1, a type without formulas, and when a point raised an arithmetic
/// exception (that point is marked and the others are converted).
ZRPROJ_API bool ProjForward(void* handle, PROJPOINT* points, int count);

/// Converts `count` points in place from map coordinates to longitude/latitude (degrees). Marking and results as for
/// ProjForward. Longitudes come out within 360 degrees either way, not wrapped to 180.
ZRPROJ_API bool ProjInverse(void* handle, PROJPOINT* points, int count);

/// The last conversion's result: 1 when it marked a point or failed by an arithmetic exception, else 0; 0 for null.
ZRPROJ_API int ProjResult(void* handle);

/// Copies a handle's whole record to `out`. False when either is null.
ZRPROJ_API bool ProjGetHandleInfo(void* handle, PROJDATA* out);

/// Whether a point (degrees) lies inside the projection's usable area. False also for a null pointer, a longitude
/// beyond 360, a latitude beyond 90, and a type without formulas.
ZRPROJ_API bool ProjLLInProjection(void* handle, PROJPOINT const* point);

/// Whether an object made of these points (degrees) must be split where the projection wraps. True with `*out1` 360
/// when it reaches the meridian 180 degrees west of the centre, -360 when it reaches the one east of it; `*out2` is 0.
/// False otherwise, and for a null pointer or a count of 0.
ZRPROJ_API bool ProjLLOffsetSplitObject(void* handle, PROJPOINT const* points, unsigned count, double* out1,
                                        double* out2);

/// Owns a projection handle, and forwards to the function of the like name. Copying makes a handle of its own from the
/// source's record; assignment shares the source's handle.
class ZRPROJ_API CProjector {
public:
    CProjector();
    explicit CProjector(PROJDATA* data);
    CProjector(CProjector const& other);
    virtual ~CProjector();
    CProjector& operator=(CProjector const& other);

    /// Lets go of the present handle and makes a new one; false when that fails.
    bool Create(PROJDATA* data);
    void Delete();
    bool IsCreated() const;
    bool Forward(PROJPOINT* points, int count);
    bool Inverse(PROJPOINT* points, int count);
    int Result();
    bool GetInfo(PROJDATA* out);
    bool LLInProjection(PROJPOINT const* point);
    bool LLOffsetSplitObject(PROJPOINT const* points, unsigned count, double* out1, double* out2);
    bool LLPreclipPolyline(PROJPOINT const* points, unsigned count, CPROJCHAIN** chains);
    bool LLPreclipPolygon(PROJPOINT const* points, unsigned count, CPROJCHAIN** chains);

private:
    void* m_handle;
};

} // namespace ZrProj

#endif
